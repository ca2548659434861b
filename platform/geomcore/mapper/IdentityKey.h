#pragma once

#include "LineInput.h"

#include <memory>
#include <vector>

namespace VKTab {
class LineIndex;
}

namespace Mapper {

class BoundTarget;
class DesignationIndex;
class SourceTable;
class TargetTable;
struct TargetValues;

/// What tells the lines of a source and a target table apart in both: norm number and designation,
/// or the key variables if these are the same. For one thread.
class IdentityKey
{
public:
    IdentityKey(const SourceTable &source, const BoundTarget &target);

    [[nodiscard]] bool isValid() const { return m_designations || byKeyVariables(); }
    /// Rows of the target table with the line's identity, in display order, at most \a limit.
    [[nodiscard]] std::vector<int> rows(const LineInput &line, const TargetValues &values,
                                        int limit) const;
    /// Norm numbers and designations; null if the lines are told apart otherwise.
    [[nodiscard]] const DesignationIndex *designations() const { return m_designations.get(); }
    /// The key variables tell the lines apart.
    [[nodiscard]] bool byKeyVariables() const { return !m_variables.empty(); }

private:
    void bindDesignations(const BoundTarget &target);
    void bindKeyVariables(const BoundTarget &target);
    [[nodiscard]] std::vector<int> rowsByKey(const TargetValues &values, int limit) const;

    const SourceTable &m_source;
    std::shared_ptr<const DesignationIndex> m_designations;
    std::shared_ptr<const TargetTable> m_table; ///< With these key variables, ascending.
    std::vector<int> m_variables;
    /// Made for the first line that is looked up: it costs as much as the index of all variables.
    mutable std::shared_ptr<const VKTab::LineIndex> m_index;
};

} // namespace Mapper
