#include "VkTableView.h"

#include "EmptyTableLabel.h"
#include "TableBar.h"
#include "TableColumnOrder.h"
#include "TableFilterBar.h"
#include "TableFindBar.h"
#include "TableGrid.h"
#include "TableSelectionLink.h"
#include "VkTableModel.h"
#include "VkTableViewPrivate.h"

#include <gui/print/TablePages.h>

#include <QEvent>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

VkTableView::VkTableView(QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<VkTableViewPrivate>(this))
{
}

VkTableView::~VkTableView()
{
    delete d->grid; // stores the widths while the model is there
}

void VkTableView::setActive(bool active)
{
    d->setActive(active);
}

bool VkTableView::isViewOnlyMode() const
{
    return true;
}

VKTab::ContentRef VkTableView::getTable() const
{
    return d->model->getTable();
}

void VkTableView::setTable(VKTab::ContentRef table)
{
    d->setTable(table);
}

void VkTableView::setHorizontalScrollPos(int position)
{
    d->grid->horizontalScrollBar()->setValue(position);
}

int VkTableView::getHorizontalScrollPos() const
{
    return d->grid->horizontalScrollBar()->value();
}

void VkTableView::setVerticalScrollPos(int position)
{
    d->grid->verticalScrollBar()->setValue(position);
}

int VkTableView::getVerticalScrollPos() const
{
    return d->grid->verticalScrollBar()->value();
}

void VkTableView::setHeaderVisible(bool visible)
{
    d->headerVisible = visible;
    d->showTitle();
}

bool VkTableView::isHeaderVisible() const
{
    return d->headerVisible;
}

void VkTableView::setShowTopoValues(bool show)
{
    d->model->setShowTopoValues(show);
}

void VkTableView::setShowInternalValues(bool show)
{
    d->model->setShowInternalValues(show);
}

void VkTableView::setSelectionMode(QAbstractItemView::SelectionMode mode)
{
    d->grid->setSelectionMode(mode);
}

QAbstractItemView::SelectionMode VkTableView::selectionMode() const
{
    return d->grid->selectionMode();
}

QList<VKTab::LineId> VkTableView::getSelectedLines() const
{
    return d->selection->selectedLines();
}

int VkTableView::getSelectedLineCount() const
{
    return d->selection->selectedCount();
}

VkTableModel *VkTableView::model() const
{
    return d->model;
}

void VkTableView::setMarkedCells(const VKTab::LineId &line, const QStringList &variables)
{
    QSet<int> ids;
    const VKTab::ContentRef table = getTable();
    for (const QString &name : variables) {
        const VKTab::Var var = table.getVar(name);
        if (var.isValid())
            ids.insert(var.getVarId().value());
    }
    d->grid->setMarkedCells(line, ids);
}

QAbstractItemView *VkTableView::grid() const
{
    return d->grid;
}

double VkTableView::getZoomFactor() const
{
    return d->zoom;
}

void VkTableView::setZoomFactor(double factor)
{
    d->setZoomFactor(factor);
}

boost::signals2::connection VkTableView::connectIconClicked(const IconClickedSlot &slot)
{
    return d->iconClicked.connect(slot);
}

void VkTableView::copySelection() const
{
    d->copy();
}

QString VkTableView::title() const
{
    return d->title->text();
}

bool VkTableView::print(QPagedPaintDevice &device, const PageHead &head) const
{
    const int left = std::max(0, d->model->rowCount() - PrintedRows);
    return TablePages(device, *d->grid,
                      {.textRole = VkTableModel::WholeTextRole,
                       .repeated = int(d->grid->frozenColumns().size()),
                       .mostRows = PrintedRows,
                       .more = tableText("und %Ln weitere Zeile(n)", left)},
                      head)
        .print();
}

void VkTableView::setEmptyText(const QString &text)
{
    d->empty->tell(text);
}

void VkTableView::showFindBar()
{
    d->findBar->open();
}

void VkTableView::setFreezesFirst(bool freezes)
{
    d->columnOrder->setFreezesFirst(freezes);
}

bool VkTableView::isFrozen(int column) const
{
    return d->grid->frozenColumns().contains(column);
}

int VkTableView::frozenWidth() const
{
    return d->grid->frozenWidth();
}

void VkTableView::setFiltersKept(bool kept)
{
    d->filtersKept = kept;
}

void VkTableView::showFilterBar(bool show)
{
    d->setFilterBarShown(show);
    if (!show)
        return;
    const int current = d->grid->currentIndex().column();
    const int column = std::max(current, d->model->statusColumnCount());
    if (QLineEdit *const edit = d->filterBar->editOf(column))
        edit->setFocus(Qt::ShortcutFocusReason);
}

void VkTableView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        d->applyZoom();
    else if (event->type() == QEvent::LanguageChange)
        d->retranslate();
}
