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
struct TargetValues;

/// What tells the lines of a source and a target table apart in both: norm number and designation,
/// or the key variables if these are the same.
class IdentityKey
{
public:
    IdentityKey(const SourceTable &source, const BoundTarget &target);

    [[nodiscard]] bool isValid() const { return m_designations || m_index; }
    /// Rows of the target table with the line's identity, in display order, at most \a limit.
    [[nodiscard]] std::vector<int> rows(const LineInput &line, const TargetValues &values,
                                        int limit) const;
    /// Norm numbers and designations; null if the lines are told apart otherwise.
    [[nodiscard]] const DesignationIndex *designations() const { return m_designations.get(); }
    /// The key variables' index and their columns in the source table; null if the lines are told
    /// apart otherwise.
    [[nodiscard]] const VKTab::LineIndex *index() const { return m_index.get(); }
    [[nodiscard]] const std::vector<int> &sourceColumns() const { return m_sourceColumns; }

private:
    void bindDesignations(const BoundTarget &target);
    void bindKeyVariables(const BoundTarget &target);
    [[nodiscard]] std::vector<int> rowsByKey(const TargetValues &values, int limit) const;

    const SourceTable &m_source;
    std::shared_ptr<const DesignationIndex> m_designations;
    std::shared_ptr<const VKTab::LineIndex> m_index;
    std::vector<int> m_variables;     ///< Of the target table, ascending.
    std::vector<int> m_sourceColumns; ///< In the same order.
};

} // namespace Mapper
