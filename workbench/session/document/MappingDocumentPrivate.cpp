#include "MappingDocumentPrivate.h"

#include "CatalogRootMemory.h"

#include <core/message/PMessage.h>
#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/file/OwnFile.h>
#include <workbench/session/history/PastSteps.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QScopedValueRollback>
#include <QScopeGuard>
#include <QThreadPool>

#include <chrono>
#include <tuple>
#include <utility>

using OpenResult = MappingDocument::OpenResult;
using ReadOnlyReason = MappingDocument::ReadOnlyReason;

namespace {

constexpr std::chrono::milliseconds JournalTurn{8}; // the rest of a picture's time is for others

} // namespace

MappingDocumentPrivate::MappingDocumentPrivate(MappingDocument *document, QSettings *given)
    : PPrivateData(document)
    , settings(given)
{
    m_turn.setSingleShot(true);
    m_turn.setInterval(0);
    QObject::connect(&m_turn, &QTimer::timeout, document, [this] {
        tellRefused();
        finishStep();
    });
    QObject::connect(&m_autosaveTimer, &QTimer::timeout, document, [this] { autosave(); });
    QObject::connect(
        &steps.journal(), &JournalFile::failed, document, [this](const QString &cause) {
            Q_EMIT q->problemOccurred(
                MappingDocument::tr("Das Journal %1 kann nicht geschrieben werden (%2). Nach einem "
                                    "Absturz wären die Änderungen verloren: bitte bald speichern.")
                    .arg(steps.journal().path(), cause));
        });
}

MappingDocumentPrivate::~MappingDocumentPrivate() = default;

void MappingDocumentPrivate::clearAnswers()
{
    errorText.clear();
    offer = RecoveryOffer();
    m_lostText.clear();
    m_putAside = false;
}

OpenResult MappingDocumentPrivate::open(const MappingDocument::OpenRequest &request)
{
    clearAnswers();
    const QString path = MappingDocument::canonicalPath(request.mappingFile);
    DocumentFile::Reading reading = DocumentFile::read(path, request.sourceDate, request.content);
    // What is open stays so until something else can be.
    if (!reading.release && !SessionRecovery::mayHaveLeft(path)) {
        errorText = reading.errorText;
        return reading.result;
    }
    close(true);
    file.moveTo(path, request.access);
    if (DocumentFile::isOld(path, reading))
        reading = DocumentFile::read(path, request.sourceDate, nullptr);
    if (file.isEditable() && SessionRecovery::mayHaveLeft(path)) {
        if (const std::optional<OpenResult> result = recover(request, reading.content))
            return *result;
    }
    if (!reading.release)
        return fail(reading.result, reading.errorText);
    // Not before the saved version proved to be readable.
    if (std::exchange(m_putAside, false))
        (void)SessionRecovery::putAside(path);
    for (const QString &note : std::as_const(reading.notes))
        PMessage::LogToWindow(path + QStringLiteral(": ") + note);
    file.setKnown(reading.known());
    return begin(*reading.release, request.rootName);
}

OpenResult MappingDocumentPrivate::openNew(const ReleaseMappingC &release, const QString &path,
                                           const QString &name)
{
    clearAnswers();
    close(true);
    const QString canonical = MappingDocument::canonicalPath(path);
    file.moveTo(canonical, MappingDocument::Access::ReadWrite);
    if (!file.isEditable())
        return fail(OpenResult::Unreadable, file.cannotMakeText());
    if (SessionRecovery::mayHaveLeft(canonical))
        (void)SessionRecovery::putAside(canonical);
    // A release of this date that is there already counts as somebody else's.
    const FileContent content = FileContent::of(canonical);
    const bool isTaken = DocumentFile::datesIn(content, nullptr).contains(release.getSourceDate());
    file.setKnown({isTaken ? FileState() : content.state, {}});
    const OpenResult result = begin(release, name, true);
    steps.history().markDirty();
    tellModified();
    autosave();
    return result;
}

