#include "TableMappingWidgetPrivate.h"

#include <core/text/PString.h>
#include <geomcore/table/Content.h>
#include <geomcoregui/table/VkTableView.h>

#include <QAction>
#include <QMenu>

namespace {

bool isOnLine(const VKTab::Content &content, int area, int row)
{
    return content.isValid() && area == VkTableViewBase::PopupCells && row > 0;
}

} // namespace

QAction *TableMappingWidgetPrivate::addMenuRow(QMenu *menu, const QString &text,
                                               const QString &icon, const char *slot)
{
    auto *const row = new QAction(text, menu);
    if (!icon.isEmpty())
        row->setIcon(QIcon(icon));
    connect(row, SIGNAL(triggered()), this, slot);
    menu->addAction(row);
    return row;
}

bool TableMappingWidgetPrivate::canConfirmSelection() const
{
    const VKTab::ContentRef table = targetView->getTable();
    if (!table.isValid())
        return true;
    const PrjMapperLineC line = mapperLineFor(sourceTable.getSelection());
    const VKTab::LineId selected = table.getSelection();
    return !line.isValid() || !selected.isValid() || selected.value(0) == line.getTargetLineId();
}

int TableMappingWidgetPrivate::onSourcePopupShow(const VKTab::Content &content, QMenu *menu,
                                                 int area, int row)
{
    if (sourceView->getSelectedLineCount() >= 2)
        return -1;
    if (!isOnLine(content, area, row))
        return 0;
    const bool canConfirm = canConfirmSelection();
    addMenuRow(menu, PString::translate("Zuordnung bestätigen", "VelkLinkDbGui"),
               ":/bitmaps/confirm_mapping.png", SLOT(onMapLineClicked()))
        ->setEnabled(canConfirm);
    addMenuRow(menu, PString::translate("Zuordnung dieser Zeile aufheben", "VelkLinkDbGui"),
               "bitmaps:indextree/state_deleted.png", SLOT(onRemoveLineMappingClicked()))
        ->setEnabled(targetView->getTable().isValid());
    addMenuRow(
        menu, PString::translate("Zuordnung dieser Zeile aufheben und bestätigen", "VelkLinkDbGui"),
        ":/bitmaps/remove_verify.png", SLOT(onRemoveVerifyLineMappingClicked()))
        ->setEnabled(canConfirm);
    addMenuRow(menu,
               PString::translate("Bedingung für die markierte Zeile generieren und in die "
                                  "Zwischenablage kopieren",
                                  "VelkLinkDbGui"),
               ":/toolicons/actionFormatAlgorithm_16.png", SLOT(onCreateConditionClicked()));
    addMenuRow(
        menu,
        PString::translate("Aufgelöste Wertebereiche für diese Zeile zuordnen", "VelkLinkDbGui"),
        ":/toolicons/actionFormatRanges_16.png", SLOT(onMapLineValueRanges()));
    return 0;
}

int TableMappingWidgetPrivate::onTargetPopupShow(const VKTab::Content &content, QMenu *menu,
                                                 int area, int row)
{
    if (!isOnLine(content, area, row))
        return 0;
    addMenuRow(
        menu,
        PString::translate("Nur Zeilen anzeigen, die mehrfach zugeordnet sind", "VelkLinkDbGui"),
        QString(), SLOT(onFilterTargetTable()));
    addMenuRow(menu,
               PString::translate("Nur Zeilen der Originaltabelle anzeigen, die dieser Zeile "
                                  "zugeordnet sind",
                                  "VelkLinkDbGui"),
               QString(), SLOT(onFilterSourceTable()));
    return 0;
}

int TableMappingWidgetPrivate::onStatusIconClicked(const VKTab::Content &content, int row,
                                                   const QString &key)
{
    if (content.isValid() && key == QLatin1String("ValueRangeMapping")) {
        editValueRangeMapping(row);
        return 0;
    }
    if (!content.isValid() || key != QLatin1String("CatalogMapper"))
        return 0;
    const VKTab::LineId id = content.getLineMapping().getLineId(row - 1);
    if (id.isValid())
        showFailingValues(id);
    return 0;
}
