#pragma once

#include <memory>
#include <string>
#include <vector>

namespace VKTab {

class BoundExpression;
class LineView;
class TableData;

/// The formulas of a table's computed variables that have no column in the file. Immutable; any
/// thread.
class ComputedColumns
{
public:
    explicit ComputedColumns(const TableData &table);
    ~ComputedColumns();
    ComputedColumns(const ComputedColumns &) = delete;
    ComputedColumns &operator=(const ComputedColumns &) = delete;

    /// Value of the variable at that index of the descriptor's fields for what the line shows.
    /// Empty if the formula does not parse, and for variables that need each other.
    void evaluate(const LineView &line, int column, std::string &result) const;

private:
    int m_firstColumn;
    std::vector<std::unique_ptr<const BoundExpression>> m_formulas;
};

} // namespace VKTab
