#include "StatusKey.h"

#include <algorithm>

namespace VKTab {

StatusValue &StatusKey::addValue(const QString &text)
{
    const auto known = std::find_if(m_values.begin(), m_values.end(),
                                    [&](const StatusValue &v) { return v.getText() == text; });
    return known == m_values.end() ? m_values.emplace_back(text) : *known;
}

const StatusValue *StatusKey::findValue(const QString &text) const
{
    const auto known = std::find_if(m_values.begin(), m_values.end(),
                                    [&](const StatusValue &v) { return v.getText() == text; });
    return known == m_values.end() ? nullptr : &*known;
}

} // namespace VKTab
