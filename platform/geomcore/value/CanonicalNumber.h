#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QtGlobal>

#include <optional>
#include <string>
#include <string_view>

namespace VKTab {

/// A decimal number in a form that can be compared and hashed without floating point: equal values
/// have equal numbers. A fraction is rounded (half away from zero) so that the number has Digits
/// significant digits: 0.1 + 0.2 as a program wrote it equals 0.3. Integers are never rounded,
/// since two long order numbers are not one; with more than MaxIntegerDigits digits they are texts.
class VELKGEOMCORE_EXPORT CanonicalNumber
{
public:
    static constexpr int Digits = 10;
    static constexpr int MaxIntegerDigits = 14;

    /// Zero.
    CanonicalNumber() = default;

    /// The number that \a text writes: optional sign, digits with an optional decimal point or
    /// \a decimalChar, optional exponent; blanks around do not matter. Without a value if the text
    /// is anything else ("M8", "1 1/4in") or beyond 1e±8000.
    [[nodiscard]] static std::optional<CanonicalNumber> parse(std::string_view text,
                                                              char decimalChar = '.');

    /// Whether a text without blanks before it begins like a number; no other text is one.
    [[nodiscard]] static bool mayBegin(std::string_view text, char decimalChar)
    {
        if (text.empty())
            return false;
        const char c = text.front();
        return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.' || c == decimalChar;
    }

    /// Sign, exponent and digits in one integer; equal if and only if the numbers are.
    [[nodiscard]] quint64 packed() const { return m_packed; }
    [[nodiscard]] bool isZero() const { return m_packed == 0; }
    [[nodiscard]] bool isNegative() const { return (m_packed >> 63) != 0; }
    /// The nearest double.
    [[nodiscard]] double toDouble() const;
    /// Plain notation with '.', or with an exponent above MaxIntegerDigits digits and below 1e-15:
    /// parse() gives the same number for it.
    [[nodiscard]] std::string toText() const;

    friend bool operator==(CanonicalNumber, CanonicalNumber) = default;

private:
    /// Digits with at most one decimal point; false if the text is anything else.
    static bool parseShort(std::string_view text, char decimalChar, CanonicalNumber &out);
    static std::optional<CanonicalNumber> parseAny(std::string_view text, char decimalChar);
    void set(bool negative, quint64 digits, qint64 exponent);

    /// Bit 63 sign, bits 48 to 62 exponent + 16384, bits 0 to 47 the digits as an integer that is
    /// no multiple of 10. Zero is 0.
    quint64 m_packed = 0;
};

} // namespace VKTab
