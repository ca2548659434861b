#include "CarryCommands.h"

#include <core/message/PMessage.h>
#include <core/progress/PProgress.h>
#include <core/text/countText.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/document/CatalogRootMemory.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/CarriedWork.h>
#include <workbench/window/document/FileNames.h>
#include <workbench/window/document/TargetRoot.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/Question.h>

#include <QFileInfo>
#include <QSettings>

#include <algorithm>
#include <atomic>

using VelkRelease::CarryOutcome;
using VelkRelease::FormerFault;

namespace {

const QString folderKey = QStringLiteral("Carry/folder");

/// What was not taken over, and why; empty if all was.
QString leftText(const CarryOutcome &outcome)
{
    QStringList parts;
    const auto add = [&parts](int lines, const QString &text) {
        if (lines > 0)
            parts += text.arg(countText(lines));
    };
    add(outcome.settled, CarryCommands::tr("%1 hier schon entschieden oder sicher"));
    add(outcome.unfollowed, CarryCommands::tr("%1 ohne Zeile im neuen Stand"));
    add(outcome.expired, CarryCommands::tr("%1 damals als ausgelaufen bestätigt"));
    add(outcome.unknown, CarryCommands::tr("%1 in Projekten, die hier fehlen"));
    add(outcome.clashing, CarryCommands::tr("%1 dort im Konflikt"));
    return parts.isEmpty()
               ? QString()
               : CarryCommands::tr("Nicht übernommen: %1").arg(parts.join(QStringLiteral(", ")));
}

QString summaryOf(const CarryOutcome &outcome, const QString &file)
{
    const int lines = int(outcome.lines.size());
    const int certain =
        int(std::ranges::count_if(outcome.lines, &VelkRelease::CarriedLine::isCertain));
    const QString text =
        lines == 0
            ? CarryCommands::tr("Aus %1 ist nichts zu übernehmen.").arg(file)
            : CarryCommands::tr("Aus %1 übernommen: %2 von %Ln bestätigten Zeile(n), %3 sicher "
                                "zugeordnet, %4 vorgeschlagen.",
                                nullptr, outcome.confirmed)
                  .arg(file, countText(lines), countText(certain), countText(lines - certain));
    const QString left = leftText(outcome);
    return left.isEmpty() ? text : text + u' ' + left;
}

QString faultText(FormerFault fault, const ReleaseMappingC &release)
{
    const QString cause =
        fault == FormerFault::OtherSource
            ? CarryCommands::tr("Die Datei enthält kein Mapping vom Katalogstand %1.")
                  .arg(release.getSourceDate())
            : CarryCommands::tr("Auch diese Datei führt zum Katalogstand %1.")
                  .arg(release.getTargetDate());
    return cause + u' ' +
           CarryCommands::tr("Wählen Sie ein Mapping, das vom selben alten Katalogstand zu einem "
                             "früheren neuen führt.");
}

} // namespace

