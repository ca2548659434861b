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
    return VarsetOfLine(line, excluded).equals(text);
}

VarsetOfLine::VarsetOfLine(const Line &line, const QList<VarId> &excluded)
    : m_isValid(line.isValid())
{
    if (!m_isValid)
        return;
    for (const Var &var : line.getVarList()) {
        // The first of a name stands for it.
        if (!m_names.contains(var.getName()))
            m_names.insert(var.getName(), !excluded.contains(var.getVarId()));
    }
    m_own = valuesOf(VarsetCreate::xVarset(line));
}

VarsetOfLine::~VarsetOfLine() = default;

bool VarsetOfLine::equals(const QString &text) const
{
    if (m_lastText != text) {
        m_lastEquals = compare(text);
        m_lastText = text;
    }
    return m_lastEquals;
}

VarsetOfLine::Values VarsetOfLine::valuesOf(const QList<TabVarValue> &list) const
{
    Values values;
    for (const TabVarValue &value : list) {
        if (m_names.value(value.getName(), false))
            values.insert(value.getName(), value.getValue());
    }
    return values;
}

bool VarsetOfLine::compare(const QString &text) const
{
    MidentClass stored;
    if (!m_isValid || !stored.SplitVarValue(text))
        return false;
    const Values other = valuesOf(entries(stored));
    return m_own.size() == other.size() &&
           std::equal(m_own.keyValueBegin(), m_own.keyValueEnd(), other.keyValueBegin(),
                      [](const auto &a, const auto &b) {
                          return a.first == b.first && equalCells(a.second, b.second, '.');
                      });
}

} // namespace VKTab
