#include "RowValues.h"

#include <geomcore/plan/CellValues.h>
#include <geomcore/plan/ValueRule.h>
#include <geomcore/table/TableData.h>
#include <geomcore/value/CellKey.h>

namespace VelkRelease {

RowValues::RowValues(const VKTab::TableData &table)
    : m_table(table)
    , m_cells(size_t(table.columnCount()))
{
}

void RowValues::setRow(int row)
{
    m_table.cells(row, m_cells, m_scratch);
}

int RowValues::number(const QString &variable, Plan::CellValues &values)
{
    auto column = m_columns.constFind(variable);
    if (column == m_columns.cend())
        column = m_columns.insert(variable, m_table.columnOf(variable));
    if (*column < 0 || m_table.isMissing(m_cells[size_t(*column)]))
        return Plan::CellValues::NoValue;
    const std::string name = variable.toStdString();
    std::string meaning;
    return values.number(
        Plan::ValueRule::meaningOf(name, VKTab::trimmedCell(m_cells[size_t(*column)]), meaning),
        m_table.descriptor().fields[*column].decimalChar);
}

} // namespace VelkRelease
