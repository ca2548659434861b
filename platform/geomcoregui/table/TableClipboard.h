#pragma once

#include <QList>

QT_BEGIN_NAMESPACE
class QMimeData;
QT_END_NAMESPACE

class TableGrid;

/// The given rows of a grid with the captions of its columns, as they stand beside each other: text
/// separated by tabs, cells with tabs, line ends or quotes quoted, and an HTML table. Status
/// columns are left out. The caller owns the result.
[[nodiscard]] QMimeData *tableMimeData(const TableGrid &grid, const QList<int> &rows);
