#pragma once

#include <QString>

/// "1 304": digits in groups of three, with narrow spaces that no row breaks at. Commas and points
/// would be read as decimal ones by somebody.
[[nodiscard]] QString groupedNumber(int number);
