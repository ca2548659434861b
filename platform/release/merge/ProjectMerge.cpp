#include "ProjectMerge.h"

#include "mergeEntries.h"
#include "threeWay.h"

#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/records/MappingChangeType.h>
#include <geomcore/records/sameTargetHead.h>

#include <algorithm>
#include <utility>

namespace VelkRelease {

namespace {

constexpr PRJMAPPING::MappingState KeptState =
    PRJMAPPING::StateUsable | PRJMAPPING::StateReserved | PRJMAPPING::StateTableError;

PRJMAPPING::MappingState mergedState(PRJMAPPING::MappingState base, PRJMAPPING::MappingState ours,
                                     PRJMAPPING::MappingState theirs)
{
    return ((ours & theirs) | ((ours ^ theirs) & ~base)) & KeptState;
}

MatchKeys keysOf(const PrjMappingC &mapping)
{
    MatchKeys keys;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        QString exact = target.getTargetPath();
        for (const VarsetConditionI *condition : target.getConditions())
            exact += QChar(u'\0') + condition->getCondition();
        keys.exact << exact;
        keys.loose << target.getTargetPath();
    }
    return keys;
}

using Versions = std::pair<QString, QString>;

Versions versionsOf(const PrjMappingC &mapping)
{
    return {mapping.getSourceVersion(), mapping.getTabVersion()};
}

Versions versionsOf(const PrjMappingTargetC &target)
{
    return {target.getTargetVersion(), target.getTabVersion()};
}

const PrjMappingTargetC &noTarget()
{
    static const PrjMappingTargetC none;
    return none;
}

} // namespace

ProjectMerge::ProjectMerge(const PrjMappingC &base, const PrjMappingC &ours,
                           const PrjMappingC &theirs, const MergeOptions &options)
    : m_sides{&base, &ours, &theirs}
    , m_options(options)
    , m_merged(theirs)
{
}

PrjMappingC ProjectMerge::run(const QString &sourceDate, MergeResult &result)
{
    m_result = &result;
    m_key = {sourceDate, mapping(Theirs).getSourcePath()};
    m_slots = matchThree(keysOf(mapping(Base)), keysOf(mapping(Ours)), keysOf(mapping(Theirs)));
    mergeVersions();
    m_targets.resize(m_slots.size());
    m_lines.resize(m_slots.size());
    for (int slot = 0; slot < int(m_slots.size()); ++slot) {
        m_lines[size_t(slot)] = lines(slot, Theirs);
        mergeHead(slot);
    }
    mergeLines();
    PrjMappingC merged = arranged();
    markClashes(merged);
    return merged;
}

int ProjectMerge::place(const ThreePlaces &slot, Side side)
{
    return side == Base ? slot.base : side == Ours ? slot.ours : slot.theirs;
}

const PrjMappingTargetC *ProjectMerge::target(int slot, Side side) const
{
    const int at = place(m_slots[size_t(slot)], side);
    return at == -1 ? nullptr : &mapping(side).targetAt(at);
}

const LineTable &ProjectMerge::lines(int slot, Side side) const
{
    const PrjMappingTargetC *found = target(slot, side);
    return found ? found->lines() : noTarget().lines();
}

QString ProjectMerge::pathOf(int slot) const
{
    for (const Side side : {Theirs, Ours, Base}) {
        if (const PrjMappingTargetC *found = target(slot, side))
            return found->getTargetPath();
    }
    return {};
}

LineStanding ProjectMerge::standing(int line, Side side) const
{
    LineStanding result;
    for (int slot = 0; slot < int(m_slots.size()); ++slot) {
        const LineTable &table = lines(slot, side);
        if (const auto found = table.find(line))
            result.append({pathOf(slot), found->line()});
    }
    return result;
}

