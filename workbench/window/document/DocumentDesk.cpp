#include "DocumentDesk.h"

#include "CatalogRootsDialog.h"
#include "FileNames.h"
#include "RecoveryDialog.h"
#include "TargetRoot.h"

#include <core/message/PMessage.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/tasks/OpenLines.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/message/wrapPrompt.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QFileInfo>
#include <QInputDialog>
#include <QThreadPool>

DocumentDesk::DocumentDesk(WorkbenchSettings *settings, QWidget *window)
    : QObject(window)
    , m_settings(settings)
    , m_window(window)
    , m_document(new MappingDocument(settings->store(), this))
{
    connect(m_document, &MappingDocument::aboutToClose, this, &DocumentDesk::aboutToClose);
    connect(m_document, &MappingDocument::closed, this, [this] { m_root.reset(); });
}

DocumentDesk::~DocumentDesk() = default;

bool DocumentDesk::open(const Wish &wish)
{
    if (!mayClose() || !openDocument(wish))
        return false;
    BackgroundWork::letShow();
    if (!m_document->isOpen())
        return false;
    if (!findRoots(wish)) {
        leave();
        return false;
    }
    setUp();
    return true;
}

bool DocumentDesk::openByDialog()
{
    const QString file = FileNames::askOpen(m_window, m_settings->recentFiles().value(0));
    return !file.isEmpty() && open({.file = file});
}

std::optional<QString> DocumentDesk::chooseRelease(const QStringList &dates) const
{
    if (dates.size() < 2)
        return dates.value(0);
    QInputDialog dialog(m_window);
    dialog.setObjectName("ReleaseDialog");
    dialog.setWindowTitle(tr("Katalogstand"));
    dialog.setLabelText(
        tr("Die Datei enthält mehrere Katalogstände. Welcher soll geöffnet werden?"));
    wrapPrompt(&dialog);
    dialog.setComboBoxItems(dates);
    dialog.setTextValue(dates.last());
    dialog.setOkButtonText(tr("Öffnen"));
    dialog.setCancelButtonText(Question::cancelText());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.textValue();
}

bool DocumentDesk::openDocument(const Wish &wish)
{
    MappingDocument::OpenRequest request;
    request.mappingFile = QFileInfo(wish.file).absoluteFilePath();
    request.sourceDate = wish.release;
    if (wish.readOnly)
        request.access = MappingDocument::Access::ReadOnly;
    if (!wish.mayAsk)
        request.recovery = MappingDocument::Recovery::UseSaved;
    if (wish.mayAsk && wish.release.isEmpty()) {
        const auto content = std::make_shared<FileContent>();
        QStringList dates;
        BackgroundWork::run(tr("Die Mapping-Datei wird gelesen"), [&] {
            *content = FileContent::of(MappingDocument::canonicalPath(request.mappingFile));
            dates = MappingDocument::sourceDates(*content);
        });
        request.content = content;
        const std::optional<QString> date = chooseRelease(dates);
        if (!date)
            return false;
        request.sourceDate = *date;
    }
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    const MappingDocument::OpenResult result = m_document->open(request);
    display.deactivate();
    // The end of a large file's text takes long.
    QThreadPool::globalInstance()->start([ended = std::move(request.content)] {});
    switch (result) {
    case MappingDocument::OpenResult::Opened:
        return true;
    case MappingDocument::OpenResult::OpenedReadOnly:
        return !wish.mayAsk || tellReadOnly(request);
    case MappingDocument::OpenResult::RecoveryPending:
        return recover(request);
    case MappingDocument::OpenResult::NoRelease:
    case MappingDocument::OpenResult::Unreadable:
        break;
    }
    PMessage::Show(m_document->errorText(), PMsgDlgMode::Error);
    if (wish.mayAsk) {
        m_settings->removeRecentFile(request.mappingFile);
        Question::tell(m_window, tr("Die Datei kann nicht geöffnet werden."),
                       m_document->errorText());
    }
    return false;
}

