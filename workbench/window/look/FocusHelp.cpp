#include "FocusHelp.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QToolTip>

namespace {

QString toolTipOf(const QModelIndex &index)
{
    return index.data(Qt::ToolTipRole).toString();
}

/// The current cell, or the first one of its row that has a tool tip.
QModelIndex cellWithToolTip(const QModelIndex &current)
{
    if (!current.isValid() || !toolTipOf(current).isEmpty())
        return current;
    const int columns = current.model()->columnCount(current.parent());
    for (int column = 0; column < columns; ++column) {
        const QModelIndex other = current.siblingAtColumn(column);
        if (!toolTipOf(other).isEmpty())
            return other;
    }
    return {};
}

bool showOfCell(QAbstractItemView *view)
{
    const QModelIndex cell = cellWithToolTip(view->currentIndex());
    if (!cell.isValid())
        return false;
    view->scrollTo(cell);
    const QRect area = view->visualRect(cell);
    QToolTip::showText(view->viewport()->mapToGlobal(area.bottomLeft()), toolTipOf(cell),
                       view->viewport());
    return true;
}

} // namespace

bool FocusHelp::show()
{
    QWidget *const focus = QApplication::focusWidget();
    if (auto *const view = qobject_cast<QAbstractItemView *>(focus); view && showOfCell(view))
        return true;
    for (QWidget *widget = focus; widget && !widget->isWindow(); widget = widget->parentWidget()) {
        if (widget->toolTip().isEmpty())
            continue;
        QToolTip::showText(widget->mapToGlobal(QPoint(0, widget->height())), widget->toolTip(),
                           widget);
        return true;
    }
    return false;
}
