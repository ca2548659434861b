#include "TableMappingWidgetPrivate.h"

#include <core/config/PConfigService.h>
#include <core/text/PString.h>
#include <geomcore/table/LineI.h>

#include <boost/make_shared.hpp>

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

/// The rows of a message, each followed by a line break; the first blank of a row is kept from
/// being swallowed.
QString htmlRows(const QString &message)
{
    QString html;
    for (QString row : message.split(u'\n', Qt::SkipEmptyParts)) {
        while (row.startsWith(u' '))
            row.replace(0, 1, QStringLiteral("&nbsp;"));
        html += row + QStringLiteral("<br />");
    }
    return html;
}

QString bold(const QString &text)
{
    return QStringLiteral("<b>") + text + QStringLiteral("</b>");
}

} // namespace

void TableMappingWidgetPrivate::setupStatusKeys(
    boost::shared_ptr<VKTab::TabOptions> &tableOptions) const
{
    if (!tableOptions) {
        tableOptions = boost::make_shared<VKTab::TabOptions>();
        tableOptions->setStatusColumnsShown(true);
        tableOptions->load(PConfigService::getConfig(0, QStringLiteral("velkopt")));
    }
    if (tableOptions->getStatusKey(QStringLiteral("CatalogMapper")).isValid())
        return;
    // The options may outlive the widget.
    const auto handler = [this, alive = reference()](const VKTab::LineI &line, int, int,
                                                     QWidget *) {
        return alive.expired() ? QString() : lineToolTip(line);
    };
    tableOptions->setStatusKey(mapperKey(handler));
    tableOptions->setStatusKey(rangeKey());
    tableOptions->setStatusKey(targetKey());
}

void TableMappingWidgetPrivate::updateLineStatus()
{
    if (sourceTable.isValid())
        m_shownStatus.update(sourceTable, mapping);
}

QString TableMappingWidgetPrivate::conflictText(const PrjMapperLineC &line) const
{
    const int id = line.getSourceLineId();
    const PrjMappingTargetC target = mapping.findTarget(line.getTargetIndex());
    if (!line.isValid() || !target.isValid() || !target.getLineConflicted(id))
        return {};
    const QString text = PString::translate(
        "Für diese Zeile besteht ein Konflikt. Die Zuordnung muss bestätigt oder korrigiert werden",
        "VelkLinkDbGui");
    return bold(text) + QStringLiteral("<br />") + conflictToolTips.value(id);
}

QString TableMappingWidgetPrivate::checkText(const VKTab::LineId &id) const
{
    PrjMapperCheckResultC check(false, QString(), QString(), {}, {}, {});
    Varset varset;
    const PrjMapperLineC line = mapperLineFor(id, varset, &check);
    if (!line.isValid() || check.getErrMsgList().isEmpty())
        return {};
    QString text = QStringLiteral("<br />");
    for (const QString &message : check.getErrMsgList())
        text += htmlRows(message);
    return text;
}

QString TableMappingWidgetPrivate::lineToolTip(const VKTab::LineI &line) const
{
    const VKTab::LineId id = line.getLineInfo().getLineId();
    QString conflict = conflictText(mapperLineFor(id));
    if (!conflict.isEmpty())
        return conflict;
    const QString text = bold(
        PString::translate("Diese Zeile wurde automatisch zugeordnet. Die Zuordnung muss bestätigt "
                           "oder korrigiert werden",
                           "VelkLinkDbGui"));
    return id.isValid() ? text + checkText(id) : text;
}
