#include "VarsetConditionC.h"

#include "VarsetNames.h"
#include "VarsetSource.h"
#include <geomcore/table/BoundExpression.h>

#include <geomcore/table/LineView.h>

VarsetConditionC::VarsetConditionC(const QString &text)
    : m_expression(VKTab::ExpressionUse::Condition, text)
{
}

VarsetConditionC::VarsetConditionC(const QString &text, const VKTab::NodeBase &statement)
    : m_expression(text, statement)
{
}

VarsetConditionC::~VarsetConditionC() = default;

VarsetConditionC *VarsetConditionC::create(const QString &text,
                                           const QHash<QString, MapVarValueC> &source,
                                           QStringList &usedVariables)
{
    VarsetConditionC *condition = create(text, source);
    if (condition)
        usedVariables += condition->usedVariables();
    return condition;
}

VarsetConditionC *VarsetConditionC::create(const QString &text,
                                           const QHash<QString, MapVarValueC> &source)
{
    VarsetNames names(source, {});
    const auto node = VKTab::parseOrReport(VKTab::ExpressionUse::Condition, text, names);
    return node ? new VarsetConditionC(text, *node) : nullptr;
}

VarsetConditionC *VarsetConditionC::fromText(const QString &text)
{
    return new VarsetConditionC(text);
}

QString VarsetConditionC::getCondition() const
{
    return m_expression.text();
}

bool VarsetConditionC::holds(const QHash<QString, MapVarValueC> &varset) const
{
    const auto expression = program();
    return expression && expression->holds(VKTab::VarsetSource(*expression, varset, varset));
}

bool VarsetConditionC::holds(const VKTab::LineView &line) const
{
    return VKTab::BoundExpression(program(), line.table()).holds(line);
}

std::shared_ptr<const VKTab::Program> VarsetConditionC::program() const
{
    return m_expression.program();
}
