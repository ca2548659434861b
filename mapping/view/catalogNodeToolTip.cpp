#include "catalogNodeToolTip.h"

#include <core/text/PString.h>
#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/CatalogStructureNodeI.h>

namespace {

constexpr auto Context = "VelkLinkDbGui";

void addLine(QString &text, const QString &sentence)
{
    if (!text.isEmpty())
        text += QStringLiteral("<br />");
    text += QStringLiteral("<nobr>") + sentence + QStringLiteral("</nobr>");
}

QString tableErrorText(const CatalogStructureNodeI &node)
{
    return node.getNodeType() == CatalogNodeType::Directory
               ? PString::translate("Die Tabelle von mindestens einem Quellprojekt konnte nicht "
                                    "geöffnet werden.",
                                    Context)
               : PString::translate("Die Tabelle des Quellprojekts konnte nicht geöffnet werden.",
                                    Context);
}

} // namespace

QString catalogNodeToolTip(const CatalogStructureNodeI &node)
{
    QString text;
    const PRJMAPPING::MappingState state = node.getMappingState();
    if (state.testFlag(PRJMAPPING::StateUnverified))
        addLine(text,
                PString::translate("Es existiert mindestens eine unbestätigte Änderung.", Context));
    if (state.testFlag(PRJMAPPING::StateUnmapped))
        addLine(text, PString::translate("Es existiert mindestens eine nicht zugeordnete Zeile.",
                                         Context));
    if (state.testFlag(PRJMAPPING::StateVerified))
        addLine(text,
                PString::translate("Es existiert mindestens eine bestätigte Zuordnung.", Context));
    if (state.testFlag(PRJMAPPING::StateTableError))
        addLine(text, tableErrorText(node));
    // A conflict follows on the line of the sentence before it.
    if (node.hasConflicts())
        text += QStringLiteral("<nobr>") +
                PString::translate("Es existiert mindestens ein Konflikt.", Context) +
                QStringLiteral("</nobr>");
    return text;
}
