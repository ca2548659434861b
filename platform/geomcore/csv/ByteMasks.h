#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace VKTab {

/// Where in 64 bytes the characters stand that matter to a CSV file; bit i is byte i.
struct ByteMasks
{
    uint64_t commas = 0;
    uint64_t lineFeeds = 0;
    uint64_t quotes = 0;
    uint64_t high = 0; ///< Bytes that are no ASCII.
};

#if defined(__SSE2__)

inline uint64_t equalBytes(const __m128i (&bytes)[4], char wanted)
{
    const __m128i all = _mm_set1_epi8(wanted);
    uint64_t mask = 0;
    for (int i = 3; i >= 0; --i)
        mask = mask << 16 | uint32_t(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes[i], all)));
    return mask;
}

[[nodiscard]] inline ByteMasks masksOf(const char *at)
{
    __m128i bytes[4];
    uint64_t high = 0;
    for (int i = 3; i >= 0; --i) {
        bytes[i] = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at) + i);
        high = high << 16 | uint32_t(_mm_movemask_epi8(bytes[i]));
    }
    return {equalBytes(bytes, ','), equalBytes(bytes, '\n'), equalBytes(bytes, '"'), high};
}

/// Bit i is set if at[i] is \a wanted, for 16 bytes.
[[nodiscard]] inline uint32_t equalMask16(const char *at, char wanted)
{
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i *>(at));
    return uint32_t(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(wanted))));
}

#else

[[nodiscard]] inline ByteMasks masksOf(const char *at)
{
    ByteMasks masks;
    for (int i = 0; i < 64; ++i) {
        const uint64_t bit = uint64_t(1) << i;
        masks.commas |= at[i] == ',' ? bit : 0;
        masks.lineFeeds |= at[i] == '\n' ? bit : 0;
        masks.quotes |= at[i] == '"' ? bit : 0;
        masks.high |= uint8_t(at[i]) >= 0x80 ? bit : 0;
    }
    return masks;
}

[[nodiscard]] inline uint32_t equalMask16(const char *at, char wanted)
{
    uint32_t mask = 0;
    for (int i = 0; i < 16; ++i)
        mask |= at[i] == wanted ? 1u << i : 0u;
    return mask;
}

#endif

/// Number of bits; without a call where the processor's instruction may not be used.
[[nodiscard]] inline int bitCount(uint64_t bits)
{
#if defined(__POPCNT__)
    return std::popcount(bits);
#else
    bits -= bits >> 1 & 0x5555555555555555ULL;
    bits = (bits & 0x3333333333333333ULL) + (bits >> 2 & 0x3333333333333333ULL);
    bits = (bits + (bits >> 4)) & 0x0F0F0F0F0F0F0F0FULL;
    return int(bits * 0x0101010101010101ULL >> 56);
#endif
}

/// The \a count lowest bits; \a count up to 64.
[[nodiscard]] inline uint64_t lowBits(int count)
{
    return count >= 64 ? ~uint64_t(0) : (uint64_t(1) << count) - 1;
}

} // namespace VKTab
