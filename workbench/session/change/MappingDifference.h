#pragma once

#include "TargetHead.h"
#include <geomcore/records/LineTable.h>

#include <workbench/session/common/SessionTypes.h>

#include <optional>
#include <vector>

/// What lies between two states of one project's mapping: enough to make either of the other, in
/// proportion to what changed. One of the two states may be a mapping that is not valid.
class MappingDifference
{
public:
    /// A target before and after, told by its place in each list.
    struct TargetPair
    {
        int before = -1; ///< -1: the target is new
        int after = -1;  ///< -1: the target is gone
        QString path;    ///< of the target, unless headDiffers
        bool headDiffers = false;
        TargetHead headBefore; ///< if headDiffers and there was one, as the next
        TargetHead headAfter;
        /// Variables that are ignored by modifiers which were stored anew just as they were.
        QStringList stillIgnored;
        std::vector<LineDifference> lines;
    };

    MappingDifference() = default;
    /// Of targets with equal paths the first belongs to the first, and so on.
    [[nodiscard]] static MappingDifference between(const PrjMappingC &before,
                                                   const PrjMappingC &after);

    [[nodiscard]] bool isEmpty() const;
    /// Whether both have the same targets in the same order.
    [[nodiscard]] bool keepsTargets() const;
    /// Nothing but lines that got a conflict mark.
    [[nodiscard]] bool onlyMarksConflicts() const;
    /// Of the lines that differ; -1 if none does.
    [[nodiscard]] int firstLine() const;

    /// Makes the later state of the earlier one. Nothing if \a before is not what the difference
    /// was taken from, as far as it touches it.
    [[nodiscard]] std::optional<PrjMappingC> applied(const PrjMappingC &before) const;

    /// What makes the earlier state of the later one.
    [[nodiscard]] MappingDifference reversed() const;

    /// Of the mapping before; table version of the mapping after in `tabVersionAfter`.
    ProjectId project;
    QString tabVersionAfter;
    bool validBefore = false;
    bool validAfter = false;
    PRJMAPPING::MappingState stateBefore;
    PRJMAPPING::MappingState stateAfter;
    /// In the order of the targets after, then those that are gone.
    std::vector<TargetPair> targets;
};
