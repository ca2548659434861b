#pragma once

#include "DesignationPattern.h"

#include <string>
#include <utility>
#include <vector>

namespace Mapper {

class TargetTable;

/// Lines of a table by norm number and norm designation.
class DesignationIndex
{
public:
    explicit DesignationIndex(const TargetTable &table);

    /// Whether nearly every line has a text of its own, so that it says which line is meant.
    [[nodiscard]] bool identifies() const { return m_identifies; }
    /// Rows, ascending, at most \a limit.
    [[nodiscard]] std::vector<int> rows(const std::string &text, size_t limit) const;
    [[nodiscard]] std::string textOf(int row) const;

private:
    const TargetTable &m_table;
    DesignationPattern m_pattern;
    std::vector<std::pair<size_t, int>> m_rows; ///< Sorted by hash of the text, then row.
    bool m_identifies = false;
};

} // namespace Mapper
