#pragma once

#include <core/VelkCoreGlobal.h>

#include <QLocale>
#include <QString>

/// A count as users read it, with its digits in groups: "1.304". QLocale's default is that of the
/// program's language where there are windows; "%Ln" in a text gives the same. Ids of lines,
/// revisions and what a program is to read again are no counts.
[[nodiscard]] VELKCORE_EXPORT QString countText(qint64 count, const QLocale &locale = QLocale());

/// A share as users read it, in whole percents: "99 %". Rounded down, for only what is certain is
/// 100 %.
[[nodiscard]] VELKCORE_EXPORT QString percentText(double share, const QLocale &locale = QLocale());

/// What a share is below, in percents: "4,9". Rounded up, or it would promise too much.
[[nodiscard]] VELKCORE_EXPORT QString boundText(double share, const QLocale &locale = QLocale());

/// Translation of a German source text with a count, "%Ln Zeile(n)", as PString::translate() gives
/// it: in the plural form of the language for \a count, whose digits stand as countText() has them.
/// Without a translation the form is that of the German catalog of the library, whether or not that
/// is in use. Any thread.
[[nodiscard]] VELKCORE_EXPORT QString translateCount(const char *text, const char *context,
                                                     int count);
