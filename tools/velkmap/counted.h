#pragma once

#include <QString>

namespace velkmap {

/// "1 line", "12 lines": the word is given for one; several end in "s". Digits are not grouped, so
/// that a script can read them.
[[nodiscard]] QString counted(qint64 count, const char *word);

} // namespace velkmap
