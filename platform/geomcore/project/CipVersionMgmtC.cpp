#include "CipVersionMgmtC.h"

#include <QDateTime>
#include <QTimeZone>

QString CipVersionMgmtC::MakeVersionFromDate(const QString &date, const QString &prefix)
{
    QDateTime instant = QDateTime::fromString(date.trimmed(), Qt::ISODate);
    // Before asking whether it is valid: the hour may be one that a desk's clock leaves out.
    if (instant.timeSpec() == Qt::LocalTime)
        instant = QDateTime(instant.date(), instant.time(), Qt::UTC);
    if (!instant.isValid())
        return {};
    const QString digits = QLocale::c().toString(instant.toUTC(), QStringLiteral("yyMMddhhmmss"));
    return (prefix.isEmpty() ? QStringLiteral("v") : prefix) + digits;
}
