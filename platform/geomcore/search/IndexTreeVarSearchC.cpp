#include "IndexTreeVarSearchC.h"

#include <algorithm>

IndexTreeVarSearchC::IndexTreeVarSearchC(const PRefPtr<IndexTreeC> &tree)
    : IndexTreeBaseSearchC(tree)
{
}

IndexTreeVarSearchC::~IndexTreeVarSearchC() = default;

QString IndexTreeVarSearchC::searchName()
{
    return QStringLiteral("VarSearch");
}

QString IndexTreeVarSearchC::getName() const
{
    return searchName();
}

PRefPtr<IndexTreeBaseSearchC> IndexTreeVarSearchC::clone() const
{
    auto *const copy = new IndexTreeVarSearchC(*this);
    for (PRefPtr<IndexTreeVarSearchConditionC> &condition : copy->m_conditions)
        condition = new IndexTreeVarSearchConditionC(*condition);
    return copy;
}

void IndexTreeVarSearchC::addCondition(const PRefPtr<IndexTreeVarSearchConditionC> &condition)
{
    if (condition)
        m_conditions.append(condition);
}

PRefPtr<IndexTreeVarSearchConditionC> IndexTreeVarSearchC::findFullTextCondition() const
{
    const auto found = std::find_if(m_conditions.cbegin(), m_conditions.cend(),
                                    [](const auto &condition) { return condition->isFullText(); });
    return found == m_conditions.cend() ? nullptr : *found;
}
