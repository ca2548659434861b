#pragma once

#include "CatalogSearchCondition.h"

#include <core/text/PRefPtr.h>

/// One condition of a search for lines. With a blank as the variable's name it is a full text
/// condition: its low value is looked for everywhere, see CatalogSearchQuery::text.
class VELKGEOMCORE_EXPORT IndexTreeVarSearchConditionC : public PRefObject
{
public:
    using CompareOp = CatalogSearchCondition::Op;
    enum SearchType { SearchVariable = 1, SearchFullText = 3 };

    /// \a valHigh is the end of a range (CatalogSearchCondition::Between), \a unit the one that the
    /// column must have.
    IndexTreeVarSearchConditionC(const QString &varName, CompareOp cmpOp, const QString &valLow,
                                 const QString &valHigh, const QString &unit);
    ~IndexTreeVarSearchConditionC() override;

    void setVarName(const QString &name) { m_condition.variable = name; }
    void setCmpOp(CompareOp op) { m_condition.op = op; }
    /// For those who have it as a number; one that is no operator is not taken.
    void setCmpOp(int op);
    void setValLow(const QString &value) { m_condition.low = value; }
    void setValHigh(const QString &value) { m_condition.high = value; }
    void setUnit(const QString &unit) { m_condition.unit = unit; }
    /// Kept for those who show the condition; what is searched goes by the variable's name.
    void setSearchType(int type) { m_searchType = type; }

    [[nodiscard]] const QString &getVarName() const { return m_condition.variable; }
    [[nodiscard]] CompareOp getCmpOp() const { return m_condition.op; }
    [[nodiscard]] const QString &getValLow() const { return m_condition.low; }
    [[nodiscard]] const QString &getValHigh() const { return m_condition.high; }
    [[nodiscard]] const QString &getUnit() const { return m_condition.unit; }
    [[nodiscard]] int getSearchType() const { return m_searchType; }
    [[nodiscard]] bool isFullText() const { return m_condition.variable == u" "; }
    [[nodiscard]] const CatalogSearchCondition &toCondition() const { return m_condition; }

private:
    CatalogSearchCondition m_condition;
    int m_searchType = SearchVariable;
};
