#include "MappingMaker.h"

#include "TargetRoot.h"

#include <core/message/PMessage.h>
#include <core/progress/PProgress.h>
#include <core/text/countText.h>
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
    m_summary = tr("%Ln Projekt(e): %1 am selben Ort, %2 an anderem, %3 aufgeteilt, %4 ohne Ziel, "
                   "%5 unlesbar",
                   nullptr, m_release.countMappings())
                    .arg(countText(counts.same), countText(counts.moved), countText(counts.several),
                         countText(counts.gone), countText(counts.unreadable));
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
    const LineCounts &counts = reached.counts;
    const QString projects = tr("%1 von %Ln Projekt(en)", nullptr, reached.totalProjects)
                                 .arg(countText(reached.projects));
    m_summary = tr("%1 mit %Ln Zeile(n)", nullptr, counts.lines()).arg(projects) +
                QStringLiteral(", ") +
                tr("davon %1 zugeordnet, %2 zu prüfen, %3 ohne Ziel")
                    .arg(countText(counts.assigned()), countText(counts.unverified()),
                         countText(counts.notFound()));
    if (reached.projects < reached.totalProjects)
        m_summary = tr("Abgebrochen: %1").arg(m_summary);
    PMessage::LogToWindow(m_summary);
}
