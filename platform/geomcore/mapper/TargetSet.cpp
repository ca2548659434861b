#include "TargetSet.h"

#include <geomcore/expression/VarsetConditionC.h>

#include <algorithm>

namespace Mapper {

namespace {

QStringList conditionVariables(const PrjMappingC &mapping)
{
    QStringList names;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const VarsetConditionI *condition : mapping.targetAt(i).getConditions()) {
            if (const auto *known = dynamic_cast<const VarsetConditionC *>(condition))
                names += known->usedVariables();
        }
    }
    return names;
}

} // namespace

TargetSet::TargetSet(const PrjMappingC &mapping, const SourceTable &source, Open open,
                     bool shownOnly)
    : m_source(source)
    , m_open(std::move(open))
    , m_shownOnly(shownOnly)
    , m_sourcePath(mapping.getSourcePath())
    , m_ranges(source.rangesAmong(conditionVariables(mapping)))
    , m_targets(size_t(mapping.countTargets()))
{
}

const BoundTarget *TargetSet::at(int index, const PrjMappingC &mapping)
{
    if (index < 0 || index >= count())
        return nullptr;
    Slot &slot = m_targets[size_t(index)];
    if (!slot.bound) {
        slot.bound = true;
        const PrjMappingTargetC &target = mapping.targetAt(index);
        if (!target.isNotFoundTarget()) {
            slot.target = std::make_unique<BoundTarget>(
                index, target, m_open(target.getTargetPath()), m_source, m_ranges, m_shownOnly);
        }
    }
    return slot.target.get();
}

NameRank TargetSet::rank(const BoundTarget &target) const
{
    const NameRank rank = nameRank(m_sourcePath, target.path());
    return target.hasVerified() ? std::max(rank, NameRank::Name) : rank;
}

} // namespace Mapper
