#pragma once

#include <QString>

/// Text of this library in the language of the moment.
[[nodiscard]] QString releaseText(const char *text);
/// The same of a text with a count.
[[nodiscard]] QString releaseText(const char *text, qsizetype count);
