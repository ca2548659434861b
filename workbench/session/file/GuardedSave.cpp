#include "GuardedSave.h"

#include "OwnFile.h"
#include "ReadBack.h"

#include <core/json/JsonWriter.h>
#include <geomcore/records/MappingFile.h>
#include <geomcore/records/noObjectText.h>
#include <geomcore/records/ReleaseDigest.h>

#include <QFile>
#include <QLockFile>

#include <future>

namespace {

/// The members of a mapping file, unread. Null with \a error if it is none.
PJsonValue membersOf(const QByteArray &content, QString *error)
{
    PJsonValue document;
    if (!document.parse(content, error))
        return PJsonValue();
    if (document.isObject())
        return document;
    *error = noObjectText();
    return PJsonValue();
}

PJsonValue valueOf(const ReleaseMappingC &release)
{
    PJsonValue value;
    release.toJson(value, false);
    return value;
}

} // namespace

GuardedSave::GuardedSave(const QString &file, const KnownFile &known)
    : m_file(file)
    , m_known(known)
{
}

SaveOutcome GuardedSave::run(const ReleaseMappingC &release, const Commit &commit,
                             const SaveOptions &options)
{
    m_outcome = SaveOutcome();
    m_release = release;
    m_digest = m_release.noteDigest();
    QLockFile lock(lockFile(m_file));
    std::optional<Obstacle> obstacle = takeLock(lock);
    if (!obstacle)
        obstacle = examine(options);
    if (!obstacle)
        obstacle = write(commit);
    if (!obstacle) {
        obstacle = keepFormer();
        if (!obstacle)
            obstacle = putInPlace();
        if (obstacle)
            OwnFile::remove(copyFile(m_file));
    }
    if (obstacle) {
        m_outcome.result = obstacle->result;
        m_outcome.text = obstacle->text;
    }
    return m_outcome;
}

QString GuardedSave::backupFile(const QString &mappingFile, int age)
{
    const QString newest = mappingFile + QStringLiteral(".bak");
    return age < 2 ? newest : newest + u'.' + QString::number(age);
}

QString GuardedSave::lockFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".lock");
}

QString GuardedSave::copyFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".neu");
}

std::optional<GuardedSave::Obstacle> GuardedSave::takeLock(QLockFile &lock)
{
    const QString name = lockFile(m_file);
    if (OwnFile::place(name) == OwnFile::Place::Other)
        return Obstacle{
            SaveResult::WriteFailed,
            tr("%1 ist keine gewöhnliche Datei und deshalb nicht als Sperre zu gebrauchen. "
               "Es wurde nichts geschrieben. Bitte entfernen, was dort steht.")
                .arg(name)};
    if (lock.tryLock(LockWait))
        return std::nullopt;
    const QString fault = OwnFile::folderFault(m_file);
    if (fault.isEmpty())
        return Obstacle{SaveResult::Busy,
                        tr("%1 wird gerade von einem anderen Programm gespeichert. Es wurde nichts "
                           "geschrieben. Bitte gleich noch einmal speichern.")
                            .arg(m_file)};
    return Obstacle{
        SaveResult::WriteFailed,
        tr("Im Ordner von %1 kann nichts angelegt werden (%2). Es wurde nichts geschrieben. "
           "Bitte Platz schaffen oder unter einem anderen Namen speichern.")
            .arg(m_file, fault)};
}

/// Whether the file is still the known one, with this release alone: then there is nothing in it
/// that would have to be read.
bool GuardedSave::isAsKnown()
{
    if (!m_known.isAlone || m_known.release.getSourceDate() != date())
        return false;
    m_before = FileContent::withoutBytes(m_file, m_known.state, m_known.identity);
    return m_before.error.isEmpty() && m_before.state.sameContent(m_known.state);
}

std::optional<GuardedSave::Obstacle> GuardedSave::examine(const SaveOptions &options)
{
    m_members = PJsonValue(PJsonValue::Object);
    m_readable = isAsKnown();
    if (m_readable)
        return std::nullopt;
    m_before = FileContent::of(m_file);
    if (!m_before.error.isEmpty())
        return Obstacle{
            SaveResult::WriteFailed,
            tr("%1 kann nicht gelesen werden (%2). Es wurde nichts geschrieben. Bitte unter "
               "einem anderen Namen speichern.")
                .arg(m_file, m_before.error)};
    if (m_before.state.exists) {
        QString error;
        m_members = membersOf(m_before.bytes, &error);
        m_readable = m_members.isObject();
        if (!m_readable)
            return examineUnreadable(error, options);
    }
    if (m_before.state.sameContent(m_known.state) || options.overForeignChange)
        return std::nullopt;
    return foreignChange();
}

