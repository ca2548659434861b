#include "lineStatusKeys.h"

#include <core/text/PString.h>
#include <geomcore/table/TabOptions.h>

using VKTab::StatusKey;
using VKTab::StatusValue;

namespace {

StatusValue &addState(StatusKey &key, const char *value, const char *image)
{
    StatusValue &state = key.addValue(QString::fromLatin1(value));
    state.setImageFile(QString::fromLatin1(image));
    return state;
}

StatusKey rangeKey()
{
    StatusKey key(StatusKey::IconColumn, QStringLiteral("ValueRangeMapping"));
    addState(key, "VR", ":/toolicons/actionFormatRanges_16.png")
        .setToolTipText(PString::translate("Wertebereichszuordnungen bearbeiten", "VelkLinkDbGui"));
    return key;
}

StatusKey targetKey()
{
    StatusKey key(StatusKey::IconColumn, QStringLiteral("TargetMapping"));
    addState(key, "C", ":/bitmaps/line.png")
        .setToolTipText(PString::translate("Aktuell zugeordnete Zeile", "VelkLinkDbGui"));
    return key;
}

StatusKey mapperKey(const StatusValue::ToolTipHandler &handler)
{
    StatusKey key(StatusKey::IconColumn, QStringLiteral("CatalogMapper"));
    addState(key, "M", ":/bitmaps/state_confirmed.png")
        .setToolTipText(
            PString::translate("Diese Zuordnung wurde vom Modellierer bestätigt", "VelkLinkDbGui"));
    addState(key, "C", ":/bitmaps/state_check.png").setToolTipHandler2(handler);
    addState(key, "N", ":/bitmaps/state_deleted.png")
        .setToolTipText(
            PString::translate("Diese Zeile konnte nicht zugeordnet werden", "VelkLinkDbGui"));
    addState(key, "NC", ":/bitmaps/state_deleted_confirmed.png")
        .setToolTipText(PString::translate(
            "Diese Zeile ist ausgelaufen. Dies wurde vom Modellierer bestätigt", "VelkLinkDbGui"));
    addState(key, "Conflicted", ":/bitmaps/state_conflict.png").setToolTipHandler2(handler);
    return key;
}

} // namespace

void setLineStatusKeys(VKTab::TabOptions &options, const StatusValue::ToolTipHandler &toolTip)
{
    if (options.getStatusKey(QStringLiteral("CatalogMapper")).isValid())
        return;
    options.setStatusKey(mapperKey(toolTip));
    options.setStatusKey(rangeKey());
    options.setStatusKey(targetKey());
}
