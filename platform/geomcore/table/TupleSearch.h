#pragma once

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

#include <QtGlobal>

namespace VKTab {

class ColumnSearch;

/// Index of several columns of a table together: the rows that have one text in each of them.
/// Immutable; any thread; lives as long as the columns' indexes.
class TupleSearch
{
public:
    explicit TupleSearch(std::vector<const ColumnSearch *> columns);

    /// Appends the rows that have these interned texts, one for each column in their order.
    void addRows(std::span<const quint32> texts, std::vector<int> &rows) const;

private:
    using HashEntry = std::pair<quint64, int>;

    const std::vector<const ColumnSearch *> m_columns;
    std::vector<HashEntry> m_rows; // sorted
};

} // namespace VKTab
