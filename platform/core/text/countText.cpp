#include "countText.h"

QString countText(qint64 count, const QLocale &locale)
{
    return locale.toString(count);
}
