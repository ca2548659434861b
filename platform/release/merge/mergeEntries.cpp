#include "mergeEntries.h"

#include "threeWay.h"

#include <geomcore/records/MappingChangeType.h>

#include <algorithm>

namespace VelkRelease {

namespace {

PRJMAPPING::CheckState surer(PRJMAPPING::CheckState ours, PRJMAPPING::CheckState theirs)
{
    if (ours == theirs)
        return ours;
    const bool confirmed = ours == PRJMAPPING::Verified || theirs == PRJMAPPING::Verified;
    return confirmed ? PRJMAPPING::Verified : PRJMAPPING::ToCheck;
}

bool sayTheSame(const LineEntry &ours, const LineEntry &theirs, const MergeOptions &options)
{
    const int line = ours.line.getTargetLineId();
    const int otherLine = theirs.line.getTargetLineId();
    return line != -1 && otherLine != -1 && options.sameLines &&
           options.sameLines(theirs.target, line, otherLine);
}

} // namespace

std::optional<PrjMappingTargetLineC> mergeEntries(const PrjMappingTargetLineC *base,
                                                  const LineEntry &ours, const LineEntry &theirs,
                                                  const MergeOptions &options, bool &sameValues)
{
    const PrjMappingTargetLineC &o = ours.line;
    const PrjMappingTargetLineC &t = theirs.line;
    if (o.getTargetLineId() != t.getTargetLineId()) {
        if (!sayTheSame(ours, theirs, options))
            return std::nullopt;
        sameValues = true;
    }
    const bool hasBase = base && base->getTargetLineId() == o.getTargetLineId() &&
                         base->getTargetLineId() == t.getTargetLineId();
    const auto text =
        threeWay(base ? base->getExtended() : QString(), o.getExtended(), t.getExtended());
    if (!text)
        return std::nullopt;
    const auto state =
        hasBase ? threeWay(base->getState(), o.getState(), t.getState()) : std::nullopt;
    const bool conflict =
        threeWay(base && base->getConflict(), o.getConflict(), t.getConflict()).value_or(true);
    return PrjMappingTargetLineC(t.getTargetLineId(),
                                 state.value_or(surer(o.getState(), t.getState())), conflict,
                                 *text == t.getExtended() ? t.extendedText() : o.extendedText());
}

std::optional<LineEntry> mainEntry(const LineStanding &standing)
{
    const auto found =
        std::ranges::find_if(standing, [](const LineEntry &e) { return !e.target.isEmpty(); });
    if (found != standing.end())
        return *found;
    return standing.isEmpty() ? std::nullopt : std::optional(standing.first());
}

int changeType(const LineStanding &before, const LineStanding &after)
{
    const auto assigned = [](const LineStanding &standing) {
        return std::ranges::any_of(
            standing, [](const LineEntry &e) { return e.line.getTargetLineId() != -1; });
    };
    if (assigned(before) != assigned(after))
        return assigned(after) ? MappingChangeType::LineAssigned : MappingChangeType::LineRemoved;
    const auto bare = [](LineStanding standing) {
        for (LineEntry &entry : standing)
            entry.line.clearVarsetList();
        return standing;
    };
    return before != after && bare(before) == bare(after) ? MappingChangeType::ExtendedText
                                                          : MappingChangeType::LineChanged;
}

} // namespace VelkRelease
