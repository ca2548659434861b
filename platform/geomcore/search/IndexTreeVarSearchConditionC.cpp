#include "IndexTreeVarSearchConditionC.h"

IndexTreeVarSearchConditionC::IndexTreeVarSearchConditionC(const QString &varName, CompareOp cmpOp,
                                                           const QString &valLow,
                                                           const QString &valHigh,
                                                           const QString &unit)
    : m_condition{varName, cmpOp, valLow, valHigh, unit}
{
}

IndexTreeVarSearchConditionC::~IndexTreeVarSearchConditionC() = default;

void IndexTreeVarSearchConditionC::setCmpOp(int op)
{
    if (op >= CatalogSearchCondition::Equal && op <= CatalogSearchCondition::StartsWith)
        m_condition.op = CompareOp(op);
}
