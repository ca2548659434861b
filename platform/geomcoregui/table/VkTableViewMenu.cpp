#include "TableBar.h"
#include "TableColumnOrder.h"
#include "TableColumnWidths.h"
#include "TableFilterBar.h"
#include "TableFindBar.h"
#include "TableGrid.h"
#include "TableSelectionLink.h"
#include "VkTableModel.h"
#include "VkTableViewPrivate.h"

#include <gui/application/PCommandKeys.h>

#include <QMenu>
#include <QPointer>

namespace {

/// \a command is what has the row's key, or nothing.
QAction *addRow(QMenu *menu, const char *name, const QString &text, const char *command = "")
{
    QAction *const row = menu->addAction(text);
    row->setObjectName(QLatin1String(name));
    row->setShortcut(PCommandKeys::instance().key(QLatin1String(command)));
    row->setShortcutVisibleInContextMenu(true);
    return row;
}

} // namespace

void VkTableViewPrivate::onCellClicked(const QModelIndex &index, Qt::MouseButton button)
{
    const int line = index.isValid() ? model->lineId(index.row()).value(0) : -1;
    q->announceTableClicked(line, button == Qt::LeftButton ? 1 : 0);
}

void VkTableViewPrivate::onIconActivated(const QModelIndex &index)
{
    const QString key = index.data(VkTableModel::StatusKeyRole).toString();
    const int row = model->mappingRow(index.row());
    if (row >= 0 && !key.isEmpty())
        iconClicked(model->getTable(), row + 1, key);
}

void VkTableViewPrivate::showMenu(VkTableViewBase::PopupArea area, int row, int column,
                                  const QPoint &position)
{
    const QPointer<VkTableViewPrivate> alive = this;
    auto *const menu = new QMenu(q);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (!q->askPopupShow(menu, area, model->mappingRow(row) + 1)) {
        delete menu;
        return;
    }
    if (!alive)
        return;
    if (!menu->isEmpty())
        menu->addSeparator();
    addMenuRows(menu, column);
    menu->popup(position);
}

void VkTableViewPrivate::addMenuRows(QMenu *menu, int column)
{
    QAction *const copyRow = addRow(menu, "copy", tableText("Kopieren"), "tableCopy");
    copyRow->setEnabled(!selection->selectedRows().isEmpty());
    connect(copyRow, &QAction::triggered, this, [this] { copy(); });
    connect(addRow(menu, "find", tableText("Suchen ..."), "tableFind"), &QAction::triggered, this,
            [this] { findBar->open(); });
    QAction *const filterRow = addRow(menu, "filter", tableText("Spaltenfilter"), "tableFilter");
    filterRow->setCheckable(true);
    filterRow->setChecked(filterBar->isVisible());
    connect(filterRow, &QAction::triggered, this, [this](bool shown) { q->showFilterBar(shown); });
    if (column >= model->statusColumnCount())
        connect(addRow(menu, "values", tableText("Nach Werten filtern ..."), {}),
                &QAction::triggered, this, [this, column] { filterBar->showValues(column); });
    addSortRows(menu, column);
    addColumnRows(menu, column);
}

void VkTableViewPrivate::addColumnRows(QMenu *menu, int column)
{
    menu->addSeparator();
    const auto row = [&](const char *name, const QString &text, bool enabled, const auto &action) {
        QAction *const added = addRow(menu, name, text);
        added->setEnabled(enabled);
        connect(added, &QAction::triggered, this, action);
    };
    row("columnLeft", tableText("Spalte nach links"), columnOrder->canMove(column, -1),
        [this, column] { columnOrder->move(column, -1); });
    row("columnRight", tableText("Spalte nach rechts"), columnOrder->canMove(column, 1),
        [this, column] { columnOrder->move(column, 1); });
    row("hideColumn", tableText("Spalte ausblenden"), columnOrder->canHide(column),
        [this, column] { columnOrder->hide(column); });
    row("freezeColumns", tableText("Spalten bis hier fixieren"), column >= 0,
        [this, column] { columnOrder->freezeUpTo(column); });
    row("freezeNone", tableText("Fixierung aufheben"), columnOrder->hasFrozen(),
        [this] { columnOrder->freezeNone(); });
    row("showColumns", tableText("Alle Spalten einblenden"), !columnOrder->hidden().isEmpty(),
        [this] { columnOrder->showAll(); });
}

void VkTableViewPrivate::addSortRows(QMenu *menu, int column)
{
    menu->addSeparator();
    if (column >= 0) {
        connect(addRow(menu, "sortAscending", tableText("Spalte aufsteigend sortieren")),
                &QAction::triggered, this, [this, column] { sort(column, Qt::AscendingOrder); });
        connect(addRow(menu, "sortDescending", tableText("Spalte absteigend sortieren")),
                &QAction::triggered, this, [this, column] { sort(column, Qt::DescendingOrder); });
    }
    QAction *const unsorted = addRow(menu, "unsorted", tableText("Sortierung aufheben"));
    unsorted->setEnabled(model->sortColumn() >= 0);
    connect(unsorted, &QAction::triggered, this, [this] { sort(-1, Qt::AscendingOrder); });
    connect(addRow(menu, "fitColumns", tableText("Spaltenbreiten anpassen")), &QAction::triggered,
            widths, &TableColumnWidths::fitAll);
}
