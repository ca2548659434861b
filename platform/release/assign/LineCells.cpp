#include "LineCells.h"

#include "VariableNames.h"

#include <geomcore/table/TableData.h>
#include <geomcore/value/CellKey.h>

#include <algorithm>
#include <numeric>
#include <span>
#include <string>
#include <utility>

namespace VelkRelease {

namespace {

/// Finaliser of MurmurHash3 (Austin Appleby, public domain).
quint64 mixed(quint64 h)
{
    h ^= h >> 33;
    h *= Q_UINT64_C(0xff51afd7ed558ccd);
    h ^= h >> 33;
    h *= Q_UINT64_C(0xc4ceb9fe1a85ec53);
    return h ^ (h >> 33);
}

bool takesPart(const VKTab::TableField &field)
{
    return !field.hidden && field.kind != VKTab::FieldKind::Internal;
}

/// The columns that take part with the numbers of their variables, ordered by these.
std::vector<std::pair<int, int>> comparedColumns(const VKTab::TableData &table,
                                                 VariableNames &names)
{
    std::vector<std::pair<int, int>> compared;
    const auto &fields = table.descriptor().fields;
    for (int column = 0; column < table.columnCount(); ++column) {
        if (takesPart(fields[column]))
            compared.emplace_back(names.idOf(fields[column].name), column);
    }
    std::ranges::sort(compared);
    return compared;
}

quint32 cellHash(std::string_view cell, const VKTab::TableField &field, bool missing)
{
    if (missing)
        return 0;
    const VKTab::CellKey key(cell, VKTab::CompareMode::Number, field.decimalChar, false);
    const quint64 hash = key.hash();
    return std::max<quint32>(1, quint32(hash ^ (hash >> 32)));
}

} // namespace

LineCells::LineCells(const VKTab::TableData &table, VariableNames &names)
    : m_rowCount(table.rowCount())
{
    const auto compared = comparedColumns(table, names);
    std::vector<int> columns;
    for (const auto &[variable, column] : compared) {
        m_variables.push_back(variable);
        columns.push_back(column);
    }
    for (const QString &name : table.descriptor().primaryKey) {
        const auto found = std::ranges::find(columns, table.columnOf(name));
        if (found != columns.end())
            m_keyColumns.push_back(int(found - columns.begin()));
    }
    if (m_keyColumns.size() != size_t(table.descriptor().primaryKey.size()))
        m_keyColumns.clear();
    std::ranges::sort(m_keyColumns);
    readCells(table, columns);
}

LineCells LineCells::renamed(const std::vector<std::pair<int, int>> &names) const
{
    std::vector<std::pair<int, int>> columns;
    for (size_t column = 0; column < m_variables.size(); ++column) {
        const auto name =
            std::ranges::find(names, m_variables[column], &std::pair<int, int>::first);
        columns.emplace_back(name == names.end() ? m_variables[column] : name->second, int(column));
    }
    std::ranges::sort(columns);
    LineCells other;
    other.m_rowCount = m_rowCount;
    for (size_t column = 0; column < columns.size(); ++column) {
        other.m_variables.push_back(columns[column].first);
        if (std::ranges::count(m_keyColumns, columns[column].second))
            other.m_keyColumns.push_back(int(column));
    }
    other.m_cells.reserve(m_cells.size());
    for (int row = 0; row < m_rowCount; ++row) {
        for (const auto &[variable, column] : columns)
            other.m_cells.push_back(cell(row, column));
    }
    other.hashRows();
    return other;
}

void LineCells::readCells(const VKTab::TableData &table, const std::vector<int> &columns)
{
    const auto &fields = table.descriptor().fields;
    std::vector<std::string_view> cells(size_t(table.columnCount()));
    std::string scratch;
    m_cells.reserve(size_t(m_rowCount) * columns.size());
    for (int row = 0; row < m_rowCount; ++row) {
        table.cells(row, cells, scratch);
        for (const int column : columns) {
            const auto &cell = cells[size_t(column)];
            m_cells.push_back(cellHash(cell, fields[column], table.isMissing(cell)));
        }
    }
    hashRows();
}

std::vector<quint32> LineCells::sortedValues(int column) const
{
    std::vector<quint32> values;
    for (int row = 0; row < m_rowCount; ++row) {
        if (cell(row, column) != 0)
            values.push_back(cell(row, column));
    }
    std::sort(values.begin(), values.end());
    return values;
}

quint64 LineCells::valueHash(int row, int column) const
{
    const quint64 hash = cell(row, column);
    return hash ? mixed((quint64(m_variables[size_t(column)]) << 32 | hash) + 1) : 0;
}

void LineCells::hashRows()
{
    m_rowHashes.assign(size_t(m_rowCount), 0);
    for (int row = 0; row < m_rowCount; ++row) {
        for (int column = 0; column < int(m_variables.size()); ++column)
            m_rowHashes[size_t(row)] += valueHash(row, column);
    }
}

quint64 LineCells::tableHash() const
{
    quint64 sum = 0;
    for (int row = 0; row < m_rowCount; ++row)
        sum += mixed(rowHash(row) + 1);
    return sum;
}

int LineCells::valueCount(int row) const
{
    const auto begin = m_cells.begin() + std::ptrdiff_t(size_t(row) * m_variables.size());
    return int(m_variables.size()) -
           int(std::count(begin, begin + std::ptrdiff_t(m_variables.size()), 0u));
}

} // namespace VelkRelease
