#include "NumberText.h"

#include "CellKey.h"

#include <array>
#include <charconv>
#include <cmath>

namespace VKTab {

QString numberText(double number)
{
    const double size = std::abs(number);
    const bool plain = size == 0 || (size >= 1e-6 && size < 1e15);
    std::array<char, 64> buffer{};
    const auto format = plain ? std::chars_format::fixed : std::chars_format::scientific;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                   size == 0 ? 0.0 : number, format);
    return QString::fromLatin1(buffer.data(), end.ptr - buffer.data());
}

std::optional<double> parseNumber(std::string_view text)
{
    text = trimmedCell(text);
    if (text.starts_with('+') && text.size() > 1 && text[1] != '-')
        text.remove_prefix(1);
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = result.ec == std::errc() && result.ptr == text.data() + text.size();
    if (!whole || text.empty() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

} // namespace VKTab
