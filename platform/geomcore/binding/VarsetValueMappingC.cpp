#include "VarsetValueMappingC.h"

#include "BoundModifiers.h"
#include "VarsetNames.h"
#include "VarsetSource.h"

#include <core/json/PJsonValue.h>

VarsetValueMappingC::VarsetValueMappingC(std::shared_ptr<const VKTab::ExpressionText> expression)
    : m_expression(std::move(expression))
{
}

VarsetValueMappingC::~VarsetValueMappingC() = default;

VarsetValueMappingC *VarsetValueMappingC::create(const QString &text,
                                                 const QHash<QString, MapVarValueC> &source,
                                                 const QHash<QString, MapVarValueC> &target)
{
    VarsetNames names(source, target);
    const auto node = VKTab::parseOrReport(VKTab::ExpressionUse::Formula, text, names);
    if (!node)
        return nullptr;
    return new VarsetValueMappingC(std::make_shared<const VKTab::ExpressionText>(text, *node));
}

VarsetValueMappingC *VarsetValueMappingC::fromText(const QString &text)
{
    return new VarsetValueMappingC(
        std::make_shared<const VKTab::ExpressionText>(VKTab::ExpressionUse::Formula, text));
}

QString VarsetValueMappingC::getTargetVarName() const
{
    const auto program = m_expression->program();
    return program ? program->target() : QString();
}

VarsetValueMappingC *VarsetValueMappingC::clone() const
{
    return new VarsetValueMappingC(m_expression);
}

void VarsetValueMappingC::updateVarset(const QHash<QString, MapVarValueC> &in,
                                       QHash<QString, MapVarValueC> &out) const
{
    const auto program = m_expression->program();
    if (!program)
        return;
    VKTab::ExpressionValue result;
    program->evaluate(VKTab::VarsetSource(*program, in, out), result);
    out.insert(program->target(), VKTab::namedValue(program->target(), result));
}

void VarsetValueMappingC::toJson(PJsonValue &out) const
{
    out[QStringLiteral("kind")] = PJsonValue(QStringLiteral("value"));
    out[QStringLiteral("formula")] = PJsonValue(m_expression->text());
}

void VarsetValueMappingC::bind(VKTab::BoundModifiers &bound) const
{
    if (auto program = m_expression->program())
        bound.bindFormula(std::move(program));
}
