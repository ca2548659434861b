#include "VkTableModelPrivate.h"

#include "QuickFilter.h"
#include "TableCellText.h"
#include "TableRowBuilder.h"

#include <geomcore/table/SignalConnect.h>

#include <algorithm>

using VKTab::Content;

VkTableModelPrivate::VkTableModelPrivate(VkTableModel *model)
    : q(model)
{
}

void VkTableModelPrivate::connectTable()
{
    VKTab::SignalConnect &hub = table.signalConnect();
    invalidated = hub.connectSignalInvalidated(
        [this](const Content &, Content::InvalidateFlags flags) { onInvalidated(flags); });
    lineStatus = hub.connectSignalLineStatus(
        [this](const Content &, const VKTab::LineId &id) { onLineStatus(id); });
    lineModified =
        hub.connectSignalLineModified([this](const Content &, const VKTab::LineId &id, bool) {
            onLineModified(id);
            return 0;
        });
}

void VkTableModelPrivate::onInvalidated(Content::InvalidateFlags flags)
{
    if (following)
        refresh(flags);
    else
        missed |= flags;
}

int VkTableModelPrivate::countUsedStatusColumns() const
{
    int used = 0;
    for (int column = 0; column < statusColumns; ++column)
        used += q->isStatusColumnUsed(column) ? 1 : 0;
    return used;
}

void VkTableModelPrivate::noteUsedStatusColumns()
{
    if (usedStatusColumns == statusColumns)
        return;
    const int used = countUsedStatusColumns();
    if (std::exchange(usedStatusColumns, used) != used)
        Q_EMIT q->statusColumnCameIntoUse();
}

void VkTableModelPrivate::onLineStatus(const VKTab::LineId &id)
{
    noteUsedStatusColumns();
    if (!following) {
        missed |= Content::InvalidateValues;
        return;
    }
    const int row = id.isValid() ? rows.rowOf(id) : rows.count() - 1;
    if (row < 0)
        return;
    dirtyStatus.add(id.isValid() ? row : 0, row);
    scheduleFlush();
}

void VkTableModelPrivate::onLineModified(const VKTab::LineId &id)
{
    sortedValues.clear();
    if (!following) {
        missed |= Content::InvalidateValues;
        return;
    }
    const int row = rows.rowOf(id);
    if (row < 0)
        return;
    dirtyValues.add(row);
    scheduleFlush();
}

void VkTableModelPrivate::refresh(Content::InvalidateFlags flags)
{
    if (!flags)
        return;
    forgetCells();
    if (table.getTableData() != tableData) {
        q->beginResetModel();
        quickFilters.clear();
        sortedBy.reset();
        resetTo(tableColumns(table, choice));
        q->endResetModel();
        return;
    }
    if (flags.testFlag(Content::InvalidateColumns))
        refreshColumns();
    const bool arranged = !quickFilters.empty() || sortedBy;
    if (flags.testFlag(Content::InvalidateFilter) ||
        (flags.testFlag(Content::InvalidateValues) && arranged))
        refreshRows();
    if (flags != Content::InvalidateFilter && rows.count() > 0) {
        dirtyValues.add(0, rows.count() - 1);
        dirtyStatus.add(0, rows.count() - 1);
        scheduleFlush();
    }
}

void VkTableModelPrivate::scheduleFlush()
{
    if (std::exchange(flushScheduled, true))
        return;
    QMetaObject::invokeMethod(
        q, [this] { flush(); }, Qt::QueuedConnection);
}

void VkTableModelPrivate::flush()
{
    flushScheduled = false;
    flush(dirtyStatus, 0, statusColumns - 1,
          {Qt::DecorationRole, Qt::DisplayRole, Qt::ToolTipRole, Qt::AccessibleTextRole});
    flush(dirtyValues, statusColumns, int(columns.size()) - 1,
          {Qt::DisplayRole, Qt::ToolTipRole, VkTableModel::RangeRole});
}

void VkTableModelPrivate::flush(DirtyRows &dirty, int firstColumn, int lastColumn,
                                const QList<int> &roles)
{
    const DirtyRows changed = std::exchange(dirty, DirtyRows());
    const int last = std::min(changed.last(), rows.count() - 1);
    if (changed.isEmpty() || lastColumn < firstColumn || changed.first() > last)
        return;
    Q_EMIT q->dataChanged(q->index(changed.first(), firstColumn), q->index(last, lastColumn),
                          roles);
}

