#pragma once

#include <QtGlobal>

#include <unordered_map>
#include <utility>
#include <vector>

namespace VelkRelease {

class LineCells;

/// A column of one table and one of another.
using ColumnPair = std::pair<int, int>;

/// The column of a variable; -1: none.
[[nodiscard]] int columnOf(const LineCells &cells, int variable);
/// Columns of the variables that both tables have, and of those that only the first one has.
[[nodiscard]] std::vector<ColumnPair> commonColumns(const LineCells &source,
                                                    const LineCells &target);
[[nodiscard]] std::vector<int> ownColumns(const LineCells &cells, const LineCells &other);
[[nodiscard]] std::vector<int> columnsIn(const std::vector<ColumnPair> &pairs,
                                         int ColumnPair::*side);
/// Hash of a line over some columns, each under the number given for it; 0 without any value.
[[nodiscard]] quint64 keyOf(const LineCells &cells, int row, const std::vector<int> &columns);
/// Rows by key; -1 for a key that several rows have. Rows without value are left out.
[[nodiscard]] std::unordered_map<quint64, int> uniqueRows(const LineCells &cells,
                                                          const std::vector<int> &columns);
/// Rows of the source with the row that is equal in these columns, if it is the only one.
[[nodiscard]] std::vector<std::pair<int, int>>
equalRows(const LineCells &source, const LineCells &target, const std::vector<ColumnPair> &columns);

} // namespace VelkRelease
