#include "NaturalOrder.h"

#include <geomcore/value/CanonicalNumber.h>

namespace {

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

char folded(char c)
{
    return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c;
}

std::string_view takeDigits(std::string_view &text)
{
    size_t zeros = 0;
    while (zeros < text.size() && text[zeros] == '0')
        ++zeros;
    size_t end = zeros;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    const std::string_view digits = text.substr(zeros, end - zeros);
    text.remove_prefix(end);
    return digits;
}

int compareDigits(std::string_view &a, std::string_view &b)
{
    const std::string_view x = takeDigits(a);
    const std::string_view y = takeDigits(b);
    if (x.size() != y.size())
        return x.size() < y.size() ? -1 : 1;
    return x.compare(y);
}

/// The number that a text begins with, up to where something else comes.
std::string_view leadingNumber(std::string_view text, char decimalChar)
{
    size_t end = !text.empty() && (text[0] == '-' || text[0] == '+') ? 1 : 0;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    const bool point = end + 1 < text.size() && (text[end] == '.' || text[end] == decimalChar) &&
                       isDigit(text[end + 1]);
    if (point) {
        for (++end; end < text.size() && isDigit(text[end]);)
            ++end;
    }
    return text.substr(0, end);
}

} // namespace

int naturalCompare(std::string_view a, std::string_view b)
{
    while (!a.empty() && !b.empty()) {
        if (isDigit(a.front()) && isDigit(b.front())) {
            if (const int order = compareDigits(a, b))
                return order;
            continue;
        }
        const auto x = uchar(folded(a.front()));
        const auto y = uchar(folded(b.front()));
        if (x != y)
            return x < y ? -1 : 1;
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return int(!a.empty()) - int(!b.empty());
}

NaturalKey::NaturalKey(quint32 id, std::string_view text, char decimalChar, bool leading)
    : m_text(text)
    , m_id(id)
{
    auto number = VKTab::CanonicalNumber::parse(text, decimalChar);
    m_isExact = number.has_value();
    if (!number && leading)
        number = VKTab::CanonicalNumber::parse(leadingNumber(text, decimalChar), decimalChar);
    m_isNumber = number.has_value();
    if (number)
        m_number = number->toDouble();
}

bool operator<(const NaturalKey &a, const NaturalKey &b)
{
    if (a.m_isNumber != b.m_isNumber)
        return a.m_isNumber;
    if (a.m_isNumber && a.m_number != b.m_number)
        return a.m_number < b.m_number;
    if (a.m_isExact || b.m_isExact)
        return a.m_isExact && !b.m_isExact;
    if (const int order = naturalCompare(a.m_text, b.m_text))
        return order < 0;
    return a.m_text < b.m_text;
}
