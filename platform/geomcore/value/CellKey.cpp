#include "CellKey.h"

#include "CellHash.h"

namespace VKTab {

std::string_view trimmedCell(std::string_view text)
{
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t'))
        text.remove_suffix(1);
    return text;
}

CellKey::CellKey(std::string_view cell, CompareMode mode, char decimalChar, bool missing)
{
    if (missing)
        return;
    m_kind = Kind::Text;
    m_text = cell;
    if (mode == CompareMode::Text)
        return;
    if (const auto number = CanonicalNumber::parse(cell, decimalChar)) {
        m_kind = Kind::Number;
        m_number = *number;
        m_text = {};
    } else {
        m_text = trimmedCell(cell);
    }
}

quint64 CellKey::hash() const
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

} // namespace VKTab
