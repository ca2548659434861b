#include "KeyNumbers.h"

#include <geomcore/value/CellHash.h>

#include <cstring>

namespace Plan {

template<class IsIt>
size_t KeyNumbers::placeOf(const Slots &slots, std::uint32_t hash, IsIt isIt)
{
    const size_t mask = slots.size() - 1;
    size_t place = hash & mask;
    while (slots[place] != Free && !isIt(slots[place]))
        place = (place + 1) & mask;
    return place;
}

template<class HashOfNumber>
void KeyNumbers::grow(Slots &slots, size_t used, HashOfNumber hashOfNumber)
{
    if ((used + 1) * 3 <= slots.size() * 2)
        return;
    Slots former(slots.empty() ? 16 : slots.size() * 2, int(Free));
    former.swap(slots);
    for (const int number : former) {
        if (number != Free)
            slots[placeOf(slots, hashOfNumber(number), [](int) { return false; })] = number;
    }
}

std::string_view KeyNumbers::textOf(int number) const
{
    const auto begin = size_t(m_keys[size_t(number)]);
    std::uint32_t size = 0;
    std::memcpy(&size, m_texts.data() + begin, sizeof size);
    return std::string_view(m_texts).substr(begin + sizeof size, size);
}

int KeyNumbers::ofText(std::string_view text)
{
    grow(m_textSlots, m_textCount, [this](int number) { return hashOf(textOf(number)); });
    int &slot = m_textSlots[placeOf(m_textSlots, hashOf(text),
                                    [&](int number) { return textOf(number) == text; })];
    if (slot == Free) {
        slot = count();
        m_keys.push_back(m_texts.size());
        const auto size = std::uint32_t(text.size());
        m_texts.append(reinterpret_cast<const char *>(&size), sizeof size);
        m_texts += text;
        ++m_textCount;
    }
    return slot;
}

std::uint32_t KeyNumbers::hashOf(std::string_view text)
{
    return std::uint32_t(VKTab::hashBytes(text));
}

std::uint32_t KeyNumbers::hashOf(std::uint64_t packed)
{
    return std::uint32_t(
        VKTab::mixHash(packed ^ 0x9E3779B97F4A7C15ULL, packed + 0xD6E8FEB86659FD93ULL));
}

int KeyNumbers::ofPacked(std::uint64_t packed)
{
    grow(m_packedSlots, m_keys.size() - m_textCount,
         [this](int number) { return hashOf(m_keys[size_t(number)]); });
    int &slot = m_packedSlots[placeOf(m_packedSlots, hashOf(packed), [&](int number) {
        return m_keys[size_t(number)] == packed;
    })];
    if (slot == Free) {
        slot = count();
        m_keys.push_back(packed);
    }
    return slot;
}

int KeyNumbers::findPacked(std::uint64_t packed) const
{
    if (m_packedSlots.empty())
        return -1;
    return m_packedSlots[placeOf(m_packedSlots, hashOf(packed),
                                 [&](int number) { return m_keys[size_t(number)] == packed; })];
}

} // namespace Plan
