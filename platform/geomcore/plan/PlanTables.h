#pragma once

#include "CellValues.h"
#include "ColumnChance.h"

#include <vector>

namespace Plan {

/// Cells of some lines in some variables, as numbers of their variable's CellValues.
class CellMatrix
{
public:
    CellMatrix() = default;
    CellMatrix(size_t lines, size_t variables)
        : m_variables(variables)
        , m_cells(lines * variables)
    {
    }
    [[nodiscard]] int at(size_t line, size_t variable) const
    {
        return m_cells[line * m_variables + variable];
    }
    void set(size_t line, size_t variable, int value)
    {
        m_cells[line * m_variables + variable] = value;
    }

private:
    size_t m_variables = 0;
    std::vector<int> m_cells;
};

/// One target of a mapping as a plan sees it: its open rows, those that no settled line has, and
/// the open source lines with the values that this target sees.
struct PlanTarget
{
    int table = 0;    ///< Targets of the same table have the same number, and the same open rows.
    int rowCount = 0; ///< Of the table.
    bool hasSourceName = false; ///< It is called as the source is, so most lines will be here.
    std::vector<int> openRows;  ///< Ascending.
    std::vector<int> variables; ///< Numbers of the variables that both have, alike in all targets.
    std::vector<char> keys;     ///< By place in variables: it is meant to tell lines apart.
    CellMatrix lines;           ///< By open source line.
    CellMatrix rows;            ///< By open row.
    std::vector<char> takes;    ///< By open source line: whether the conditions hold.
    std::vector<int> settled;   ///< By source row: the row of its settled line, or -1.
    std::vector<ColumnChance> chances; ///< By place in variables.
};

struct PlanTables
{
    std::vector<CellValues> values; ///< By number of the variable.
    int sourceRows = 0;
    std::vector<int> openLines; ///< Rows of the source table, ascending.
    int variableCount = 0;
    std::vector<PlanTarget> targets; ///< In order.
};

} // namespace Plan
