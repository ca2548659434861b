#pragma once

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/expression/NodeAssign.h>
#include <geomcore/expression/Nodes.h>

#include <QHash>
#include <QStringList>

#include <initializer_list>
#include <utility>

/// What the tests of the expression types share.
namespace ExpressionTesting {

using Varset = QHash<QString, MapVarValueC>;

inline MapVarValueC value(const QString &name, const QString &text, bool numeric = false)
{
    MapVarValueC result;
    result.setName(name);
    result.setValue(VKTab::Value(text));
    result.setNumeric(numeric);
    return result;
}

inline Varset varset(std::initializer_list<std::pair<const char *, const char *>> values)
{
    Varset result;
    for (const auto &[name, text] : values)
        result.insert(QString::fromUtf8(name), value(QString::fromUtf8(name), text));
    return result;
}

/// "NAME=value" of each entry, sorted; "NAME" alone for an entry without a value.
inline QStringList listed(const Varset &values)
{
    QStringList result;
    for (auto it = values.begin(); it != values.end(); ++it) {
        const QString text = it->getValue().toString();
        result.append(text.isEmpty() ? it.key() : it.key() + '=' + text);
    }
    result.sort();
    return result;
}

inline QString operatorName(VKTab::NodeOperator op)
{
    static const char *const names[] = {"",   "+",  "-",  "*",  "/",  "**",
                                        "eq", "ne", "lt", "le", "gt", "ge"};
    return QLatin1String(names[int(op)]);
}

inline QString nodeName(const VKTab::NodeBase &node)
{
    switch (node.getArt()) {
    case VKTab::NumberArt:
        return static_cast<const VKTab::NodeNumber &>(node).text();
    case VKTab::TextArt:
        return '"' + static_cast<const VKTab::NodeText &>(node).content() + '"';
    case VKTab::VariableArt: {
        const auto &variable = static_cast<const VKTab::NodeVariable &>(node);
        return (variable.isPrefixed() ? "@" : "") + variable.name();
    }
    case VKTab::SignArt:
    case VKTab::ArithmeticArt:
    case VKTab::ComparisonArt:
        return operatorName(static_cast<const VKTab::NodeOperation &>(node).op());
    case VKTab::NotArt:
        return "not";
    case VKTab::AndArt:
        return "and";
    case VKTab::OrArt:
        return "or";
    case VKTab::FunctionArt:
        return "call";
    case VKTab::AssignArt:
        return "= " + static_cast<const VKTab::NodeAssign &>(node).name();
    default:
        return "invalid";
    }
}

/// The tree in prefix notation: "(+ A (* 2 B))".
inline QString tree(const VKTab::NodeBase &node)
{
    if (node.children().empty())
        return nodeName(node);
    QStringList parts{nodeName(node)};
    for (const auto &child : node.children())
        parts.append(tree(*child));
    return '(' + parts.join(' ') + ')';
}

} // namespace ExpressionTesting
