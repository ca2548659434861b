#include "VarsetCreate.h"

#include <geomcore/table/Content.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/Line.h>
#include <geomcore/value/MidentClass.h>
#include <geomcore/value/RangeCell.h>

#include <QMap>

#include <algorithm>

namespace VKTab {

namespace {

bool takesPart(const Var &var)
{
    if (var.getName() == u"TMVMAT")
        return true;
    static const QStringList types{QStringLiteral("SM"), QStringLiteral("GM"), QStringLiteral("FM"),
                                   QStringLiteral("DM")};
    return var.isFW() && var.getVarSource() != erpLayerType() &&
           types.contains(var.getZTypeAsString());
}

Var varOf(const QList<Var> &vars, const QString &name)
{
    for (const Var &var : vars) {
        if (var.getName() == name)
            return var;
    }
    return {};
}

using Values = QMap<QString, QString>;

Values valuesOf(const QList<TabVarValue> &list, const QList<Var> &vars,
                const QList<VarId> &excluded)
{
    Values values;
    for (const TabVarValue &value : list) {
        const Var var = varOf(vars, value.getName());
        if (var.isValid() && !excluded.contains(var.getVarId()))
            values.insert(value.getName(), value.getValue());
    }
    return values;
}

QList<TabVarValue> entries(const MidentClass &text)
{
    QList<TabVarValue> list;
    for (int i = 0; i < text.CountVars(); ++i)
        list.append(TabVarValue(text.GetVarName(i), text.GetVarValue(i), QString(), 0, 1));
    return list;
}

} // namespace

QList<TabVarValue> VarsetCreate::xVarset(const Line &line)
{
    QList<TabVarValue> list;
    if (!line.isValid())
        return list;
    for (const Var &var : line.getVarList()) {
        if (!takesPart(var))
            continue;
        const Value value = line.getValue(var, FormatPlain | FormatUntranslated);
        list.append(TabVarValue(var.getName(), value.toString(), QString(), 0, 1));
    }
    return list;
}

QString VarsetCreate::createXVarset(const Content &content, const LineId &line)
{
    return MidentClass::varValuListToString(xVarset(content.getLine(line, false)), u'{', u'}',
                                            false);
}

bool VarsetCreate::compareXVarset(const Line &line, const QString &text,
                                  const QList<VarId> &excluded)
{
    MidentClass stored;
    if (!line.isValid() || !stored.SplitVarValue(text))
        return false;
    const QList<Var> vars = line.getVarList();
    const Values own = valuesOf(xVarset(line), vars, excluded);
    const Values other = valuesOf(entries(stored), vars, excluded);
    return own.size() == other.size() &&
           std::equal(own.keyValueBegin(), own.keyValueEnd(), other.keyValueBegin(),
                      [](const auto &a, const auto &b) {
                          return a.first == b.first && equalCells(a.second, b.second, '.');
                      });
}

} // namespace VKTab
