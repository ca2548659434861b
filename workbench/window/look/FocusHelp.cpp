#include "FocusHelp.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QEvent>
#include <QLabel>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

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

/// The next key, such as one that decides on the line, leads on to what the tip is not about.
class HideAtNextKey : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride) {
            QToolTip::hideText();
            deleteLater();
        }
        return false;
    }
};

/// A tip under the mouse would be gone at once, as by a mouse that leaves what the tip is about.
void showTip(const QPoint &at, const QString &text, QWidget *owner)
{
    constexpr QSize Frame(12, 12);
    constexpr QPoint Offset(2, 21); // of Qt's tips
    constexpr int Near = 8;
    QLabel measure(text);
    measure.setFont(QToolTip::font());
    measure.setWordWrap(Qt::mightBeRichText(text));
    const QSize size = measure.sizeHint() + Frame;
    const QRect screen = owner->screen()->availableGeometry();
    const QPoint mouse = QCursor::pos();
    // Where Qt puts it, then beside the mouse.
    const QPoint places[] = {at,
                             {mouse.x() + Near, at.y()},
                             {at.x(), mouse.y()},
                             {mouse.x() - size.width() - 2 * Near, at.y()},
                             {at.x(), mouse.y() - size.height() - Offset.y() - Near}};
    QPoint chosen = at;
    for (const QPoint &place : places) {
        QRect tip(place + Offset, size);
        tip.moveRight(std::min(tip.right(), screen.right()));
        tip.moveBottom(std::min(tip.bottom(), screen.bottom()));
        if (screen.contains(tip) && !tip.adjusted(-Near, -Near, Near, Near).contains(mouse)) {
            chosen = place;
            break;
        }
    }
    QToolTip::showText(chosen, text, owner);
    QWidget *const focus = QApplication::focusWidget();
    focus->installEventFilter(new HideAtNextKey(focus));
}

bool showOfCell(QAbstractItemView *view)
{
    const QModelIndex cell = cellWithToolTip(view->currentIndex());
    if (!cell.isValid())
        return false;
    view->scrollTo(cell);
    const QRect area = view->visualRect(cell);
    showTip(view->viewport()->mapToGlobal(area.bottomLeft()), toolTipOf(cell), view->viewport());
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
        showTip(widget->mapToGlobal(QPoint(0, widget->height())), widget->toolTip(), widget);
        return true;
    }
    return false;
}