void VkTableModelPrivate::takeChoice(const TableColumnChoice &newChoice)
{
    choice = newChoice;
    refreshColumns();
}

void VkTableModelPrivate::refreshColumns()
{
    const QList<TableColumn> found = tableColumns(table, choice);
    forgetCells();
    if (found == columns) {
        columns = found; // the states of a status key may have changed
        return;
    }
    q->beginResetModel();
    resetTo(found);
    q->endResetModel();
}

void VkTableModelPrivate::refreshRows()
{
    TableRows found = makeRows();
    if (found.sameLines(rows)) {
        rows = std::move(found);
        return;
    }
    q->beginResetModel();
    rows = std::move(found);
    dirtyStatus.clear();
    dirtyValues.clear();
    q->endResetModel();
}

void VkTableModelPrivate::resetTo(const QList<TableColumn> &found)
{
    columns = found;
    statusColumns = int(std::count_if(columns.begin(), columns.end(),
                                      [](const TableColumn &c) { return c.isStatus(); }));
    forgetCells();
    tableData = table.getTableData();
    usedStatusColumns = countUsedStatusColumns();
    rows = makeRows();
    dirtyStatus.clear();
    dirtyValues.clear();
}

void VkTableModelPrivate::forgetCells()
{
    sortedValues.clear();
    line = VKTab::Line();
    lineId = VKTab::LineId();
}

TableRows VkTableModelPrivate::makeRows()
{
    if (!table.isValid())
        return {};
    const ViewLanguage language;
    TableRowBuilder builder(table);
    for (const auto &[id, text] : quickFilters) {
        if (const int index = q->columnOf(id); index >= 0)
            builder.filter(*values(columns.at(index).var).values, text);
    }
    if (!sortedBy || !columns.contains(*sortedBy))
        return builder.rows();
    if (sortedBy->isStatus()) {
        builder.sort(sortedBy->status, order);
    } else {
        SortedValues &sorting = values(sortedBy->var);
        builder.sort(*sorting.values, sorting.ranked(), order);
    }
    return builder.rows();
}

QList<VkTableModel::ValueCount> VkTableModelPrivate::valueCounts(const VKTab::VarId &variable)
{
    const int asked = q->columnOf(variable);
    if (!table.isValid() || asked < 0)
        return {};
    const ViewLanguage language;
    TableRowBuilder builder(table);
    for (const auto &[id, text] : quickFilters) {
        if (const int index = q->columnOf(id); index >= 0 && id != variable)
            builder.filter(*values(columns.at(index).var).values, text);
    }
    SortedValues &column = values(columns.at(asked).var);
    const TableColumnValues &shown = *column.values;
    const std::vector<int> counts = builder.count(shown);
    const std::vector<char> passing = QuickFilter(q->quickFilter(variable)).passing(shown);
    const std::vector<quint32> &ranks = column.ranked();
    std::vector<std::size_t> texts;
    texts.reserve(counts.size());
    for (std::size_t id = 0; id < counts.size(); ++id) {
        if (counts[id] > 0)
            texts.push_back(id);
    }
    std::sort(texts.begin(), texts.end(),
              [&](std::size_t a, std::size_t b) { return ranks[a] < ranks[b]; });
    QList<VkTableModel::ValueCount> found;
    for (const std::size_t id : texts) {
        const std::string_view utf8 = shown.texts()[id];
        const QString text = QString::fromUtf8(utf8.data(), qsizetype(utf8.size()));
        if (!found.isEmpty() && found.last().text == text)
            found.last().count += counts[id];
        else
            found += {text, counts[id], passing[id] != 0};
    }
    return found;
}

const TableColumn *VkTableModelPrivate::column(int index) const
{
    return index >= 0 && index < columns.size() ? &columns.at(index) : nullptr;
}

VkTableModelPrivate::SortedValues &VkTableModelPrivate::values(const VKTab::Var &var)
{
    SortedValues &entry = sortedValues[var.getVarId()];
    if (!entry.values)
        entry.values = std::make_unique<TableColumnValues>(table, var);
    return entry;
}
