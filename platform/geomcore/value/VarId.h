#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHashFunctions>
#include <QMetaType>

namespace VKTab {

/// Identifier of a variable within a table. Each layer type has a block of its own, which begins at
/// getLayerIdOffset(); a file variable's place in its block is its column in the file.
class VarId
{
public:
    constexpr VarId() = default;
    constexpr explicit VarId(int value)
        : m_value(value)
    {
    }

    [[nodiscard]] constexpr bool isValid() const { return m_value >= 0; }
    [[nodiscard]] constexpr int value() const { return m_value; }

    friend constexpr bool operator==(const VarId &a, const VarId &b) = default;
    // NOLINTNEXTLINE(modernize-use-nullptr): the comparison that is made has no pointer
    friend constexpr auto operator<=>(const VarId &a, const VarId &b) = default;
    friend size_t qHash(const VarId &id, size_t seed = 0) noexcept
    {
        return ::qHash(id.m_value, seed);
    }

private:
    int m_value = -1;
};

} // namespace VKTab

Q_DECLARE_TYPEINFO(VKTab::VarId, Q_PRIMITIVE_TYPE);
Q_DECLARE_METATYPE(VKTab::VarId)
