#include "counted.h"

namespace velkmap {

QString counted(qint64 count, const char *word)
{
    return QString::number(count) + u' ' + QLatin1String(word) +
           (count == 1 ? QString() : QStringLiteral("s"));
}

} // namespace velkmap
