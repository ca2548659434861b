#include "CanonicalNumber.h"

#include "CellKey.h"

#include <charconv>
#include <cstdlib>

namespace VKTab {

namespace {

constexpr int ExponentBias = 16384;
constexpr int ExponentLimit = 8000;
constexpr quint64 DigitsMask = (quint64(1) << 48) - 1;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Significant digits as they come in, the power of ten of the last one kept, and whether to round
/// up.
struct Mantissa
{
    quint64 value = 0;
    int kept = 0;
    qint64 exponent = 0;
    bool roundUp = false;
    bool rounded = false;
    bool any = false;
    bool tooLong = false;

    void add(char digit, bool fraction)
    {
        any = true;
        if (fraction && kept >= CanonicalNumber::Digits) {
            roundUp = rounded ? roundUp : digit >= '5';
            rounded = true;
            return;
        }
        tooLong = tooLong || kept >= CanonicalNumber::MaxIntegerDigits;
        value = tooLong ? value : value * 10 + quint64(digit - '0');
        kept += value != 0;
        exponent -= fraction;
    }
};

/// Reads an exponent's digits; saturates far beyond the limit.
bool readExponent(const char *&at, const char *end, qint64 &exponent)
{
    const bool negative = at < end && *at == '-';
    at += at < end && (*at == '-' || *at == '+');
    if (at == end)
        return false;
    qint64 value = 0;
    for (; at < end && isDigit(*at); ++at)
        value = value > 1000000 ? value : value * 10 + (*at - '0');
    exponent += negative ? -value : value;
    return at == end;
}

} // namespace

std::optional<CanonicalNumber> CanonicalNumber::parse(std::string_view text, char decimalChar)
{
    text = trimmedCell(text);
    if (text.size() <= Digits + 1 && !text.empty() && isDigit(text.front())) {
        CanonicalNumber result;
        if (parseShort(text, decimalChar, result))
            return result;
    }
    return parseAny(text, decimalChar);
}

bool CanonicalNumber::parseShort(std::string_view text, char decimalChar, CanonicalNumber &out)
{
    quint64 value = 0;
    int digits = 0;
    int fraction = 0;
    bool point = false;
    for (char c : text) {
        if (isDigit(c)) {
            value = value * 10 + quint64(c - '0');
            ++digits;
            fraction += point;
        } else if (!point && (c == '.' || c == decimalChar)) {
            point = true;
        } else {
            return false;
        }
    }
    if (digits > Digits)
        return false;
    out.set(false, value, -fraction);
    return true;
}

void CanonicalNumber::set(bool negative, quint64 digits, qint64 exponent)
{
    m_packed = 0;
    if (digits == 0)
        return;
    for (; digits % 10 == 0; digits /= 10)
        ++exponent;
    m_packed = quint64(negative) << 63 | quint64(exponent + ExponentBias) << 48 | digits;
}

std::optional<CanonicalNumber> CanonicalNumber::parseAny(std::string_view text, char decimalChar)
{
    const char *at = text.data();
    const char *const end = at + text.size();
    const bool negative = at < end && *at == '-';
    at += at < end && (*at == '-' || *at == '+');
    Mantissa mantissa;
    for (; at < end && isDigit(*at); ++at)
        mantissa.add(*at, false);
    if (at < end && (*at == '.' || *at == decimalChar)) {
        for (++at; at < end && isDigit(*at); ++at)
            mantissa.add(*at, true);
    }
    if (!mantissa.any || mantissa.tooLong)
        return {};
    if (at < end) {
        if ((*at | 0x20) != 'e' || !readExponent(++at, end, mantissa.exponent))
            return {};
    }
    const qint64 magnitude = mantissa.value == 0 ? 0 : mantissa.exponent;
    if (magnitude > ExponentLimit || magnitude < -ExponentLimit)
        return {};
    CanonicalNumber result;
    result.set(negative, mantissa.value + (mantissa.roundUp ? 1 : 0), mantissa.exponent);
    return result;
}

double CanonicalNumber::toDouble() const
{
    // Digits and powers of ten up to 22 are exact in a double, so one operation rounds right.
    static constexpr double powers[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                        1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                        1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    const int exponent = int((m_packed >> 48) & 0x7FFF) - ExponentBias;
    if (!isZero() && exponent >= -22 && exponent <= 22) {
        const auto digits = double(m_packed & DigitsMask);
        const double value = exponent < 0 ? digits / powers[-exponent] : digits * powers[exponent];
        return isNegative() ? -value : value;
    }
    const std::string text = toText();
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

std::string CanonicalNumber::toText() const
{
    if (isZero())
        return "0";
    std::string digits = std::to_string(m_packed & DigitsMask);
    const int exponent = int(m_packed >> 48 & 0x7FFF) - ExponentBias;
    const int point = int(digits.size()) + exponent; // digits before the decimal point
    const bool isLong = point > MaxIntegerDigits;    // as an integer it would be a text
    if (int(digits.size()) > Digits && (isLong || exponent < 0)) {
        digits += "e" + std::to_string(exponent); // digits behind a point would be rounded
    } else if (isLong || point < -14) {
        const int power = point - 1;
        if (digits.size() > 1)
            digits.insert(1, 1, '.');
        digits += "e" + std::to_string(power);
    } else if (exponent >= 0) {
        digits.append(size_t(exponent), '0');
    } else if (point > 0) {
        digits.insert(size_t(point), 1, '.');
    } else {
        digits = "0." + std::string(size_t(-point), '0') + digits;
    }
    return isNegative() ? "-" + digits : digits;
}

} // namespace VKTab
