#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace Plan {

/// A weight for each of many keys, in one block with open addressing: look-ups wait for memory, and
/// a table of nodes would let them wait twice. Keys are never 0.
class KeyWeights
{
public:
    void add(std::uint64_t key, double weight)
    {
        if ((m_count + 1) * 3 > m_slots.size() * 2)
            grow();
        Slot &slot = m_slots[placeOf(key)];
        m_count += slot.key == 0 ? 1 : 0;
        slot.key = key;
        slot.weight += weight;
    }
    /// 0 for a key that was never added.
    [[nodiscard]] double of(std::uint64_t key) const
    {
        return m_slots.empty() ? 0 : m_slots[placeOf(key)].weight;
    }
    [[nodiscard]] bool isEmpty() const { return m_count == 0; }

private:
    struct Slot
    {
        std::uint64_t key = 0;
        double weight = 0;
    };

    /// Of the key, or the free one where it would be.
    [[nodiscard]] size_t placeOf(std::uint64_t key) const
    {
        const size_t mask = m_slots.size() - 1;
        size_t place = size_t((key * 0x9e3779b97f4a7c15ULL) >> 32) & mask;
        while (m_slots[place].key != 0 && m_slots[place].key != key)
            place = (place + 1) & mask;
        return place;
    }
    void grow()
    {
        std::vector<Slot> former(m_slots.empty() ? 64 : m_slots.size() * 2);
        former.swap(m_slots);
        for (const Slot &slot : former) {
            if (slot.key != 0)
                m_slots[placeOf(slot.key)] = slot;
        }
    }

    std::vector<Slot> m_slots; ///< A power of two of them, at most two thirds in use.
    size_t m_count = 0;
};

} // namespace Plan