/// The releases that are beyond reach in the file are taken from the backup, if that has them.
std::optional<GuardedSave::Obstacle> GuardedSave::examineUnreadable(const QString &error,
                                                                    const SaveOptions &options)
{
    QString ignored;
    const std::optional<QByteArray> backup = OwnFile::read(backupFile(m_file));
    m_members = backup ? membersOf(*backup, &ignored) : PJsonValue();
    if (!m_members.isObject())
        m_members = PJsonValue(PJsonValue::Object);
    m_outcome.fromBackup = m_members.keys();
    m_outcome.fromBackup.removeAll(date());
    if (!options.overUnreadable)
        return Obstacle{
            SaveResult::Unreadable,
            (m_outcome.fromBackup.isEmpty()
                 ? tr("%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts "
                      "geschrieben. Beim Speichern wird die vorhandene Datei unter einem "
                      "Namen mit Zeitstempel aufgehoben und eine neue angelegt, die nur "
                      "diesen Stand enthält.")
                       .arg(m_file, error)
                 : tr("%1 ist keine lesbare Mapping-Datei (%2). Es wurde nichts "
                      "geschrieben. Beim Speichern wird die vorhandene Datei unter einem "
                      "Namen mit Zeitstempel aufgehoben und eine neue angelegt. Die anderen "
                      "Stände kommen aus der Sicherung %3: %4.")
                       .arg(m_file, error, backupFile(m_file),
                            m_outcome.fromBackup.join(QStringLiteral(", "))))};
    const QString kept = DurableFile::stampedName(m_file, QStringLiteral("unlesbar"));
    QString cause;
    if (!OwnFile::keep(m_file, kept, &cause))
        return Obstacle{
            SaveResult::BackupFailed,
            tr("%1 ist unlesbar und konnte nicht als %2 aufgehoben werden (%3). Es wurde "
               "nichts geschrieben. Bitte unter einem anderen Namen speichern.")
                .arg(m_file, kept, cause)};
    m_outcome.keptFile = kept;
    return std::nullopt;
}

GuardedSave::Obstacle GuardedSave::foreignChange()
{
    if (!m_before.state.exists)
        return Obstacle{
            SaveResult::ForeignChange,
            tr("%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die "
               "Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts "
               "geschrieben.")
                .arg(m_file, date())};
    MappingFile there;
    m_outcome.onlyOtherReleases =
        there.parse(m_before.bytes, date()) && valueOf(there.release(date())).toByteArray(true) ==
                                                   valueOf(m_known.release).toByteArray(true);
    return Obstacle{
        SaveResult::ForeignChange,
        (m_outcome.onlyOtherReleases
             ? tr("%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber "
                  "nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei "
                  "sind. Es wurde noch nichts geschrieben.")
             : tr("%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). "
                  "Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch "
                  "nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern "
                  "oder die Datei neu öffnen."))
            .arg(m_file, date())};
}

std::optional<GuardedSave::Obstacle> GuardedSave::write(const Commit &commit)
{
    if (m_before.state.exists) {
        QFile file;
        QString error;
        if (!OwnFile::open(file, m_file, QIODevice::ReadWrite | QIODevice::ExistingOnly, &error))
            return Obstacle{
                SaveResult::WriteFailed,
                tr("%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. "
                   "Bitte die Schreibrechte prüfen oder unter einem anderen Namen "
                   "speichern.")
                    .arg(m_file, error)};
    }
    const QString fault = fillCopy(commit);
    if (fault.isEmpty())
        return std::nullopt;
    OwnFile::remove(copyFile(m_file));
    return Obstacle{
        SaveResult::WriteFailed,
        tr("%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen sind "
           "weiterhin geöffnet. Bitte Platz schaffen und noch einmal speichern oder unter "
           "einem anderen Namen speichern.")
            .arg(m_file, fault)};
}

/// What went wrong, or nothing.
QString GuardedSave::fillCopy(const Commit &commit)
{
    const QString copy = copyFile(m_file);
    // This release's former text would be read for nothing; its place among the others counts.
    PJsonValue others = m_members;
    if (others.contains(date()))
        others[date()] = PJsonValue();
    QString error;
    if (!OwnFile::remove(copy, &error) ||
        !OwnFile::createUnsynced(copy, others.toByteArray(false), m_file, &error))
        return error;
    if (!commit(copy)) {
        // The function does not say why; trying the same does.
        const bool fits = OwnFile::replace(copy, expected().toByteArray(false), &error);
        return fits ? tr("die Datei konnte nicht vollständig geschrieben werden") : error;
    }
    // While it is looked at, the system puts it onto the disk.
    auto synced = std::async(std::launch::async, [&] { return OwnFile::syncPath(copy, &error); });
    QString fault = readBack(copy);
    if (!synced.get() && fault.isEmpty())
        return error;
    m_copyIdentity = OwnFile::identity(copy);
    return fault;
}

