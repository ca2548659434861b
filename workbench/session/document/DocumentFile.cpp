#include "DocumentFile.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>
#include <geomcore/records/noObjectText.h>
#include <mapping/data/ReleaseMappingHandler.h>
#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/file/OwnFile.h>

#include <QFileInfo>

#include <cerrno>

using OpenResult = MappingDocument::OpenResult;
using ReadOnlyReason = MappingDocument::ReadOnlyReason;

namespace {

/// Reads all that is wanted, on whatever thread. Gives the cause of a failure.
QString readRelease(DocumentFile::Reading &reading, QStringList &dates)
{
    if (!reading.content.error.isEmpty())
        return reading.content.error;
    MappingFile mappings;
    QString error;
    const bool isRead = reading.date.isEmpty() && mappings.parseLast(reading.content.bytes);
    if (!isRead && reading.date.isEmpty()) {
        dates = DocumentFile::datesIn(reading.content, &error);
        reading.date = dates.value(dates.size() - 1);
        if (!error.isEmpty() || dates.isEmpty())
            return error;
    }
    if (!isRead && !mappings.parse(reading.content.bytes, reading.date, &error))
        return error;
    dates = mappings.sourceDates();
    reading.notes = mappings.notes();
    if (reading.date.isEmpty())
        reading.date = dates.value(dates.size() - 1);
    if (dates.contains(reading.date))
        reading.release = mappings.release(reading.date);
    reading.isAlone = dates.size() == 1;
    return QString();
}

} // namespace

DocumentFile::Reading DocumentFile::read(const QString &path, const QString &date,
                                         const std::shared_ptr<const FileContent> &content)
{
    Reading reading;
    reading.date = date;
    QStringList dates;
    QString cause;
    BackgroundWork::run(tr("%1 wird gelesen").arg(QFileInfo(path).fileName()), [&] {
        reading.content = content ? *content : FileContent::of(path);
        cause = readRelease(reading, dates);
    });
    if (!reading.content.state.exists)
        cause = OwnFile::causeOf(ENOENT);
    if (!cause.isEmpty()) {
        const QString backup = GuardedSave::backupFile(path);
        reading.result = OpenResult::Unreadable;
        reading.errorText =
            OwnFile::place(backup) == OwnFile::Place::RegularFile
                ? tr("Die Mapping-Datei %1 kann nicht gelesen werden (%2).\nBitte eine andere "
                     "Datei wählen oder die Sicherungskopie %3 zurückkopieren.")
                      .arg(path, cause, QFileInfo(backup).fileName())
                : tr("Die Mapping-Datei %1 kann nicht gelesen werden (%2).\nBitte eine andere "
                     "Datei wählen.")
                      .arg(path, cause);
    } else if (!reading.release) {
        reading.result = OpenResult::NoRelease;
        reading.errorText = dates.isEmpty()
                                ? tr("%1 enthält keinen Stand.").arg(path)
                                : tr("%1 enthält keinen Stand %2. Vorhanden sind: %3")
                                      .arg(path, date, dates.join(QStringLiteral(", ")));
    }
    return reading;
}

bool DocumentFile::isOld(const QString &path, const Reading &reading)
{
    return OwnFile::stamp(path) != reading.content.stamp;
}

QStringList DocumentFile::datesIn(const FileContent &content, QString *error)
{
    PJsonValue document;
    QString cause = content.error;
    if (cause.isEmpty() && !content.state.exists)
        cause = OwnFile::causeOf(ENOENT);
    if (cause.isEmpty() && document.parse(content.bytes, &cause) && !document.isObject())
        cause = noObjectText();
    if (error)
        *error = cause;
    return cause.isEmpty() ? document.keys() : QStringList();
}

QByteArray DocumentFile::textOf(const ReleaseMappingC &release)
{
    MappingFile file;
    file.setRelease(release);
    return file.toByteArray();
}

void DocumentFile::moveTo(const QString &path, MappingDocument::Access access)
{
    m_path = path;
    takeLock(access);
}

void DocumentFile::leave()
{
    m_lock.release();
    m_lockStamp.clear();
    m_path.clear();
    m_readOnly = ReadOnlyReason::None;
    m_otherOwner = SessionOwner();
    m_known = KnownFile();
}

void DocumentFile::takeLock(MappingDocument::Access access)
{
    m_lock.release();
    m_otherOwner = SessionOwner();
    m_readOnlyCause.clear();
    m_readOnly = ReadOnlyReason::Wanted;
    if (access == MappingDocument::Access::ReadOnly)
        return;
    const QString lockFile = EditLock::lockFile(m_path);
    m_readOnly = ReadOnlyReason::NotWritable;
    if (OwnFile::place(lockFile) == OwnFile::Place::Other) {
        m_readOnlyCause = OwnFile::causeOf(ELOOP);
        return;
    }
    switch (m_lock.take(m_path)) {
    case EditLock::Taken:
        m_readOnly = ReadOnlyReason::None;
        m_lockStamp = OwnFile::stamp(lockFile);
        return;
    case EditLock::HeldByOther:
        m_readOnly = ReadOnlyReason::HeldByOther;
        m_otherOwner = m_lock.owner();
        return;
    case EditLock::NotWritable:
        m_readOnlyCause = OwnFile::folderFault(m_path);
    }
}

bool DocumentFile::isEditable() const
{
    return !m_path.isEmpty() && m_readOnly == ReadOnlyReason::None;
}

