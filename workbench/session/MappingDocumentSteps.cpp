#include "MappingDocumentPrivate.h"

#include "ReleaseChanges.h"
#include "StepNotices.h"
#include "StepSummary.h"

#include <core/json/PJsonValue.h>

#include <utility>

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
    return isOpen && readOnly == MappingDocument::ReadOnlyReason::None;
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
    Q_EMIT q->problemOccurred(
        MappingDocument::tr("Die Änderung wurde nicht übernommen. %1").arg(q->readOnlyText()));
    // The editor shows what it wanted to have.
    for (const ProjectId &project : std::exchange(m_refusedProjects, {}))
        Q_EMIT q->reselectRequested(project);
}

void MappingDocumentPrivate::update(const PrjMappingC &mapping, bool byEditor)
{
    const ProjectId project = ProjectId::of(mapping);
    if (!isEditable()) {
        refuse(project);
        return;
    }
    const PrjMappingC before = find(mapping);
    store(mapping, before);
    notePending(before, mapping);
    if (!byEditor)
        pending.behindEditor.insert(project);
    if (pending.depth == 0 && !m_turn.isActive())
        m_turn.start();
}

/// Puts the mapping into the release, the counts and the journal.
void MappingDocumentPrivate::store(const PrjMappingC &mapping, const PrjMappingC &before)
{
    if (!pending.changed) {
        pending.changed = true;
        ++m_step;
    }
    const MappingDifference difference = MappingDifference::between(before, mapping);
    if (!difference.isEmpty())
        m_journal.append(difference, m_step);
    handler->updateMapping(mapping);
    if (before.isValid())
        counts.add(before.lineCounts(), -1);
    counts.add(mapping.lineCounts());
}

void MappingDocumentPrivate::notePending(const PrjMappingC &before, const PrjMappingC &after)
{
    const auto isOf = [&after](const MappingChangePair &change) {
        return change.after.getSourcePath() == after.getSourcePath() &&
               change.after.getSourceVersion() == after.getSourceVersion() &&
               change.after.getTabVersion() == after.getTabVersion();
    };
    const QPair<QString, QString> key(after.getSourcePath(), after.getSourceVersion());
    qsizetype at = pending.changes.size() - 1;
    // Mostly one project is changed many times in a row.
    if (at < 0 || !isOf(pending.changes[at]))
        at = pending.index.value(key, -1);
    if (at >= 0 && isOf(pending.changes[at])) {
        pending.changes[at].after = after;
        return;
    }
    pending.index.insert(key, pending.changes.size());
    pending.changes.append({before, after});
}

void MappingDocumentPrivate::replaceRelease(const ReleaseMappingC &given)
{
    const ReleaseMappingC before = release();
    ReleaseMappingC after = given;
    after.setSourceDate(before.getSourceDate());
    if (!pending.changed) {
        pending.changed = true;
        ++m_step;
    }
    if (!pending.releaseBefore) {
        // Single changes of the same step go into the replacement.
        ReleaseMappingC first = before;
        for (auto change = pending.changes.crbegin(); change != pending.changes.crend(); ++change) {
            if (change->before.isValid())
                first.addMapping(change->before);
            else
                first = withoutMapping(first, ProjectId::of(change->after));
        }
        pending.releaseBefore = first;
    }
    journalRelease(before, after);
    applyRelease(after);
}

void MappingDocumentPrivate::journalRelease(const ReleaseMappingC &before,
                                            const ReleaseMappingC &after)
{
    for (const MappingDifference &difference : releaseDifferences(before, after))
        m_journal.append(difference, m_step);
    if (before.getTargetDate() == after.getTargetDate())
        return;
    PJsonValue json = record("targetDate");
    json[QStringLiteral("before")] = PJsonValue(before.getTargetDate());
    json[QStringLiteral("after")] = PJsonValue(after.getTargetDate());
    m_journal.append(json);
}

void MappingDocumentPrivate::applyRelease(const ReleaseMappingC &given)
{
    adoptRelease(given);
    Q_EMIT q->releaseReplaced();
}

