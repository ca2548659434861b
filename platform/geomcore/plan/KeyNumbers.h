#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Plan {

/// Consecutive numbers for texts and for packed numbers, in the order in which they come. Keys lie
/// one behind the other, and a slot of the hash table has four bytes: where a table has a million
/// values, a node and a string for each would be most of its memory.
class KeyNumbers
{
public:
    [[nodiscard]] int count() const { return int(m_keys.size()); }
    /// Of this text, a new one if it was not there.
    [[nodiscard]] int ofText(std::string_view text);
    /// Of what a CanonicalNumber packs; a text of the same characters is something else.
    [[nodiscard]] int ofPacked(std::uint64_t packed);
    /// The same, or -1.
    [[nodiscard]] int findPacked(std::uint64_t packed) const;

private:
    /// By hash the number of a key, or Free; a power of two of them, at most two thirds in use.
    using Slots = std::vector<int>;
    static constexpr int Free = -1;
    /// Of the key with this hash that \a isIt, or the free one where it would be.
    template<class IsIt>
    [[nodiscard]] static size_t placeOf(const Slots &slots, std::uint32_t hash, IsIt isIt);
    [[nodiscard]] static std::uint32_t hashOf(std::uint64_t packed);
    [[nodiscard]] static std::uint32_t hashOf(std::string_view text);
    /// Makes room for one more; \a hashOfNumber says the hash of a key that is there.
    template<class HashOfNumber>
    static void grow(Slots &slots, size_t used, HashOfNumber hashOfNumber);
    [[nodiscard]] std::string_view textOf(int number) const;

    Slots m_textSlots;
    Slots m_packedSlots;
    std::vector<std::uint64_t> m_keys; ///< By number: packed, or where its text begins.
    std::string m_texts;               ///< Each behind its length in four bytes.
    size_t m_textCount = 0;
};

} // namespace Plan