bool DocumentDesk::tellReadOnly(const MappingDocument::OpenRequest &request)
{
    const auto reason = m_document->readOnlyReason();
    if (reason == MappingDocument::ReadOnlyReason::Wanted)
        return true;
    if (reason != MappingDocument::ReadOnlyReason::HeldByOther) {
        Question::tell(m_window, tr("Die Datei ist nur zum Lesen geöffnet."),
                       m_document->readOnlyText());
        return true;
    }
    Question question(m_window);
    question.setText(m_document->readOnlyText());
    question.setDetails(tr("Die Sperre kann aufgehoben werden, wenn dort sicher niemand mehr "
                           "arbeitet, etwa nach einem Ausfall des Rechners."));
    question.addAnswer(Question::Cancel, tr("Nur &lesen"));
    question.addAnswer(Question::Refuse, tr("Sperre &aufheben"));
    if (question.ask() != Question::Refuse)
        return true;
    m_document->close();
    if (!MappingDocument::removeLock(request.mappingFile))
        Question::tell(m_window, tr("Die Sperre konnte nicht aufgehoben werden."));
    const auto result = m_document->open(request);
    return result == MappingDocument::OpenResult::RecoveryPending
               ? recover(request)
               : result == MappingDocument::OpenResult::Opened ||
                     result == MappingDocument::OpenResult::OpenedReadOnly;
}

