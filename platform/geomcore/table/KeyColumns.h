#pragma once

#include "LineIndex.h"

namespace VKTab {

/// The key cells of one row. Reused from row to row; views are valid until it is loaded again.
struct LineKeys
{
    std::vector<std::string_view> cells; ///< The row's cells up to the last key column.
    std::vector<CellKey> keys;
    std::string scratch;
    quint64 hash = 0;
};

/// Columns of a table as they take part in a key. Immutable.
class KeyColumns
{
public:
    /// \a columns, one for each of \a keys, which tell how they are compared; -1 is no value.
    KeyColumns(const TableData &table, const std::vector<int> &columns,
               const std::vector<LineIndex::Key> &keys);

    [[nodiscard]] const TableData &table() const { return m_table; }
    [[nodiscard]] size_t count() const { return m_columns.size(); }

    /// Splits a row.
    void split(int row, LineKeys &out) const;
    /// Makes keys and hash of a row that is split.
    void makeKeys(LineKeys &out) const;
    /// Splits a row and makes keys and hash.
    void load(int row, LineKeys &out) const;
    [[nodiscard]] std::string_view cell(size_t key, const LineKeys &row) const
    {
        return m_columns[key].column < 0 ? std::string_view()
                                         : row.cells[size_t(m_columns[key].column)];
    }
    [[nodiscard]] CellKey key(size_t key, const LineKeys &row) const;

    /// Whether cells of equal bytes are equal for that key in both.
    [[nodiscard]] bool sameBytesSuffice(size_t key, const KeyColumns &other) const;
    /// Whether rows are equal if hasSameBytes() says so.
    [[nodiscard]] bool sameRowsSuffice(const KeyColumns &other) const;
    /// Whether a row has the same bytes as a row of the other table from the first key column to
    /// the last.
    [[nodiscard]] bool hasSameBytes(int row, const KeyColumns &other, int otherRow) const
    {
        return m_table.hasSameBytes(row, other.m_table, otherRow, m_first, int(m_width) - 1);
    }

private:
    struct Column
    {
        int column = -1;
        CompareMode compare = CompareMode::Number;
        char decimalChar = '.';
    };

    const TableData &m_table;
    std::vector<Column> m_columns;
    int m_first = 0; ///< Of the columns.
    size_t m_width = 0;
};

/// Hash of keys in their order.
[[nodiscard]] quint64 hashOf(std::span<const CellKey> keys);

} // namespace VKTab
