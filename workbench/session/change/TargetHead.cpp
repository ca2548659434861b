#include "TargetHead.h"

#include <core/json/PJsonValue.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/binding/VarsetVarMappingC.h>
#include <geomcore/records/PrjMappingTargetC.h>
#include <geomcore/records/sameTargetHead.h>

#include <memory>

namespace {

QString textOf(const VarsetConditionI *condition)
{
    return condition->getCondition();
}

QByteArray textOf(const VarsetModifierI *modifier)
{
    PJsonValue value;
    modifier->toJson(value);
    return value.toByteArray(true);
}

VarsetModifierI *makeModifier(const QByteArray &json)
{
    PJsonValue value;
    if (!value.parse(json))
        return nullptr;
    if (value.value(QStringLiteral("kind")).toText() == u"value")
        return VarsetValueMappingC::fromText(value.value(QStringLiteral("formula")).toText());
    return std::make_unique<VarsetVarMappingC>(value.value(QStringLiteral("source")).toText(),
                                               value.value(QStringLiteral("target")).toText())
        .release();
}

} // namespace

TargetHead TargetHead::of(const PrjMappingTargetC &target)
{
    TargetHead head;
    head.path = target.getTargetPath();
    head.version = target.getTargetVersion();
    head.tabVersion = target.getTabVersion();
    head.valid = target.isValid();
    head.proposed = target.hasProposedRules();
    for (const VarsetConditionI *condition : target.getConditions())
        head.conditions += textOf(condition);
    for (const VarsetModifierI *modifier : target.getVarsetModifier())
        head.modifiers += textOf(modifier);
    return head;
}

bool TargetHead::equal(const PrjMappingTargetC &a, const PrjMappingTargetC &b)
{
    return sameTargetHead(a, b);
}

void TargetHead::applyTo(PrjMappingTargetC &target) const
{
    target.setTargetPath(path);
    target.setTargetVersion(version);
    target.setTabVersion(tabVersion);
    target.setValid(valid);
    target.clearConditions();
    for (const QString &condition : conditions)
        target.addCondition(VarsetConditionC::fromText(condition));
    target.clearModifier();
    for (const QByteArray &modifier : modifiers)
        target.addModifier(makeModifier(modifier));
    target.setProposedRules(proposed);
}

QStringList TargetHead::ignored() const
{
    QStringList names;
    for (const QByteArray &modifier : modifiers) {
        PJsonValue value;
        if (!value.parse(modifier) || value.value(QStringLiteral("kind")).toText() != u"var")
            continue;
        if (value.value(QStringLiteral("source")).toText().isEmpty())
            names += value.value(QStringLiteral("target")).toText();
    }
    return names;
}

PJsonValue TargetHead::toJson() const
{
    PJsonValue json(PJsonValue::Object);
    json[QStringLiteral("path")] = PJsonValue(path);
    json[QStringLiteral("version")] = PJsonValue(version);
    json[QStringLiteral("tabVersion")] = PJsonValue(tabVersion);
    json[QStringLiteral("valid")] = PJsonValue::fromBool(valid);
    if (proposed)
        json[QStringLiteral("proposed")] = PJsonValue::fromBool(true);
    PJsonValue texts(PJsonValue::Array);
    for (const QString &condition : conditions)
        texts.append(PJsonValue(condition));
    json[QStringLiteral("conditions")] = texts;
    PJsonValue rules(PJsonValue::Array);
    for (const QByteArray &modifier : modifiers) {
        PJsonValue rule;
        rule.parse(modifier);
        rules.append(rule);
    }
    json[QStringLiteral("modifiers")] = rules;
    return json;
}

TargetHead TargetHead::fromJson(const PJsonValue &json)
{
    TargetHead head;
    head.path = json.value(QStringLiteral("path")).toText();
    head.version = json.value(QStringLiteral("version")).toText();
    head.tabVersion = json.value(QStringLiteral("tabVersion")).toText();
    head.valid = json.value(QStringLiteral("valid")).toBool();
    head.proposed = json.value(QStringLiteral("proposed")).toBool();
    const PJsonValue texts = json.value(QStringLiteral("conditions"));
    for (int i = 0; i < texts.size(); ++i)
        head.conditions += texts.at(i).toText();
    const PJsonValue rules = json.value(QStringLiteral("modifiers"));
    for (int i = 0; i < rules.size(); ++i)
        head.modifiers += rules.at(i).toByteArray(true);
    return head;
}
