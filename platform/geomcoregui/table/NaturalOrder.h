#pragma once

#include <QtGlobal>

#include <string_view>

/// A text's place among others: numbers by value, then texts with the numbers in them by value,
/// upper and lower case alike ("M8" before "m10"). Whatever the locale. The text must outlive it.
class NaturalKey
{
public:
    /// \a leading: a number at the begin of the text suffices, as in "10;12;16".
    NaturalKey(quint32 id, std::string_view text, char decimalChar, bool leading);

    [[nodiscard]] quint32 id() const { return m_id; }
    friend bool operator<(const NaturalKey &a, const NaturalKey &b);

private:
    std::string_view m_text;
    double m_number = 0;
    quint32 m_id;
    bool m_isNumber = false;
    bool m_isExact = false; // the number says all
};

/// Negative, 0 or positive as a stands before, beside or behind b.
[[nodiscard]] int naturalCompare(std::string_view a, std::string_view b);
