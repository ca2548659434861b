#include "GuardedSave.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>

#include <QCoreApplication>
#include <QFile>
#include <QLockFile>

namespace {

QString say(const char *text)
{
    return QCoreApplication::translate("GuardedSave", text);
}

/// The members of a mapping file, those of other releases unread.
PJsonValue readMembers(const QString &file, QString *error)
{
    PJsonValue document;
    if (!document.parseFile(file, error))
        return PJsonValue();
    if (!document.isObject() && error)
        *error = QStringLiteral("%1: A mapping file must hold an object.").arg(file);
    return document;
}

QByteArray textOf(const ReleaseMappingC &release)
{
    PJsonValue value;
    release.toJson(value, false);
    return value.toByteArray(true);
}

} // namespace

GuardedSave::GuardedSave(const QString &file, const FileState &known, const ReleaseMappingC &loaded)
    : m_file(file)
    , m_known(known)
    , m_loaded(loaded)
{
}

SaveOutcome GuardedSave::run(const ReleaseMappingC &release, const std::function<bool()> &commit,
                             const SaveOptions &options)
{
    m_outcome = SaveOutcome();
    QLockFile lock(lockFile(m_file));
    if (!lock.tryLock(LockWait)) {
        const bool busy = lock.error() == QLockFile::LockFailedError;
        (void)end(busy ? SaveResult::Busy : SaveResult::BackupFailed,
                  (busy ? say("%1 wird gerade von einem anderen Programm gespeichert. Es wurde "
                              "nichts geschrieben. Bitte gleich noch einmal speichern.")
                        : say("Im Ordner von %1 kann nichts angelegt werden. Es wurde nichts "
                              "geschrieben. Bitte unter einem anderen Namen speichern."))
                      .arg(m_file));
        return m_outcome;
    }
    if (!examine(release, options) || !makeBackup())
        return m_outcome;
    if (!commit()) {
        restore(say("Die Datei konnte nicht vollständig geschrieben werden. Möglicherweise ist der "
                    "Datenträger voll."));
        return m_outcome;
    }
    QString error;
    const QString fault = DurableFile::syncPath(m_file, &error) ? check(release) : error;
    if (!fault.isEmpty())
        restore(fault);
    else
        m_saved = FileState::of(m_file);
    return m_outcome;
}

QString GuardedSave::backupFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".bak");
}

QString GuardedSave::lockFile(const QString &mappingFile)
{
    return mappingFile + QStringLiteral(".lock");
}

bool GuardedSave::examine(const ReleaseMappingC &release, const SaveOptions &options)
{
    m_before = FileState::of(m_file);
    m_others.clear();
    if (m_before.exists) {
        QString error;
        const PJsonValue members = readMembers(m_file, &error);
        if (!members.isObject())
            return keepUnreadable(error, options);
        for (const QString &date : members.keys()) {
            if (date != release.getSourceDate())
                m_others.insert(date, members.value(date).rawText());
        }
    }
    return m_before.sameContent(m_known) || options.overForeignChange ||
           reportForeignChange(release);
}

bool GuardedSave::reportForeignChange(const ReleaseMappingC &release)
{
    if (!m_before.exists)
        return end(SaveResult::ForeignChange,
                   say("%1 wurde seit dem Öffnen gelöscht oder umbenannt. Beim Speichern wird die "
                       "Datei neu angelegt und enthält nur diesen Stand (%2). Es wurde noch nichts "
                       "geschrieben.")
                       .arg(m_file, release.getSourceDate()));
    MappingFile there;
    m_outcome.onlyOtherReleases = there.read(m_file, release.getSourceDate()) &&
                                  sameRelease(there.release(release.getSourceDate()), m_loaded);
    return end(
        SaveResult::ForeignChange,
        (m_outcome.onlyOtherReleases
             ? say("%1 wurde seit dem Öffnen von jemand anderem geändert, dieser Stand (%2) aber "
                   "nicht. Beim Speichern bleiben die anderen Stände, wie sie jetzt in der Datei "
                   "sind. Es wurde noch nichts geschrieben.")
             : say("%1 wurde seit dem Öffnen von jemand anderem geändert, auch dieser Stand (%2). "
                   "Beim Speichern gehen dessen Änderungen an diesem Stand verloren. Es wurde noch "
                   "nichts geschrieben: trotzdem speichern, unter einem anderen Namen speichern "
                   "oder die Datei neu öffnen."))
            .arg(m_file, release.getSourceDate()));
}

