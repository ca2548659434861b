#pragma once

#include <cstdint>
#include <cstring>

/// Place of a virtual operation among those of its class, from 0. A virtual destructor takes two
/// places. Holds where a pointer to a virtual member carries the offset in its first word, as in
/// the C++ ABI of this project's platforms.
template<class MemberFunction>
int slotOf(MemberFunction function)
{
    std::uintptr_t first = 0;
    static_assert(sizeof(function) >= sizeof(first));
    std::memcpy(&first, &function, sizeof(first));
    return first % 2 == 1 ? static_cast<int>((first - 1) / sizeof(void *)) : -1;
}
