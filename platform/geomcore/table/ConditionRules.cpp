#include "ConditionRules.h"

#include "ConditionRule.h"

namespace VKTab {

std::shared_ptr<const ConditionRule>
ConditionRules::ruleOf(const QList<FilterCondition> &conditions)
{
    const std::lock_guard guard(m_lock);
    if (!m_rule || m_conditions != conditions) {
        m_conditions = conditions;
        m_rule = std::make_shared<const ConditionRule>(conditions);
    }
    return m_rule;
}

} // namespace VKTab
