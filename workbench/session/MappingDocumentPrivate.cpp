#include "MappingDocumentPrivate.h"

#include "ReleaseChanges.h"
#include "SessionRecovery.h"

#include <core/json/PJsonValue.h>
#include <core/message/PMessage.h>
#include <core/text/PPathName.h>
#include <geomcore/records/MappingFile.h>
#include <mapping/data/ReleaseMappingHandler.h>

#include <QFileInfo>

#include <utility>

using OpenResult = MappingDocument::OpenResult;
using ReadOnlyReason = MappingDocument::ReadOnlyReason;

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
    QObject::connect(&m_journal, &JournalFile::failed, document, [this](const QString &cause) {
        Q_EMIT q->problemOccurred(
            MappingDocument::tr("Das Journal %1 kann nicht geschrieben werden (%2). Nach einem "
                                "Absturz wären die Änderungen verloren: bitte bald speichern.")
                .arg(m_journal.path(), cause));
    });
}

MappingDocumentPrivate::~MappingDocumentPrivate() = default;

OpenResult MappingDocumentPrivate::open(const MappingDocument::OpenRequest &request)
{
    close(true);
    errorText.clear();
    offer = RecoveryOffer();
    m_lostText.clear();
    m_putAside = false;
    file = MappingDocument::canonicalPath(request.mappingFile);
    takeLock(request.access);
    if (m_lock.isTaken()) {
        const OpenResult result = recover(request);
        if (result != OpenResult::OpenedReadOnly)
            return result;
    }
    m_known = FileState::of(file);
    ReleaseMappingC release;
    const OpenResult result = readRelease(request.sourceDate, release);
    if (result != OpenResult::Opened)
        return result;
    // Not before the saved version proved to be readable.
    if (std::exchange(m_putAside, false))
        (void)SessionRecovery::putAside(file);
    m_loaded = release;
    return begin(release, request.rootName);
}

OpenResult MappingDocumentPrivate::openNew(const ReleaseMappingC &release, const QString &path,
                                           const QString &name)
{
    close(true);
    errorText.clear();
    offer = RecoveryOffer();
    m_lostText.clear();
    m_putAside = false;
    file = MappingDocument::canonicalPath(path);
    readOnly = ReadOnlyReason::None;
    const EditLock::Result taken = m_lock.take(file);
    if (taken != EditLock::Taken)
        return fail(OpenResult::Unreadable, lockText(m_lock, taken, file));
    if (QFileInfo::exists(SessionRecovery::journalFile(file)) ||
        QFileInfo::exists(SessionRecovery::autosaveFile(file)))
        (void)SessionRecovery::putAside(file);
    // A release of this date that is there already counts as somebody else's.
    m_known = MappingDocument::sourceDates(file).contains(release.getSourceDate())
                  ? FileState()
                  : FileState::of(file);
    m_loaded = ReleaseMappingC();
    const OpenResult result = begin(release, name);
    history.markDirty();
    tellModified();
    autosave();
    return result;
}

OpenResult MappingDocumentPrivate::fail(OpenResult result, const QString &text)
{
    m_lock.release();
    errorText = text;
    file.clear();
    readOnly = ReadOnlyReason::None;
    return result;
}

void MappingDocumentPrivate::takeLock(MappingDocument::Access access)
{
    otherOwner = SessionOwner();
    readOnly = ReadOnlyReason::Wanted;
    if (access == MappingDocument::Access::ReadOnly)
        return;
    switch (m_lock.take(file)) {
    case EditLock::Taken:
        readOnly = ReadOnlyReason::None;
        return;
    case EditLock::HeldByOther:
        readOnly = ReadOnlyReason::HeldByOther;
        otherOwner = m_lock.owner();
        return;
    case EditLock::NotWritable:
        readOnly = ReadOnlyReason::NotWritable;
    }
}

OpenResult MappingDocumentPrivate::readRelease(const QString &wantedDate, ReleaseMappingC &release)
{
    QString error;
    const QStringList dates = MappingDocument::sourceDates(file, &error);
    if (!error.isEmpty())
        return fail(OpenResult::Unreadable,
                    MappingDocument::tr("Die Zuordnungsdatei kann nicht gelesen werden. %1\nBitte "
                                        "eine andere Datei wählen oder eine Sicherungskopie (%2) "
                                        "zurückkopieren.")
                        .arg(error, QFileInfo(file).fileName() + QStringLiteral(".bak")));
    const QString date = wantedDate.isEmpty() ? dates.value(dates.size() - 1) : wantedDate;
    if (!dates.contains(date))
        return fail(OpenResult::NoRelease,
                    dates.isEmpty()
                        ? MappingDocument::tr("%1 enthält keinen Stand.").arg(file)
                        : MappingDocument::tr("%1 enthält keinen Stand %2. Vorhanden sind: %3")
                              .arg(file, date, dates.join(QStringLiteral(", "))));
    MappingFile mappings;
    if (!mappings.read(file, date, &error))
        return fail(
            OpenResult::Unreadable,
            MappingDocument::tr("Der Stand %1 kann nicht gelesen werden. %2").arg(date, error));
    for (const QString &note : mappings.notes())
        PMessage::LogToWindow(file + QStringLiteral(": ") + note);
    release = mappings.release(date);
    return OpenResult::Opened;
}

