#pragma once

#include "RangeText.h"

#include <QStringView>

#include <optional>

namespace VKTab {

/// The range that a cell offers; nothing for a cell with one plain value, an empty one, or a text
/// that is no range.
[[nodiscard]] std::optional<RangeText> parseRangeCell(QStringView text, char decimalChar);

/// True if two texts are the same value: equal numbers to ten significant digits, or else equal
/// texts after trimming.
[[nodiscard]] bool equalCells(QStringView a, QStringView b, char decimalChar);

} // namespace VKTab
