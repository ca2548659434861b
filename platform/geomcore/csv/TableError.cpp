#include "TableError.h"

namespace VKTab {

QString TableError::toString() const
{
    QString where = file;
    if (row > 0)
        where += QStringLiteral(": row %1").arg(row);
    if (row > 0 && column > 0)
        where += QStringLiteral(", column %1").arg(column);
    return where.isEmpty() ? text : where + QStringLiteral(": ") + text;
}

} // namespace VKTab
