#pragma once

#include <cstddef>

namespace VKTab {

/// Walks whole UTF-8 sequences from \a at until it stands at or behind \a end, reading no byte at
/// or behind \a limit. Returns where it stands, or null with the place of the bad byte in \a bad.
[[nodiscard]] const char *checkUtf8(const char *at, const char *end, const char *limit,
                                    const char **bad);

} // namespace VKTab
