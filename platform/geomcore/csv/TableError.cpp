#include "TableError.h"

#include <core/text/PString.h>

namespace VKTab {

QString TableError::toString() const
{
    QString where = file;
    if (row > 0 && column > 0)
        where += QStringLiteral(": ") +
                 PString::translate("Zeile %1, Spalte %2", "VelkGeomCore").arg(row).arg(column);
    else if (row > 0)
        where += QStringLiteral(": ") + PString::translate("Zeile %1", "VelkGeomCore").arg(row);
    return where.isEmpty() ? text : where + QStringLiteral(": ") + text;
}

} // namespace VKTab
