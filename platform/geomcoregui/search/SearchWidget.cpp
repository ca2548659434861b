#include "SearchWidget.h"

#include "SearchWidgetPrivate.h"
#include "TileItemView.h"
#include "TopSearchWidget.h"

#include <QKeyEvent>

SearchWidget::SearchWidget(const QStringList &searchNames, FileTreeGroup *group, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<SearchWidgetPrivate>(this, searchNames, group))
{
    setFocusProxy(d->top);
    d->view->installEventFilter(this);
}

SearchWidget::~SearchWidget() = default;

TileItemView *SearchWidget::getItemView() const
{
    return d->view;
}

TopSearchWidget *SearchWidget::getTopSearchWidget() const
{
    return d->top;
}

bool SearchWidget::eventFilter(QObject *object, QEvent *event)
{
    if (object == d->view && event->type() == QEvent::FocusIn &&
        static_cast<QFocusEvent *>(event)->reason() != Qt::MouseFocusReason)
        d->selectFirst();
    const bool isUp = object == d->view && event->type() == QEvent::KeyPress &&
                      static_cast<QKeyEvent *>(event)->key() == Qt::Key_Up;
    if (!isUp || d->view->currentIndex().row() > 0)
        return QWidget::eventFilter(object, event);
    d->top->focusWords();
    return true;
}

/// Typing can begin at once.
void SearchWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (!event->spontaneous())
        d->top->focusWords();
}
