#include "MappingDocument.h"

#include "JournalingHandler.h"
#include "MappingDocumentPrivate.h"
#include "SessionRecovery.h"

#include <core/files/EditLock.h>
#include <core/text/PPathName.h>
#include <geomcore/records/MappingFile.h>

#include <QFileInfo>

MappingDocument::MappingDocument(QSettings *settings, QObject *parent)
    : QObject(parent)
    , d(new MappingDocumentPrivate(this, settings))
{
}

MappingDocument::~MappingDocument()
{
    d->close(false);
}

QStringList MappingDocument::sourceDates(const QString &mappingFile, QString *error)
{
    MappingFile file;
    // No release has this date, so all stay unread.
    return file.read(PPathName(mappingFile).native(), QStringLiteral("\n"), error)
               ? file.sourceDates()
               : QStringList();
}

MappingDocument::OpenResult MappingDocument::open(const OpenRequest &request)
{
    return d->open(request);
}

MappingDocument::OpenResult MappingDocument::openNew(const ReleaseMappingC &release,
                                                     const QString &mappingFile,
                                                     const QString &rootName)
{
    return d->openNew(release, mappingFile, rootName);
}

QString MappingDocument::errorText() const
{
    return d->errorText;
}

const RecoveryOffer &MappingDocument::recoveryOffer() const
{
    return d->offer;
}

void MappingDocument::close()
{
    d->close(true);
}

bool MappingDocument::isOpen() const
{
    return d->isOpen;
}

bool MappingDocument::isReadOnly() const
{
    return d->readOnly != ReadOnlyReason::None;
}

MappingDocument::ReadOnlyReason MappingDocument::readOnlyReason() const
{
    return d->readOnly;
}

QString MappingDocument::readOnlyText() const
{
    switch (d->readOnly) {
    case ReadOnlyReason::None:
        return QString();
    case ReadOnlyReason::Wanted:
        return tr("%1 ist nur zum Lesen geöffnet.").arg(d->file);
    case ReadOnlyReason::HeldByOther:
        return tr("%1 wird gerade von %2 bearbeitet und ist deshalb nur zum Lesen geöffnet.")
            .arg(d->file, ownerText(d->otherOwner));
    case ReadOnlyReason::NotWritable:
        return tr("Der Ordner von %1 ist nicht beschreibbar. Die Datei ist deshalb nur zum Lesen "
                  "geöffnet; unter einem anderen Namen gespeichert lässt sie sich bearbeiten.")
            .arg(d->file);
    }
    return QString();
}

SessionOwner MappingDocument::lockOwner() const
{
    return d->otherOwner;
}

bool MappingDocument::removeLock(const QString &mappingFile)
{
    return EditLock::remove(canonicalPath(mappingFile));
}

QString MappingDocument::canonicalPath(const QString &mappingFile)
{
    const QFileInfo info(PPathName(mappingFile).native());
    const QString path = info.canonicalFilePath();
    return path.isEmpty() ? info.absoluteFilePath() : path;
}

QString MappingDocument::mappingFile() const
{
    return d->file;
}

QString MappingDocument::rootName() const
{
    return d->rootName;
}

CatalogRoots MappingDocument::catalogRoots() const
{
    return d->roots;
}

void MappingDocument::setCatalogRoots(const CatalogRoots &roots)
{
    d->roots = roots;
    CatalogRootMemory(d->settings).remember(d->file, roots);
}

CatalogMappingHandlerI *MappingDocument::createHandler()
{
    return d->handler ? new JournalingHandler(d->handler, this) : nullptr;
}

CatalogMappingHandlerI *MappingDocument::handler() const
{
    return d->handler.get();
}

ReleaseMappingC MappingDocument::release() const
{
    return d->release();
}

PrjMappingC MappingDocument::mapping(const ProjectId &project) const
{
    return d->release().findMapping(project.path, project.version, project.tabVersion);
}

const LineCounts &MappingDocument::counts() const
{
    return d->counts;
}

QList<ProjectId> MappingDocument::conflictedProjects() const
{
    QList<ProjectId> projects;
    if (counts().conflicts() == 0)
        return projects;
    const ReleaseMappingC all = release();
    for (int i = 0; i < all.countMappings(); ++i) {
        const PrjMappingC mapping = all.mappingAt(i);
        if (mapping.getContainsConflicts())
            projects += ProjectId::of(mapping);
    }
    return projects;
}

void MappingDocument::updateMapping(const PrjMappingC &mapping)
{
    d->update(mapping, false);
}

void MappingDocument::updateByEditor(const PrjMappingC &mapping)
{
    d->update(mapping, true);
}

void MappingDocument::replaceRelease(const ReleaseMappingC &release, const QString &text)
{
    if (!d->isEditable()) {
        d->refuse(ProjectId());
        return;
    }
    beginStep(text);
    d->replaceRelease(release);
    endStep();
}

void MappingDocument::beginStep(const QString &text)
{
    if (d->pending.depth == 0)
        finishStep();
    if (d->pending.depth++ == 0)
        d->pending.text = text;
}

void MappingDocument::endStep()
{
    if (d->pending.depth > 0 && --d->pending.depth == 0)
        finishStep();
}

void MappingDocument::finishStep()
{
    d->finishStep();
}

void MappingDocument::updateWithoutStep(const std::function<void()> &marking)
{
    finishStep();
    d->marking = true;
    marking();
    finishStep();
    d->marking = false;
}

bool MappingDocument::canUndo() const
{
    return d->history.canUndo();
}

bool MappingDocument::canRedo() const
{
    return d->history.canRedo();
}

QString MappingDocument::undoText() const
{
    return canUndo() ? d->history.undoStep().text : QString();
}

QString MappingDocument::redoText() const
{
    return canRedo() ? d->history.redoStep().text : QString();
}

QStringList MappingDocument::undoTexts() const
{
    return d->history.texts();
}

void MappingDocument::setUndoLimit(int steps)
{
    d->history.setLimit(steps);
    Q_EMIT undoChanged();
}

bool MappingDocument::isModified() const
{
    return d->isModified();
}

SaveOutcome MappingDocument::save(const SaveOptions &options)
{
    return d->save(options);
}

SaveOutcome MappingDocument::saveAs(const QString &mappingFile, const SaveOptions &options)
{
    return d->saveAs(mappingFile, options);
}

void MappingDocument::setAutosaveInterval(int seconds)
{
    d->autosaveSeconds = qMax(seconds, 0);
    d->startAutosave();
}

int MappingDocument::autosaveInterval() const
{
    return d->autosaveSeconds;
}

QDateTime MappingDocument::lastAutosave() const
{
    return d->lastAutosave;
}

QString MappingDocument::journalFile() const
{
    return SessionRecovery::journalFile(d->file);
}

QString MappingDocument::autosaveFile() const
{
    return SessionRecovery::autosaveFile(d->file);
}

void MappingDocument::undo()
{
    d->move(true);
}

void MappingDocument::redo()
{
    d->move(false);
}

void MappingDocument::autosave()
{
    d->autosave();
}