void MappingDocumentPrivate::finishStep()
{
    if (pending.depth > 0)
        return;
    m_turn.stop();
    if (!pending.changed) {
        pending = Pending();
        return;
    }
    if (marking) {
        finishMarking(std::exchange(pending, Pending()));
        return;
    }
    QList<ChangeNotice> notices;
    UndoStep step = takeStep(notices);
    if (step.lines < 0) { // marks of conflicts only
        finishMarking(std::exchange(pending, Pending()));
        return;
    }
    const Pending done = std::exchange(pending, Pending());
    if (!step.changes.isEmpty() || step.releaseBefore) {
        journalStep(step.text, Origin::Edit);
        history.push(step);
        tellStep(step);
    }
    tellEditor(done);
    for (const ChangeNotice &notice : std::as_const(notices))
        Q_EMIT q->noticeRaised(notice);
}

/// What the pending changes come to. A step with -1 lines does nothing but mark conflicts; one
/// without changes does nothing at all.
UndoStep MappingDocumentPrivate::takeStep(QList<ChangeNotice> &notices)
{
    UndoStep step;
    StepSummary summary;
    bool onlyMarks = !pending.releaseBefore && !pending.changes.isEmpty();
    const auto add = [&](const MappingDifference &difference) {
        onlyMarks = onlyMarks && difference.onlyMarksConflicts();
        if (!difference.isEmpty())
            summary.add(difference);
    };
    if (pending.releaseBefore) {
        step.releaseBefore = pending.releaseBefore;
        step.releaseAfter = release();
        for (const MappingDifference &difference :
             releaseDifferences(*step.releaseBefore, *step.releaseAfter))
            add(difference);
    }
    for (const MappingChangePair &change : std::as_const(pending.changes)) {
        if (pending.releaseBefore)
            break;
        const MappingDifference difference =
            MappingDifference::between(change.before, change.after);
        notices += stepNotices(difference, change.after);
        add(difference);
        if (!difference.isEmpty())
            step.changes.append(change);
    }
    step.lines = onlyMarks ? -1 : summary.lines();
    step.text = pending.text.isEmpty() ? summary.text() : pending.text;
    return step;
}

void MappingDocumentPrivate::finishMarking(const Pending &done)
{
    journalStep(MappingDocument::tr("Konflikte markiert"), Origin::Edit);
    history.markDirty();
    for (const MappingChangePair &change : done.changes) {
        history.markConflicts(change.after);
        Q_EMIT q->mappingChanged(ProjectId::of(change.after));
    }
    Q_EMIT q->countsChanged();
    tellModified();
    tellEditor(done);
}

/// In the order of the changes.
void MappingDocumentPrivate::tellEditor(const Pending &done)
{
    for (const MappingChangePair &change : done.changes) {
        const ProjectId project = ProjectId::of(change.after);
        if (done.behindEditor.contains(project))
            Q_EMIT q->reselectRequested(project);
    }
}

void MappingDocumentPrivate::journalStep(const QString &text, Origin origin)
{
    static const char *const Names[] = {"edit", "undo", "redo", "recover"};
    PJsonValue json = record("step");
    json[QStringLiteral("step")] = PJsonValue::fromInt(m_step);
    json[QStringLiteral("origin")] = PJsonValue(QString::fromLatin1(Names[int(origin)]));
    json[QStringLiteral("text")] = PJsonValue(text);
    m_journal.append(json);
    m_journal.flush();
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

void MappingDocumentPrivate::move(bool back)
{
    if (pending.depth > 0 || !isEditable())
        return;
    finishStep();
    if (back ? !history.canUndo() : !history.canRedo())
        return;
    const UndoStep step = back ? history.undoStep() : history.redoStep();
    ++m_step;
    if (step.releaseBefore) {
        const ReleaseMappingC to = back ? *step.releaseBefore : *step.releaseAfter;
        journalRelease(release(), to);
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
    journalStep(told.text, back ? Origin::Undo : Origin::Redo);
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
        if (from.isValid() && to.isValid() && from.getTabVersion() == to.getTabVersion()) {
            pending.changed = true; // the step has its number already
            store(to, from);
            invalidateNodes(to.getSourcePath());
            continue;
        }
        m_journal.append(MappingDifference::between(from, to), m_step);
        ReleaseMappingC changed =
            from.isValid() ? withoutMapping(release(), ProjectId::of(from)) : release();
        if (to.isValid())
            changed.addMapping(to);
        adoptRelease(changed);
        replaced = true;
    }
    pending = Pending();
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
    return isOpen && (!history.isClean() || pending.changed);
}

void MappingDocumentPrivate::tellModified()
{
    const bool modified = isModified();
    if (std::exchange(m_wasModified, modified) != modified)
        Q_EMIT q->modifiedChanged(modified);
}
