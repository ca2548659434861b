#include "FormulaVariables.h"

#include <geomcore/expression/Tokenizer.h>
#include <geomcore/table/Content.h>

#include <algorithm>

namespace {

bool canBeWritten(const QString &name)
{
    const QList<VKTab::Token> tokens = VKTab::Tokenizer()(name);
    return tokens.size() == 1 && tokens.first().kind == VKTab::TokenKind::Name &&
           tokens.first().text == name;
}

FormulaItem variable(const QString &text, const QString &detail)
{
    QString help = QStringLiteral("<b>%1</b>").arg(text.toHtmlEscaped());
    if (!detail.isEmpty())
        help += QStringLiteral("<br>") + detail.toHtmlEscaped();
    return {FormulaItem::Variable, text, detail.simplified(), help};
}

QString described(const VKTab::Var &var)
{
    QStringList parts{var.getDescription(), var.getUnit()};
    parts.removeAll(QString());
    return parts.join(QStringLiteral(", "));
}

} // namespace

FormulaVariables FormulaVariables::ofVarset(const QHash<QString, MapVarValueC> &varset,
                                            const QString &label, bool prefixed)
{
    FormulaVariables result{label, {}};
    QStringList names = varset.keys();
    std::sort(names.begin(), names.end());
    for (const QString &name : std::as_const(names)) {
        if (canBeWritten(name))
            result.items.append(
                variable(prefixed ? label + name : name, varset.value(name).getValue().toString()));
    }
    return result;
}

FormulaVariables FormulaVariables::ofTable(const VKTab::Content &table, const QString &label,
                                           bool prefixed)
{
    FormulaVariables result{label, {}};
    if (!table.isValid())
        return result;
    for (const VKTab::Var &var : table.getVarList()) {
        const QString name = var.getName();
        if (canBeWritten(name))
            result.items.append(variable(prefixed ? label + name : name, described(var)));
    }
    return result;
}
