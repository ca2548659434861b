#pragma once

#include <release/VelkReleaseGlobal.h>

#include <QString>

namespace VelkRelease {

/// An ISO 8601 date, without an offset taken as UTC, as it stands in mapping files: in UTC with
/// seconds, "2026-06-30T12:00:00Z". Texts order as the dates do. Empty if \a text is no date.
[[nodiscard]] VELKRELEASE_EXPORT QString dateInUtc(const QString &text);

} // namespace VelkRelease
