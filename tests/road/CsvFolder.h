#pragma once

#include <QByteArray>
#include <QString>

/// \a csv without the first column: "a,b\n1,2" gives "b\n2". Empty if there is but one column.
[[nodiscard]] QByteArray withoutFirstColumn(const QByteArray &csv);

/// Copies a tree of CSV files without their first columns; tables of one column are left out.
/// False if a file cannot be read or written.
[[nodiscard]] bool copyWithoutFirstColumns(const QString &from, const QString &to);
