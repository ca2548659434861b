#pragma once

namespace VKTab {

/// Display attributes of a variable: format letter ('I' integer, 'F' number, 'A' text), decimals,
/// and whether the cell is aligned right.
class VIDA
{
public:
    constexpr VIDA() = default;
    constexpr VIDA(char format, int decimals, bool alignRight)
        : m_format(format)
        , m_alignRight(alignRight)
        , m_decimals(decimals)
    {
    }

    [[nodiscard]] constexpr char format() const { return m_format; }
    [[nodiscard]] constexpr int decimals() const { return m_decimals; }
    [[nodiscard]] constexpr bool isRightAligned() const { return m_alignRight; }

    friend constexpr bool operator==(const VIDA &a, const VIDA &b) = default;

private:
    char m_format = 'A';
    bool m_alignRight = false;
    int m_decimals = 0;
};

} // namespace VKTab
