#include "BoundConditions.h"

#include "VarsetConditionI.h"

#include <algorithm>

namespace VKTab {

BoundConditions::BoundConditions(const QList<const VarsetConditionI *> &conditions,
                                 const TableData *table)
{
    for (const VarsetConditionI *condition : conditions)
        m_conditions.emplace_back(condition->program(), table);
}

bool BoundConditions::holds(const LineView &line) const
{
    return std::all_of(m_conditions.begin(), m_conditions.end(),
                       [&](const BoundExpression &condition) { return condition.holds(line); });
}

} // namespace VKTab
