#include "FormulaItem.h"

#include <core/text/PString.h>
#include <geomcore/expression/FunctionHelp.h>

namespace {

QString translated(const char *text)
{
    return PString::translate(text, "VelkGeomCoreGui");
}

FormulaItem sign(FormulaItem::Kind kind, const char *text, const QString &meaning)
{
    const QString written = QLatin1String(text);
    return {kind, written, meaning,
            QStringLiteral("<b>%1</b> %2").arg(written.toHtmlEscaped(), meaning.toHtmlEscaped())};
}

QString helpOf(const VKTab::FunctionHelp &help)
{
    QString html = QStringLiteral("<b>%1</b><br>%2")
                       .arg(help.signature().toHtmlEscaped(), help.text().toHtmlEscaped());
    for (const auto &example : help.examples) {
        html += QStringLiteral("<br><code>%1</code> = <code>%2</code>")
                    .arg(QString::fromUtf8(example.statement).toHtmlEscaped(),
                         QString::fromUtf8(example.result).toHtmlEscaped());
    }
    return html;
}

} // namespace

QList<FormulaItem> formulaFunctions()
{
    QList<FormulaItem> items;
    for (const VKTab::FunctionHelp &help : VKTab::functionHelps()) {
        const QString name = QLatin1String(help.name);
        items.append(
            {FormulaItem::Function, name, help.signature().mid(name.size()), helpOf(help)});
    }
    return items;
}

QList<FormulaItem> formulaOperators()
{
    const auto item = [](const char *text, const QString &meaning) {
        return sign(FormulaItem::Operator, text, meaning);
    };
    return {item(".EQ.", translated("gleich")),
            item(".NE.", translated("ungleich")),
            item(".LT.", translated("kleiner")),
            item(".LE.", translated("kleiner oder gleich")),
            item(".GT.", translated("größer")),
            item(".GE.", translated("größer oder gleich")),
            item("+", translated("plus")),
            item("-", translated("minus")),
            item("*", translated("mal")),
            item("/", translated("geteilt durch")),
            item("**", translated("hoch")),
            item("=", translated("Zuweisung an eine Variable der Zieltabelle"))};
}

QList<FormulaItem> formulaLogic()
{
    const auto item = [](const char *text, const QString &meaning) {
        return sign(FormulaItem::Logic, text, meaning);
    };
    return {item(".AND.", translated("beide Vergleiche gelten")),
            item(".OR.", translated("einer der Vergleiche gilt")),
            item(".NOT.", translated("der Vergleich gilt nicht"))};
}

QString formulaFunctionHelp(QStringView name)
{
    const VKTab::FunctionHelp *const help = VKTab::findFunctionHelp(name);
    return help ? helpOf(*help) : QString();
}
