#include "FilterBase.h"

#include "FilterRule.h"

namespace VKTab {

FilterBase::FilterBase() = default;

FilterBase::FilterBase(std::shared_ptr<const FilterRule> rule)
    : m_rule(std::move(rule))
{
}

FilterBase::FilterBase(const FilterBase &other) = default;
FilterBase &FilterBase::operator=(const FilterBase &other) = default;
FilterBase::~FilterBase() = default;

QString FilterBase::getClassName() const
{
    return m_rule ? m_rule->className() : QString();
}

bool FilterBase::isUsed() const
{
    return m_rule && m_rule->isUsed();
}

void FilterBase::setRule(std::shared_ptr<const FilterRule> rule)
{
    m_rule = std::move(rule);
}

} // namespace VKTab