bool DocumentDesk::recover(MappingDocument::OpenRequest request)
{
    RecoveryDialog dialog(request.mappingFile, m_document->recoveryOffer(), m_window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    request.recovery = dialog.choice();
    const auto result = m_document->open(request);
    if (result == MappingDocument::OpenResult::Opened ||
        result == MappingDocument::OpenResult::OpenedReadOnly)
        return true;
    Question::tell(m_window, tr("Die Datei kann nicht geöffnet werden."), m_document->errorText());
    return false;
}

bool DocumentDesk::showsProject(const CatalogRoots &roots) const
{
    if (!QFileInfo(roots.target).isDir() || !QFileInfo(roots.source).isDir())
        return false;
    const ReleaseMappingC release = m_document->release();
    return release.countMappings() == 0 ||
           QFileInfo::exists(roots.source + '/' + release.mappingAt(0).getSourcePath());
}

bool DocumentDesk::findRoots(const Wish &wish)
{
    CatalogRoots roots = m_document->catalogRoots();
    if (!wish.roots.source.isEmpty())
        roots.source = QFileInfo(wish.roots.source).absoluteFilePath();
    if (!wish.roots.target.isEmpty())
        roots.target = QFileInfo(wish.roots.target).absoluteFilePath();
    if (showsProject(roots)) {
        m_document->setCatalogRoots(roots);
        return true;
    }
    if (!wish.mayAsk) {
        PMessage::Show(
            tr("Die Kataloge sind nicht bekannt; sie werden mit --source und --target angegeben."),
            PMsgDlgMode::Error);
        return false;
    }
    CatalogRootsDialog dialog(m_document->release(), roots, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return false;
    m_document->setCatalogRoots(dialog.roots());
    return true;
}

bool DocumentDesk::changeRoots()
{
    CatalogRootsDialog dialog(m_document->release(), m_document->catalogRoots(), m_window);
    if (dialog.exec() != QDialog::Accepted || dialog.roots() == m_document->catalogRoots())
        return false;
    m_document->setCatalogRoots(dialog.roots());
    setUp();
    return true;
}

void DocumentDesk::setUp()
{
    m_root.reset();
    m_root = std::make_unique<TargetRoot>(m_document->catalogRoots().target);
    m_settings->addRecentFile(m_document->mappingFile());
    m_document->setAutosaveInterval(m_settings->values().autosaveMinutes * 60);
    Q_EMIT ready();
}

void DocumentDesk::leave()
{
    m_document->close();
}

bool DocumentDesk::close()
{
    if (!mayClose())
        return false;
    leave();
    return true;
}

bool DocumentDesk::mayClose()
{
    if (!m_document->isOpen() || !m_document->isModified())
        return true;
    Question question(m_window);
    question.setText(
        tr("Änderungen an %1 speichern?").arg(QFileInfo(m_document->mappingFile()).fileName()));
    question.setDetails(tr("Verworfene Änderungen sind verloren."));
    question.addAnswer(Question::Accept, tr("&Speichern"));
    question.addAnswer(Question::Refuse, tr("&Verwerfen"));
    question.addAnswer(Question::Cancel, Question::cancelText());
    switch (question.ask()) {
    case Question::Accept:
        return save();
    case Question::Refuse:
        return true;
    case Question::Cancel:
        break;
    }
    return false;
}

bool DocumentDesk::save()
{
    return m_document->isOpen() && maySave() && finish(write(QString(), {}), {}, QString());
}

bool DocumentDesk::saveAs()
{
    if (!m_document->isOpen() || !maySave())
        return false;
    const QString file = FileNames::askSave(m_window, m_document->mappingFile());
    if (file.isEmpty() || !finish(write(file, {}), {}, file))
        return false;
    m_settings->addRecentFile(m_document->mappingFile());
    return true;
}

bool DocumentDesk::maySave()
{
    const QList<ProjectId> projects = m_document->conflictedProjects();
    if (projects.isEmpty())
        return true;
    constexpr int shown = 10;
    QStringList paths;
    const auto conflicts = [this](const ProjectId &project) {
        return OpenLines::countOf(m_document->mapping(project), OpenLines::Conflict);
    };
    int lines = 0;
    for (const ProjectId &project : projects)
        lines += conflicts(project);
    for (const ProjectId &project : projects.mid(0, shown))
        paths << tr("%1: %Ln Zeile(n)", nullptr, conflicts(project)).arg(project.path);
    if (projects.size() > shown)
        paths << tr("und %Ln weitere", nullptr, int(projects.size()) - shown);
    Question question(m_window);
    question.setWarning();
    question.setText(tr("Noch %Ln Zeile(n) in Konflikt, in diesen Projekten:", nullptr, lines));
    question.setDetails(paths.join('\n'));
    question.addAnswer(Question::Cancel, Question::cancelText());
    question.addAnswer(Question::Refuse, tr("&Konflikte zeigen"));
    question.addAnswer(Question::Accept, tr("&Trotzdem speichern"));
    const Question::Answer answer = question.ask();
    if (answer == Question::Refuse)
        Q_EMIT conflictsWanted();
    return answer == Question::Accept;
}

SaveOutcome DocumentDesk::write(const QString &file, const SaveOptions &options)
{
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    SaveOutcome outcome =
        file.isEmpty() ? m_document->save(options) : m_document->saveAs(file, options);
    display.deactivate();
    return outcome;
}

bool DocumentDesk::finish(const SaveOutcome &outcome, const SaveOptions &options,
                          const QString &file)
{
    switch (outcome.result) {
    case SaveResult::Saved:
        Q_EMIT noted(tr("Gespeichert: %1").arg(m_document->mappingFile()));
        return true;
    case SaveResult::ForeignChange:
    case SaveResult::Unreadable:
        return askOver(outcome, options, file);
    default:
        break;
    }
    PMessage::Show(outcome.text, PMsgDlgMode::Error);
    Question::tell(m_window, tr("Die Datei wurde nicht gespeichert."), outcome.text);
    return false;
}

bool DocumentDesk::askOver(const SaveOutcome &outcome, SaveOptions options, const QString &file)
{
    Question question(m_window);
    question.setWarning();
    question.setText(outcome.text);
    question.addAnswer(Question::Cancel, Question::cancelText());
    const bool mayMerge = outcome.result == SaveResult::ForeignChange && file.isEmpty();
    if (mayMerge)
        question.addAnswer(Question::Refuse, tr("Änderungen &zusammenführen"));
    question.addAnswer(Question::Accept, outcome.result == SaveResult::Unreadable
                                             ? tr("Kopie behalten und &neu schreiben")
                                             : tr("&Eigenen Stand schreiben"));
    const Question::Answer answer = question.ask();
    if (answer == Question::Refuse && mayMerge)
        merge();
    if (answer != Question::Accept)
        return false;
    (outcome.result == SaveResult::Unreadable ? options.overUnreadable
                                              : options.overForeignChange) = true;
    return finish(write(file, options), options, file);
}

void DocumentDesk::merge()
{
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    const MergeOutcome outcome = m_document->mergeFile();
    display.deactivate();
    Question::tell(m_window,
                   outcome.merged
                       ? tr("Die Änderungen der anderen sind übernommen. Bitte prüfen und dann "
                            "noch einmal speichern.")
                       : tr("Die Änderungen der anderen konnten nicht übernommen werden."),
                   outcome.text);
    if (outcome.merged && !m_document->conflictedProjects().isEmpty())
        Q_EMIT conflictsWanted();
}
