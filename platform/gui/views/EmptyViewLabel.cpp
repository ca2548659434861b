#include "EmptyViewLabel.h"

#include <QAbstractItemView>
#include <QEvent>

EmptyViewLabel::EmptyViewLabel(QAbstractItemView *view, const QAbstractItemModel *model)
    : QLabel(view)
    , m_view(view)
    , m_model(model)
{
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(fontMetrics().height());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    // Not its child: what the viewport holds scrolls with it.
    view->viewport()->installEventFilter(this);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyViewLabel::refresh);
    connect(model, &QAbstractItemModel::layoutChanged, this, &EmptyViewLabel::refresh);
    connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyViewLabel::refresh);
    connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyViewLabel::refresh);
}

EmptyViewLabel::~EmptyViewLabel() = default;

void EmptyViewLabel::tell(const QString &text)
{
    setText(text);
    refresh();
}

bool EmptyViewLabel::isEmpty() const
{
    return m_model->rowCount() == 0;
}

void EmptyViewLabel::refresh()
{
    setVisible(!text().isEmpty() && isEmpty());
    place();
}

void EmptyViewLabel::place()
{
    setGeometry(m_view->viewport()->geometry());
}

bool EmptyViewLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QLabel::eventFilter(watched, event);
}
