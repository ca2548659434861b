#pragma once

#include <QHash>
#include <QString>

#include <string>
#include <string_view>
#include <vector>

namespace Plan {
class CellValues;
}
namespace VKTab {
class TableData;
}

namespace VelkRelease {

/// The values of a table's lines as plans take them, by the names of their columns.
class RowValues
{
public:
    /// The table must stay where it is.
    explicit RowValues(const VKTab::TableData &table);

    void setRow(int row);
    /// Among those of the variable.
    [[nodiscard]] int number(const QString &variable, Plan::CellValues &values);

private:
    const VKTab::TableData &m_table;
    std::vector<std::string_view> m_cells;
    std::string m_scratch;
    QHash<QString, int> m_columns;
};

} // namespace VelkRelease
