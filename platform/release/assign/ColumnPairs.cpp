#include "ColumnPairs.h"

#include "LineCells.h"

#include <algorithm>

namespace VelkRelease {

int columnOf(const LineCells &cells, int variable)
{
    const auto &variables = cells.variables();
    const auto found = std::lower_bound(variables.begin(), variables.end(), variable);
    return found != variables.end() && *found == variable ? int(found - variables.begin()) : -1;
}

std::vector<ColumnPair> commonColumns(const LineCells &source, const LineCells &target)
{
    std::vector<ColumnPair> pairs;
    for (size_t column = 0; column < source.variables().size(); ++column) {
        const int other = columnOf(target, source.variables()[column]);
        if (other >= 0)
            pairs.emplace_back(int(column), other);
    }
    return pairs;
}

std::vector<int> ownColumns(const LineCells &cells, const LineCells &other)
{
    std::vector<int> columns;
    for (size_t column = 0; column < cells.variables().size(); ++column) {
        if (columnOf(other, cells.variables()[column]) < 0)
            columns.push_back(int(column));
    }
    return columns;
}

quint64 keyOf(const LineCells &cells, int row, const std::vector<int> &columns)
{
    quint64 key = 0;
    quint64 place = 0;
    for (const int column : columns) {
        ++place;
        const quint64 value = cells.cell(row, column);
        if (value == 0)
            continue;
        quint64 mixed = (value + place * 0x9e3779b97f4a7c15U) * 0xbf58476d1ce4e5b9U;
        mixed ^= mixed >> 29U;
        key += mixed * 0x94d049bb133111ebU;
    }
    return key;
}

std::vector<int> columnsIn(const std::vector<ColumnPair> &pairs, int ColumnPair::*side)
{
    std::vector<int> columns;
    columns.reserve(pairs.size());
    for (const ColumnPair &pair : pairs)
        columns.push_back(pair.*side);
    return columns;
}

std::unordered_map<quint64, int> uniqueRows(const LineCells &cells, const std::vector<int> &columns)
{
    std::unordered_map<quint64, int> rows;
    for (int row = 0; row < cells.rowCount(); ++row) {
        const quint64 key = keyOf(cells, row, columns);
        if (key == 0)
            continue;
        const auto [found, isNew] = rows.try_emplace(key, row);
        if (!isNew)
            found->second = -1;
    }
    return rows;
}

std::vector<std::pair<int, int>> equalRows(const LineCells &source, const LineCells &target,
                                           const std::vector<ColumnPair> &columns)
{
    std::vector<std::pair<int, int>> pairs;
    const auto targets = uniqueRows(target, columnsIn(columns, &ColumnPair::second));
    const std::vector<int> own = columnsIn(columns, &ColumnPair::first);
    for (int row = 0; row < source.rowCount(); ++row) {
        const auto found = targets.find(keyOf(source, row, own));
        if (found != targets.end() && found->second >= 0)
            pairs.emplace_back(row, found->second);
    }
    return pairs;
}

} // namespace VelkRelease
