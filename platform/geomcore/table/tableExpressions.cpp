#include "tableExpressions.h"

#include <geomcore/csv/TableField.h>
#include <geomcore/expression/ExpressionText.h>

namespace VKTab {

namespace {

TableExpression parse(ExpressionUse use, const QString &text)
{
    StatementNames anyName;
    ParsedStatement parsed = parseFor(use, text, anyName);
    if (!parsed.node)
        return {nullptr, parsed.error};
    return {std::make_shared<const Program>(*parsed.node), {}};
}

} // namespace

TableExpression parseCondition(const QString &text)
{
    return parse(ExpressionUse::Condition, text);
}

TableExpression parseFormula(const TableField &field)
{
    if (field.formula.contains(u'=')) {
        TableExpression assignment = parse(ExpressionUse::Formula, field.formula);
        if (assignment.program)
            return assignment;
    }
    // The column itself may have a name that no formula can write.
    return parse(ExpressionUse::Formula, QStringLiteral("VALUE = ") + field.formula);
}

} // namespace VKTab
