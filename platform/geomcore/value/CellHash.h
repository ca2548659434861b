#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace VKTab {

/// Folds a 128-bit product; the mixing step of the hashes below.
[[nodiscard]] inline uint64_t mixHash(uint64_t a, uint64_t b)
{
    __extension__ using uint128 = unsigned __int128;
    const uint128 product = uint128(a) * b;
    return uint64_t(product) ^ uint64_t(product >> 64);
}

/// Fewer than 8 bytes as one number, which tells them apart from as many others.
[[nodiscard]] inline uint64_t fewBytes(const char *at, size_t count)
{
    if (count >= 4) {
        uint32_t first = 0;
        uint32_t last = 0;
        std::memcpy(&first, at, 4);
        std::memcpy(&last, at + count - 4, 4);
        return uint64_t(first) << 32 | last;
    }
    if (count == 0)
        return 0;
    return uint64_t(uint8_t(at[0])) << 16 | uint64_t(uint8_t(at[count / 2])) << 8 |
           uint8_t(at[count - 1]);
}

/// Hash of bytes; the same in every process. Not meant to withstand chosen input.
[[nodiscard]] inline uint64_t hashBytes(std::string_view bytes)
{
    constexpr uint64_t first = 0x9E3779B97F4A7C15ULL;
    constexpr uint64_t second = 0xD6E8FEB86659FD93ULL;
    uint64_t hash = bytes.size() * first;
    const char *at = bytes.data();
    size_t left = bytes.size();
    for (; left >= 8; left -= 8, at += 8) {
        uint64_t word = 0;
        std::memcpy(&word, at, 8);
        hash = mixHash(hash ^ word, second);
    }
    return mixHash(hash ^ fewBytes(at, left), first);
}

} // namespace VKTab
