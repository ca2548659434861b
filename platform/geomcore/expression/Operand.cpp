#include "Operand.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstring>

namespace VKTab {

namespace {

constexpr double relativeTolerance = 1e-9;
constexpr int textDigits = 15;
constexpr double largestWhole = 1e15;

bool isBlank(char c)
{
    return c == ' ' || (c >= '\t' && c <= '\r');
}

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

std::string_view trimmed(std::string_view text)
{
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

/// Refuses what std::from_chars takes beyond decimal numbers ("inf", "nan", "0x").
bool beginsNumber(std::string_view text)
{
    if (!text.empty() && text.front() == '.')
        text.remove_prefix(1);
    return !text.empty() && isDigit(text.front());
}

/// Room for one number in the notation of decimalText.
struct NumberText
{
    std::string_view write(double number)
    {
        char *const end = buffer.data() + buffer.size();
        // Whole numbers are common, and four times as fast this way. Also makes "0" of -0.
        const bool whole = std::abs(number) < largestWhole && std::trunc(number) == number;
        const auto result = whole ? std::to_chars(buffer.data(), end, qint64(number))
                                  : std::to_chars(buffer.data(), end, number,
                                                  std::chars_format::general, textDigits);
        return {buffer.data(), size_t(result.ptr - buffer.data())};
    }

    std::array<char, 32> buffer;
};

} // namespace

std::optional<double> parseDecimal(std::string_view text)
{
    text = trimmed(text);
    const bool minus = text.starts_with('-');
    if (minus || text.starts_with('+'))
        text.remove_prefix(1);
    if (!beginsNumber(text))
        return std::nullopt;
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size())
        return std::nullopt;
    return minus ? -number : number;
}

std::string decimalText(double number)
{
    NumberText text;
    return std::string(text.write(number));
}

bool nearlyEqual(double a, double b)
{
    return a == b || std::abs(a - b) <= relativeTolerance * std::max(std::abs(a), std::abs(b));
}

std::string_view keepText(std::string_view text, std::pmr::memory_resource &memory)
{
    if (text.empty())
        return {};
    char *copy = static_cast<char *>(memory.allocate(text.size(), 1));
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

Operand Operand::stored(std::string_view text)
{
    Operand operand;
    operand.kind = Kind::Stored;
    operand.text = text;
    return operand;
}

Operand Operand::ofText(std::string_view text)
{
    Operand operand;
    operand.kind = Kind::Text;
    operand.text = text;
    return operand;
}

Operand Operand::ofNumber(double number)
{
    Operand operand;
    operand.kind = std::isfinite(number) ? Kind::Number : Kind::Missing;
    operand.number = number;
    return operand;
}

Operand Operand::ofLogical(bool value)
{
    Operand operand;
    operand.kind = Kind::Logical;
    operand.logical = value;
    return operand;
}

bool Operand::hasNoValue() const
{
    return kind == Kind::Missing || (kind == Kind::Stored && text.empty());
}

std::optional<double> Operand::toNumber() const
{
    if (kind == Kind::Number)
        return number;
    return kind == Kind::Stored ? parseDecimal(text) : std::nullopt;
}

std::optional<std::string_view> Operand::toText(std::pmr::memory_resource &memory) const
{
    if (kind == Kind::Missing || kind == Kind::Logical)
        return std::nullopt;
    if (kind == Kind::Number && text.empty())
        return keepText(NumberText().write(number), memory);
    return text;
}

} // namespace VKTab
