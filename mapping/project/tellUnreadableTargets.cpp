#include "tellUnreadableTargets.h"

#include <core/message/PMessage.h>
#include <core/text/PString.h>

void tellUnreadableTargets(const QStringList &targetPaths)
{
    PMessage::LogToWindow(
        PString::translate(
            "Die Zeilen wurden nicht neu zugewiesen und bleiben, wie sie sind. Diese "
            "Zielprojekte können nicht gelesen werden: %1",
            "VelkLinkDbGui")
            .arg(targetPaths.join(QStringLiteral(", "))));
}
