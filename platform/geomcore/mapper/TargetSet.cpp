#include "TargetSet.h"

#include <geomcore/binding/VarsetConditionI.h>

#include <algorithm>

namespace Mapper {

namespace {

QStringList conditionVariables(const PrjMappingC &mapping)
{
    QStringList names;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const VarsetConditionI *condition : mapping.targetAt(i).getConditions())
            names += condition->usedVariables();
    }
    return names;
}

} // namespace

TargetSet::TargetSet(const PrjMappingC &mapping, const QString &sourcePath,
                     const SourceTable &source, Open open, bool shownOnly)
    : m_source(source)
    , m_open(std::move(open))
    , m_shownOnly(shownOnly)
    , m_sourcePath(sourcePath)
    , m_ranges(source.rangesAmong(conditionVariables(mapping)))
    , m_targets(size_t(mapping.countTargets()))
{
}

const BoundTarget *TargetSet::at(int index, const PrjMappingC &mapping)
{
    if (index < 0 || index >= count())
        return nullptr;
    Slot &slot = m_targets[size_t(index)];
    if (!slot.bound)
        bind(slot, index, mapping.targetAt(index));
    return slot.target.get();
}

void TargetSet::bind(Slot &slot, int index, const PrjMappingTargetC &target)
{
    slot.bound = true;
    if (target.isNotFoundTarget())
        return;
    slot.target = std::make_unique<BoundTarget>(index, target, m_open(target.getTargetPath()),
                                                m_source, m_ranges, m_shownOnly);
    slot.rank = nameRank(m_sourcePath, slot.target->path());
    if (slot.target->hasVerified())
        slot.rank = std::max(slot.rank, NameRank::Name);
}

} // namespace Mapper
