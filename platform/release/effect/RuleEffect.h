#pragma once

#include <release/VelkReleaseGlobal.h>

#include <geomcore/records/PrjMappingC.h>

#include <QList>

#include <atomic>
#include <optional>

namespace VKTab {
class Content;
}

namespace VelkRelease {

/// What other conditions or variable mappings of one target would mean for the lines of a project.
struct RuleEffect
{
    int lines = 0;      ///< of the source table
    int taken = 0;      ///< for which the target's conditions hold, for some combination of ranges
    int settled = 0;    ///< that have no target line now and would be certain, in whatever target
    QList<int> misfits; ///< confirmed lines of the target that fit now and would not, ascending

    friend bool operator==(const RuleEffect &, const RuleEffect &) = default;
};

/// Works that out without changing anything: \a changed stands in the place of the target with that
/// index. A confirmed line fits as long as the conditions hold for it, and as long as its values
/// are equal to those of its target line; what never was the case cannot end. None if \a cancelled
/// became true, or if there is no such target. Any thread, as long as \a table gets no new layers.
[[nodiscard]] VELKRELEASE_EXPORT std::optional<RuleEffect>
ruleEffect(const PrjMappingC &mapping, int target, const PrjMappingTargetC &changed,
           const VKTab::Content &table, const std::atomic<bool> *cancelled = nullptr);

} // namespace VelkRelease
