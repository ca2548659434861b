#include "CheckMessages.h"

#include <core/text/PString.h>

namespace Mapper::CheckMessages {

namespace {

QString shown(std::string_view value)
{
    if (value.empty())
        return PString::translate("kein Wert", "VelkGeomCore");
    return QString::fromUtf8(value.data(), qsizetype(value.size()));
}

QString withLines(const QString &message, const QList<int> &lines)
{
    QString text = message;
    for (int line : lines) {
        text += u'\n';
        text += PString::translate("  Zeile %1", "VelkGeomCore").arg(line);
    }
    return text;
}

} // namespace

QString difference(const QString &variable, std::string_view oldValue, std::string_view newValue)
{
    return PString::translate(
               "Die Werte der Variable %1 sind verschieden.\n  Alter Wert: %2\n  Neuer Wert: %3",
               "VelkGeomCore")
        .arg(variable, shown(oldValue), shown(newValue));
}

QString nothingInCommon()
{
    return PString::translate("Quelle und Ziel haben keine gemeinsame Variable mit einem Wert.",
                              "VelkGeomCore");
}

QString equalTargetLines(const QList<int> &lines)
{
    return withLines(
        PString::translate("Weitere Zeilen der Zieltabelle haben diese Werte.", "VelkGeomCore"),
        lines);
}

QString equalSourceLines(const QList<int> &lines)
{
    return withLines(
        PString::translate("Weitere Zeilen der Quelltabelle haben diese Werte.", "VelkGeomCore"),
        lines);
}

QString equalElsewhere(const QString &project, int line)
{
    return PString::translate("Auch ein anderes Zielprojekt hat eine Zeile mit diesen Werten.\n  "
                              "Projekt: %1\n  Zeile: %2",
                              "VelkGeomCore")
        .arg(project, QString::number(line));
}

QString tooLittleCompared(const QStringList &variables)
{
    return PString::translate("Zu wenige Werte der Zeile haben eine Entsprechung in der "
                              "Zieltabelle.\n  Ohne Entsprechung: %1",
                              "VelkGeomCore")
        .arg(variables.join(QStringLiteral(", ")));
}

QString otherProject(const QString &source, const QString &target)
{
    return PString::translate("Das Zielprojekt heißt anders als das Quellprojekt, und keine "
                              "Zuordnung dorthin ist bestätigt.\n  Quellprojekt: %1\n  "
                              "Zielprojekt: %2",
                              "VelkGeomCore")
        .arg(source, target);
}

QString reworkedTable(const QString &project)
{
    return PString::translate("Die meisten Zeilen haben im Zielprojekt andere Werte.\n  "
                              "Zielprojekt: %1",
                              "VelkGeomCore")
        .arg(project);
}

QString proposedRules()
{
    return PString::translate("Nur wegen vorgeschlagener Bedingungen oder Variablenzuordnungen "
                              "gleich. Sie gelten, sobald eine Zeile des Ziels bestätigt ist.",
                              "VelkGeomCore");
}

QString otherDesignation(std::string_view oldText, std::string_view newText)
{
    return PString::translate("Die Normbezeichnungen sind verschieden.\n  Alte Normbezeichnung: "
                              "%1\n  Neue Normbezeichnung: %2",
                              "VelkGeomCore")
        .arg(shown(oldText), shown(newText));
}

QString failedCondition(const QString &condition)
{
    return PString::translate("Eine Bedingung des Zielprojekts ist nicht erfüllt.\n  %1",
                              "VelkGeomCore")
        .arg(condition);
}

QString faultyCondition(const QString &condition)
{
    return PString::translate("Eine Bedingung eines Zielprojekts ist fehlerhaft.\n  %1",
                              "VelkGeomCore")
        .arg(condition);
}

QString dividedLine()
{
    return PString::translate("Andere Werte der Wertebereiche gehören zu einem anderen Ziel.",
                              "VelkGeomCore");
}

QString tooManyOverlap()
{
    return PString::translate("Zu viele Wertebereiche der Zieltabelle überschneiden sich, um alle "
                              "zu vergleichen.",
                              "VelkGeomCore");
}

QString confirmedForOther(int sourceLine)
{
    return withLines(PString::translate("Die Zielzeile ist schon für eine andere Zeile bestätigt.",
                                        "VelkGeomCore"),
                     sourceLine < 0 ? QList<int>() : QList<int>{sourceLine});
}

QString noTable(const QString &project)
{
    return PString::translate("Die Tabelle des Zielprojekts konnte nicht gelesen werden.\n  "
                              "Projekt: %1",
                              "VelkGeomCore")
        .arg(project);
}

QString noLine(const QString &project, int line)
{
    return PString::translate("Die zugeordnete Zeile gibt es in der Zieltabelle nicht.\n  "
                              "Projekt: %1\n  Zeile: %2",
                              "VelkGeomCore")
        .arg(project, QString::number(line));
}

} // namespace Mapper::CheckMessages
