#include "EmptyTableLabel.h"

#include "VkTableModel.h"

#include <QAbstractItemView>
#include <QEvent>

EmptyTableLabel::EmptyTableLabel(QAbstractItemView *grid, const VkTableModel *model)
    : QLabel(grid)
    , m_grid(grid)
    , m_model(model)
{
    setObjectName(QStringLiteral("emptyTable"));
    setTextFormat(Qt::PlainText);
    setAlignment(Qt::AlignCenter);
    setWordWrap(true);
    setMargin(fontMetrics().height());
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    // Not its child: what the viewport holds scrolls with it.
    grid->viewport()->installEventFilter(this);
    connect(model, &QAbstractItemModel::modelReset, this, &EmptyTableLabel::refresh);
}

void EmptyTableLabel::tell(const QString &text)
{
    setText(text);
    refresh();
}

/// Filters of columns have a place of their own to say that nothing fits.
void EmptyTableLabel::refresh()
{
    const VKTab::ContentRef table = m_model->getTable();
    setVisible(!text().isEmpty() && table.isValid() && table.getLineCount() > 0 &&
               table.getLineMapping().count() == 0);
    place();
}

void EmptyTableLabel::place()
{
    setGeometry(m_grid->viewport()->geometry());
}

bool EmptyTableLabel::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QLabel::eventFilter(watched, event);
}
