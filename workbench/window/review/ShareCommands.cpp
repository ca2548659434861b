#include "ShareCommands.h"

#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/FileNames.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/message/wrapPrompt.h>

#include <QInputDialog>
#include <QLocale>

#include <algorithm>

using VelkRelease::MergedFile;
using VelkRelease::Participant;
using VelkRelease::ShareAnswer;
using VelkRelease::SharedMapping;
using VelkRelease::ShareRepair;

ShareCommands::ShareCommands(DocumentDesk *desk, EditorArea *editor, QWidget *window)
    : QObject(window)
    , m_desk(desk)
    , m_editor(editor)
    , m_window(window)
{
    m_pool.setMaxThreadCount(1);
    connect(desk, &DocumentDesk::ready, this, [this] { announce(true); });
    connect(desk->document(), &MappingDocument::closed, this, [this] { announce(false); });
}

ShareCommands::~ShareCommands()
{
    announce(false);
    m_pool.waitForDone();
}

/// A note to others is no reason to wait for, nor to complain.
void ShareCommands::announce(bool open)
{
    const auto tell = [this](const QString &file, bool isOpen) {
        m_pool.start([file, isOpen] { (void)SharedMapping(file).announce(isOpen); });
    };
    if (!m_announced.isEmpty())
        tell(m_announced, false);
    m_announced.clear();
    const MappingDocument *const document = m_desk->document();
    if (!open || document->isReadOnly() || !SharedMapping(document->mappingFile()).isLinked())
        return;
    m_announced = document->mappingFile();
    tell(m_announced, true);
}

QString ShareCommands::textOf(const ShareAnswer &answer)
{
    switch (answer.kind) {
    case ShareAnswer::Done:
        break;
    case ShareAnswer::NotLinked:
        return tr("Das Mapping wird mit niemandem geteilt. Zuerst die gemeinsame Kopie wählen.");
    case ShareAnswer::BothExist:
        return tr("%1 gibt es schon, und es ist ein anderes Mapping. Eine andere Kopie wählen, "
                  "oder "
                  "die vorhandene in eine neue Datei holen.")
            .arg(answer.cause);
    case ShareAnswer::NewerThere:
        return tr("Andere haben seit der letzten Aktualisierung etwas veröffentlicht.");
    case ShareAnswer::InConflict:
        return tr("Zeilen in Konflikt werden nicht veröffentlicht: %1.").arg(answer.cause);
    case ShareAnswer::InOthersFolders:
        return tr("Es gibt Änderungen in Ordnern anderer: %1.").arg(answer.cause);
    case ShareAnswer::TakenByOthers:
        return tr("Der Ordner ist schon vergeben: %1.").arg(answer.cause);
    case ShareAnswer::Busy:
        return tr("Gerade veröffentlicht jemand anderes (%1). Bitte gleich noch einmal versuchen.")
            .arg(answer.cause);
    case ShareAnswer::NotReachable:
        return tr("Die gemeinsame Kopie ist nicht erreichbar: %1. Die eigene Datei ist "
                  "unverändert; "
                  "später noch einmal versuchen.")
            .arg(answer.cause);
    case ShareAnswer::Unreadable:
        return tr("Eine der Dateien ist kein lesbares Mapping: %1.").arg(answer.cause);
    case ShareAnswer::NotWritable:
        return tr("Es konnte nicht geschrieben werden: %1.").arg(answer.cause);
    }
    return {};
}

QString ShareCommands::textOf(const ShareRepair &repair)
{
    switch (repair.kind) {
    case ShareRepair::Published:
        return tr("Die letzte Veröffentlichung war abgebrochen, aber angekommen.");
    case ShareRepair::BrokenOff:
        return tr("Die letzte Veröffentlichung war abgebrochen. Bitte noch einmal "
                  "veröffentlichen.");
    case ShareRepair::TakenBack:
        return tr("Die gemeinsame Datei war in der Arbeitskopie geändert und nicht eingereicht. "
                  "Das ist aufgehoben in %1.")
            .arg(repair.kept);
    case ShareRepair::CleanedUp:
        return tr("Die Arbeitskopie war mitten in einer Arbeit verlassen worden und wurde "
                  "aufgeräumt.");
    case ShareRepair::StoreAnew:
        return tr("Die Verwaltung der Arbeitskopie war beschädigt und wurde neu geholt; die "
                  "frühere ist %1.")
            .arg(repair.kept);
    }
    return {};
}

