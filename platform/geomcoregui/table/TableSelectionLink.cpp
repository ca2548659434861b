#include "TableSelectionLink.h"

#include "TableGrid.h"
#include "VkTableModel.h"

#include <geomcore/table/SignalConnect.h>

#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>

#include <algorithm>

TableSelectionLink::TableSelectionLink(TableGrid *grid, VkTableModel *model)
    : QObject(grid)
    , m_grid(grid)
    , m_model(model)
{
    const QItemSelectionModel *const selection = grid->selectionModel();
    connect(selection, &QItemSelectionModel::selectionChanged, this,
            &TableSelectionLink::onSelectionChanged);
    connect(selection, &QItemSelectionModel::currentChanged, this,
            &TableSelectionLink::onCurrentChanged);
    connect(model, &QAbstractItemModel::modelAboutToBeReset, this,
            &TableSelectionLink::onAboutToReset);
    const auto forgetCount = [this] {
        m_count = -1;
    };
    connect(model, &QAbstractItemModel::modelReset, this, forgetCount);
    connect(model, &QAbstractItemModel::rowsInserted, this, forgetCount);
    connect(model, &QAbstractItemModel::rowsRemoved, this, forgetCount);
    connect(model, &QAbstractItemModel::layoutChanged, this, forgetCount);
}

TableSelectionLink::~TableSelectionLink() = default;

void TableSelectionLink::connectTable()
{
    m_selected = m_model->getTable().signalConnect().connectSignalLineSelected(
        [this](const VKTab::Content &, const VKTab::LineId &, bool selected) {
            onTableSelected(selected);
            return 0;
        },
        VKTab::ConnectGroupLibrary);
    m_wasMany = false;
    takeFromTable();
}

void TableSelectionLink::clear()
{
    const QSignalBlocker blocker(m_grid->selectionModel());
    m_grid->selectionModel()->clear();
    m_count = -1;
}

void TableSelectionLink::setFollowing(bool following)
{
    m_following = following;
    if (following && m_model->getTable().getSelection() != wanted())
        takeFromTable();
}

QList<int> TableSelectionLink::selectedRows() const
{
    QItemSelection selection = m_grid->selectionModel()->selection();
    std::sort(selection.begin(), selection.end(),
              [](const auto &a, const auto &b) { return a.top() < b.top(); });
    QList<int> rows;
    for (const QItemSelectionRange &range : std::as_const(selection)) {
        const int begin = rows.isEmpty() ? range.top() : std::max(range.top(), rows.last() + 1);
        for (int row = begin; row <= range.bottom(); ++row)
            rows.append(row);
    }
    return rows;
}

QList<VKTab::LineId> TableSelectionLink::selectedLines() const
{
    QList<VKTab::LineId> lines;
    for (const int row : selectedRows())
        lines.append(m_model->lineId(row));
    return lines;
}

int TableSelectionLink::selectedCount() const
{
    // Asked at every change of a line, and the selection is put together at every request.
    if (m_count >= 0)
        return m_count;
    m_count = 0;
    for (const QItemSelectionRange &range : m_grid->selectionModel()->selection())
        m_count += range.height();
    return m_count;
}

VKTab::LineId TableSelectionLink::wanted() const
{
    const QItemSelectionModel *const selection = m_grid->selectionModel();
    const QModelIndex current = selection->currentIndex();
    if (current.isValid() && selection->isRowSelected(current.row()))
        return m_model->lineId(current.row());
    int first = -1;
    for (const QItemSelectionRange &range : selection->selection())
        first = first < 0 ? range.top() : std::min(first, range.top());
    return m_model->lineId(first);
}

void TableSelectionLink::onSelectionChanged()
{
    m_count = -1;
    if (!m_busy)
        announce(true);
}

void TableSelectionLink::onCurrentChanged()
{
    // A mouse moves the current line before it selects it.
    const QModelIndex current = m_grid->currentIndex();
    if (!m_busy && current.isValid() && m_grid->selectionModel()->isRowSelected(current.row()))
        announce(false);
}

void TableSelectionLink::announce(bool changed)
{
    VKTab::ContentRef table = m_model->getTable();
    const VKTab::LineId line = wanted();
    const bool isMany = selectedCount() > 1;
    const bool manyChanged = changed && (isMany || m_wasMany);
    m_wasMany = isMany;
    {
        const QScopedValueRollback guard(m_busy, true);
        // Whoever listens asks for all selected lines, so another set of them is news.
        if (manyChanged && line.isValid() && table.getSelection() == line)
            table.setSelection(VKTab::LineId(), false);
        table.setSelection(line, true);
    }
    if (m_model->getTable() == table && table.getSelection() != line)
        takeFromTable(); // a listener chose another one
}

void TableSelectionLink::onTableSelected(bool selected)
{
    if (m_busy || !m_following)
        return;
    if (selected || !m_model->getTable().getSelection().isValid())
        takeFromTable();
}

void TableSelectionLink::takeFromTable()
{
    const VKTab::LineId line = m_model->getTable().getSelection();
    selectLines(line.isValid() ? QList<VKTab::LineId>{line} : QList<VKTab::LineId>());
}

void TableSelectionLink::selectLines(const QList<VKTab::LineId> &lines)
{
    const QScopedValueRollback guard(m_busy, true);
    QItemSelectionModel *const selection = m_grid->selectionModel();
    const int row = m_model->rowOf(m_model->getTable().getSelection());
    if (row < 0 || lines.isEmpty() || m_model->columnCount() == 0) {
        selection->clear();
        m_wasMany = false;
        return;
    }
    int column = m_grid->currentIndex().isValid() ? m_grid->currentIndex().column() : m_column;
    if (column < 0 || column >= m_model->columnCount())
        column = std::min(m_model->statusColumnCount(), m_model->columnCount() - 1);
    const int horizontal = m_grid->horizontalScrollBar()->value();
    const QModelIndex current = m_model->index(row, column);
    const int middle = m_grid->visualRect(current).center().y();
    const bool isInView = middle >= 0 && middle < m_grid->viewport()->height();
    selection->setCurrentIndex(current,
                               QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (lines.size() > 1) {
        QItemSelection all;
        for (const VKTab::LineId &line : lines) {
            if (const int other = m_model->rowOf(line); other >= 0)
                all.append(QItemSelectionRange(m_model->index(other, 0),
                                               m_model->index(other, m_model->columnCount() - 1)));
        }
        selection->select(all, QItemSelectionModel::ClearAndSelect);
    }
    m_wasMany = selectedCount() > 1;
    // A line from elsewhere comes with what stands round it.
    m_grid->scrollTo(current, isInView ? QAbstractItemView::EnsureVisible
                                       : QAbstractItemView::PositionAtCenter);
    m_grid->horizontalScrollBar()->setValue(horizontal);
}

void TableSelectionLink::onAboutToReset()
{
    m_remembered = selectedLines();
    m_count = -1;
    m_column = m_grid->currentIndex().isValid() ? m_grid->currentIndex().column() : -1;
    m_horizontal = m_grid->horizontalScrollBar()->value();
    m_vertical = m_grid->verticalScrollBar()->value();
}

void TableSelectionLink::restore()
{
    const VKTab::LineId line = m_model->getTable().getSelection();
    const QList<VKTab::LineId> lines = std::exchange(m_remembered, {});
    m_grid->horizontalScrollBar()->setValue(m_horizontal);
    m_grid->verticalScrollBar()->setValue(m_vertical);
    if (lines.contains(line))
        selectLines(lines);
    else
        takeFromTable();
}
