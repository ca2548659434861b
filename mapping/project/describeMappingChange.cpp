#include "describeMappingChange.h"

#include <core/text/PString.h>
#include <geomcore/records/MappingChangeType.h>
#include <geomcore/table/Line.h>

#include <QDateTime>

namespace {

QString translated(const char *text)
{
    return PString::translate(text, "VelkLinkDbGui");
}

/// Date of a version text, empty if it does not tell one. Two-digit years are of the last century,
/// which the text does not show.
QString versionDate(const QString &version)
{
    const QDateTime date = QDateTime::fromString(version.mid(1) + QStringLiteral("Z"),
                                                 QStringLiteral("yyMMddhhmmsst"));
    return date.toString(QStringLiteral("dd.MM.yy hh:mm:ss"));
}

QString describeVersions(const MappingChange &change)
{
    const QString path = change.target.getTargetPath();
    if (change.oldTableVersion != change.newTableVersion)
        return translated(QT_TRANSLATE_NOOP(
                              "VelkLinkDbGui",
                              "Die Tabellenversion des Zielprojektes mit dem Pfad %1 wurde "
                              "geändert.\n  Altes Tabellendatum: %2, Neues Tabellendatum: %3"))
            .arg(path, versionDate(change.oldTableVersion), versionDate(change.newTableVersion));
    if (change.oldProjectVersion != change.newProjectVersion)
        return translated(
                   QT_TRANSLATE_NOOP("VelkLinkDbGui",
                                     "Die Projektversion des Zielprojektes mit dem Pfad %1 wurde "
                                     "geändert.\n  Altes Projektdatum: %2, Neues Projektdatum: %3"))
            .arg(path, versionDate(change.oldProjectVersion),
                 versionDate(change.newProjectVersion));
    return QString();
}

} // namespace

bool isLineChange(const MappingChange &change)
{
    return MappingChangeType::isOfLine(change.type);
}

QString lineDesignation(const VKTab::ContentRef &table, const VKTab::LineId &line)
{
    const VKTab::Line found = table.getLine(line, false);
    return found.isValid() ? found.getValue(VKTab::LineI::NormDesignation).toString() : QString();
}

QString describeProjectChange(const MappingChange &change)
{
    const QString path = change.target.getTargetPath();
    switch (change.type) {
    case MappingChangeType::TargetRemoved:
        return PString::translate("Das Zielprojekt mit dem Pfad %1 wurde entfernt.",
                                  "VelkLinkDbGui")
            .arg(path);
    case MappingChangeType::TargetAdded: // that the not-found target was added is not told
        if (path.isEmpty())
            return QString();
        return PString::translate("Das Zielprojekt mit dem Pfad %1 wurde hinzugefügt.",
                                  "VelkLinkDbGui")
            .arg(path);
    case MappingChangeType::MappingRemoved:
        return PString::translate("Es wurde ein Mapping für das Projekt %1 entfernt.",
                                  "VelkLinkDbGui")
            .arg(change.removedMapping.getSourcePath());
    case MappingChangeType::MappingAdded:
        return PString::translate("Es wurde ein Mapping für das Projekt %1 hinzugefügt.",
                                  "VelkLinkDbGui")
            .arg(change.addedMapping.getSourcePath());
    case MappingChangeType::Conditions:
        return PString::translate("Die Bedingungen für das Projekt %1 wurden geändert.",
                                  "VelkLinkDbGui")
            .arg(path);
    case MappingChangeType::VariableMappings:
        return PString::translate("Die Variablenzuordnung für das Projekt %1 wurde geändert.",
                                  "VelkLinkDbGui")
            .arg(path);
    case MappingChangeType::TargetVersions:
        return describeVersions(change);
    default:
        return QString();
    }
}

QString plannedText(const QString &lineText, const QString &targetPath,
                    const PrjMappingTargetLineC &line)
{
    const QString heading = PString::translate("Von Ihnen geplante Änderung:", "VelkLinkDbGui");
    if (lineText.isEmpty() && line.getTargetLineId() == -1 && targetPath.isEmpty())
        return heading + PString::translate("<br />Diese Zeile wurde als ausgelaufen markiert.",
                                            "VelkLinkDbGui");
    return heading +
           PString::translate("<br />Diese Zeile wurde der Zeile<br />%1 des Projektes %2 "
                              "zugewiesen.",
                              "VelkLinkDbGui")
               .arg(lineText, targetPath);
}

QString currentText(const QString &lineText, const QString &targetPath,
                    const PrjMappingTargetLineC &line)
{
    const QString heading = PString::translate(
        "<br /><br />Von einem anderen Nutzer durchgeführte Änderung:", "VelkLinkDbGui");
    const bool hasLine = line.getTargetLineId() != -1;
    if (lineText.isEmpty() && !hasLine && targetPath.isEmpty())
        return heading + PString::translate("<br />Die Zeile wurde als ausgelaufen markiert.",
                                            "VelkLinkDbGui");
    if (lineText.isEmpty() && hasLine && !targetPath.isEmpty())
        return heading +
               PString::translate("<br />Die Zeile wurde neu zugewiesen. Die neu zugewiesene Zeile "
                                  "existiert (lokal) nicht.",
                                  "VelkLinkDbGui");
    return heading + PString::translate("<br />Neue Zuordnung: <br />%3 des Projektes %4 <br />.",
                                        "VelkLinkDbGui")
                         .arg(lineText, targetPath);
}
