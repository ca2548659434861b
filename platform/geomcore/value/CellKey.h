#pragma once

#include "CanonicalNumber.h"

#include <string_view>

namespace VKTab {

/// How the cells of a column are compared.
enum class CompareMode : quint8 {
    Number, ///< As numbers where both are, see CanonicalNumber, else as trimmed texts.
    Text,   ///< Byte for byte.
};

/// A cell as it is compared: no value, a number or a text. A view: the cell's bytes must stay.
class VELKGEOMCORE_EXPORT CellKey
{
public:
    enum class Kind : quint8 { Missing, Number, Text };

    /// No value.
    CellKey() = default;
    /// \a missing: the cell means "no value".
    CellKey(std::string_view cell, CompareMode mode, char decimalChar, bool missing);

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] CanonicalNumber number() const { return m_number; }
    [[nodiscard]] std::string_view text() const { return m_text; }
    /// Equal keys have equal hashes, in any process.
    [[nodiscard]] quint64 hash() const;

    friend bool operator==(const CellKey &a, const CellKey &b)
    {
        return a.m_kind == b.m_kind && a.m_number == b.m_number && a.m_text == b.m_text;
    }

private:
    Kind m_kind = Kind::Missing;
    CanonicalNumber m_number;
    std::string_view m_text;
};

/// The text without blanks and tabs around it.
[[nodiscard]] VELKGEOMCORE_EXPORT std::string_view trimmedCell(std::string_view text);

} // namespace VKTab
