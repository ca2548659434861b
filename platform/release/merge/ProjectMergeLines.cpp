#include "mergeEntries.h"
#include "ProjectMerge.h"

#include <geomcore/records/MappingChangeType.h>

#include <algorithm>

namespace VelkRelease {

void ProjectMerge::mergeLines()
{
    std::vector<LineChange> changes;
    collectChanges(Ours, changes);
    collectChanges(Theirs, changes);
    std::ranges::stable_sort(changes, {}, &LineChange::line);
    const LineChange *const end = changes.data() + changes.size();
    for (const LineChange *at = changes.data(); at != end;) {
        LineGroup group{at, at};
        while (group.end != end && group.end->line == at->line) {
            (group.end->byOurs ? group.byOurs : group.byTheirs) = true;
            ++group.end;
        }
        mergeLine(group);
        at = group.end;
    }
}

void ProjectMerge::collectChanges(Side side, std::vector<LineChange> &changes) const
{
    for (int slot = 0; slot < int(m_slots.size()); ++slot) {
        for (LineDifference &difference :
             LineTable::differences(lines(slot, Base), lines(slot, side)))
            changes.push_back({difference.line, slot, side == Ours, difference.inAfter,
                               std::move(difference.after)});
    }
}

void ProjectMerge::mergeLine(const LineGroup &group)
{
    const int line = group.begin->line;
    const bool clashes = group.byOurs && group.byTheirs && !settle(group);
    if (group.byTheirs) {
        const int type = changeType(standing(line, Base), standing(line, Theirs));
        tellOnline(lineChange(line, Theirs, clashes ? int(MappingChangeType::LineChanged) : type));
    }
    if (clashes)
        clashOf(group);
    else if (!group.byTheirs)
        takeOurs(group);
}

void ProjectMerge::takeOurs(const LineGroup &group)
{
    for (const LineChange *change = group.begin; change != group.end; ++change) {
        LineTable &table = m_lines[size_t(change->slot)];
        if (change->stays)
            table.set(change->line, change->after);
        else
            table.remove(change->line);
    }
}

bool ProjectMerge::settle(const LineGroup &group)
{
    const int line = group.begin->line;
    MergeSettled settled;
    settled.sourcePath = m_key.second;
    settled.line = line;
    settled.ours = standing(line, Ours);
    settled.theirs = standing(line, Theirs);
    if (settled.ours != settled.theirs) {
        bool sameValues = false;
        if (!settleEntries(line, sameValues))
            return false;
        settled.reason = sameValues ? MergeSettled::SameValues : MergeSettled::Combined;
    }
    m_result->settled.append(settled);
    return true;
}

bool ProjectMerge::settleEntries(int line, bool &sameValues)
{
    std::vector<std::pair<int, PrjMappingTargetLineC>> merged;
    for (int slot = 0; slot < int(m_slots.size()); ++slot) {
        const auto ours = lines(slot, Ours).find(line);
        const auto theirs = lines(slot, Theirs).find(line);
        if (bool(ours) != bool(theirs))
            return false;
        if (!ours)
            continue;
        const auto found = lines(slot, Base).find(line);
        const PrjMappingTargetLineC base = found ? found->line() : PrjMappingTargetLineC();
        const QString path = pathOf(slot);
        const auto entry = mergeEntries(found ? &base : nullptr, {path, ours->line()},
                                        {path, theirs->line()}, m_options, sameValues);
        if (!entry)
            return false;
        merged.emplace_back(slot, *entry);
    }
    for (const auto &[slot, entry] : merged)
        m_lines[size_t(slot)].set(line, entry);
    return true;
}

void ProjectMerge::clashOf(const LineGroup &group)
{
    const int line = group.begin->line;
    m_clashing.push_back(line);
    MergeClash clash;
    clash.sourcePath = m_key.second;
    clash.sourceVersion = m_merged.getSourceVersion();
    clash.line = line;
    clash.base = standing(line, Base);
    clash.ours = standing(line, Ours);
    clash.theirs = standing(line, Theirs);
    m_result->clashes.append(clash);
    tellLocal(lineChange(line, Ours, MappingChangeType::LineChanged));
}

MappingChange ProjectMerge::lineChange(int line, Side side, int type) const
{
    const Side other = side == Ours ? Theirs : Ours;
    MappingChange change;
    change.type = type;
    change.lineId = line;
    const auto targetOf = [&](Side of, PrjMappingTargetLineC &entry) {
        const PrjMappingTargetC *first = nullptr;
        for (int slot = 0; slot < int(m_slots.size()); ++slot) {
            const PrjMappingTargetC *found = target(slot, of);
            if (!found || !found->containsLine(line))
                continue;
            first = !first || first->isNotFoundTarget() ? found : first;
        }
        entry = first ? first->getMappedLine(line) : PrjMappingTargetLineC();
        return first ? *first : PrjMappingTargetC();
    };
    PrjMappingTargetLineC before;
    targetOf(Base, before);
    change.target = targetOf(side, change.targetLine);
    change.otherTargetLine = change.targetLine;
    change.text3 = before.getExtended();
    change.text4 = change.targetLine.getExtended();
    if (type == MappingChangeType::LineChanged) {
        PrjMappingTargetLineC unused;
        change.otherTarget = targetOf(other, unused);
        change.otherMapping = mapping(other);
    }
    return change;
}

MappingChange ProjectMerge::headChange(int slot, Side side, int type) const
{
    MappingChange change;
    change.type = type;
    change.target = *target(slot, side);
    const PrjMappingTargetC *before = target(slot, Base);
    if (type == MappingChangeType::TargetVersions && before) {
        change.oldProjectVersion = before->getTargetVersion();
        change.oldTableVersion = before->getTabVersion();
    }
    if (type == MappingChangeType::TargetVersions) {
        change.newProjectVersion = change.target.getTargetVersion();
        change.newTableVersion = change.target.getTabVersion();
    }
    return change;
}

void ProjectMerge::tellLocal(MappingChange change)
{
    tell(m_result->local, m_lastLocal, change);
}

void ProjectMerge::tellOnline(MappingChange change)
{
    tell(m_result->online, m_lastOnline, change);
}

void ProjectMerge::tell(MappingChangeMap &map,
                        std::optional<MappingChangeMap::const_iterator> &last,
                        MappingChange &change) const
{
    change.text1 = m_options.author;
    change.text2 = m_options.time;
    // What was inserted last stands first under its key; told where, the map need not look for it.
    last = last ? map.insert(*last, m_key, change) : map.insert(m_key, change);
}

void ProjectMerge::addClash(MergeClash::Kind kind, const QString &target, bool removedByOurs)
{
    MergeClash clash;
    clash.kind = kind;
    clash.sourcePath = m_key.second;
    clash.sourceVersion = m_merged.getSourceVersion();
    clash.target = target;
    clash.removedByOurs = removedByOurs;
    m_result->clashes.append(clash);
}

} // namespace VelkRelease
