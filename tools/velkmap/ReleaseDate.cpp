#include "ReleaseDate.h"

#include <QDateTime>

namespace velkmap {

QString dateInUtc(const QString &text)
{
    QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    if (!date.isValid())
        return {};
    if (date.timeSpec() == Qt::LocalTime)
        date.setTimeSpec(Qt::UTC);
    return date.toUTC().toString(Qt::ISODate);
}

} // namespace velkmap
