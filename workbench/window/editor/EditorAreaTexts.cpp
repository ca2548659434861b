// The part of EditorArea that says why nothing is to be seen.
#include "EditorArea.h"

#include <gui/application/PCommandKeys.h>
#include <workbench/window/settings/KeyedActions.h>

#include <QCoreApplication>

QString EditorArea::liftingText(const QString &text)
{
    QString command = QCoreApplication::translate("WorkbenchActions", "Filter über alle Zeilen");
    if (const QString key = PCommandKeys::instance().keyText(QStringLiteral("reviewFilter"));
        !key.isEmpty())
        command += QStringLiteral(" (%1)").arg(key);
    return text.arg(command, KeyedActions::plain(
                                 QCoreApplication::translate("FilterDock", "Filter au&fheben")));
}

QString EditorArea::noLineText()
{
    return liftingText(tr("Keine Zeile dieses Projekts ist im Filter.\n„%1“ öffnen und „%2“ "
                          "wählen, um wieder alle Zeilen zu sehen."));
}

QString EditorArea::noProjectText()
{
    return liftingText(tr("Kein Projekt hat eine Zeile im Filter.\n„%1“ öffnen und „%2“ wählen, um "
                          "wieder alle Projekte zu sehen."));
}
