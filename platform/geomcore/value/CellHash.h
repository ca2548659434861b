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
    uint64_t word = 0;
    std::memcpy(&word, at, left);
    return mixHash(hash ^ word, first);
}

} // namespace VKTab
