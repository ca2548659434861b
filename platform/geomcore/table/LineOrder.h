#pragma once

#include "LineSet.h"
#include <geomcore/value/LineId.h>

#include <QVector>

#include <atomic>
#include <memory>
#include <mutex>
#include <vector>

namespace VKTab {

class TableData;

/// The shown rows of a table, ascending. Immutable; any thread. All rows of a table cost no memory.
class LineOrder
{
public:
    /// All rows; none without a table.
    explicit LineOrder(std::shared_ptr<const TableData> table);
    LineOrder(std::shared_ptr<const TableData> table, LineSet shown);

    [[nodiscard]] int count() const { return m_count; }
    /// Row of the table at a place, from 0.
    [[nodiscard]] int rowAt(int place) const
    {
        return m_all ? place : m_rows[static_cast<size_t>(place)];
    }
    [[nodiscard]] bool contains(int row) const
    {
        return row >= 0 && (m_all ? row < m_count : m_shown.contains(row));
    }
    /// Place of a row, -1 if it is not shown.
    [[nodiscard]] int placeOf(int row) const;
    [[nodiscard]] LineId idAt(int place) const;
    [[nodiscard]] int placeOf(const LineId &id) const;
    /// Made at the first call.
    [[nodiscard]] const QVector<LineId> &ids() const;
    /// True if the list is the one that ids() gave, so that its order is known.
    [[nodiscard]] bool gave(const QVector<LineId> &list) const
    {
        return list.constData() == m_given.load(std::memory_order_acquire);
    }

private:
    std::shared_ptr<const TableData> m_table;
    bool m_all;
    int m_count = 0;
    LineSet m_shown;         // unused if all
    std::vector<int> m_rows; // unused if all
    mutable std::once_flag m_idsMade;
    mutable QVector<LineId> m_ids;
    mutable std::atomic<const LineId *> m_given = nullptr; // data of m_ids, once made
};

} // namespace VKTab