/// What the file should hold afterwards.
PJsonValue GuardedSave::expected() const
{
    PJsonValue document = m_members;
    document[date()] = valueOf(m_release);
    return document;
}

/// What is wrong with the copy, or nothing: then it is noted as saved.
QString GuardedSave::readBack(const QString &copy)
{
    QFile file;
    QString error;
    if (!OwnFile::open(file, copy, QIODevice::ReadOnly | QIODevice::Unbuffered, &error))
        return error;
    ReadBack comparison(file);
    m_saved.state.exists = true;
    m_saved.release = m_release;
    m_saved.isAlone = expected().size() == 1;
    if (holdsExpected(comparison)) {
        m_saved.state.size = comparison.readSize();
        m_saved.state.hash = comparison.hash();
        return QString();
    }
    const std::optional<QByteArray> written = OwnFile::read(copy, &error);
    if (!written)
        return error;
    m_saved.state.size = written->size();
    m_saved.state.hash = FileState::hashOf(*written);
    return check(*written);
}

/// The release is not written once more if it is known what became of it: its text in the copy must
/// have that hash. The rest is compared as it is.
bool GuardedSave::holdsExpected(ReadBack &copy) const
{
    PJsonValue document = expected();
    if (const std::optional<ReleaseDigest::Text> text = m_digest->text())
        document[date()] =
            PJsonValue::fromWriter(PJsonValue::Object, [&copy, text = *text](JsonWriter &writer) {
                writer.leaveTo([&] {
                    copy.expect(text.size, text.hash);
                    return qsizetype(text.size);
                });
            });
    return document.writeTo(copy, false) && copy.isSame();
}

/// What is wrong with a content that differs from what was expected in more than its form.
QString GuardedSave::check(const QByteArray &written) const
{
    QString error;
    const PJsonValue members = membersOf(written, &error);
    if (!members.isObject())
        return tr("die geschriebene Datei ist nicht lesbar (%1)").arg(error);
    if (members.value(date()).toByteArray(true) != valueOf(m_release).toByteArray(true))
        return tr("die geschriebene Datei enthält nicht, was gespeichert werden sollte");
    const QStringList dates = m_members.keys();
    for (const QString &other : dates) {
        if (other != date() && members.value(other).rawText() != m_members.value(other).rawText())
            return tr("in der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer")
                .arg(other);
    }
    return QString();
}

std::optional<GuardedSave::Obstacle> GuardedSave::keepFormer()
{
    if (!m_readable)
        return std::nullopt;
    keepOlder();
    const QString backup = backupFile(m_file);
    QString cause;
    if (!OwnFile::keep(m_file, backup, &cause))
        return Obstacle{
            SaveResult::BackupFailed,
            tr("Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts "
               "geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.")
                .arg(backup, cause)};
    m_outcome.backupFile = backup;
    return std::nullopt;
}

/// Each gets the next name; none is missing at any time. The newest one alone is promised, so what
/// fails here stops nothing.
void GuardedSave::keepOlder() const
{
    for (int age = Backups - 1; age > 0; --age) {
        const QString backup = backupFile(m_file, age);
        if (OwnFile::place(backup) == OwnFile::Place::RegularFile)
            (void)OwnFile::keep(backup, backupFile(m_file, age + 1));
    }
}

std::optional<GuardedSave::Obstacle> GuardedSave::putInPlace()
{
    if (OwnFile::stamp(m_file) != m_before.stamp) {
        m_outcome.backupFile.clear();
        return Obstacle{SaveResult::ForeignChange,
                        tr("%1 wurde während des Speicherns von jemand anderem geändert. Es wurde "
                           "nichts geschrieben. Bitte noch einmal speichern.")
                            .arg(m_file)};
    }
    QString error;
    if (!OwnFile::rename(copyFile(m_file), m_file, &error))
        return Obstacle{
            SaveResult::WriteFailed,
            tr("%1 wurde nicht gespeichert: %2. Die Datei ist unverändert, die Änderungen "
               "sind weiterhin geöffnet. Bitte unter einem anderen Namen speichern.")
                .arg(m_file, error)};
    OwnFile::syncFolder(m_file);
    m_saved.state.time = QDateTime::currentDateTimeUtc();
    noteIdentity();
    return std::nullopt;
}

/// The renaming has changed it; anything else would be somebody who was quicker.
void GuardedSave::noteIdentity()
{
    if (m_copyIdentity.isEmpty())
        return;
    const QByteArray identity = OwnFile::identity(m_file);
    const QByteArray stamp = OwnFile::stamp(m_file);
    if (!stamp.isEmpty() && identity.startsWith(stamp) && m_copyIdentity.startsWith(stamp))
        m_saved.identity = identity;
}
