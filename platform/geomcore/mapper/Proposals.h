#pragma once

#include "LineInput.h"
#include "TargetSet.h"

namespace Mapper {

/// A line that a source line may belong to without being equal to it.
struct Proposal
{
    const BoundTarget *target = nullptr; ///< Null if there is nothing to propose.
    int row = -1;
};

/// Looks for such lines in the targets whose conditions hold for the line, in their order. Each
/// rule is tried on all of them before the next.
class Proposals
{
public:
    Proposals(const TargetSet &targets, const std::vector<const BoundTarget *> &open);

    [[nodiscard]] Proposal find(const LineInput &line) const;

private:
    /// The line that agrees on what identifies lines; of several the most similar. In a project
    /// that nothing but its content connects with the source it must also be a similar one.
    [[nodiscard]] int byIdentity(const BoundTarget &target, const LineInput &line,
                                 const TargetValues &values) const;
    /// The line that stands, among those that are settled, where the source line stands among
    /// theirs, if nothing is clearly more similar.
    [[nodiscard]] int byOrder(const BoundTarget &target, const LineInput &line,
                              const TargetValues &values) const;
    [[nodiscard]] int bySimilarity(const BoundTarget &target, const LineInput &line,
                                   const TargetValues &values) const;

    using Rule = int (Proposals::*)(const BoundTarget &, const LineInput &,
                                    const TargetValues &) const;
    [[nodiscard]] Proposal firstOf(Rule rule, const LineInput &line) const;

    const TargetSet &m_targets;
    const std::vector<const BoundTarget *> &m_open;
};

/// Whether so many values of a line have a counterpart in the target that equal ones mean
/// something: all of them, or at least two and half of them.
[[nodiscard]] bool enoughCompared(int compared, int values);
[[nodiscard]] int countValues(const LineInput &line, const SourceTable &source);

} // namespace Mapper
