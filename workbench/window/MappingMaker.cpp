#include "MappingMaker.h"

#include "TargetRoot.h"

#include <core/message/PMessage.h>
#include <core/progress/PProgress.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <release/assign/ReleaseAssigner.h>
#include <release/assign/ReleaseMappingBuilder.h>

#include <atomic>

using VelkRelease::ReleaseAssigner;
using Builder = VelkRelease::ReleaseMappingBuilder;

void MappingMaker::report(const QStringList &messages)
{
    for (const QString &message : messages) {
        if (m_reported.contains(message))
            continue;
        m_reported += message;
        PMessage::Show(message, PMsgDlgMode::Warning);
    }
}

bool MappingMaker::make(const Wish &wish)
{
    if (!findTargets(wish))
        return false;
    if (wish.assign)
        assignLines(wish.sourceRoot, wish.targetRoot, false);
    return true;
}

bool MappingMaker::findTargets(const Wish &wish)
{
    Builder::Input input;
    input.sourceRoot = wish.sourceRoot;
    input.targetRoot = wish.targetRoot;
    input.sourceCatalog = wish.sourceCatalog;
    input.targetCatalog = wish.targetCatalog;
    input.progressText = tr("Zielprojekte werden gesucht");
    Builder builder(input);
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    const Builder::Outcome outcome = builder.build();
    display.deactivate();
    report(builder.messages());
    if (outcome == Builder::Outcome::Cancelled)
        m_summary = tr("Abgebrochen, es wurde nichts angelegt");
    if (outcome == Builder::Outcome::Cancelled || outcome == Builder::Outcome::Unreadable)
        return false;
    m_release = builder.release();
    const Builder::Counts &counts = builder.counts();
    m_summary = tr("%1 Projekte: %2 am selben Ort, %3 an anderem, %4 aufgeteilt, %5 ohne Ziel, %6 "
                   "unlesbar")
                    .arg(QString::number(m_release.countMappings()), QString::number(counts.same),
                         QString::number(counts.moved), QString::number(counts.several),
                         QString::number(counts.gone), QString::number(counts.unreadable));
    PMessage::LogToWindow(m_summary);
    return true;
}

void MappingMaker::assign(const ReleaseMappingC &release, const QString &sourceRoot,
                          const QString &targetRoot, bool force)
{
    m_release = release;
    assignLines(sourceRoot, targetRoot, force);
}

void MappingMaker::assignLines(const QString &sourceRoot, const QString &targetRoot, bool force)
{
    const TargetRoot root(targetRoot);
    ReleaseAssigner assigner(sourceRoot);
    assigner.setForce(force);
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    PProgress progress(0, m_release.countMappings(), 1, true, false);
    progress.setText(tr("Zeilen werden zugeordnet"));
    std::atomic<bool> cancelled{progress.isCanceled()};
    ReleaseAssigner::Progress reached{0, m_release.countMappings(), {}};
    assigner.setObserver([&](const ReleaseAssigner::Progress &now) {
        while (progress.count() < now.projects)
            progress.nextStep();
        reached = now;
        cancelled = progress.isCanceled();
    });
    // Projects that could not be read are marked in the release and told with their messages.
    static_cast<void>(assigner.run(m_release, cancelled));
    progress.done();
    display.deactivate();
    report(assigner.errors());
    m_summary =
        reached.projects < reached.totalProjects
            ? tr("Abgebrochen: %1 von %2 Projekten mit %3 Zeilen, davon %4 zugeordnet, %5 zu "
                 "prüfen, %6 ohne Ziel")
            : tr("%1 von %2 Projekten mit %3 Zeilen, davon %4 zugeordnet, %5 zu prüfen, %6 "
                 "ohne Ziel");
    const LineCounts &counts = reached.counts;
    m_summary =
        m_summary.arg(QString::number(reached.projects), QString::number(reached.totalProjects),
                      QString::number(counts.lines()), QString::number(counts.assigned()),
                      QString::number(counts.unverified()), QString::number(counts.notFound()));
    PMessage::LogToWindow(m_summary);
}
