#pragma once

#include <utility>

namespace Plan {

/// Frees what \a value holds. One that is merely given an empty list or text may keep its room.
template<class T>
void giveBack(T &value)
{
    const T gone = std::exchange(value, T());
}

} // namespace Plan