/// Deals with what a session that was not closed left; OpenedReadOnly stands for going on.
OpenResult MappingDocumentPrivate::recover(const MappingDocument::OpenRequest &request)
{
    const SessionRecovery recovery(file);
    if (!recovery.offer().isValid()) {
        m_putAside = recovery.leftSomething();
        m_lostText = recovery.damage();
        return OpenResult::OpenedReadOnly;
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
        return OpenResult::OpenedReadOnly;
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
    m_known = recovery.fitsSavedFile() ? FileState::of(file) : FileState();
    m_loaded = recovery.fitsSavedFile() ? recovery.savedRelease() : ReleaseMappingC();
    // The side file gets all that is recovered before the journal goes.
    QString error;
    if (!OwnFile::replace(SessionRecovery::autosaveFile(file), fileOf(recovered), &error))
        return fail(OpenResult::Unreadable,
                    MappingDocument::tr("Der wiederhergestellte Stand kann nicht gesichert werden "
                                        "(%1). Bitte Platz schaffen und noch einmal öffnen; das "
                                        "Journal ist unverändert.")
                        .arg(error));
    (void)SessionRecovery::putAsideJournal(file);
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
    if (recovery.offer().saved.available) {
        journalRelease(recovery.savedRelease(), release());
        history.push(step);
    } else {
        history.markDirty();
    }
    journalStep(step.text, Origin::Recovery);
    tellModified();
    Q_EMIT q->undoChanged();
    autosave();
}

OpenResult MappingDocumentPrivate::begin(const ReleaseMappingC &release, const QString &name)
{
    rootName = name.isEmpty()
                   ? QStringLiteral("%1 → %2").arg(release.getSourceDate(), release.getTargetDate())
                   : name;
    roots = CatalogRootMemory(settings).roots(file);
    m_step = 0;
    m_autosavedStep = 0;
    m_wasModified = false;
    lastAutosave = QDateTime();
    history.clear();
    pending = Pending();
    isOpen = true;
    adoptRelease(release);
    if (readOnly == ReadOnlyReason::None)
        beginJournal();
    startAutosave();
    Q_EMIT q->opened();
    if (!m_lostText.isEmpty())
        Q_EMIT q->problemOccurred(std::exchange(m_lostText, QString()));
    Q_EMIT q->undoChanged();
    Q_EMIT q->countsChanged();
    return readOnly == ReadOnlyReason::None ? OpenResult::Opened : OpenResult::OpenedReadOnly;
}

void MappingDocumentPrivate::beginJournal()
{
    constexpr qint64 MaxSize = 32 << 20;
    const QString path = SessionRecovery::journalFile(file);
    if (QFileInfo(path).size() > MaxSize)
        (void)OwnFile::rename(path, DurableFile::stampedName(path, QStringLiteral("alt")));
    if (!m_journal.open(path)) {
        Q_EMIT q->problemOccurred(
            MappingDocument::tr("Das Journal %1 kann nicht angelegt werden (%2). Nach einem "
                                "Absturz wären die Änderungen verloren: bitte oft speichern.")
                .arg(path, m_journal.errorText()));
        return;
    }
    PJsonValue opened = record("opened");
    const SessionOwner self = EditLock::self();
    opened[QStringLiteral("user")] = PJsonValue(self.user);
    opened[QStringLiteral("host")] = PJsonValue(self.host);
    opened[QStringLiteral("program")] = PJsonValue(self.program);
    opened[QStringLiteral("process")] = PJsonValue::fromInt(self.process);
    opened[QStringLiteral("sourceDate")] = PJsonValue(release().getSourceDate());
    opened[QStringLiteral("targetDate")] = PJsonValue(release().getTargetDate());
    opened[QStringLiteral("fileHash")] = PJsonValue(QString::fromLatin1(m_known.hash));
    m_journal.append(opened);
    m_journal.sync();
}

void MappingDocumentPrivate::adoptRelease(const ReleaseMappingC &release)
{
    handler = std::make_shared<ReleaseMappingHandler>(release, rootName, file);
    counts = countLines(release);
}

void MappingDocumentPrivate::close(bool tell)
{
    if (!isOpen)
        return;
    pending.depth = 0;
    finishStep();
    m_turn.stop();
    m_autosaveTimer.stop();
    if (m_journal.isOpen()) {
        PJsonValue closed = record("closed");
        closed[QStringLiteral("modified")] = PJsonValue::fromBool(isModified());
        m_journal.append(closed);
        m_journal.close();
        OwnFile::remove(SessionRecovery::autosaveFile(file));
    }
    isOpen = false;
    m_refused = false;
    m_refusedProjects.clear();
    handler.reset();
    counts = LineCounts();
    history.clear();
    file.clear();
    rootName.clear();
    roots = CatalogRoots();
    readOnly = ReadOnlyReason::None;
    m_lock.release();
    if (!tell)
        return;
    Q_EMIT q->closed();
    Q_EMIT q->undoChanged();
    tellModified();
}

PJsonValue MappingDocumentPrivate::record(const char *kind) const
{
    PJsonValue json(PJsonValue::Object);
    json[QStringLiteral("kind")] = PJsonValue(QString::fromLatin1(kind));
    json[QStringLiteral("time")] =
        PJsonValue(QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs));
    return json;
}
