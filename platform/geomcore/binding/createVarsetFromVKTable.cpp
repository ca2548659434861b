#include "createVarsetFromVKTable.h"

#include <geomcore/table/Content.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/LineView.h>

#include <geomcore/expression/MapVarValueC.h>

using namespace VKTab;

namespace {

bool enters(const Var &var, const QSet<int> &excluded)
{
    return entersVarset(var) && !excluded.contains(var.getVarId().value());
}

} // namespace

bool entersVarset(const Var &var)
{
    return var.getVarSource() == fileLayerType() && var.getVarType() <= VarTypeComputed;
}

QHash<QString, MapVarValueC> createVarsetFromVKTable(const Content &content, const LineId &line,
                                                     const QSet<int> &excluded)
{
    return createVarsetFromVKTable(content.getLine(line, false), excluded);
}

QHash<QString, MapVarValueC> createVarsetFromVKTable(const Line &line, const QSet<int> &excluded)
{
    QHash<QString, MapVarValueC> varset;
    const LineView view(line);
    if (!view.isValid())
        return varset;
    const QList<Var> vars = line.getVarList();
    varset.reserve(vars.size());
    for (const Var &var : vars) {
        if (!enters(var, excluded))
            continue;
        MapVarValueC value;
        value.setName(var.getName());
        value.setValue(view.value(LineView::columnOf(var.getVarId())));
        value.setNumeric(var.isNumeric());
        varset.insert(var.getName(), value);
    }
    return varset;
}
