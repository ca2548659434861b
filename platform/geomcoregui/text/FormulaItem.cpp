#include "FormulaItem.h"

#include <core/text/PString.h>
#include <geomcore/expression/FunctionHelp.h>

namespace {

QString itemText(const char *text)
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
    return {item(".EQ.", itemText("gleich")),
            item(".NE.", itemText("ungleich")),
            item(".LT.", itemText("kleiner")),
            item(".LE.", itemText("kleiner oder gleich")),
            item(".GT.", itemText("größer")),
            item(".GE.", itemText("größer oder gleich")),
            item("+", itemText("plus")),
            item("-", itemText("minus")),
            item("*", itemText("mal")),
            item("/", itemText("geteilt durch")),
            item("**", itemText("hoch")),
            item("=", itemText("Zuweisung an eine Variable der Zieltabelle"))};
}

QList<FormulaItem> formulaLogic()
{
    const auto item = [](const char *text, const QString &meaning) {
        return sign(FormulaItem::Logic, text, meaning);
    };
    return {item(".AND.", itemText("beide Vergleiche gelten")),
            item(".OR.", itemText("einer der Vergleiche gilt")),
            item(".NOT.", itemText("der Vergleich gilt nicht"))};
}

QString formulaFunctionHelp(QStringView name)
{
    const VKTab::FunctionHelp *const help = VKTab::findFunctionHelp(name);
    return help ? helpOf(*help) : QString();
}
