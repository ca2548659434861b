#include "TableColumns.h"

#include <geomcore/table/TabOptions.h>

namespace {

bool isShown(const VKTab::Var &var, const TableColumnChoice &choice)
{
    if (!var.isValid() || (var.isHidden() && !choice.hidden))
        return false;
    if (var.getVarType() == VKTab::VarTypeTopology)
        return choice.topology;
    if (var.getVarType() == VKTab::VarTypeInternal)
        return choice.internal;
    return true;
}

void addStatusColumns(const VKTab::Content &table, QList<TableColumn> &columns)
{
    const auto options = table.getOptions();
    if (!options || !options->isStatusColumnsShown())
        return;
    for (const VKTab::StatusKey &key : options->getStatusIcons()) {
        if (key.getKeyType() == VKTab::StatusKey::IconColumn)
            columns.append({key, VKTab::Var()});
    }
}

} // namespace

QList<TableColumn> tableColumns(const VKTab::Content &table, const TableColumnChoice &choice)
{
    QList<TableColumn> columns;
    if (!table.isValid())
        return columns;
    addStatusColumns(table, columns);
    for (const VKTab::VarId &id : table.getColumnMapping().getOrdered()) {
        const VKTab::Var var = table.getVar(id);
        if (isShown(var, choice))
            columns.append({VKTab::StatusKey(), var});
    }
    return columns;
}