ShareAnswer ShareCommands::run(const QString &text, const Work &work)
{
    ShareAnswer answer;
    QStringList repaired;
    const QString file = m_desk->document()->mappingFile();
    BackgroundWork::run(text, [&] {
        m_pool.waitForDone();
        SharedMapping shared(file);
        answer = work(shared);
        for (const ShareRepair &repair : shared.repairs())
            repaired += textOf(repair);
    });
    if (!repaired.isEmpty())
        Question::tell(m_window, tr("Etwas Abgebrochenes wurde in Ordnung gebracht."),
                       repaired.join(u'\n'));
    return answer;
}

bool ShareCommands::finish(const ShareAnswer &answer)
{
    if (!answer.isDone())
        Question::tell(m_window, tr("Das ging nicht."), textOf(answer));
    return answer.isDone();
}

bool ShareCommands::saved()
{
    MappingDocument *const document = m_desk->document();
    document->finishStep(); // what the editor did in this turn may be no change at all
    return document->isOpen() && !document->isReadOnly() &&
           (!document->isModified() || m_desk->save());
}

bool ShareCommands::isShared()
{
    const MappingDocument *const document = m_desk->document();
    return document->isOpen() && (SharedMapping(document->mappingFile()).isLinked() ||
                                  finish({ShareAnswer::NotLinked, {}}));
}

void ShareCommands::shareByDialog()
{
    const QString file = FileNames::askShared(m_window, m_desk->document()->mappingFile());
    if (!file.isEmpty())
        shareWith(file);
}

bool ShareCommands::shareWith(const QString &sharedFile)
{
    if (!saved() || !finish(run(tr("Die gemeinsame Kopie wird gelesen"),
                                [&](SharedMapping &shared) { return shared.link(sharedFile); })))
        return false;
    announce(true);
    Q_EMIT noted(tr("Geteilt über %1").arg(sharedFile));
    return true;
}

bool ShareCommands::update()
{
    if (!isShared() || !saved())
        return false;
    MergedFile merged;
    if (!finish(run(tr("Änderungen der anderen werden geholt"),
                    [&](SharedMapping &shared) { return shared.update(merged); })))
        return false;
    MappingDocument *const document = m_desk->document();
    const QString date = document->release().getSourceDate();
    const auto ours = std::ranges::find_if(merged.releases, [&](const auto &result) {
        return result.release.getSourceDate() == date;
    });
    if (ours == merged.releases.end()) {
        Q_EMIT noted(tr("Es gibt nichts Neues"));
        return true;
    }
    const MergeOutcome outcome = document->takeMerged(*ours);
    if (!outcome.merged) {
        Question::tell(m_window, tr("Das ging nicht."), outcome.text);
        return false;
    }
    Q_EMIT noted(outcome.text);
    if (!document->conflictedProjects().isEmpty())
        Q_EMIT conflictsWanted();
    return true;
}

bool ShareCommands::publish()
{
    return isShared() && saved() && publish(false);
}

