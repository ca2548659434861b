#include "LineOrder.h"

#include "TableData.h"

#include <algorithm>

namespace VKTab {

LineOrder::LineOrder(std::shared_ptr<const TableData> table)
    : m_table(std::move(table))
    , m_all(true)
    , m_count(m_table ? m_table->rowCount() : 0)
{
}

LineOrder::LineOrder(std::shared_ptr<const TableData> table, LineSet shown)
    : m_table(std::move(table))
    , m_all(false)
    , m_count(shown.count())
    , m_shown(std::move(shown))
{
    m_rows.reserve(static_cast<size_t>(m_count));
    m_shown.forEach([this](int row) { m_rows.push_back(row); });
}

int LineOrder::placeOf(int row) const
{
    if (!contains(row))
        return -1;
    if (m_all)
        return row;
    return static_cast<int>(std::lower_bound(m_rows.begin(), m_rows.end(), row) - m_rows.begin());
}

LineId LineOrder::idAt(int place) const
{
    return place >= 0 && place < m_count ? m_table->lineId(rowAt(place)) : LineId();
}

int LineOrder::placeOf(const LineId &id) const
{
    return m_table && id.isValid() ? placeOf(m_table->rowOf(id)) : -1;
}

const QVector<LineId> &LineOrder::ids() const
{
    std::call_once(m_idsMade, [this] {
        m_ids.reserve(m_count);
        for (int place = 0; place < m_count; ++place)
            m_ids.append(m_table->lineId(rowAt(place)));
        m_given.store(m_ids.constData(), std::memory_order_release);
    });
    return m_ids;
}

} // namespace VKTab
