#pragma once

#include <QString>

/// Text about a mapping file in the language of the moment.
[[nodiscard]] QString recordsText(const char *text);
