#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QtGlobal>

#include <utility>
#include <vector>

namespace VKTab {
class TableData;
}

namespace VelkRelease {

class VariableNames;

/// What the lines of a table say, without the table: for each cell a hash of its value, at four
/// bytes a cell, and one for each line. Numbers are hashed by value, as lines are compared. Hidden
/// and internal variables and computed ones without a column are left out.
class VELKRELEASE_EXPORT LineCells
{
public:
    LineCells() = default;
    /// Reads the table once; \a names numbers the variables alike for all tables of a comparison.
    LineCells(const VKTab::TableData &table, VariableNames &names);

    /// The same lines with other names of some variables: numbers of them, from and to, none of
    /// which the table has already.
    [[nodiscard]] LineCells renamed(const std::vector<std::pair<int, int>> &names) const;

    [[nodiscard]] int rowCount() const { return m_rowCount; }
    /// Numbers of the variables in ascending order: the columns here.
    [[nodiscard]] const std::vector<int> &variables() const { return m_variables; }
    /// Columns that identify a line; empty if the table has none.
    [[nodiscard]] const std::vector<int> &keyColumns() const { return m_keyColumns; }
    /// Hash of the value; 0 is "no value".
    [[nodiscard]] quint32 cell(int row, int column) const
    {
        return m_cells[size_t(row) * m_variables.size() + size_t(column)];
    }
    /// The values of a column in ascending order, each as often as it stands there.
    [[nodiscard]] std::vector<quint32> sortedValues(int column) const;
    /// Hash of a variable's value, 0 for "no value". The hash of a line over some of its variables
    /// is the sum of these.
    [[nodiscard]] quint64 valueHash(int row, int column) const;
    /// Over all variables; 0 if the line has no value. Kept, for each table is compared with many.
    [[nodiscard]] quint64 rowHash(int row) const { return m_rowHashes[size_t(row)]; }
    /// Over all lines, whatever their order.
    [[nodiscard]] quint64 tableHash() const;
    /// Number of variables in which the line has a value.
    [[nodiscard]] int valueCount(int row) const;

private:
    void readCells(const VKTab::TableData &table, const std::vector<int> &columns);
    void hashRows();

    int m_rowCount = 0;
    std::vector<int> m_variables;
    std::vector<int> m_keyColumns;
    std::vector<quint32> m_cells;
    std::vector<quint64> m_rowHashes;
};

} // namespace VelkRelease