bool ShareCommands::publish(bool intoOthersFolders)
{
    QString revision;
    ShareAnswer answer =
        run(tr("Die Änderungen werden veröffentlicht"), [&](SharedMapping &shared) {
            ShareAnswer done = shared.publish({tr("Mapping bearbeitet"), intoOthersFolders});
            revision = shared.baseRevision();
            return done;
        });
    if (answer.isDone()) {
        Q_EMIT noted(tr("Veröffentlicht, Stand %1").arg(revision.left(12)));
        return true;
    }
    if (answer.kind == ShareAnswer::InConflict)
        Q_EMIT conflictsWanted();
    if (answer.kind != ShareAnswer::NewerThere && answer.kind != ShareAnswer::InOthersFolders)
        return finish(answer);
    const bool isNewer = answer.kind == ShareAnswer::NewerThere;
    Question question(m_window);
    question.setText(textOf(answer));
    question.setDetails(isNewer ? tr("Zuerst wird das übernommen. Danach kann veröffentlicht "
                                     "werden.")
                                : QString());
    question.addAnswer(Question::Cancel, Question::cancelText());
    question.addAnswer(Question::Accept,
                       isNewer ? tr("A&ktualisieren") : tr("&Trotzdem veröffentlichen"));
    if (question.ask() != Question::Accept)
        return false;
    if (!isNewer)
        return publish(true);
    return update() && m_desk->document()->conflictedProjects().isEmpty() &&
           publish(intoOthersFolders);
}

void ShareCommands::takeFoldersByDialog()
{
    if (!isShared())
        return;
    const QString path = m_editor->currentPath();
    QStringList folders = SharedMapping(m_desk->document()->mappingFile()).ownFolders();
    if (folders.isEmpty() && path.contains(u'/'))
        folders += path.left(path.lastIndexOf(u'/'));
    QInputDialog dialog(m_window);
    dialog.setObjectName("FoldersDialog");
    dialog.setWindowTitle(tr("Ordner übernehmen"));
    dialog.setLabelText(
        tr("Ordner des Katalogs, mit Kommas dazwischen; * steht für beliebige Zeichen, ? "
           "für eines. Leer gibt alle zurück:"));
    wrapPrompt(&dialog);
    dialog.setTextValue(folders.join(QStringLiteral(", ")));
    dialog.setOkButtonText(tr("Über&nehmen"));
    dialog.setCancelButtonText(Question::cancelText());
    if (dialog.exec() != QDialog::Accepted)
        return;
    QStringList wanted;
    for (const QString &part : dialog.textValue().split(u',')) {
        if (const QString folder = part.trimmed(); !folder.isEmpty())
            wanted += folder;
    }
    if (finish(run(tr("Die Ordner werden eingetragen"),
                   [&](SharedMapping &shared) { return shared.takeFolders(wanted); })))
        Q_EMIT noted(wanted.isEmpty()
                         ? tr("Keine eigenen Ordner mehr")
                         : tr("Eigene Ordner: %1").arg(wanted.join(QStringLiteral(", "))));
}

QString ShareCommands::text(const Participant &participant)
{
    QString text = participant.user + u'@' + participant.host;
    if (participant.isSelf)
        text += u' ' + tr("(hier)");
    text += QStringLiteral(": ") +
            (participant.isOpen ? tr("hat es offen") : tr("hat es nicht offen")) +
            QStringLiteral(", ") +
            tr("zuletzt %1")
                .arg(QLocale().toString(participant.seen.toLocalTime(), QLocale::ShortFormat));
    if (!participant.folders.isEmpty())
        text += QStringLiteral(", ") +
                tr("Ordner %1").arg(participant.folders.join(QStringLiteral(", ")));
    return text;
}

void ShareCommands::tellWho()
{
    if (!isShared())
        return;
    QStringList rows;
    SharedMapping::Status status;
    QString base;
    QString file;
    if (!finish(run(tr("Die gemeinsame Kopie wird gelesen"), [&](SharedMapping &shared) {
            ShareAnswer answer = shared.status(status);
            for (const Participant &participant : shared.participants())
                rows += text(participant);
            base = shared.baseRevision();
            file = shared.sharedFile();
            return answer;
        })))
        return;
    rows.prepend(
        tr("Eigener Stand %1, neuester Stand %2").arg(base.left(12), status.newest.left(12)));
    rows += status.hasNews ? tr("Andere haben etwas veröffentlicht.")
                           : tr("Es gibt nichts Neues von anderen.");
    if (status.hasOwn || m_desk->document()->isModified())
        rows += tr("Eigene Änderungen sind noch nicht veröffentlicht.");
    Question::tell(m_window, tr("Gemeinsame Kopie: %1").arg(file), rows.join(u'\n'));
}
