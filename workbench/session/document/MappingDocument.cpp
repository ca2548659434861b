#include "MappingDocument.h"

#include "CatalogRootMemory.h"
#include "JournalingHandler.h"
#include "MappingDocumentPrivate.h"

#include <core/files/EditLock.h>
#include <core/text/PPathName.h>

#include <QFileInfo>

#include <algorithm>

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
    return DocumentFile::datesIn(FileContent::of(canonicalPath(mappingFile)), error);
}

QStringList MappingDocument::sourceDates(const FileContent &content, QString *error)
{
    return DocumentFile::datesIn(content, error);
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
    return readOnlyReason() != ReadOnlyReason::None;
}

MappingDocument::ReadOnlyReason MappingDocument::readOnlyReason() const
{
    return d->file.readOnly();
}

QString MappingDocument::readOnlyText() const
{
    return d->file.readOnlyText();
}

SessionOwner MappingDocument::lockOwner() const
{
    return d->file.otherOwner();
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
    return d->file.path();
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
    CatalogRootMemory(d->settings).remember(d->file.path(), roots);
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

const ProjectOrder &MappingDocument::projects() const
{
    return d->order;
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

void MappingDocument::setReplacements(const QList<AgreedReplacement> &replacements,
                                      const QString &text)
{
    ReleaseMappingC changed = release();
    changed.setReplacements(replacements);
    replaceRelease(changed, text);
}

void MappingDocument::writeNote(const char *kind, const PJsonValue &note)
{
    if (d->isEditable())
        d->steps.journalNote(kind, note);
}

void MappingDocument::beginStep(const QString &text)
{
    if (!d->steps.isNested())
        finishStep();
    d->steps.begin(text);
}

void MappingDocument::endStep()
{
    if (d->steps.end())
        finishStep();
}

void MappingDocument::finishStep()
{
    d->finishStep();
}

bool MappingDocument::canUndo() const
{
    return d->steps.history().canUndo();
}

bool MappingDocument::canRedo() const
{
    return d->steps.history().canRedo();
}

QString MappingDocument::undoText() const
{
    return canUndo() ? d->steps.history().undoStep().text : QString();
}

QString MappingDocument::redoText() const
{
    return canRedo() ? d->steps.history().redoStep().text : QString();
}

QStringList MappingDocument::undoTexts() const
{
    return d->steps.history().texts();
}

void MappingDocument::setKeptStates(int steps)
{
    d->steps.history().setKeptStates(steps);
}

const UndoHistory &MappingDocument::steps() const
{
    return d->steps.history();
}

StepPlan MappingDocument::planStep(int index) const
{
    return d->plan({index});
}

StepPlan MappingDocument::planUndoTo(int index) const
{
    QList<int> all = d->steps.history().appliedAfter(index);
    std::ranges::reverse(all);
    return d->plan(all << index);
}

bool MappingDocument::moveSteps(const StepPlan &plan)
{
    if (!plan.fits || d->steps.isNested() || !d->isEditable())
        return false;
    d->finishStep();
    return std::ranges::all_of(plan.steps, [this](int index) { return d->moveStep(index); });
}

bool MappingDocument::isModified() const
{
    return d->isModified();
}

MergeOutcome MappingDocument::mergeFile()
{
    return d->mergeFile(nullptr);
}

MergeOutcome MappingDocument::takeMerged(const VelkRelease::MergeResult &known)
{
    return d->mergeFile(&known);
}

const MergeState &MappingDocument::mergeState() const
{
    return d->mergeState;
}

void MappingDocument::settle(const QList<VelkRelease::MergeClash> &clashes, MergeState::Side side)
{
    d->settle(clashes, side);
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

QDateTime MappingDocument::lastAutosave() const
{
    return d->lastAutosave;
}

QString MappingDocument::journalFile() const
{
    return SessionRecovery::journalFile(d->file.path());
}

QString MappingDocument::autosaveFile() const
{
    return SessionRecovery::autosaveFile(d->file.path());
}

void MappingDocument::undo()
{
    d->move(StepRecorder::Origin::Undo);
}

void MappingDocument::redo()
{
    d->move(StepRecorder::Origin::Redo);
}

void MappingDocument::autosave()
{
    d->autosave();
}
