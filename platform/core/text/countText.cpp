#include "countText.h"

#include <QCoreApplication>

QString countText(qint64 count, const QLocale &locale)
{
    return locale.toString(count);
}

QString translateCount(const char *text, const char *context, int count)
{
    return QCoreApplication::translate(context, text, nullptr, count);
}
