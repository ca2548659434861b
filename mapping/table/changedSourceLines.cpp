#include "changedSourceLines.h"

#include <algorithm>

namespace {

bool sameTarget(const PrjMappingTargetC &a, const PrjMappingTargetC &b)
{
    return a.getTargetPath() == b.getTargetPath() && a.getConditions() == b.getConditions();
}

} // namespace

std::optional<std::vector<int>> changedSourceLines(const PrjMappingC &before,
                                                   const PrjMappingC &after)
{
    const int common = std::min(before.countTargets(), after.countTargets());
    std::vector<int> changed;
    const auto add = [&](const LineTable &first, const LineTable &second) {
        const std::vector<int> lines = LineTable::changedLines(first, second);
        changed.insert(changed.end(), lines.begin(), lines.end());
    };
    for (int i = 0; i < common; ++i) {
        if (!sameTarget(before.targetAt(i), after.targetAt(i)))
            return std::nullopt;
        add(before.targetAt(i).lines(), after.targetAt(i).lines());
    }
    for (int i = common; i < before.countTargets(); ++i)
        add(before.targetAt(i).lines(), LineTable());
    for (int i = common; i < after.countTargets(); ++i)
        add(LineTable(), after.targetAt(i).lines());
    std::sort(changed.begin(), changed.end());
    changed.erase(std::unique(changed.begin(), changed.end()), changed.end());
    return changed;
}
