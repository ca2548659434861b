#pragma once

#include <release/report/ReportHtml.h>

/// What a report of a release says, in the language of the moment.
namespace ReportTexts {

/// "gleiche Zeilen": why a line is open, in a few words.
[[nodiscard]] QString reason(VelkRelease::OpenReason reason);
/// All of it, with times as the user's locale writes them. \a language: of the editor, "de".
[[nodiscard]] VelkRelease::ReportForm form(const QString &language);

} // namespace ReportTexts
