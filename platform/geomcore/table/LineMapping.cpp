#include "LineMapping.h"

#include "LineOrder.h"

namespace VKTab {

LineMapping::LineMapping() = default;

LineMapping::LineMapping(std::shared_ptr<const LineOrder> order)
    : m_order(std::move(order))
{
}

LineMapping::LineMapping(const LineMapping &other) = default;
LineMapping &LineMapping::operator=(const LineMapping &other) = default;
LineMapping::~LineMapping() = default;

int LineMapping::count() const
{
    return m_order ? m_order->count() : 0;
}

LineId LineMapping::getLineId(int row) const
{
    return m_order ? m_order->idAt(row) : LineId();
}

int LineMapping::getRow(const LineId &id) const
{
    return m_order ? m_order->placeOf(id) : -1;
}

QVector<LineId> LineMapping::getOrdered() const
{
    return m_order ? m_order->ids() : QVector<LineId>();
}

} // namespace VKTab