QString DocumentFile::readOnlyText() const
{
    switch (m_readOnly) {
    case ReadOnlyReason::None:
        return QString();
    case ReadOnlyReason::Wanted:
        return tr("%1 ist nur zum Lesen geöffnet.").arg(m_path);
    case ReadOnlyReason::HeldByOther:
        return tr("%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.")
            .arg(m_path, ownerText(m_otherOwner));
    case ReadOnlyReason::NotWritable:
        break;
    }
    return tr("Der Ordner von %1 ist nicht beschreibbar (%2). Die Datei ist deshalb nur zum Lesen "
              "geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.")
        .arg(m_path, m_readOnlyCause);
}

QString DocumentFile::warning() const
{
    const bool unreached = m_readOnly == ReadOnlyReason::NotWritable;
    if (unreached && SessionRecovery::mayHaveLeft(m_path) &&
        SessionRecovery(m_path).offer().isValid())
        return tr("Zu %1 gibt es Arbeit, die nicht gespeichert wurde. Sie wird angeboten, sobald "
                  "sich die Datei zum Bearbeiten öffnen lässt (%2).")
            .arg(m_path, m_readOnlyCause);
    const QString backup = GuardedSave::backupFile(m_path);
    if (isEditable() && OwnFile::nameCount(m_path) > 1 && !OwnFile::isSame(m_path, backup))
        return tr("%1 hat noch einen anderen Namen (harter Link). Beim Speichern bleibt die Datei "
                  "unter dem anderen Namen, wie sie war.")
            .arg(m_path);
    return QString();
}

QString DocumentFile::cannotMakeText() const
{
    return lockText(m_lock,
                    m_readOnly == ReadOnlyReason::HeldByOther ? EditLock::HeldByOther
                                                              : EditLock::NotWritable,
                    m_path);
}

bool DocumentFile::renewLock()
{
    const QString lockFile = EditLock::lockFile(m_path);
    if (!m_lock.isTaken() || OwnFile::stamp(lockFile) == m_lockStamp)
        return true;
    const bool taken = m_lock.take(m_path) == EditLock::Taken;
    m_lockStamp = OwnFile::stamp(lockFile);
    return taken;
}

SessionRecovery DocumentFile::findRecovery(const FileContent &content) const
{
    std::optional<SessionRecovery> recovery;
    BackgroundWork::run(tr("%1 wird gelesen").arg(QFileInfo(m_path).fileName()),
                        [&] { recovery.emplace(m_path, content); });
    return *recovery;
}

SaveOutcome DocumentFile::save(const ReleaseMappingC &release, const QString &rootName,
                               const SaveOptions &options)
{
    return run(m_path, m_known, release, rootName, options);
}

SaveOutcome DocumentFile::saveAs(const QString &path, const ReleaseMappingC &release,
                                 const QString &rootName, const SaveOptions &options)
{
    SaveOutcome outcome;
    EditLock lock;
    const EditLock::Result taken = lock.take(path);
    if (taken != EditLock::Taken) {
        outcome.result =
            taken == EditLock::HeldByOther ? SaveResult::Busy : SaveResult::WriteFailed;
        outcome.text = lockText(lock, taken, path);
        return outcome;
    }
    KnownFile known{FileState::of(path), {}};
    outcome = run(path, known, release, rootName, options);
    if (outcome.result != SaveResult::Saved)
        return outcome;
    lock.release();
    moveTo(path, MappingDocument::Access::ReadWrite);
    setKnown(known);
    return outcome;
}

/// \a known becomes what was saved.
SaveOutcome DocumentFile::run(const QString &path, KnownFile &known, const ReleaseMappingC &release,
                              const QString &rootName, const SaveOptions &options)
{
    GuardedSave guard(path, known);
    SaveOutcome outcome;
    BackgroundWork::run(tr("%1 wird gespeichert").arg(QFileInfo(path).fileName()), [&] {
        const auto commit = [&](const QString &copy) {
            return ReleaseMappingHandler(release, rootName, copy).commitModifications();
        };
        outcome = guard.run(release, commit, options);
    });
    if (outcome.result == SaveResult::Saved)
        known = guard.saved();
    return outcome;
}

std::optional<QByteArray> DocumentFile::autosave(const ReleaseMappingC &release,
                                                 QString *error) const
{
    std::optional<QByteArray> hash;
    const QString side = SessionRecovery::autosaveFile(m_path);
    BackgroundWork::run(tr("%1 wird gesichert").arg(QFileInfo(m_path).fileName()), [&] {
        const QByteArray text = textOf(release);
        if (OwnFile::replace(side, text, error))
            hash = FileState::hashOf(text);
    });
    return hash;
}

void DocumentFile::removeAutosave() const
{
    OwnFile::remove(SessionRecovery::autosaveFile(m_path));
}

QString DocumentFile::lockText(const EditLock &lock, EditLock::Result result, const QString &path)
{
    return result == EditLock::HeldByOther
               ? tr("%1 wird gerade von %2 bearbeitet. Es wurde nichts geschrieben. Bitte einen "
                    "anderen Namen wählen.")
                     .arg(path, ownerText(lock.owner()))
               : tr("Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts "
                    "geschrieben. Bitte einen anderen Ordner wählen.")
                     .arg(path, OwnFile::folderFault(path));
}
