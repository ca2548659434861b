#include "ReleaseDate.h"

#include <QDateTime>

namespace VelkRelease {

QString dateInUtc(const QString &text)
{
    QDateTime date = QDateTime::fromString(text.trimmed(), Qt::ISODate);
    // Before asking whether it is valid: the hour may be one that a desk's clock leaves out.
    if (date.timeSpec() == Qt::LocalTime)
        date = QDateTime(date.date(), date.time(), Qt::UTC);
    return date.isValid() ? date.toUTC().toString(Qt::ISODate) : QString();
}

} // namespace VelkRelease
