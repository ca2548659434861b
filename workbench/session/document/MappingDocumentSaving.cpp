#include "CatalogRootMemory.h"
#include "MappingDocumentPrivate.h"

#include <workbench/session/file/OwnFile.h>

#include <QScopeGuard>

/// Why there is nothing that can be saved now.
std::optional<SaveOutcome> MappingDocumentPrivate::refuseSaving() const
{
    SaveOutcome outcome;
    outcome.result = SaveResult::ReadOnly;
    if (!isOpen) {
        outcome.text = MappingDocument::tr("Es ist keine Mapping-Datei geöffnet.");
        return outcome;
    }
    if (m_saving) {
        outcome.result = SaveResult::Busy;
        outcome.text = MappingDocument::tr("Es wird gerade gespeichert.");
        return outcome;
    }
    return std::nullopt;
}

SaveOutcome MappingDocumentPrivate::save(const SaveOptions &options)
{
    finishStep();
    if (const std::optional<SaveOutcome> refused = refuseSaving())
        return *refused;
    if (!file.isEditable()) {
        SaveOutcome outcome;
        outcome.result = SaveResult::ReadOnly;
        outcome.text = MappingDocument::tr("Es wurde nicht gespeichert. %1 Bitte unter einem "
                                           "anderen Namen speichern.")
                           .arg(file.readOnlyText());
        return outcome;
    }
    m_saving = true;
    const auto done = qScopeGuard([this] { m_saving = false; });
    SaveOutcome outcome = file.save(release(), rootName, options);
    if (outcome.result == SaveResult::Saved)
        noteSaved();
    return outcome;
}

SaveOutcome MappingDocumentPrivate::saveAs(const QString &path, const SaveOptions &options)
{
    const QString target = MappingDocument::canonicalPath(path);
    if (isOpen && target == file.path() && file.isEditable())
        return save(options);
    finishStep();
    if (const std::optional<SaveOutcome> refused = refuseSaving())
        return *refused;
    m_saving = true;
    const auto done = qScopeGuard([this] { m_saving = false; });
    const QString former = file.path();
    SaveOutcome outcome = file.saveAs(target, release(), rootName, options);
    if (outcome.result != SaveResult::Saved)
        return outcome;
    // The former file stays as it was saved last.
    if (steps.closeJournal(true))
        OwnFile::remove(SessionRecovery::autosaveFile(former));
    if (SessionRecovery::mayHaveLeft(target) && SessionRecovery(target).leftSomething())
        (void)SessionRecovery::putAside(target);
    beginJournal();
    CatalogRootMemory(settings).remember(target, roots);
    startAutosave();
    noteSaved();
    return outcome;
}

void MappingDocumentPrivate::noteSaved()
{
    renewWhatIsGone();
    steps.noteSaved(file.known().hash);
    file.removeAutosave();
    tellModified();
    Q_EMIT q->saved();
}

/// If the folder was deleted meanwhile, journal and lock went with it.
void MappingDocumentPrivate::renewWhatIsGone()
{
    if (steps.isJournaling() && !steps.renewJournal(opening()))
        tellJournal();
    if (!file.renewLock())
        Q_EMIT q->problemOccurred(
            MappingDocument::tr("Die Sperre von %1 ist verloren und kann nicht erneuert werden. "
                                "Andere könnten die Datei gleichzeitig bearbeiten.")
                .arg(file.path()));
}

void MappingDocumentPrivate::startAutosave()
{
    m_autosaveTimer.stop();
    if (isOpen && file.isEditable() && autosaveSeconds > 0)
        m_autosaveTimer.start(autosaveSeconds * 1000);
}

void MappingDocumentPrivate::autosave()
{
    finishStep();
    if (m_saving || !isModified() || !file.isEditable() || steps.isAutosaved())
        return;
    m_saving = true;
    const auto done = qScopeGuard([this] { m_saving = false; });
    QString error;
    const std::optional<QByteArray> hash = file.autosave(release(), &error);
    if (!hash) {
        Q_EMIT q->problemOccurred(
            MappingDocument::tr("Die automatische Sicherung ist nicht gelungen (%1). Bitte bald "
                                "speichern.")
                .arg(error));
        return;
    }
    lastAutosave = QDateTime::currentDateTimeUtc();
    steps.noteAutosaved(*hash);
    Q_EMIT q->autosaved(SessionRecovery::autosaveFile(file.path()));
}