void ProjectMerge::mergeVersions()
{
    const Versions base = versionsOf(mapping(Base));
    const Versions theirs = versionsOf(mapping(Theirs));
    const auto merged = threeWay(base, versionsOf(mapping(Ours)), theirs);
    if (theirs != base && mapping(Base).isValid()) {
        MappingChange change;
        change.type = MappingChangeType::ProjectVersions;
        change.oldProjectVersion = base.first;
        change.newProjectVersion = theirs.first;
        change.oldTableVersion = base.second;
        change.newTableVersion = theirs.second;
        tellOnline(change);
    }
    if (!merged) {
        MappingChange change;
        change.type = MappingChangeType::ProjectVersions;
        change.newProjectVersion = mapping(Ours).getSourceVersion();
        change.newTableVersion = mapping(Ours).getTabVersion();
        tellLocal(change);
        addClash(MergeClash::ProjectVersion);
    }
    m_merged.setSourceVersion(merged.value_or(theirs).first);
    m_merged.setTabVersion(merged.value_or(theirs).second);
    const PRJMAPPING::MappingState before = mapping(Base).getMappingState();
    if (mapping(Base).isValid() &&
        ((before ^ mapping(Theirs).getMappingState()) & KeptState) != PRJMAPPING::MappingState()) {
        MappingChange change;
        change.type = MappingChangeType::StateFlags;
        tellOnline(change);
    }
    m_merged.setMappingState(
        mergedState(before, mapping(Ours).getMappingState(), mapping(Theirs).getMappingState()));
}

void ProjectMerge::mergeHead(int slot)
{
    const PrjMappingTargetC *base = target(slot, Base);
    const PrjMappingTargetC *ours = target(slot, Ours);
    const PrjMappingTargetC *theirs = target(slot, Theirs);
    const bool isReal = !pathOf(slot).isEmpty(); // the other one comes and goes with its lines
    if (isReal && !base && theirs)
        tellOnline(headChange(slot, Theirs, MappingChangeType::TargetAdded));
    if (isReal && base && !theirs)
        tellOnline(headChange(slot, Base, MappingChangeType::TargetRemoved));
    PrjMappingTargetC &merged = m_targets[size_t(slot)];
    if (const PrjMappingTargetC *present = theirs ? theirs : ours ? ours : base)
        merged = *present;
    if (ours && theirs)
        mergeRules(slot, base, *ours, *theirs);
}

void ProjectMerge::mergeRules(int slot, const PrjMappingTargetC *former,
                              const PrjMappingTargetC &ours, const PrjMappingTargetC &theirs)
{
    const PrjMappingTargetC &base = former ? *former : noTarget();
    PrjMappingTargetC &merged = m_targets[size_t(slot)];
    const bool isNew = !former;
    const auto merge = [&](auto same, int type, MergeClash::Kind kind, auto take) {
        if (!isNew && !same(base, theirs))
            tellOnline(headChange(slot, Theirs, type));
        if (same(ours, theirs) || same(base, ours))
            return;
        if (same(base, theirs)) {
            take();
            return;
        }
        tellLocal(headChange(slot, Ours, type));
        addClash(kind, pathOf(slot));
    };
    merge(sameConditions, MappingChangeType::Conditions, MergeClash::Conditions,
          [&] { merged.takeConditions(ours); });
    merge(sameModifiers, MappingChangeType::VariableMappings, MergeClash::VariableMapping,
          [&] { merged.takeModifiers(ours); });
    merge([](const auto &a, const auto &b) { return versionsOf(a) == versionsOf(b); },
          MappingChangeType::TargetVersions, MergeClash::TargetVersion,
          [&] {
              merged.setTargetVersion(ours.getTargetVersion());
              merged.setTabVersion(ours.getTabVersion());
          });
    merged.setProposedRules(
        threeWay(base.hasProposedRules(), ours.hasProposedRules(), theirs.hasProposedRules())
            .value_or(false));
    merged.setValid(threeWay(base.isValid(), ours.isValid(), theirs.isValid()).value_or(true));
}

