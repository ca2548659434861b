#include "TableGrid.h"

#include "FrozenHeader.h"
#include "TableDelegate.h"
#include "VkTableModel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
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

void TableGrid::setFrozenColumns(const QList<int> &columns)
{
    m_frozen = columns;
    if (!m_frozen.isEmpty() && !m_frozenHeader)
        m_frozenHeader = new FrozenHeader(this);
    updateGeometries();
    viewport()->update();
}

QList<int> TableGrid::frozenColumns() const
{
    QList<int> columns;
    int width = 0;
    for (const int column : m_frozen) {
        width += columnWidth(column); // 0 if it is hidden
        if (width > viewport()->width() / 2)
            break;
        columns += column;
    }
    return columns;
}

int TableGrid::frozenWidth() const
{
    int width = 0;
    for (const int column : frozenColumns())
        width += columnWidth(column);
    return width;
}

int TableGrid::columnPlace(int column) const
{
    int place = 0;
    for (const int frozen : frozenColumns()) {
        if (frozen == column)
            return place;
        place += columnWidth(frozen);
    }
    return columnViewportPosition(column);
}

bool TableGrid::isScrolled() const
{
    return !m_frozen.isEmpty() && horizontalScrollBar()->value() > 0;
}

QModelIndex TableGrid::indexAt(const QPoint &position) const
{
    if (!isScrolled() || position.x() < 0 || position.x() >= frozenWidth())
        return QTableView::indexAt(position);
    const int row = rowAt(position.y());
    for (const int column : frozenColumns()) {
        if (row >= 0 && columnWidth(column) > 0 &&
            position.x() < columnPlace(column) + columnWidth(column))
            return model()->index(row, column, rootIndex());
    }
    return {};
}

QRect TableGrid::visualRect(const QModelIndex &index) const
{
    QRect place = QTableView::visualRect(index);
    if (index.isValid() && isScrolled() && frozenColumns().contains(index.column()))
        place.moveLeft(columnPlace(index.column()));
    return place;
}

void TableGrid::scrollTo(const QModelIndex &index, ScrollHint hint)
{
    const int before = horizontalScrollBar()->value();
    QTableView::scrollTo(index, hint);
    if (m_frozen.isEmpty() || !index.isValid())
        return;
    if (frozenColumns().contains(index.column())) {
        horizontalScrollBar()->setValue(before);
        return;
    }
    // What stays where it is must not lie over it.
    const int under = frozenWidth() - columnViewportPosition(index.column());
    if (under > 0)
        horizontalScrollBar()->setValue(horizontalScrollBar()->value() - under);
}

void TableGrid::resizeEvent(QResizeEvent *event)
{
    const QRect before = visualRect(currentIndex());
    QTableView::resizeEvent(event);
    if (!currentIndex().isValid() || before.top() < 0 ||
        before.bottom() >= event->oldSize().height())
        return;
    const int below = visualRect(currentIndex()).bottom() + 1 - viewport()->height();
    if (below > 0)
        verticalScrollBar()->setValue(verticalScrollBar()->value() + below);
}

void TableGrid::scrollContentsBy(int dx, int dy)
{
    QTableView::scrollContentsBy(dx, dy);
    if (m_frozen.isEmpty() || dx == 0)
        return;
    viewport()->update(); // a part of what was there stays
    updateGeometries();
}

void TableGrid::updateGeometries()
{
    QTableView::updateGeometries();
    if (m_frozenHeader)
        m_frozenHeader->place(isScrolled() ? frozenColumns() : QList<int>());
}

void TableGrid::paintEvent(QPaintEvent *event)
{
    QTableView::paintEvent(event);
    if (!isScrolled())
        return;
    QPainter painter(viewport());
    const QRect frozen(0, 0, frozenWidth(), viewport()->height());
    painter.setClipRect(frozen);
    paintFrozen(painter, frozen & event->rect());
}

void TableGrid::paintFrozen(QPainter &painter, const QRect &exposed)
{
    if (exposed.isEmpty())
        return;
    painter.fillRect(exposed, palette().brush(QPalette::Base));
    const int first = rowAt(exposed.top());
    const QList<int> columns = frozenColumns();
    for (int row = first; row >= 0 && row < model()->rowCount(); ++row) {
        const int top = rowViewportPosition(row);
        if (top > exposed.bottom())
            break;
        for (const int column : columns) {
            const QRect place(columnPlace(column), top, columnWidth(column), rowHeight(row));
            if (!place.isEmpty())
                paintFrozenCell(painter, model()->index(row, column, rootIndex()), place);
        }
    }
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawLine(frozenWidth() - 1, exposed.top(), frozenWidth() - 1, exposed.bottom());
}

/// As the view itself does it.
void TableGrid::paintFrozenCell(QPainter &painter, const QModelIndex &index, const QRect &place)
{
    QStyleOptionViewItem option;
    initViewItemOption(&option);
    const bool selected = selectionModel()->isSelected(index);
    option.rect = place.adjusted(0, 0, showGrid() ? -1 : 0, showGrid() ? -1 : 0);
    option.state.setFlag(QStyle::State_Selected, selected);
    option.state.setFlag(QStyle::State_HasFocus, hasFocus() && index == currentIndex());
    if (!isActiveWindow())
        option.palette.setCurrentColorGroup(QPalette::Inactive);
    if (alternatingRowColors() && index.row() % 2 == 1)
        option.features |= QStyleOptionViewItem::Alternate;
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
    itemDelegate()->paint(&painter, option, index);
    if (!showGrid())
        return;
    const int hint = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
    painter.setPen(QColor::fromRgba(static_cast<QRgb>(hint)));
    painter.drawLine(place.bottomLeft(), place.bottomRight());
    painter.drawLine(place.topRight(), place.bottomRight());
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
