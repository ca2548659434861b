#pragma once

#include <geomcore/value/VarId.h>

#include <QList>

namespace VKTab {

/// The columns of a table in display order.
class ColumnMapping
{
public:
    ColumnMapping() = default;
    explicit ColumnMapping(const QList<VarId> &ordered)
        : m_ordered(ordered)
    {
    }

    [[nodiscard]] QList<VarId> getOrdered() const { return m_ordered; }

private:
    QList<VarId> m_ordered;
};

} // namespace VKTab
