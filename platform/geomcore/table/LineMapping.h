#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <geomcore/value/LineId.h>

#include <QVector>

#include <memory>

namespace VKTab {

class LineOrder;

/// The lines of a table in display order, as they were when it was asked for: a later filter does
/// not change it. Rows count from 0. Copies share everything.
class VELKGEOMCORE_EXPORT LineMapping
{
public:
    LineMapping();
    explicit LineMapping(std::shared_ptr<const LineOrder> order);
    LineMapping(const LineMapping &other);
    LineMapping &operator=(const LineMapping &other);
    ~LineMapping();

    [[nodiscard]] int count() const;
    /// Not valid for a row out of range.
    [[nodiscard]] LineId getLineId(int row) const;
    /// Row of a line, -1 if it is not shown.
    [[nodiscard]] int getRow(const LineId &id) const;
    /// Built at the first request and shared from then on.
    [[nodiscard]] QVector<LineId> getOrdered() const;

private:
    std::shared_ptr<const LineOrder> m_order;
};

} // namespace VKTab