OpenResult MappingDocumentPrivate::fail(OpenResult result, const QString &text)
{
    file.leave();
    errorText = text;
    return result;
}

std::optional<OpenResult>
MappingDocumentPrivate::recover(const MappingDocument::OpenRequest &request,
                                const FileContent &content)
{
    const SessionRecovery recovery = file.findRecovery(content);
    if (!recovery.offer().isValid()) {
        m_putAside = recovery.leftSomething();
        m_lostText = recovery.damage();
        return std::nullopt;
    }
    switch (request.recovery) {
    case MappingDocument::Recovery::UseRecovered:
        return openRecovered(recovery, recovery.recoveredRelease(), request.rootName);
    case MappingDocument::Recovery::UseFurther:
        return openRecovered(recovery,
                             recovery.offer().further.available ? recovery.furtherRelease()
                                                                : recovery.recoveredRelease(),
                             request.rootName);
    case MappingDocument::Recovery::UseSaved:
        m_putAside = true;
        return std::nullopt;
    case MappingDocument::Recovery::Ask:
        break;
    }
    offer = recovery.offer();
    return fail(OpenResult::RecoveryPending, QString());
}

OpenResult MappingDocumentPrivate::openRecovered(const SessionRecovery &recovery,
                                                 const ReleaseMappingC &recovered,
                                                 const QString &name)
{
    // Saving over what somebody else did since must be asked for.
    if (recovery.fitsSavedFile())
        file.setKnown({recovery.savedState(), recovery.savedRelease()});
    else
        file.setKnown({});
    // The side file gets all that is recovered before the journal goes.
    QString error;
    if (!file.autosave(recovered, &error))
        return fail(OpenResult::Unreadable,
                    MappingDocument::tr("Der wiederhergestellte Stand kann nicht gesichert werden "
                                        "(%1). Bitte Platz schaffen und noch einmal öffnen; das "
                                        "Journal ist unverändert.")
                        .arg(error));
    (void)SessionRecovery::putAsideJournal(file.path());
    const OpenResult result = begin(recovered, name);
    pushRecovery(recovery);
    return result;
}

/// Lets undo lead back to the saved version, if there is one.
void MappingDocumentPrivate::pushRecovery(const SessionRecovery &recovery)
{
    UndoStep step;
    step.text = MappingDocument::tr("Wiederherstellung nach einem Absturz");
    step.lines = recovery.offer().changedLines;
    step.releaseBefore = recovery.savedRelease();
    step.releaseAfter = release();
    steps.sign(step);
    if (recovery.offer().saved.available) {
        writeJournal(compare(recovery.savedRelease(), release(), steps.number()));
        steps.history().push(step);
    } else {
        steps.history().markDirty();
    }
    steps.journalStep(step.text, StepRecorder::Origin::Recovery);
    tellModified();
    Q_EMIT q->undoChanged();
    autosave();
}

OpenResult MappingDocumentPrivate::begin(const ReleaseMappingC &release, const QString &name,
                                         bool isNew)
{
    rootName = name.isEmpty()
                   ? QStringLiteral("%1 → %2").arg(release.getSourceDate(), release.getTargetDate())
                   : name;
    PreparedRelease prepared = prepare(release);
    roots = CatalogRootMemory(settings).roots(file.path());
    m_wasModified = false;
    lastAutosave = QDateTime();
    steps.reset();
    isOpen = true;
    adoptRelease(std::move(prepared));
    if (isEditable() && !isNew)
        PastSteps::read(file.path(), release.getSourceDate(), steps.history());
    steps.history().markClean();
    passOvertaken();
    if (isEditable())
        beginJournal();
    if (isNew)
        steps.noteMade();
    startAutosave();
    Q_EMIT q->opened();
    for (const QString &text : {std::exchange(m_lostText, QString()), file.warning()}) {
        if (!text.isEmpty())
            Q_EMIT q->problemOccurred(text);
    }
    Q_EMIT q->undoChanged();
    Q_EMIT q->countsChanged();
    return isEditable() ? OpenResult::Opened : OpenResult::OpenedReadOnly;
}

