#pragma once

#include "CanonicalNumber.h"
#include "CellHash.h"

#include <string_view>

namespace VKTab {

/// How the cells of a column are compared.
enum class CompareMode : quint8 {
    Number, ///< As numbers where both are, see CanonicalNumber, else as trimmed texts.
    Text,   ///< Byte for byte.
};

/// The text without blanks and tabs around it.
[[nodiscard]] inline std::string_view trimmedCell(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

/// A cell as it is compared: no value, a number or a text. A view: the cell's bytes must stay.
class CellKey
{
public:
    enum class Kind : quint8 { Missing, Number, Text };

    /// No value.
    CellKey() = default;
    /// \a missing: the cell means "no value".
    CellKey(std::string_view cell, CompareMode mode, char decimalChar, bool missing)
    {
        if (missing)
            return;
        m_kind = Kind::Text;
        m_text = mode == CompareMode::Text ? cell : trimmedCell(cell);
        if (mode == CompareMode::Text || !CanonicalNumber::mayBegin(m_text, decimalChar))
            return;
        if (const auto number = CanonicalNumber::parse(m_text, decimalChar)) {
            m_kind = Kind::Number;
            m_number = *number;
            m_text = {};
        }
    }

    [[nodiscard]] Kind kind() const { return m_kind; }
    [[nodiscard]] CanonicalNumber number() const { return m_number; }
    [[nodiscard]] std::string_view text() const { return m_text; }
    /// Equal keys have equal hashes, in any process.
    [[nodiscard]] quint64 hash() const
    {
        switch (m_kind) {
        case Kind::Missing:
            return 0x5851F42D4C957F2DULL;
        case Kind::Number:
            return mixHash(m_number.packed() ^ 0x14057B7EF767814FULL, 0x9E3779B97F4A7C15ULL);
        case Kind::Text:
            break;
        }
        return hashBytes(m_text);
    }

    friend bool operator==(const CellKey &a, const CellKey &b)
    {
        return a.m_kind == b.m_kind && a.m_number == b.m_number && a.m_text == b.m_text;
    }

private:
    Kind m_kind = Kind::Missing;
    CanonicalNumber m_number;
    std::string_view m_text;
};

} // namespace VKTab
