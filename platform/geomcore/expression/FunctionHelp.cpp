#include "FunctionHelp.h"

#include <core/text/PString.h>

#include <algorithm>
#include <vector>

namespace VKTab {

namespace {

constexpr const char *helpContext = "VelkGeomCore";
constexpr const char *angle = QT_TRANSLATE_NOOP("VelkGeomCore", "Winkel");
constexpr const char *anyText = QT_TRANSLATE_NOOP("VelkGeomCore", "Text");
constexpr const char *anyNumber = QT_TRANSLATE_NOOP("VelkGeomCore", "Zahl");
constexpr const char *someNumbers = QT_TRANSLATE_NOOP("VelkGeomCore", "Zahl, Zahl, ...");

constexpr std::array helps = {
    FunctionHelp{"ABS",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Betrag: die Zahl ohne Vorzeichen."),
                 {{{"ABS(-4.5)", "4.5"}, {"ABS(4.5)", "4.5"}}}},
    FunctionHelp{"ACOS",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Winkel in Grad, der diesen Kosinus hat."),
                 {{{"ACOS(0)", "90"}, {"ACOS(1)", "0"}}}},
    FunctionHelp{"ASIN",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Winkel in Grad, der diesen Sinus hat."),
                 {{{"ASIN(1)", "90"}, {"ASIN(0)", "0"}}}},
    FunctionHelp{"ATAN",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Winkel in Grad, der diesen Tangens hat."),
                 {{{"ATAN(1)", "45"}, {"ATAN(0)", "0"}}}},
    FunctionHelp{"ATAN2",
                 QT_TRANSLATE_NOOP("VelkGeomCore", "y, x"),
                 QT_TRANSLATE_NOOP("VelkGeomCore",
                                   "Der Winkel in Grad zwischen der x-Achse und der Strecke vom "
                                   "Nullpunkt zum Punkt (x, y)."),
                 {{{"ATAN2(1, 1)", "45"}, {"ATAN2(1, 0)", "90"}}}},
    FunctionHelp{"CONCAT",
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Wert, Wert, ..."),
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Alle Werte hintereinander als ein Text."),
                 {{{"CONCAT('M', 12)", "'M12'"}, {"CONCAT('A', '-', 2)", "'A-2'"}}}},
    FunctionHelp{"COS",
                 angle,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Kosinus eines Winkels in Grad."),
                 {{{"COS(60)", "0.5"}, {"COS(0)", "1"}}}},
    FunctionHelp{
        "DEFINED",
        QT_TRANSLATE_NOOP("VelkGeomCore", "Wert"),
        QT_TRANSLATE_NOOP("VelkGeomCore",
                          "Ob es den Wert gibt: eine leere Zelle hat keinen. Steht, wo ein "
                          "Vergleich stehen kann."),
        {{{"IF(DEFINED(NUM('12')), 1, 0)", "1"}, {"IF(DEFINED(NUM('M12')), 1, 0)", "0"}}}},
    FunctionHelp{"EXP",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Die Zahl e, hoch der Zahl."),
                 {{{"EXP(0)", "1"}, {"ROUND(EXP(1), 3)", "2.718"}}}},
    FunctionHelp{"FIND",
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Text, Gesuchtes"),
                 QT_TRANSLATE_NOOP("VelkGeomCore",
                                   "Die Stelle, von 1 an, an der der gesuchte Text im Text zum "
                                   "ersten Mal steht; 0, wenn er nicht darin steht."),
                 {{{"FIND('M12x40', 'x')", "4"}, {"FIND('M12', 'x')", "0"}}}},
    FunctionHelp{"IF",
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Vergleich, dann, sonst"),
                 QT_TRANSLATE_NOOP("VelkGeomCore",
                                   "Der zweite Wert, wenn der Vergleich gilt, sonst der dritte."),
                 {{{"IF(3 .GT. 2, 'lang', 'kurz')", "'lang'"}, {"IF(3 .LT. 2, 10, 20)", "20"}}}},
    FunctionHelp{"INT",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Die Zahl ohne ihre Nachkommastellen."),
                 {{{"INT(2.9)", "2"}, {"INT(-2.9)", "-2"}}}},
    FunctionHelp{"LEN",
                 anyText,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Die Anzahl der Zeichen des Textes."),
                 {{{"LEN('M12')", "3"}, {"LEN('Größe')", "5"}}}},
    FunctionHelp{"LOG",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der natürliche Logarithmus."),
                 {{{"LOG(1)", "0"}, {"LOG(EXP(2))", "2"}}}},
    FunctionHelp{"LOG10",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Logarithmus zur Basis 10."),
                 {{{"LOG10(1000)", "3"}, {"LOG10(1)", "0"}}}},
    FunctionHelp{"LOWER",
                 anyText,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Text in kleinen Buchstaben."),
                 {{{"LOWER('ISO 4014')", "'iso 4014'"}, {"LOWER('Ä')", "'ä'"}}}},
    FunctionHelp{"MAX",
                 someNumbers,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Die größte der Zahlen."),
                 {{{"MAX(3, 12, 8)", "12"}, {"MAX(-1, -2)", "-1"}}}},
    FunctionHelp{"MIN",
                 someNumbers,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Die kleinste der Zahlen."),
                 {{{"MIN(3, 12, 8)", "3"}, {"MIN(-1, -2)", "-2"}}}},
    FunctionHelp{"MOD",
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Zahl, Teiler"),
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Rest der Teilung, mit dem Vorzeichen der "
                                                   "ersten Zahl."),
                 {{{"MOD(17, 5)", "2"}, {"MOD(-17, 5)", "-2"}}}},
    FunctionHelp{"NUM",
                 anyText,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Die Zahl, als die sich der Text liest; kein "
                                                   "Wert, wenn er keine ist."),
                 {{{"NUM('12.50') + 1", "13.5"}, {"NUM(SUBSTR('M12', 2))", "12"}}}},
    FunctionHelp{
        "REPLACE",
        QT_TRANSLATE_NOOP("VelkGeomCore", "Text, Gesuchtes, Ersatz"),
        QT_TRANSLATE_NOOP("VelkGeomCore",
                          "Der Text, in dem der Ersatz überall steht, wo der gesuchte Text "
                          "stand."),
        {{{"REPLACE('4-8-4', '4', '5')", "'5-8-5'"}, {"REPLACE('M 12', ' ', '')", "'M12'"}}}},
    FunctionHelp{"ROUND",
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Zahl, Stellen"),
                 QT_TRANSLATE_NOOP("VelkGeomCore",
                                   "Die Zahl, gerundet auf Nachkommastellen; ohne Stellen auf eine "
                                   "ganze Zahl, mit negativen vor dem Komma."),
                 {{{"ROUND(2.345, 2)", "2.35"}, {"ROUND(1250, -2)", "1300"}}}},
    FunctionHelp{"SIN",
                 angle,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Sinus eines Winkels in Grad."),
                 {{{"SIN(30)", "0.5"}, {"SIN(90)", "1"}}}},
    FunctionHelp{"SQRT",
                 anyNumber,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Die Quadratwurzel; kein Wert für negative "
                                                   "Zahlen."),
                 {{{"SQRT(144)", "12"}, {"SQRT(0.25)", "0.5"}}}},
    FunctionHelp{
        "SUBSTR",
        QT_TRANSLATE_NOOP("VelkGeomCore", "Text, Anfang, Anzahl"),
        QT_TRANSLATE_NOOP("VelkGeomCore",
                          "Der Teil des Textes vom Anfang an, von 1 gezählt, mit so vielen "
                          "Zeichen; ohne Anzahl alles bis zum Ende."),
        {{{"SUBSTR('M12x40', 2, 2)", "'12'"}, {"SUBSTR('M12x40', 5)", "'40'"}}}},
    FunctionHelp{"TAN",
                 angle,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Tangens eines Winkels in Grad."),
                 {{{"TAN(45)", "1"}, {"TAN(0)", "0"}}}},
    FunctionHelp{"TEXT",
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Wert, Stellen"),
                 QT_TRANSLATE_NOOP("VelkGeomCore",
                                   "Der Wert als Text, eine Zahl mit so vielen Nachkommastellen; "
                                   "ohne Stellen so, wie sie ist."),
                 {{{"TEXT(2.5, 2)", "'2.50'"}, {"TEXT(12)", "'12'"}}}},
    FunctionHelp{"TRIM",
                 anyText,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Text ohne Leerzeichen am Anfang und am "
                                                   "Ende."),
                 {{{"TRIM('  M12 ')", "'M12'"}, {"TRIM('M 12')", "'M 12'"}}}},
    FunctionHelp{"UPPER",
                 anyText,
                 QT_TRANSLATE_NOOP("VelkGeomCore", "Der Text in großen Buchstaben."),
                 {{{"UPPER('iso 4014')", "'ISO 4014'"}, {"UPPER('ä')", "'Ä'"}}}},
};

std::vector<FunctionHelp> &allHelps()
{
    static std::vector<FunctionHelp> all(helps.begin(), helps.end());
    return all;
}

} // namespace

QString FunctionHelp::signature() const
{
    return QLatin1String(name) + u'(' + PString::translate(arguments, helpContext) + u')';
}

QString FunctionHelp::text() const
{
    return PString::translate(description, helpContext);
}

void addFunctionHelp(const FunctionHelp &help)
{
    std::vector<FunctionHelp> &all = allHelps();
    const auto behind = [](const FunctionHelp &a, const FunctionHelp &b) {
        return qstricmp(a.name, b.name) < 0;
    };
    all.insert(std::upper_bound(all.begin(), all.end(), help, behind), help);
}

std::span<const FunctionHelp> functionHelps()
{
    return allHelps();
}

const FunctionHelp *findFunctionHelp(QStringView name)
{
    const auto &all = allHelps();
    const auto hit = std::find_if(all.begin(), all.end(), [&](const FunctionHelp &help) {
        return name.compare(QLatin1String(help.name), Qt::CaseInsensitive) == 0;
    });
    return hit == all.end() ? nullptr : &*hit;
}

} // namespace VKTab
