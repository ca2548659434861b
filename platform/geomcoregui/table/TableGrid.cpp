#include "TableGrid.h"

#include "TableDelegate.h"
#include "VkTableModel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

TableGrid::TableGrid(QWidget *parent)
    : QTableView(parent)
    , m_delegate(new TableDelegate(this))
{
    setObjectName(QStringLiteral("grid"));
    setItemDelegate(m_delegate);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollMode(ScrollPerPixel);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setSectionsClickable(true);
    horizontalHeader()->setSectionsClickable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(12);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
}

TableGrid::~TableGrid() = default;

void TableGrid::setMarkedText(const QString &text)
{
    m_delegate->setMarkedText(text);
    viewport()->update();
}

void TableGrid::setMarkedCells(const VKTab::LineId &line, const QSet<int> &variables)
{
    m_delegate->setMarkedCells(line, variables);
    viewport()->update();
}

void TableGrid::keyboardSearch(const QString &) {}

bool TableGrid::isIcon(const QModelIndex &index) const
{
    return index.isValid() && !index.data(VkTableModel::StatusKeyRole).toString().isEmpty() &&
           (!index.data(Qt::DecorationRole).isNull() || !index.data().toString().isEmpty());
}

void TableGrid::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex index = indexAt(event->pos());
    m_pressed = index;
    m_pressedBelow = !index.isValid();
    QTableView::mousePressEvent(event);
}

void TableGrid::mouseReleaseEvent(QMouseEvent *event)
{
    QTableView::mouseReleaseEvent(event);
    const QModelIndex index = indexAt(event->pos());
    const bool isClick = index.isValid() ? m_pressed == index : m_pressedBelow;
    m_pressed = QPersistentModelIndex();
    m_pressedBelow = false;
    if (isClick && viewport()->rect().contains(event->pos()))
        announceClick(index, *event);
}

void TableGrid::announceClick(const QModelIndex &index, const QMouseEvent &event)
{
    const bool isPlainLeft = event.button() == Qt::LeftButton &&
                             !(event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier));
    const QPersistentModelIndex kept = index;
    Q_EMIT cellClicked(index, event.button());
    if (isPlainLeft && isIcon(kept))
        Q_EMIT iconActivated(kept);
}

void TableGrid::keyPressEvent(QKeyEvent *event)
{
    const bool activates = event->key() == Qt::Key_Space || event->key() == Qt::Key_Return ||
                           event->key() == Qt::Key_Enter;
    if (activates && event->modifiers().testFlag(Qt::ControlModifier) == false &&
        isIcon(currentIndex())) {
        Q_EMIT iconActivated(currentIndex());
        event->accept();
        return;
    }
    const int before = currentIndex().row();
    QTableView::keyPressEvent(event);
    if (currentIndex().isValid() && currentIndex().row() != before)
        Q_EMIT lineEntered(currentIndex());
    else if (staysOnUnselectedLine(*event))
        selectionModel()->select(currentIndex(),
                                 QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

bool TableGrid::staysOnUnselectedLine(const QKeyEvent &event) const
{
    const bool leadsToAnEnd =
        event.modifiers() == Qt::ControlModifier
            ? event.key() == Qt::Key_Home || event.key() == Qt::Key_End
            : event.modifiers() == Qt::NoModifier &&
                  (event.key() == Qt::Key_Up || event.key() == Qt::Key_PageUp ||
                   event.key() == Qt::Key_Down || event.key() == Qt::Key_PageDown);
    return leadsToAnEnd && selectionMode() != NoSelection && currentIndex().isValid() &&
           !selectionModel()->isRowSelected(currentIndex().row(), QModelIndex());
}

QItemSelectionModel::SelectionFlags TableGrid::selectionCommand(const QModelIndex &index,
                                                                const QEvent *event) const
{
    if (event && event->type() == QEvent::KeyPress && selectionMode() != NoSelection) {
        const auto *const key = static_cast<const QKeyEvent *>(event);
        const bool isEnd = key->key() == Qt::Key_Home || key->key() == Qt::Key_End;
        if (isEnd && key->modifiers().testFlag(Qt::ControlModifier)) {
            const bool extends = key->modifiers().testFlag(Qt::ShiftModifier) &&
                                 selectionMode() == ExtendedSelection;
            return (extends ? QItemSelectionModel::SelectCurrent
                            : QItemSelectionModel::ClearAndSelect) |
                   QItemSelectionModel::Rows;
        }
    }
    return QTableView::selectionCommand(index, event);
}

void TableGrid::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() != QContextMenuEvent::Keyboard) {
        Q_EMIT menuRequested(indexAt(event->pos()).row(), event->globalPos());
        return;
    }
    const QModelIndex index = currentIndex();
    const QPoint place = index.isValid() ? visualRect(index).center() : QPoint();
    Q_EMIT menuRequested(index.row(), viewport()->mapToGlobal(place));
}

void TableGrid::wheelEvent(QWheelEvent *event)
{
    if (!event->modifiers().testFlag(Qt::ControlModifier)) {
        QTableView::wheelEvent(event);
        return;
    }
    m_wheelRest += event->angleDelta().y();
    const int steps = m_wheelRest / QWheelEvent::DefaultDeltasPerStep;
    m_wheelRest -= steps * QWheelEvent::DefaultDeltasPerStep;
    if (steps != 0)
        Q_EMIT zoomRequested(steps);
    event->accept();
}

bool TableGrid::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *const help = static_cast<QHelpEvent *>(event);
        if (showStatusToolTip(help->pos(), help->globalPos()) ||
            showCutText(help->pos(), help->globalPos()))
            return true;
    }
    return QTableView::viewportEvent(event);
}

bool TableGrid::showCutText(const QPoint &position, const QPoint &globalPosition)
{
    const QModelIndex index = indexAt(position);
    if (!index.isValid() || !index.data(Qt::ToolTipRole).toString().isEmpty())
        return false;
    const QRect area = visualRect(index);
    const int margin = style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1;
    const QString text = index.data().toString();
    if (fontMetrics().horizontalAdvance(text) + 2 * margin <= area.width())
        return false;
    QToolTip::showText(globalPosition, Qt::convertFromPlainText(text), viewport(), area);
    return true;
}

bool TableGrid::showStatusToolTip(const QPoint &position, const QPoint &globalPosition)
{
    const auto *const table = qobject_cast<VkTableModel *>(model());
    const QModelIndex index = indexAt(position);
    if (!table || !isIcon(index))
        return false;
    const QRect area = visualRect(index);
    QToolTip::showText(globalPosition, table->statusToolTip(index, this), viewport(), area);
    return true;
}
