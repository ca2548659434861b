#pragma once

#include <release/report/ReportHtml.h>

#include <QLocale>

/// What a report of a release says, in the language of the moment.
namespace ReportTexts {

/// "gleiche Zeilen": why a line is open, in a few words.
[[nodiscard]] QString reason(VelkRelease::OpenReason reason);
/// All of it, with times as \a locale writes them.
[[nodiscard]] VelkRelease::ReportForm form(const QLocale &locale);

} // namespace ReportTexts
