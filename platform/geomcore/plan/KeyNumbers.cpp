#include "KeyNumbers.h"

#include <geomcore/value/CellHash.h>

#include <cstring>

namespace Plan {

namespace {

/// So many keys ahead are fetched where all are looked at.
constexpr size_t Ahead = 16;

} // namespace

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
void KeyNumbers::grow(Slots &slots, size_t used, HashOfNumber hashOfNumber) const
{
    if ((used + 1) * 3 <= slots.size() * 2)
        return;
    Slots former(slots.empty() ? 16 : slots.size() * 2, int(Free));
    former.swap(slots);
    for (size_t i = 0; i < former.size(); ++i) {
        if (i + Ahead < former.size() && former[i + Ahead] != Free)
            __builtin_prefetch(&m_keys[size_t(former[i + Ahead])]);
        const int number = former[i];
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

int KeyNumbers::firstNumber(const Key &key) const
{
    const Slots &slots = key.m_isText ? m_textSlots : m_packedSlots;
    return slots.empty() ? int(Free) : slots[key.m_hash & (slots.size() - 1)];
}

void KeyNumbers::fetchSlot(const Key &key) const
{
    const Slots &slots = key.m_isText ? m_textSlots : m_packedSlots;
    if (!slots.empty())
        __builtin_prefetch(&slots[key.m_hash & (slots.size() - 1)]);
}

void KeyNumbers::fetchKey(const Key &key) const
{
    const int number = firstNumber(key);
    if (number != Free)
        __builtin_prefetch(&m_keys[size_t(number)]);
}

void KeyNumbers::fetchText(const Key &key) const
{
    const int number = key.m_isText ? firstNumber(key) : int(Free);
    if (number != Free)
        __builtin_prefetch(m_texts.data() + m_keys[size_t(number)]);
}

int KeyNumbers::of(const Key &key)
{
    return key.m_isText ? ofText(key) : ofPacked(key);
}

int KeyNumbers::ofText(const Key &key)
{
    grow(m_textSlots, m_textCount, [this](int number) { return hashOf(textOf(number)); });
    int &slot = m_textSlots[placeOf(m_textSlots, key.m_hash,
                                    [&](int number) { return textOf(number) == key.m_text; })];
    if (slot == Free) {
        slot = count();
        m_keys.push_back(m_texts.size());
        const auto size = std::uint32_t(key.m_text.size());
        m_texts.append(reinterpret_cast<const char *>(&size), sizeof size);
        m_texts += key.m_text;
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

int KeyNumbers::ofPacked(const Key &key)
{
    grow(m_packedSlots, m_keys.size() - m_textCount,
         [this](int number) { return hashOf(m_keys[size_t(number)]); });
    int &slot = m_packedSlots[placeOf(m_packedSlots, key.m_hash, [&](int number) {
        return m_keys[size_t(number)] == key.m_packed;
    })];
    if (slot == Free) {
        slot = count();
        m_keys.push_back(key.m_packed);
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
