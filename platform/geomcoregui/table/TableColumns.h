#pragma once

#include <geomcore/table/Content.h>
#include <geomcore/value/StatusKey.h>

#include <QList>

/// One column of a table view: a status key or a variable.
struct TableColumn
{
    VKTab::StatusKey status; ///< Not valid for a variable.
    VKTab::Var var;          ///< Not valid for a status key.

    [[nodiscard]] bool isStatus() const { return status.isValid(); }
    /// The same column, looking the same; the states of a status key may be others.
    friend bool operator==(const TableColumn &a, const TableColumn &b)
    {
        return a.status.getName() == b.status.getName() && a.var == b.var;
    }
};

/// Which variables of a table have a column.
struct TableColumnChoice
{
    bool hidden = false;
    bool topology = true;
    bool internal = false;
};

/// Status columns first, then the variables in the table's column order.
[[nodiscard]] QList<TableColumn> tableColumns(const VKTab::Content &table,
                                              const TableColumnChoice &choice);
