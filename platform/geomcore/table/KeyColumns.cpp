#include "KeyColumns.h"

#include <geomcore/value/CellHash.h>

#include <algorithm>

namespace VKTab {

KeyColumns::KeyColumns(const TableData &table, const std::vector<int> &columns,
                       const std::vector<LineIndex::Key> &keys)
    : m_table(table)
{
    for (size_t i = 0; i < keys.size(); ++i) {
        const int column = columns[i];
        const char decimalChar =
            column < 0 ? '.' : table.descriptor().fields.at(column).decimalChar;
        m_columns.push_back({column, keys[i].compare, decimalChar});
        m_width = std::max(m_width, size_t(column + 1));
        m_first = i == 0 ? column : std::min(m_first, column);
    }
}

void KeyColumns::split(int row, LineKeys &out) const
{
    out.cells.resize(m_width);
    m_table.firstCells(row, out.cells, out.scratch);
}

void KeyColumns::load(int row, LineKeys &out) const
{
    split(row, out);
    makeKeys(out);
}

void KeyColumns::makeKeys(LineKeys &out) const
{
    out.keys.resize(m_columns.size());
    for (size_t i = 0; i < m_columns.size(); ++i)
        out.keys[i] = key(i, out);
    out.hash = hashOf(out.keys);
}

CellKey KeyColumns::key(size_t key, const LineKeys &row) const
{
    const Column &column = m_columns[key];
    if (column.column < 0)
        return {};
    const std::string_view text = row.cells[size_t(column.column)];
    return {text, column.compare, column.decimalChar, m_table.isMissing(text)};
}

bool KeyColumns::sameBytesSuffice(size_t key, const KeyColumns &other) const
{
    return m_columns[key].decimalChar == other.m_columns[key].decimalChar &&
           m_table.descriptor().missingValues == other.m_table.descriptor().missingValues;
}

bool KeyColumns::sameRowsSuffice(const KeyColumns &other) const
{
    for (size_t i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].column != other.m_columns[i].column || !sameBytesSuffice(i, other))
            return false;
    }
    return m_first >= 0 && m_width > 0 && m_table.columnCount() == other.m_table.columnCount();
}

quint64 hashOf(std::span<const CellKey> keys)
{
    quint64 hash = 0xA0761D6478BD642FULL;
    for (const CellKey &key : keys)
        hash = mixHash(hash ^ key.hash(), 0xE7037ED1A0B428DBULL);
    return hash;
}

} // namespace VKTab