void MappingDocumentPrivate::beginJournal()
{
    constexpr qint64 MaxSize = 32 << 20;
    const QString path = SessionRecovery::journalFile(file.path());
    if (QFileInfo(path).size() > MaxSize)
        (void)OwnFile::rename(path, DurableFile::stampedName(path, QStringLiteral("alt")));
    if (!steps.openJournal(path, opening()))
        tellJournal();
}

void MappingDocumentPrivate::tellJournal()
{
    Q_EMIT q->problemOccurred(
        MappingDocument::tr("Das Journal %1 kann nicht angelegt werden (%2). Nach einem "
                            "Absturz wären die Änderungen verloren: bitte oft speichern.")
            .arg(steps.journal().path(), steps.journal().errorText()));
}

StepRecorder::Opening MappingDocumentPrivate::opening() const
{
    const ReleaseMappingC now = release();
    return {now.getSourceDate(), now.getTargetDate(), file.known().hash};
}

/// On another thread, while the loop of this one runs.
void MappingDocumentPrivate::runBeside(const std::function<void()> &work)
{
    const QScopedValueRollback refusing(m_saving, true); // events come meanwhile
    BackgroundWork::run(QCoreApplication::translate("DocumentFile", "%1 wird gelesen")
                            .arg(QFileInfo(file.path()).fileName()),
                        work);
}

PreparedRelease MappingDocumentPrivate::prepare(const ReleaseMappingC &release)
{
    PreparedRelease prepared;
    runBeside([&, path = file.path()] { prepared = PreparedRelease::of(release, rootName, path); });
    return prepared;
}

ReleaseComparison MappingDocumentPrivate::compare(const ReleaseMappingC &before,
                                                  const ReleaseMappingC &after, int step)
{
    ReleaseComparison compared;
    runBeside([&] { compared = ReleaseComparison::of(before, after, step); });
    return compared;
}

/// In turns of the event loop.
void MappingDocumentPrivate::writeJournal(const ReleaseComparison &compared)
{
    const QScopedValueRollback refusing(m_saving, true);
    QDeadlineTimer turn(JournalTurn);
    const auto nextTurn = [&turn] {
        BackgroundWork::letShow();
        turn.setRemainingTime(JournalTurn);
    };
    for (const QByteArray &rows : compared.rows) {
        if (turn.hasExpired())
            nextTurn();
        steps.journalRows(rows);
    }
    steps.flushJournal();
    if (compared.rows.size() > 1)
        nextTurn();
}

void MappingDocumentPrivate::adoptRelease(PreparedRelease &&prepared)
{
    handler = std::move(prepared.handler);
    counts = prepared.counts;
    order = std::move(prepared.projects);
}

void MappingDocumentPrivate::close(bool tell)
{
    if (!isOpen)
        return;
    if (tell)
        Q_EMIT q->aboutToClose();
    steps.cutNesting();
    finishStep();
    // Behind all others that hold them: the end of many records and nodes takes long.
    const auto end = qScopeGuard([last = std::tuple(handler, release(), file.loaded())]() mutable {
        QThreadPool::globalInstance()->start([ended = std::move(last)] {});
    });
    m_turn.stop();
    m_autosaveTimer.stop();
    if (steps.closeJournal(isModified()))
        file.removeAutosave();
    isOpen = false;
    m_refused = false;
    m_refusedProjects.clear();
    handler.reset();
    mergeState = MergeState();
    counts = LineCounts();
    order = ProjectOrder();
    steps.reset();
    rootName.clear();
    roots = CatalogRoots();
    file.leave();
    if (!tell)
        return;
    Q_EMIT q->closed();
    Q_EMIT q->undoChanged();
    tellModified();
}
