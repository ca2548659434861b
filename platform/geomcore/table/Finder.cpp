#include "Finder.h"

#include "Content.h"
#include "LayerType.h"
#include "LineI.h"
#include "LineSearch.h"

namespace VKTab {

namespace {

VarTypeFilterFlag kindOf(const Var &var)
{
    if (var.getVarSource() != fileLayerType())
        return FilterForeign;
    if (var.isFW())
        return var.isHidden() ? FilterHiddenRange : FilterShownRange;
    switch (var.getVarType()) {
    case VarTypePlain:
        return FilterPlain;
    case VarTypeComputed:
        return FilterComputed;
    default:
        return FilterInternal;
    }
}

} // namespace

QList<FindValue> Finder::toValueList(const Content &content, const QList<TabVarValue> &values,
                                     VarTypeFilterFlags filter) const
{
    QList<FindValue> result;
    for (const TabVarValue &value : values) {
        const Var var = content.getVar(value.getName());
        if (var.isValid() && filter.testFlag(kindOf(var)))
            result.append(FindValue(var, value.getValue()));
    }
    return result;
}

FindResult Finder::cmpLineWithValues(LineI &line, const QList<FindValue> &values) const
{
    if (!line.isValid())
        return {};
    bool equal = !values.isEmpty();
    for (const FindValue &value : values)
        equal &= line.hasValue(value.getVar(), value.getValue(), true);
    for (const FindValue &value : values)
        line.putValue(value.getVar().getVarId(), value.getValue());
    return equal ? FindResult(line.getLineInfo().getLineId()) : FindResult();
}

QList<FindResult> Finder::findLines(const Content &content, const QVector<LineId> &lines,
                                    const QList<FindValue> &values, FindFlags flags) const
{
    if (!content.isValid() || values.isEmpty() || lines.isEmpty())
        return {};
    return LineSearch(content, values, flags).search(lines);
}

} // namespace VKTab
