#include "VkTableModel.h"

#include "VkTableModelPrivate.h"

#include <geomcore/table/BaseLayer.h>

#include <QThread>

VkTableModel::VkTableModel(QObject *parent)
    : QAbstractTableModel(parent)
    , d(std::make_unique<VkTableModelPrivate>(this))
{
}

VkTableModel::~VkTableModel() = default;

VKTab::ContentRef VkTableModel::getTable() const
{
    return d->table;
}

void VkTableModel::setTable(const VKTab::ContentRef &table)
{
    beginResetModel();
    d->table = table;
    d->quickFilters.clear();
    d->sortedBy.reset();
    d->missed = {};
    d->resetTo(tableColumns(table, d->choice));
    d->connectTable();
    endResetModel();
}

void VkTableModel::setFollowing(bool following)
{
    d->following = following;
    if (following)
        d->refresh(std::exchange(d->missed, {}));
}

bool VkTableModel::showHiddenVars() const
{
    return d->hiddenShown;
}

void VkTableModel::setShowHiddenVars(bool show)
{
    if (d->hiddenShown == show)
        return;
    if (QThread::currentThread() != thread()) {
        QMetaObject::invokeMethod(
            this, [this, show] { setShowHiddenVars(show); }, Qt::QueuedConnection);
        return;
    }
    d->hiddenShown = show;
    TableColumnChoice choice = d->choice;
    choice.hidden = show;
    d->takeChoice(choice);
}

void VkTableModel::setLineRemarks(const LineRemarks &remarks)
{
    d->remarks = remarks;
    if (d->rows.count() > 0)
        Q_EMIT headerDataChanged(Qt::Vertical, 0, d->rows.count() - 1);
}

void VkTableModel::setShowTopoValues(bool show)
{
    TableColumnChoice choice = d->choice;
    choice.topology = show;
    d->takeChoice(choice);
}

void VkTableModel::setShowInternalValues(bool show)
{
    TableColumnChoice choice = d->choice;
    choice.internal = show;
    d->takeChoice(choice);
}

VKTab::LineId VkTableModel::lineId(int row) const
{
    return d->rows.lineId(row);
}

int VkTableModel::rowOf(const VKTab::LineId &line) const
{
    return d->rows.rowOf(line);
}

int VkTableModel::mappingRow(int row) const
{
    return d->rows.placeAt(row);
}

int VkTableModel::statusColumnCount() const
{
    return d->statusColumns;
}

bool VkTableModel::isStatusColumnUsed(int column) const
{
    const TableColumn *const shown = d->column(column);
    const auto layer = d->table.getModifyLayer();
    return shown && shown->isStatus() && layer && layer->hasLineKeyValues(shown->status.getName());
}

VKTab::Var VkTableModel::variable(int column) const
{
    const TableColumn *const found = d->column(column);
    return found ? found->var : VKTab::Var();
}

int VkTableModel::columnOf(const VKTab::VarId &variable) const
{
    for (int i = d->statusColumns; i < d->columns.size(); ++i) {
        if (d->columns.at(i).var.getVarId() == variable)
            return i;
    }
    return -1;
}

QString VkTableModel::statusToolTip(const QModelIndex &index, QWidget *widget) const
{
    const TableColumn *const column = d->column(index.column());
    if (!column || index.model() != this || index.row() >= d->rows.count() || !column->isStatus())
        return {};
    return d->toolTip(index.row(), *column, index.column(), widget);
}

void VkTableModel::setQuickFilter(const VKTab::VarId &variable, const QString &text)
{
    if (quickFilter(variable) == text)
        return;
    if (text.isEmpty())
        d->quickFilters.erase(variable);
    else
        d->quickFilters[variable] = text;
    d->refreshRows();
}

QString VkTableModel::quickFilter(const VKTab::VarId &variable) const
{
    const auto found = d->quickFilters.find(variable);
    return found == d->quickFilters.end() ? QString() : found->second;
}

QList<VkTableModel::ValueCount> VkTableModel::valueCounts(const VKTab::VarId &variable) const
{
    return d->valueCounts(variable);
}

void VkTableModel::clearQuickFilters()
{
    if (d->quickFilters.empty())
        return;
    d->quickFilters.clear();
    d->refreshRows();
}

bool VkTableModel::hasQuickFilter() const
{
    return !d->quickFilters.empty();
}

int VkTableModel::sortColumn() const
{
    return d->sortedBy ? int(d->columns.indexOf(*d->sortedBy)) : -1;
}

Qt::SortOrder VkTableModel::sortOrder() const
{
    return d->order;
}

int VkTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : d->rows.count();
}

int VkTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(d->columns.size());
}

Qt::ItemFlags VkTableModel::flags(const QModelIndex &index) const
{
    return index.isValid() ? Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemNeverHasChildren
                           : Qt::NoItemFlags;
}

void VkTableModel::sort(int column, Qt::SortOrder order)
{
    const TableColumn *const found = d->column(column);
    if (!found && !d->sortedBy)
        return;
    Q_EMIT layoutAboutToBeChanged({}, VerticalSortHint);
    const QModelIndexList from = persistentIndexList();
    QList<VKTab::LineId> lines;
    for (const QModelIndex &index : from)
        lines.append(lineId(index.row()));
    d->sortedBy = found ? std::optional(*found) : std::nullopt;
    d->order = order;
    d->rows = d->makeRows();
    d->dirtyStatus.clear();
    d->dirtyValues.clear();
    QModelIndexList to;
    for (qsizetype i = 0; i < from.size(); ++i)
        to.append(index(rowOf(lines.at(i)), from.at(i).column()));
    changePersistentIndexList(from, to);
    Q_EMIT layoutChanged({}, VerticalSortHint);
}
