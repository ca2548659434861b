#include "MappingDocumentPrivate.h"

#include <mapping/data/StateTreeI.h>
#include <workbench/session/change/ReleaseChanges.h>
#include <workbench/session/history/StepPlaces.h>

#include <QScopeGuard>
#include <QThreadPool>

#include <algorithm>
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

/// Puts the mapping into the release and the numbers.
void MappingDocumentPrivate::store(const PrjMappingC &mapping, const PrjMappingC &before)
{
    handler->updateMapping(mapping);
    if (before.isValid())
        counts.add(before.lineCounts(), -1);
    counts.add(mapping.lineCounts());
    order.note(release().findPosition(mapping.getSourcePath(), mapping.getSourceVersion(),
                                      mapping.getTabVersion()),
               mapping);
}

void MappingDocumentPrivate::replaceRelease(const ReleaseMappingC &given)
{
    const ReleaseMappingC before = release();
    ReleaseMappingC after = given;
    after.setSourceDate(before.getSourceDate());
    noteAndApply(before, after);
}

/// All that takes time comes before anybody sees the new release: the comparison, on another
/// thread, and the journal, in turns. Nothing else changes meanwhile.
void MappingDocumentPrivate::noteAndApply(const ReleaseMappingC &before,
                                          const ReleaseMappingC &after)
{
    const ReleaseComparison compared = compare(before, after, steps.nextNumber());
    PreparedRelease prepared = prepare(after);
    writeJournal(compared);
    steps.noteRelease(before, compared);
    show(std::move(prepared));
}

/// In a turn of its own, after what was worked out for it.
void MappingDocumentPrivate::show(PreparedRelease &&prepared)
{
    // Behind all others that hold it: the end of a large tree takes long.
    const auto end = qScopeGuard([former = std::pair(handler, std::move(order))]() mutable {
        QThreadPool::globalInstance()->start([ended = std::move(former)] {});
    });
    adoptRelease(std::move(prepared));
    Q_EMIT q->releaseReplaced();
}

void MappingDocumentPrivate::finishStep()
{
    if (steps.isNested())
        return;
    if (!m_refused)
        m_turn.stop();
    const Finished done = steps.finish(release());
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
    steps.journalStep(MappingDocument::tr("Konflikte markiert"), Origin::Mark);
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
    Q_EMIT q->stepDone(step.text, step.lines.value_or(0));
}

void MappingDocumentPrivate::move(Origin direction)
{
    if (steps.isNested() || !isEditable())
        return;
    finishStep();
    const UndoHistory &history = steps.history();
    const int index = direction == Origin::Undo ? history.nextUndo() : history.nextRedo();
    if (index < 0)
        return;
    const StepPlan plan = this->plan({index});
    if (plan.fits && plan.steps == QList<int>{index} && moveStep(index))
        return;
    Q_EMIT q->problemOccurred(
        MappingDocument::tr("„%1“ passt nicht mehr zu dem, was danach geändert wurde. Die Liste "
                            "der Schritte sagt, was entgegensteht.")
            .arg(history.at(index).text));
}

bool MappingDocumentPrivate::moveStep(int index)
{
    UndoHistory &history = steps.history();
    const UndoStep step = history.at(index);
    const bool back = step.state == UndoStep::State::Applied;
    const StepMove move(release(), step, back);
    if (!move.fits())
        return false;
    steps.beginMove();
    const QList<int> firstLines = applyMove(move);
    if (back)
        history.noteUndone(index);
    else
        history.noteRedone(index);
    passOvertaken();
    UndoStep told = step;
    told.changes = move.changes();
    told.text =
        (back ? MappingDocument::tr("Rückgängig: %1") : MappingDocument::tr("Wiederholt: %1"))
            .arg(step.text);
    told.lines = step.lines.value_or(0);
    steps.journalStep(told.text, back ? Origin::Undo : Origin::Redo, step.key);
    tellStep(told);
    for (qsizetype i = 0; i < told.changes.size(); ++i) {
        const MappingChangePair &change = told.changes[i];
        Q_EMIT q->reselectRequested(
            ProjectId::of(change.after.isValid() ? change.after : change.before),
            firstLines.value(i, -1));
    }
    return true;
}

/// Writes the older or newer records back. A record that came or went, or whose table version
/// changed, cannot be replaced in place: then the release is another one. Gives the first line of
/// each change.
QList<int> MappingDocumentPrivate::applyMove(const StepMove &move)
{
    if (move.changesRelease()) {
        const ReleaseComparison compared = compare(release(), move.result(), steps.number());
        PreparedRelease prepared = prepare(move.result());
        writeJournal(compared);
        show(std::move(prepared));
        return {};
    }
    QList<int> firstLines;
    firstLines.reserve(move.changes().size());
    for (const MappingChangePair &change : move.changes()) {
        const MappingDifference difference =
            MappingDifference::between(change.before, change.after);
        steps.journal(difference);
        firstLines.append(difference.firstLine());
        store(change.after, change.before);
    }
    invalidateStates();
    return firstLines;
}

/// Undo leads to no step of a former session whose work was replaced by other means since.
void MappingDocumentPrivate::passOvertaken()
{
    UndoHistory &history = steps.history();
    for (int next = history.nextUndo(); next >= 0; next = history.nextUndo()) {
        const UndoStep &step = history.at(next);
        if (step.rows.isEmpty() || StepMove(release(), step, true).fits())
            return;
        history.noteOvertaken(next);
    }
}

StepPlan MappingDocumentPrivate::plan(const QList<int> &wanted) const
{
    StepPlan plan;
    ReleaseMappingC standing = release();
    plan.fits = std::ranges::all_of(wanted, [&](int index) {
        return plan.steps.contains(index) || planStep(index, standing, plan);
    });
    return plan;
}

/// What stands in the way comes first, the latest before the others.
bool MappingDocumentPrivate::planStep(int index, ReleaseMappingC &standing, StepPlan &plan) const
{
    const UndoHistory &history = steps.history();
    const UndoStep &step = history.at(index);
    const bool back = step.state == UndoStep::State::Applied;
    const QList<int> others = back ? history.appliedAfter(index) : history.undoneBefore(index);
    std::optional<StepPlaces> places;
    if (back && !others.isEmpty())
        places.emplace(step.allChanges());
    for (;;) {
        const StepMove move(standing, step, back);
        const auto isInTheWay = [&](int other) {
            if (plan.steps.contains(other))
                return false;
            const StepChanges changes = history.at(other).allChanges();
            return (places && places->isTouchedBy(changes)) || move.isBlockedBy(changes);
        };
        const auto other = std::find_if(others.crbegin(), others.crend(), isInTheWay);
        if (other == others.crend() && move.fits()) {
            standing = move.result();
            plan.steps.append(index);
            return true;
        }
        if (other == others.crend()) {
            for (int later = index + 1; later < history.count() && !back; ++later) {
                if (history.at(later).state == UndoStep::State::Applied && isInTheWay(later))
                    plan.inTheWay.append(later);
            }
            return false;
        }
        if (!planStep(*other, standing, plan))
            return false;
    }
}

void MappingDocumentPrivate::invalidateStates() const
{
    if (auto *const tree = dynamic_cast<StateTreeI *>(handler->getRootStructureNode().get()))
        tree->invalidateTree();
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