bool ProjectMerge::isDropped(int slot) const
{
    const ThreePlaces &at = m_slots[size_t(slot)];
    if (!m_lines[size_t(slot)].isEmpty())
        return false;
    if (pathOf(slot).isEmpty())
        return true;
    if (at.base == -1 || (at.ours != -1 && at.theirs != -1))
        return false;
    const PrjMappingTargetC *left = at.ours != -1 ? target(slot, Ours) : target(slot, Theirs);
    return !left || sameTargetHead(*left, *target(slot, Base));
}

/// One side removed the target, and it stays.
void ProjectMerge::tellKept(int slot)
{
    const bool removedByOurs = m_slots[size_t(slot)].ours == -1;
    const PrjMappingTargetC &left = *target(slot, removedByOurs ? Theirs : Ours);
    const auto isDecided = [&](const LineTable::Iterator &entry) {
        return !std::ranges::binary_search(m_clashing, entry.sourceLine());
    };
    const LineTable &lines = m_lines[size_t(slot)];
    // with clashing lines alone it is their question
    if (std::any_of(lines.begin(), lines.end(), isDecided) ||
        !sameTargetHead(left, *target(slot, Base)))
        addClash(MergeClash::TargetRemoved, pathOf(slot), removedByOurs);
    if (removedByOurs)
        tellLocal(headChange(slot, Base, MappingChangeType::TargetRemoved));
}

bool ProjectMerge::movedTargets(const OrderInput &input) const
{
    const auto isLeft = [&](int slot) {
        const ThreePlaces &at = m_slots[size_t(slot)];
        return at.base == -1 || at.theirs == -1;
    };
    std::vector<int> base = input.base;
    std::vector<int> theirs = input.theirs;
    std::erase_if(base, isLeft);
    std::erase_if(theirs, isLeft);
    return base != theirs;
}

PrjMappingC ProjectMerge::arranged()
{
    OrderInput input;
    const auto order = [&](Side side) {
        std::vector<int> slots(size_t(mapping(side).countTargets()));
        for (int slot = 0; slot < int(m_slots.size()); ++slot) {
            if (const int at = place(m_slots[size_t(slot)], side); at != -1)
                slots[size_t(at)] = slot;
        }
        return slots;
    };
    input.base = order(Base);
    input.ours = order(Ours);
    input.theirs = order(Theirs);
    const auto stays = [&](int slot) {
        return !isDropped(slot);
    };
    MergedOrder merged = mergeOrder(input, stays, [&](int slot) { return pathOf(slot); });
    if (movedTargets(input)) {
        MappingChange change;
        change.type = MappingChangeType::TargetOrder;
        tellOnline(change);
    }
    if (merged.clashes) {
        MappingChange change;
        change.type = MappingChangeType::TargetOrder;
        tellLocal(change);
        addClash(MergeClash::TargetOrder);
    }
    std::stable_partition(merged.order.begin(), merged.order.end(),
                          [&](int slot) { return !pathOf(slot).isEmpty(); });
    QList<PrjMappingTargetC> targets;
    targets.reserve(qsizetype(merged.order.size()));
    for (const int slot : merged.order) {
        const ThreePlaces &at = m_slots[size_t(slot)];
        if (at.base != -1 && (at.ours == -1 || at.theirs == -1) && !pathOf(slot).isEmpty())
            tellKept(slot);
        targets.append(m_targets[size_t(slot)]);
        targets.last().setLines(m_lines[size_t(slot)]);
    }
    m_merged.setTargets(targets);
    return m_merged;
}

void ProjectMerge::markClashes(PrjMappingC &mapping) const
{
    for (const int line : m_clashing) {
        int at = 0;
        while (at < mapping.countTargets() && !mapping.targetAt(at).containsLine(line))
            ++at;
        if (at == mapping.countTargets())
            at = mapping.ensureNotFoundTarget();
        mapping.changeTarget(at, [&](PrjMappingTargetC &target) {
            if (!target.containsLine(line))
                target.addLineId(line, -1, PRJMAPPING::ToCheck, QString());
            target.setLineConflicted(line, true);
        });
    }
    if (!m_clashing.empty())
        mapping.updateMappingState();
}

} // namespace VelkRelease