bool GuardedSave::keepUnreadable(const QString &error, const SaveOptions &options)
{
    if (!options.overUnreadable)
        return end(SaveResult::Unreadable,
                   say("%1 ist keine lesbare Zuordnungsdatei (%2). Es wurde nichts geschrieben. "
                       "Beim Speichern wird die vorhandene Datei unter einem Namen mit Zeitstempel "
                       "aufgehoben und eine neue angelegt.")
                       .arg(m_file, error));
    const QString kept = DurableFile::stampedName(m_file, QStringLiteral("unlesbar"));
    QString cause;
    if (!DurableFile::copy(m_file, kept, &cause))
        return end(SaveResult::BackupFailed,
                   say("%1 ist unlesbar und konnte nicht nach %2 kopiert werden (%3). Es wurde "
                       "nichts geschrieben. Bitte unter einem anderen Namen speichern.")
                       .arg(m_file, kept, cause));
    m_outcome.keptFile = kept;
    return true;
}

bool GuardedSave::makeBackup()
{
    if (!m_before.exists)
        return true;
    QFile file(m_file);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly))
        return end(SaveResult::WriteFailed,
                   say("%1 kann nicht beschrieben werden (%2). Es wurde nichts geschrieben. Bitte "
                       "die Schreibrechte prüfen oder unter einem anderen Namen speichern.")
                       .arg(m_file, file.errorString()));
    file.close();
    const QString backup = backupFile(m_file);
    QString cause;
    if (!DurableFile::copy(m_file, backup, &cause) || !DurableFile::syncPath(backup, &cause))
        return end(
            SaveResult::BackupFailed,
            say("Die Sicherungskopie %1 konnte nicht angelegt werden (%2). Es wurde nichts "
                "geschrieben. Bitte Platz schaffen oder unter einem anderen Namen speichern.")
                .arg(backup, cause));
    m_outcome.backupFile = backup;
    return true;
}

/// What is wrong with the file as it was written; empty if it holds what it should.
QString GuardedSave::check(const ReleaseMappingC &release) const
{
    MappingFile written;
    QString error;
    if (!written.read(m_file, release.getSourceDate(), &error))
        return say("Die geschriebene Datei ist nicht lesbar: %1").arg(error);
    if (!sameRelease(written.release(release.getSourceDate()), release))
        return say("Die geschriebene Datei enthält nicht, was gespeichert werden sollte.");
    const PJsonValue members = readMembers(m_file, &error);
    for (auto other = m_others.cbegin(); other != m_others.cend(); ++other) {
        if (members.value(other.key()).rawText() != other.value())
            return say("In der geschriebenen Datei fehlt der Stand %1, oder er ist ein anderer.")
                .arg(other.key());
    }
    return QString();
}

void GuardedSave::restore(const QString &cause)
{
    const QString backup = m_outcome.backupFile;
    QString error;
    // The backup takes the file's place as it is: that needs no room on a full disk.
    const bool restored = backup.isEmpty() ? (!QFile::exists(m_file) || QFile::remove(m_file))
                                           : DurableFile::rename(backup, m_file, &error);
    if (restored) {
        m_outcome.backupFile.clear();
        (void)end(SaveResult::WriteFailed,
                  say("%1 wurde nicht gespeichert. %2 Die Datei ist wieder so wie vor dem "
                      "Speichern, die Änderungen sind weiterhin geöffnet. Bitte Platz schaffen und "
                      "noch einmal speichern oder unter einem anderen Namen speichern.")
                      .arg(m_file, cause));
        return;
    }
    (void)end(SaveResult::RestoreFailed,
              say("%1 wurde nicht gespeichert. %2 Auch der frühere Inhalt konnte nicht "
                  "zurückgeholt werden (%3). Er liegt in %4. Bitte unter einem anderen Namen "
                  "speichern und diese Datei von Hand zurückkopieren.")
                  .arg(m_file, cause, error, backup));
}

bool GuardedSave::end(SaveResult result, const QString &text)
{
    m_outcome.result = result;
    m_outcome.text = text;
    return false;
}

bool GuardedSave::sameRelease(const ReleaseMappingC &a, const ReleaseMappingC &b)
{
    return textOf(a) == textOf(b);
}
