#pragma once

#include <QString>

/// Text of the search widgets in the language of the moment.
[[nodiscard]] QString searchText(const char *text);
/// The same of a text with a count.
[[nodiscard]] QString searchText(const char *text, qsizetype count);
