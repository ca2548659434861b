#pragma once

#include <QString>

#include <optional>
#include <string_view>

namespace VKTab {

/// Shortest text that reads back as the same number, with a decimal point; plain between 1e-6 and
/// 1e15, else with an exponent.
[[nodiscard]] QString numberText(double number);

/// The finite number that a text consists of, blanks around it aside; nothing for any other text.
[[nodiscard]] std::optional<double> parseNumber(std::string_view text);

} // namespace VKTab
