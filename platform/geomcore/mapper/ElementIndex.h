#pragma once

#include <QtGlobal>

#include <span>
#include <string_view>
#include <utility>
#include <vector>

namespace Mapper {

class TargetTable;

/// Rows of a table by the values that one of its variables offers: every value of a range, the one
/// value of any other cell. For finding rows by variables that no hash of their text finds.
class ElementIndex
{
public:
    ElementIndex(const TargetTable &table, int variable);

    /// Rows, ascending, whose cell can hold a source value or the first value of a source range.
    /// Rows with no value for an empty text. To be compared by the caller.
    [[nodiscard]] std::vector<int> candidates(std::string_view source) const;

    /// Number of these, but for rows that come more than once.
    [[nodiscard]] size_t countCandidates(std::string_view source) const;

private:
    using Rows = std::span<const std::pair<quint64, int>>;
    [[nodiscard]] Rows rowsOf(std::string_view value) const;
    void addRow(const TargetTable &table, int variable, int row);

    std::vector<std::pair<quint64, int>> m_rows; ///< Sorted by hash of the value, then row.
    std::vector<int> m_wide;                     ///< Rows with too many values to list.
};

} // namespace Mapper
