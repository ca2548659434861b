#include "FormulaCompletionPopup.h"

#include "FormulaCompletionModel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QScreen>
#include <QToolTip>

#include <algorithm>

namespace {

constexpr int mostRows = 10;
constexpr int mostDetail = 40; // characters

} // namespace

FormulaCompletionPopup::FormulaCompletionPopup(QPlainTextEdit *edit)
    : QTreeView(edit)
    , m_edit(edit)
    , m_model(new FormulaCompletionModel(this))
{
    setObjectName(QStringLiteral("formulaCompletion"));
    setWindowFlags(Qt::ToolTip);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    setModel(m_model);
    setHeaderHidden(true);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setTextElideMode(Qt::ElideRight);
    connect(this, &QTreeView::clicked, this, &FormulaCompletionPopup::choose);
}

FormulaCompletionPopup::~FormulaCompletionPopup() = default;

void FormulaCompletionPopup::showFor(const QString &word, const QList<FormulaItem> &items)
{
    m_model->setItems(items);
    m_model->setWord(word);
    const bool isComplete = m_model->rowCount() == 1 && m_model->item(0).text == word;
    if (m_model->rowCount() == 0 || isComplete)
        return hide();
    place();
    show();
    setCurrentIndex(m_model->index(0, 0));
}

void FormulaCompletionPopup::place()
{
    const int gap = fontMetrics().averageCharWidth() * 2;
    const int most = fontMetrics().averageCharWidth() * mostDetail;
    setColumnWidth(0, sizeHintForColumn(0) + gap);
    setColumnWidth(1, std::min(sizeHintForColumn(1) + gap, most));
    const int rows = std::min(m_model->rowCount(), mostRows);
    const int border = 2 * frameWidth();
    const QSize size(columnWidth(0) + columnWidth(1) + border +
                         (m_model->rowCount() > rows ? verticalScrollBar()->sizeHint().width() : 0),
                     rows * sizeHintForRow(0) + border);
    const QRect cursor = m_edit->cursorRect();
    QPoint corner = m_edit->viewport()->mapToGlobal(cursor.bottomLeft() + QPoint(0, 2));
    const QRect screen = m_edit->screen()->availableGeometry();
    if (corner.y() + size.height() > screen.bottom())
        corner.setY(m_edit->viewport()->mapToGlobal(cursor.topLeft()).y() - 2 - size.height());
    corner.setX(std::max(screen.left(), std::min(corner.x(), screen.right() - size.width())));
    setGeometry(QRect(corner, size));
}

bool FormulaCompletionPopup::takeKey(const QKeyEvent &key)
{
    if (!isVisible())
        return false;
    const int row = currentIndex().row();
    const auto go = [&](int to) {
        setCurrentIndex(m_model->index(std::clamp(to, 0, m_model->rowCount() - 1), 0));
        return true;
    };
    switch (key.key()) {
    case Qt::Key_Down:
        return go(row + 1);
    case Qt::Key_Up:
        return go(row - 1);
    case Qt::Key_PageDown:
        return go(row + mostRows);
    case Qt::Key_PageUp:
        return go(row - mostRows);
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Tab:
        choose(currentIndex());
        return true;
    case Qt::Key_Escape:
        hide();
        return true;
    default:
        return false;
    }
}

void FormulaCompletionPopup::choose(const QModelIndex &index)
{
    const FormulaItem item = m_model->item(index.row());
    hide();
    if (!item.text.isEmpty())
        Q_EMIT chosen(item);
}

/// Says beside the list what the item is, below it if there is little room.
void FormulaCompletionPopup::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    QTreeView::currentChanged(current, previous);
    if (!current.isValid() || !isVisible())
        return;
    const int room = screen()->availableGeometry().right() - geometry().right();
    const bool isBeside = room > fontMetrics().averageCharWidth() * mostDetail;
    QToolTip::showText(mapToGlobal(isBeside ? QPoint(width(), 0) : QPoint(0, height())),
                       current.data(Qt::ToolTipRole).toString(), this);
}

void FormulaCompletionPopup::hideEvent(QHideEvent *event)
{
    QToolTip::hideText();
    QTreeView::hideEvent(event);
}
