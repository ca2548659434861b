#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QtGlobal>

#include <memory_resource>
#include <optional>
#include <string>
#include <string_view>

namespace VKTab {

/// A value during the evaluation of a statement: small, not owning. Texts are UTF-8 and live in the
/// table, in the program or in the memory resource of the evaluation.
struct VELKGEOMCORE_EXPORT Operand
{
    enum class Kind : quint8 {
        /// No value: unknown variable, or an operation that gave none.
        Missing,
        /// A variable's value as stored; a number if its text is one, no value if it is empty.
        Stored,
        Text,
        Number,
        Logical
    };

    Kind kind = Kind::Missing;
    bool logical = false;
    /// Of a stored value, a text, or a number as it was written; a number without one was computed.
    std::string_view text;
    double number = 0;

    [[nodiscard]] static Operand stored(std::string_view text);
    [[nodiscard]] static Operand ofText(std::string_view text);
    /// No value if the number is infinite or none.
    [[nodiscard]] static Operand ofNumber(double number);
    [[nodiscard]] static Operand ofLogical(bool value);

    [[nodiscard]] bool isTrue() const { return kind == Kind::Logical && logical; }
    /// Without a value, or a stored value that is empty.
    [[nodiscard]] bool hasNoValue() const;
    /// The number that this is; none for texts and for stored values that read otherwise.
    [[nodiscard]] std::optional<double> toNumber() const;
    /// The value as text, a computed number in its shortest notation of up to 15 digits, written
    /// into memory. None only for a missing value.
    [[nodiscard]] std::optional<std::string_view> toText(std::pmr::memory_resource &memory) const;
};

/// The decimal number that a text writes: optional sign, digits with an optional decimal point,
/// optional exponent, blanks around. Independent of the locale. None for anything else.
[[nodiscard]] VELKGEOMCORE_EXPORT std::optional<double> parseDecimal(std::string_view text);

/// Shortest notation with a decimal point and up to 15 significant digits.
[[nodiscard]] VELKGEOMCORE_EXPORT std::string decimalText(double number);

/// Equal within a relative tolerance of 1e-9.
[[nodiscard]] VELKGEOMCORE_EXPORT bool nearlyEqual(double a, double b);

/// A copy of text in memory.
[[nodiscard]] VELKGEOMCORE_EXPORT std::string_view keepText(std::string_view text,
                                                            std::pmr::memory_resource &memory);

} // namespace VKTab
