#include "CipVersionMgmtC.h"

#include <QDateTime>
#include <QTimeZone>

QString CipVersionMgmtC::MakeVersionFromDate(const QString &date, const QString &prefix)
{
    QDateTime instant = QDateTime::fromString(date.trimmed(), Qt::ISODate);
    if (!instant.isValid())
        return {};
    if (instant.timeSpec() == Qt::LocalTime)
        instant = QDateTime(instant.date(), instant.time(), Qt::UTC);
    const QString digits = QLocale::c().toString(instant.toUTC(), QStringLiteral("yyMMddhhmmss"));
    return (prefix.isEmpty() ? QStringLiteral("v") : prefix) + digits;
}
