#pragma once

#include "LineIndex.h"

namespace VKTab {

template<class Equal>
int LineIndex::walk(quint64 hash, Equal equal) const
{
    const quint32 tag = quint32(hash >> 32);
    for (size_t slot = slotOf(hash); m_slots[slot].last >= 0;
         slot = (slot + 1) & (m_slots.size() - 1)) {
        if (m_slots[slot].tag == tag && equal(int(m_slots[slot].last)))
            return firstOf(m_slots[slot].last);
    }
    return -1;
}

} // namespace VKTab
