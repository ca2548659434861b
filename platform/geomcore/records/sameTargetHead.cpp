#include "sameTargetHead.h"

#include "PrjMappingC.h"

#include <core/json/PJsonValue.h>
#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/binding/VarsetModifierI.h>

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

template<class T>
bool sameTexts(const QList<const T *> &a, const QList<const T *> &b)
{
    if (a == b)
        return true;
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        if (a[i] != b[i] && textOf(a[i]) != textOf(b[i]))
            return false;
    }
    return true;
}

} // namespace

bool sameTargetHead(const PrjMappingTargetC &a, const PrjMappingTargetC &b)
{
    return a.getTargetPath() == b.getTargetPath() && a.getTargetVersion() == b.getTargetVersion() &&
           a.getTabVersion() == b.getTabVersion() && a.isValid() == b.isValid() &&
           a.hasProposedRules() == b.hasProposedRules() && sameConditions(a, b) &&
           sameModifiers(a, b);
}

bool sameConditions(const PrjMappingTargetC &a, const PrjMappingTargetC &b)
{
    return sameTexts(a.getConditions(), b.getConditions());
}

bool sameModifiers(const PrjMappingTargetC &a, const PrjMappingTargetC &b)
{
    return sameTexts(a.getVarsetModifier(), b.getVarsetModifier());
}

bool sameMapping(const PrjMappingC &a, const PrjMappingC &b)
{
    if (a.getSourcePath() != b.getSourcePath() || a.getSourceVersion() != b.getSourceVersion() ||
        a.getTabVersion() != b.getTabVersion() || a.getMappingState() != b.getMappingState() ||
        a.countTargets() != b.countTargets())
        return false;
    for (int i = 0; i < a.countTargets(); ++i) {
        if (!sameTargetHead(a.targetAt(i), b.targetAt(i)) ||
            !LineTable::isSame(a.targetAt(i).lines(), b.targetAt(i).lines()))
            return false;
    }
    return true;
}

bool sameTargetHeads(const PrjMappingC &a, const PrjMappingC &b)
{
    if (!a.isValid() || !b.isValid() || a.countTargets() != b.countTargets())
        return false;
    for (int i = 0; i < a.countTargets(); ++i) {
        if (!sameTargetHead(a.targetAt(i), b.targetAt(i)))
            return false;
    }
    return true;
}
