#pragma once

#include "FilterCondition.h"

#include <QList>

#include <memory>
#include <mutex>

namespace VKTab {

class ConditionRule;

/// Makes the rule of a list of conditions and keeps it until other ones are asked for, so that they
/// are parsed once. Any thread.
class ConditionRules
{
public:
    [[nodiscard]] std::shared_ptr<const ConditionRule>
    ruleOf(const QList<FilterCondition> &conditions);

private:
    std::mutex m_lock;
    QList<FilterCondition> m_conditions;
    std::shared_ptr<const ConditionRule> m_rule;
};

} // namespace VKTab
