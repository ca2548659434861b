#pragma once

#include "FilterCondition.h"
#include "FilterRule.h"

#include <QList>

#include <memory>
#include <vector>

namespace VKTab {

class Program;

/// Filter that shows the lines for which all conditions hold. A condition that does not parse hides
/// nothing; reading its table tells of it.
class VELKGEOMCORE_EXPORT ConditionRule : public FilterRule
{
public:
    explicit ConditionRule(const QList<FilterCondition> &conditions);
    ~ConditionRule() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] bool isUsed() const override;
    void evaluate(const FilteredTable &table, LineSet &visible) const override;

private:
    std::vector<std::shared_ptr<const Program>> m_conditions;
};

} // namespace VKTab
