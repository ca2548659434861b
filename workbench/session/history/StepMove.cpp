#include "StepMove.h"

#include <geomcore/records/sameTargetHead.h>
#include <workbench/session/change/ChangeOnTop.h>
#include <workbench/session/change/ReleaseChanges.h>

#include <algorithm>

namespace {

/// Cheap for releases that share their pages.
bool sameRecords(const ReleaseMappingC &a, const ReleaseMappingC &b)
{
    if (a.countMappings() != b.countMappings() || a.getTargetDate() != b.getTargetDate() ||
        a.getReplacements() != b.getReplacements())
        return false;
    for (int i = 0; i < a.countMappings(); ++i) {
        if (!a.sharesMapping(b, i) && !sameMapping(a.mappingAt(i), b.mappingAt(i)))
            return false;
    }
    return true;
}

PrjMappingC findIn(const ReleaseMappingC &release, const PrjMappingC &like)
{
    return release.findMapping(like.getSourcePath(), like.getSourceVersion(), like.getTabVersion());
}

bool touchesTargets(const MappingDifference &change)
{
    return !change.keepsTargets() || change.validBefore != change.validAfter ||
           change.project.tabVersion != change.tabVersionAfter ||
           std::ranges::any_of(change.targets, &MappingDifference::TargetPair::headDiffers);
}

} // namespace

StepMove::StepMove(const ReleaseMappingC &now, const UndoStep &step, bool back)
    : m_result(now)
{
    if (isQuick(step, back))
        return;
    const StepChanges changes = step.allChanges();
    apply(back ? changes.reversed() : changes);
}

/// Nothing happened since to what the step changed: its own states count.
bool StepMove::isQuick(const UndoStep &step, bool back)
{
    if (step.releaseBefore) {
        const ReleaseMappingC &from = back ? *step.releaseAfter : *step.releaseBefore;
        const ReleaseMappingC &to = back ? *step.releaseBefore : *step.releaseAfter;
        m_changesRelease = sameRecords(m_result, from);
        if (m_changesRelease)
            m_result = to;
        return m_changesRelease;
    }
    for (const MappingChangePair &change : step.changes) {
        const PrjMappingC &from = back ? change.after : change.before;
        const PrjMappingC &to = back ? change.before : change.after;
        if (!from.isValid() || !to.isValid() || from.getTabVersion() != to.getTabVersion() ||
            !sameMapping(findIn(m_result, from), from))
            return false;
    }
    for (const MappingChangePair &change : step.changes) {
        const PrjMappingC &to = back ? change.before : change.after;
        m_changes.append({findIn(m_result, to), to});
        m_result.addMapping(to);
    }
    return !step.changes.isEmpty();
}

void StepMove::apply(const StepChanges &changes)
{
    for (const MappingDifference &change : changes.mappings)
        apply(change);
    if (changes.targetDate) {
        m_dateBlocks |= m_result.getTargetDate() != changes.targetDate->before;
        m_result.setTargetDate(changes.targetDate->after);
        m_changesRelease = true;
    }
    if (changes.replacements) {
        m_replacementsBlock |= m_result.getReplacements() != changes.replacements->before;
        m_result.setReplacements(changes.replacements->after);
        m_changesRelease = true;
    }
}

void StepMove::apply(const MappingDifference &change)
{
    const ProjectId &id = change.project;
    PrjMappingC now = m_result.findMapping(id.path, id.version, id.tabVersion);
    if (now.getTabVersion() != id.tabVersion)
        now = PrjMappingC();
    const ChangeOnTop done = ChangeOnTop::apply(now, change);
    if (done.targetsBlock)
        m_blocked.insert({id.path, -1});
    for (const int line : done.blockedLines)
        m_blocked.insert({id.path, line});
    if (!done.fits())
        return;
    noteChange(now, done.result);
    const bool isReplaced = now.isValid() && done.result.isValid() &&
                            now.getTabVersion() == done.result.getTabVersion();
    m_changesRelease |= !isReplaced;
    if (now.isValid() && !isReplaced)
        m_result = withoutMapping(m_result, id);
    if (done.result.isValid())
        m_result.addMapping(done.result);
}

void StepMove::noteChange(const PrjMappingC &before, const PrjMappingC &after)
{
    // A former session may have noted several changes of a project.
    for (MappingChangePair &known : m_changes) {
        if (before.isValid() && ProjectId::of(known.after) == ProjectId::of(before)) {
            known.after = after;
            return;
        }
    }
    m_changes.append({before, after});
}

bool StepMove::isBlockedBy(const StepChanges &changes) const
{
    if ((m_dateBlocks && changes.targetDate) || (m_replacementsBlock && changes.replacements))
        return true;
    return std::ranges::any_of(changes.mappings, [this](const MappingDifference &change) {
        const QString &path = change.project.path;
        if (touchesTargets(change) && m_blocked.contains({path, -1}))
            return true;
        return std::ranges::any_of(change.targets, [&](const auto &target) {
            return std::ranges::any_of(target.lines, [&](const LineDifference &line) {
                return m_blocked.contains({path, line.line});
            });
        });
    });
}
