#include "MappingDocumentPrivate.h"

#include "GuardedSave.h"
#include "SessionRecovery.h"

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>
#include <mapping/data/ReleaseMappingHandler.h>

#include <QFile>

SaveOutcome MappingDocumentPrivate::save(const SaveOptions &options)
{
    SaveOutcome outcome;
    finishStep();
    if (!isOpen || readOnly != MappingDocument::ReadOnlyReason::None) {
        outcome.result = SaveResult::ReadOnly;
        outcome.text = isOpen ? MappingDocument::tr("Es wurde nicht gespeichert. %1 Bitte unter "
                                                    "einem anderen Namen speichern.")
                                    .arg(q->readOnlyText())
                              : MappingDocument::tr("Es ist keine Zuordnungsdatei geöffnet.");
        return outcome;
    }
    FileState state;
    outcome = runGuarded(file, m_known, m_loaded, options, state);
    if (outcome.result == SaveResult::Saved)
        noteSaved(state);
    return outcome;
}

/// Why a file that is not there yet, or is not open, cannot be written.
QString MappingDocumentPrivate::lockText(const EditLock &lock, EditLock::Result result,
                                         const QString &path)
{
    return result == EditLock::HeldByOther
               ? MappingDocument::tr("%1 wird gerade von %2 bearbeitet. Es wurde nichts "
                                     "geschrieben. Bitte einen anderen Namen wählen.")
                     .arg(path, ownerText(lock.owner()))
               : MappingDocument::tr("Im Ordner von %1 kann nichts angelegt werden. Es wurde "
                                     "nichts geschrieben. Bitte einen anderen Ordner wählen.")
                     .arg(path);
}

SaveOutcome MappingDocumentPrivate::saveAs(const QString &path, const SaveOptions &options)
{
    const QString target = MappingDocument::canonicalPath(path);
    if (isOpen && target == file && readOnly == MappingDocument::ReadOnlyReason::None)
        return save(options);
    SaveOutcome outcome;
    finishStep();
    EditLock lock;
    const EditLock::Result taken = isOpen ? lock.take(target) : EditLock::NotWritable;
    if (taken != EditLock::Taken) {
        outcome.result =
            taken == EditLock::HeldByOther ? SaveResult::Busy : SaveResult::WriteFailed;
        outcome.text = lockText(lock, taken, target);
        return outcome;
    }
    FileState state;
    outcome = runGuarded(target, FileState::of(target), ReleaseMappingC(), options, state);
    if (outcome.result != SaveResult::Saved)
        return outcome;
    lock.release();
    moveTo(target);
    noteSaved(state);
    return outcome;
}

/// Leaves the former file as it was saved last and goes on with another one.
void MappingDocumentPrivate::moveTo(const QString &path)
{
    if (m_journal.isOpen()) {
        m_journal.append(record("closed"));
        m_journal.close();
        OwnFile::remove(SessionRecovery::autosaveFile(file));
    }
    file = path;
    takeLock(MappingDocument::Access::ReadWrite);
    if (SessionRecovery(file).leftSomething())
        (void)SessionRecovery::putAside(file);
    m_known = FileState::of(file);
    beginJournal();
    CatalogRootMemory(settings).remember(file, roots);
    startAutosave();
}

SaveOutcome MappingDocumentPrivate::runGuarded(const QString &path, const FileState &state,
                                               const ReleaseMappingC &base,
                                               const SaveOptions &options, FileState &saved)
{
    const ReleaseMappingC current = release();
    GuardedSave guard(path, state, base);
    const auto commit = [&](const QString &copy) {
        return ReleaseMappingHandler(current, rootName, copy).commitModifications();
    };
    SaveOutcome outcome = guard.run(current, commit, options);
    saved = guard.savedState();
    return outcome;
}

void MappingDocumentPrivate::noteSaved(const FileState &state)
{
    m_known = state;
    m_loaded = release();
    history.markClean();
    PJsonValue json = record("saved");
    json[QStringLiteral("step")] = PJsonValue::fromInt(m_step);
    json[QStringLiteral("fileHash")] = PJsonValue(QString::fromLatin1(state.hash));
    m_journal.append(json);
    m_journal.sync();
    OwnFile::remove(SessionRecovery::autosaveFile(file));
    tellModified();
    Q_EMIT q->saved();
}

QByteArray MappingDocumentPrivate::fileOf(const ReleaseMappingC &release)
{
    MappingFile file;
    file.setRelease(release);
    return file.toByteArray();
}

void MappingDocumentPrivate::startAutosave()
{
    m_autosaveTimer.stop();
    if (isOpen && readOnly == MappingDocument::ReadOnlyReason::None && autosaveSeconds > 0)
        m_autosaveTimer.start(autosaveSeconds * 1000);
}

void MappingDocumentPrivate::autosave()
{
    finishStep();
    if (!isModified() || readOnly != MappingDocument::ReadOnlyReason::None ||
        m_autosavedStep == m_step + 1)
        return;
    const QString path = SessionRecovery::autosaveFile(file);
    const QByteArray side = fileOf(release());
    QString error;
    if (!OwnFile::replace(path, side, &error)) {
        Q_EMIT q->problemOccurred(
            MappingDocument::tr("Die automatische Sicherung ist nicht gelungen (%1). Bitte bald "
                                "speichern.")
                .arg(error));
        return;
    }
    m_autosavedStep = m_step + 1;
    lastAutosave = QDateTime::currentDateTimeUtc();
    PJsonValue json = record("autosaved");
    json[QStringLiteral("step")] = PJsonValue::fromInt(m_step);
    json[QStringLiteral("fileHash")] = PJsonValue(QString::fromLatin1(FileState::hashOf(side)));
    m_journal.append(json);
    m_journal.sync();
    Q_EMIT q->autosaved(path);
}
