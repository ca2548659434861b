#pragma once

#include <geomcore/table/BoundExpression.h>

#include <QList>

class VarsetConditionI;

namespace VKTab {

/// All conditions of a target, bound to the columns of one table: made once, asked for each line,
/// from any thread.
class VELKGEOMCORE_EXPORT BoundConditions
{
public:
    BoundConditions() = default;
    /// The conditions need not live longer than this call.
    BoundConditions(const QList<const VarsetConditionI *> &conditions, const TableData *table);

    /// Whether all hold; without any they do.
    [[nodiscard]] bool holds(const LineView &line) const;
    [[nodiscard]] bool isEmpty() const { return m_conditions.empty(); }

private:
    std::vector<BoundExpression> m_conditions;
};

} // namespace VKTab
