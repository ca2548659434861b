#include "ReleaseLayout.h"

#include <array>

namespace ReleaseLayout {

namespace {

constexpr std::size_t PlaceCount = std::size_t(Row) + 1;
using Bits = std::array<quint64, PlaceCount>;

constexpr Bits bitsOf(bool requiredOnly)
{
    Bits bits{};
    for (std::size_t i = 0; i < MemberCount; ++i) {
        if (!requiredOnly || Members[i].required)
            bits[std::size_t(Members[i].place)] |= quint64(1) << i;
    }
    return bits;
}

constexpr Bits allBits = bitsOf(false);
constexpr Bits requiredBits = bitsOf(true);

} // namespace

int keyOf(Place place, std::string_view name)
{
    for (int i = 0; i < int(MemberCount); ++i) {
        if (Members[i].place == place && Members[i].name == name)
            return i;
    }
    return NoKey;
}

quint64 membersOf(Place place)
{
    return allBits[std::size_t(place)];
}

quint64 requiredOf(Place place)
{
    return requiredBits[std::size_t(place)];
}

} // namespace ReleaseLayout
