#pragma once

#include "IndexTreeBaseSearchC.h"
#include "IndexTreeVarSearchConditionC.h"

#include <QList>

/// The search for lines by the values of their variables; all conditions have to hold in one line.
class VELKGEOMCORE_EXPORT IndexTreeVarSearchC : public IndexTreeBaseSearchC
{
public:
    /// "VarSearch".
    [[nodiscard]] static QString searchName();

    explicit IndexTreeVarSearchC(const PRefPtr<IndexTreeC> &tree);
    ~IndexTreeVarSearchC() override;

    [[nodiscard]] QString getName() const override;
    [[nodiscard]] PRefPtr<IndexTreeBaseSearchC> clone() const override;

    /// Null adds nothing.
    void addCondition(const PRefPtr<IndexTreeVarSearchConditionC> &condition);
    void removeConditions() { m_conditions.clear(); }
    [[nodiscard]] const QList<PRefPtr<IndexTreeVarSearchConditionC>> &getConditions() const
    {
        return m_conditions;
    }
    /// The first condition with a blank as its variable's name; null if there is none.
    [[nodiscard]] PRefPtr<IndexTreeVarSearchConditionC> findFullTextCondition() const;

private:
    QList<PRefPtr<IndexTreeVarSearchConditionC>> m_conditions;
};
