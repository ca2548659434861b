#include "Utf8Check.h"

#include <cstdint>
#include <cstring>

namespace VKTab {

namespace {

/// Length of the sequence that begins with \a lead, and the allowed span of its second byte; 0 if
/// no sequence begins so (RFC 3629, table of well-formed sequences).
struct Lead
{
    int length;
    uint8_t low;
    uint8_t high;
};

Lead leadOf(uint8_t lead)
{
    if (lead < 0x80)
        return {1, 0, 0};
    if (lead < 0xC2)
        return {0, 0, 0};
    if (lead < 0xE0)
        return {2, 0x80, 0xBF};
    if (lead < 0xF0)
        return {3, uint8_t(lead == 0xE0 ? 0xA0 : 0x80), uint8_t(lead == 0xED ? 0x9F : 0xBF)};
    if (lead < 0xF5)
        return {4, uint8_t(lead == 0xF0 ? 0x90 : 0x80), uint8_t(lead == 0xF4 ? 0x8F : 0xBF)};
    return {0, 0, 0};
}

bool isAscii(const char *at)
{
    uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    return (word & 0x8080808080808080ULL) == 0;
}

} // namespace

const char *checkUtf8(const char *at, const char *end, const char *limit, const char **bad)
{
    while (at < end) {
        if (limit - at >= 8 && isAscii(at)) {
            at += 8;
            continue;
        }
        const Lead lead = leadOf(uint8_t(*at));
        bool good = lead.length > 0 && limit - at >= lead.length;
        if (good && lead.length > 1) {
            const uint8_t second = uint8_t(at[1]);
            good = second >= lead.low && second <= lead.high;
        }
        for (int i = 2; good && i < lead.length; ++i)
            good = (uint8_t(at[i]) & 0xC0) == 0x80;
        if (!good) {
            *bad = at;
            return nullptr;
        }
        at += lead.length;
    }
    return at;
}

} // namespace VKTab
