#include "MappingDocumentPrivate.h"

#include "ReleaseChanges.h"

#include <utility>

using Origin = StepRecorder::Origin;
using Finished = StepRecorder::Finished;

ReleaseMappingC MappingDocumentPrivate::release() const
{
    return handler ? handler->getCatalogMapping().lastRelease() : ReleaseMappingC();
}

PrjMappingC MappingDocumentPrivate::find(const PrjMappingC &like) const
{
    return release().findMapping(like.getSourcePath(), like.getSourceVersion(),
                                 like.getTabVersion());
}

bool MappingDocumentPrivate::isEditable() const
{
    return isOpen && file.isEditable() && !m_saving;
}

/// Told not at once: the editor is in the middle of its change.
void MappingDocumentPrivate::refuse(const ProjectId &project)
{
    if (!isOpen)
        return;
    if (project.isValid() && !m_refusedProjects.contains(project))
        m_refusedProjects.append(project);
    m_refused = true;
    m_turn.start();
}

void MappingDocumentPrivate::tellRefused()
{
    if (!std::exchange(m_refused, false))
        return;
    const QString cause = file.isEditable() ? MappingDocument::tr("Es wird gerade gespeichert.")
                                            : file.readOnlyText();
    Q_EMIT q->problemOccurred(
        MappingDocument::tr("Die Änderung wurde nicht übernommen. %1").arg(cause));
    // The editor shows what it wanted to have.
    for (const ProjectId &project : std::exchange(m_refusedProjects, {}))
        Q_EMIT q->reselectRequested(project);
}

void MappingDocumentPrivate::update(const PrjMappingC &mapping, bool byEditor)
{
    if (!isEditable()) {
        refuse(ProjectId::of(mapping));
        return;
    }
    const PrjMappingC before = find(mapping);
    steps.note(before, mapping, byEditor);
    store(mapping, before);
    if (!steps.isNested() && !m_turn.isActive())
        m_turn.start();
}

/// Puts the mapping into the release and the counts.
void MappingDocumentPrivate::store(const PrjMappingC &mapping, const PrjMappingC &before)
{
    handler->updateMapping(mapping);
    if (before.isValid())
        counts.add(before.lineCounts(), -1);
    counts.add(mapping.lineCounts());
}

void MappingDocumentPrivate::replaceRelease(const ReleaseMappingC &given)
{
    const ReleaseMappingC before = release();
    ReleaseMappingC after = given;
    after.setSourceDate(before.getSourceDate());
    steps.noteRelease(before, after);
    applyRelease(after);
}

void MappingDocumentPrivate::applyRelease(const ReleaseMappingC &given)
{
    adoptRelease(given);
    Q_EMIT q->releaseReplaced();
}

void MappingDocumentPrivate::finishStep()
{
    if (steps.isNested())
        return;
    if (!m_refused)
        m_turn.stop();
    const Finished done = steps.finish(release(), marking);
    if (done.kind == Finished::Kind::ConflictsMarked)
        tellMarks(done);
    else if (done.kind == Finished::Kind::Step)
        tellStep(done.step);
    for (const ProjectId &project : done.behindEditor)
        Q_EMIT q->reselectRequested(project);
    if (done.kind == Finished::Kind::ConflictsMarked)
        return;
    for (const ChangeNotice &notice : done.notices)
        Q_EMIT q->noticeRaised(notice);
}

void MappingDocumentPrivate::tellMarks(const Finished &done)
{
    steps.journalStep(MappingDocument::tr("Konflikte markiert"), Origin::Edit);
    for (const ProjectId &project : done.changed)
        Q_EMIT q->mappingChanged(project);
    Q_EMIT q->countsChanged();
    tellModified();
}

void MappingDocumentPrivate::tellStep(const UndoStep &step)
{
    for (const MappingChangePair &change : step.changes)
        Q_EMIT q->mappingChanged(
            ProjectId::of(change.after.isValid() ? change.after : change.before));
    Q_EMIT q->countsChanged();
    Q_EMIT q->undoChanged();
    tellModified();
    Q_EMIT q->stepDone(step.text, step.lines);
}

void MappingDocumentPrivate::move(Origin direction)
{
    const bool back = direction == Origin::Undo;
    UndoHistory &history = steps.history();
    if (steps.isNested() || !isEditable())
        return;
    finishStep();
    if (back ? !history.canUndo() : !history.canRedo())
        return;
    const UndoStep step = back ? history.undoStep() : history.redoStep();
    steps.beginMove();
    if (step.releaseBefore) {
        const ReleaseMappingC to = back ? *step.releaseBefore : *step.releaseAfter;
        steps.journalRelease(release(), to);
        applyRelease(to);
    } else {
        applyChanges(step, back);
    }
    if (back)
        history.stepBack();
    else
        history.stepForward();
    UndoStep told = step;
    told.text =
        (back ? MappingDocument::tr("Rückgängig: %1") : MappingDocument::tr("Wiederholt: %1"))
            .arg(step.text);
    steps.journalStep(told.text, direction);
    tellStep(told);
    for (const MappingChangePair &change : step.changes)
        Q_EMIT q->reselectRequested(
            ProjectId::of(change.after.isValid() ? change.after : change.before));
}

/// Writes the older or newer records back. A record that came or went, or whose table version
/// changed, cannot be replaced in place: then the release is made anew without it first.
void MappingDocumentPrivate::applyChanges(const UndoStep &step, bool back)
{
    bool replaced = false;
    for (const MappingChangePair &change : step.changes) {
        const PrjMappingC &from = back ? change.after : change.before;
        const PrjMappingC &to = back ? change.before : change.after;
        steps.journalDifference(from, to);
        if (from.isValid() && to.isValid() && from.getTabVersion() == to.getTabVersion()) {
            store(to, from);
            invalidateNodes(to.getSourcePath());
            continue;
        }
        ReleaseMappingC changed =
            from.isValid() ? withoutMapping(release(), ProjectId::of(from)) : release();
        if (to.isValid())
            changed.addMapping(to);
        adoptRelease(changed);
        replaced = true;
    }
    if (replaced)
        Q_EMIT q->releaseReplaced();
}

void MappingDocumentPrivate::invalidateNodes(const QString &sourcePath) const
{
    QString path = sourcePath;
    path.replace(u'\\', u'/');
    boost::shared_ptr<CatalogStructureNodeI> node = handler->getRootStructureNode();
    for (const QString &part : path.split(u'/')) {
        node->invalidateState();
        boost::shared_ptr<CatalogStructureNodeI> next;
        for (const boost::shared_ptr<CatalogStructureNodeI> &child : node->getChildren()) {
            if (child->getNodeType() == 1 && child->getName() == part)
                next = child;
            else if (child->getPath() == sourcePath)
                child->invalidateState();
        }
        if (!next)
            return;
        node = next;
    }
}

bool MappingDocumentPrivate::isModified() const
{
    return isOpen && (!steps.history().isClean() || steps.hasChanges());
}

void MappingDocumentPrivate::tellModified()
{
    const bool modified = isModified();
    if (std::exchange(m_wasModified, modified) != modified)
        Q_EMIT q->modifiedChanged(modified);
}