CarryCommands::CarryCommands(MappingDocument *document, EditorArea *editor, QSettings *store,
                             QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_editor(editor)
    , m_store(store)
    , m_window(window)
    , m_work(new CarriedWork(document, this))
{
    const auto show = [this] {
        m_editor->setLineRemarks(
            [this](const PrjMappingC &mapping, int line) { return remark(mapping, line); });
    };
    connect(m_work, &CarriedWork::changed, this, show);
    show();
}

QString CarryCommands::remark(const PrjMappingC &mapping, int line) const
{
    const VelkRelease::CarriedStep *const step = m_work->lines().stepOf(mapping, line);
    if (!step)
        return {};
    return tr("Übernommen aus %1: dort für den Katalogstand %2 bestätigt")
        .arg(QFileInfo(step->former).fileName(), step->formerTarget);
}

std::optional<ReleaseMappingC> CarryCommands::read(const QString &file) const
{
    const ReleaseMappingC release = m_document->release();
    VelkRelease::FormerMapping former;
    BackgroundWork::run(tr("Früheres Mapping wird gelesen"),
                        [&] { former = VelkRelease::readFormerMapping(file, release); });
    if (former.fault == FormerFault::None)
        return former.release;
    Question::tell(m_window, tr("Aus %1 kann nichts übernommen werden.").arg(file),
                   former.fault == FormerFault::Unreadable ? former.error
                                                           : faultText(former.fault, release));
    return std::nullopt;
}

/// Empty if the user gives none.
QString CarryCommands::rootOf(const QString &file, const ReleaseMappingC &former) const
{
    QString known = CatalogRootMemory(m_store).roots(MappingDocument::canonicalPath(file)).target;
    if (!known.isEmpty() && QFileInfo(known).isDir())
        return known;
    return FileNames::askDirectory(
        m_window, tr("Verzeichnis des Katalogstands %1").arg(former.getTargetDate()),
        m_document->catalogRoots().target);
}

void CarryCommands::carryByDialog()
{
    const QString folder =
        m_store->value(folderKey, QFileInfo(m_document->mappingFile()).path()).toString();
    const QString file = FileNames::askFormer(m_window, folder);
    if (file.isEmpty())
        return;
    m_store->setValue(folderKey, QFileInfo(file).path());
    const auto former = read(file);
    const QString root = former ? rootOf(file, *former) : QString();
    if (!root.isEmpty())
        carry(file, *former, root);
}

bool CarryCommands::carry(const QString &formerFile, const QString &formerRoot)
{
    const auto former = read(formerFile);
    return former && carry(formerFile, *former, formerRoot);
}

std::optional<ReleaseMappingC> CarryCommands::follow(const ReleaseMappingC &former,
                                                     const QString &formerRoot) const
{
    const QString targetRoot = m_document->catalogRoots().target;
    const TargetRoot root(targetRoot);
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    std::optional<PProgress> progress;
    std::atomic<bool> cancelled = false;
    QStringList errors;
    auto following = VelkRelease::followingRelease(
        former, m_document->release(),
        {.formerRoot = formerRoot,
         .targetRoot = targetRoot,
         .cancelled = &cancelled,
         .progressText = tr("Zielprojekte werden gesucht"),
         .tell =
             [&](int done, int count) {
                 if (!progress) {
                     progress.emplace(0, count, 1, true, false);
                     progress->setText(tr("Entscheidungen werden übernommen"));
                 }
                 while (progress->count() < done)
                     progress->nextStep();
                 cancelled = progress->isCanceled();
             }},
        errors);
    progress.reset();
    display.deactivate();
    errors.removeDuplicates();
    for (const QString &error : errors)
        PMessage::Show(error, PMsgDlgMode::Warning);
    return following;
}

bool CarryCommands::carry(const QString &file, const ReleaseMappingC &former,
                          const QString &formerRoot)
{
    const auto following = follow(former, formerRoot);
    if (!following) {
        Q_EMIT noted(tr("Abgebrochen, es wurde nichts übernommen"));
        return false;
    }
    ReleaseMappingC release = m_document->release();
    CarryOutcome outcome;
    BackgroundWork::run(tr("Entscheidungen werden übernommen"), [&] {
        outcome = VelkRelease::carryDecisions(release, former, *following);
    });
    const QString name = QFileInfo(file).fileName();
    const QString summary = summaryOf(outcome, name);
    PMessage::LogToWindow(summary);
    if (outcome.lines.empty()) {
        Q_EMIT noted(summary);
        return false;
    }
    const QString text = tr("Entscheidungen aus %1 übernommen: %2")
                             .arg(name, countText(qint64(outcome.lines.size())));
    m_document->beginStep(text);
    // Before the changes, so that it is for their step.
    m_document->writeNote("carried",
                          VelkRelease::carriedNote(file, former.getTargetDate(), outcome.lines));
    m_document->replaceRelease(release, text);
    m_document->endStep();
    m_work->readAnew();
    Q_EMIT done(summary);
    return true;
}
