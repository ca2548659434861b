#pragma once

#include <gui/VelkGuiGlobal.h>

#include <core/progress/PProgressInfo.h>

/// Count, rate and estimated rest of a progress for the user, such as
/// "1 234 von 5 678 · 120/s · noch 37 s"; what is not known is left out. Digits are grouped by
/// blanks that do not break, whatever the locale.
[[nodiscard]] VELKGUI_EXPORT QString progressDetails(const PProgressInfo &info);

/// A time in the two largest units that it fills: "37 s", "2 min 05 s", "3 h 00 min".
[[nodiscard]] VELKGUI_EXPORT QString progressTime(qint64 milliseconds);
