#include "ProgressText.h"

#include <core/text/countText.h>
#include <core/text/PString.h>

#include <QStringList>

namespace {

constexpr QChar NoBreak(0xa0);

QString twoDigits(qint64 number)
{
    return QStringLiteral("%1").arg(number, 2, 10, QChar(u'0'));
}

QString unit(const QString &number, const char *name)
{
    return number + NoBreak + QString::fromLatin1(name);
}

/// Fractions of a step a second are told for slow work only.
QString rateText(double rate)
{
    constexpr double Slow = 10;
    if (rate < Slow)
        return QLocale().toString(rate, 'f', 1) + QStringLiteral("/s");
    return countText(qRound64(rate)) + QStringLiteral("/s");
}

} // namespace

QString progressTime(qint64 milliseconds)
{
    const qint64 seconds = (milliseconds + 999) / 1000;
    const qint64 minutes = seconds / 60;
    if (minutes == 0)
        return unit(QString::number(seconds), "s");
    const qint64 hours = minutes / 60;
    if (hours == 0)
        return unit(QString::number(minutes), "min") + u' ' + unit(twoDigits(seconds % 60), "s");
    return unit(countText(hours), "h") + u' ' + unit(twoDigits(minutes % 60), "min");
}

QString progressDetails(const PProgressInfo &info)
{
    QStringList parts;
    if (info.total >= 0)
        parts.append(PString::translate("%1 von %2", "VelkGui")
                         .arg(countText(info.count), countText(info.total)));
    else
        parts.append(countText(info.count));
    if (info.rate > 0)
        parts.append(rateText(info.rate));
    if (info.remaining > 0)
        parts.append(PString::translate("noch %1", "VelkGui").arg(progressTime(info.remaining)));
    return parts.join(QString::fromUtf8(" · "));
}
