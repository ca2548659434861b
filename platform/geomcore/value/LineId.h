#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHashFunctions>
#include <QMetaType>

#include <array>
#include <cstddef>

namespace VKTab {

/// Identifier of a table line: the line number and, where one number stands for several lines, a
/// second number. A line without a second number has 0 there, so LineId(n) and LineId(n, 0) are the
/// same id. Negative line numbers name no line.
class LineId
{
public:
    constexpr LineId() = default;
    constexpr LineId(int line)
        : m_values{line, 0}
    {
    }
    constexpr LineId(int line, int sub)
        : m_values{line, sub}
    {
    }

    [[nodiscard]] constexpr bool isValid() const { return m_values[0] >= 0; }
    /// Component 0 is the line number (-1 for no line), component 1 the second number; further ones
    /// are 0.
    [[nodiscard]] constexpr int value(int index) const
    {
        const auto place = static_cast<std::size_t>(index);
        return place < m_values.size() ? m_values[place] : 0;
    }

    friend constexpr bool operator==(const LineId &a, const LineId &b) = default;
    // NOLINTNEXTLINE(modernize-use-nullptr): the comparison that is made has no pointer
    friend constexpr auto operator<=>(const LineId &a, const LineId &b) = default;
    friend size_t qHash(const LineId &id, size_t seed = 0) noexcept
    {
        const auto line = static_cast<quint32>(id.m_values[0]);
        const auto sub = static_cast<quint32>(id.m_values[1]);
        return ::qHash((static_cast<quint64>(sub) << 32) | line, seed);
    }

private:
    std::array<int, 2> m_values{-1, 0};
};

} // namespace VKTab

Q_DECLARE_TYPEINFO(VKTab::LineId, Q_PRIMITIVE_TYPE);
Q_DECLARE_METATYPE(VKTab::LineId)
