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
    /// A text, or what a CanonicalNumber packs; a text of the same characters is something else.
    class Key
    {
    public:
        explicit Key(std::string_view text)
            : m_text(text)
            , m_hash(hashOf(text))
            , m_isText(true)
        {
        }
        explicit Key(std::uint64_t packed)
            : m_packed(packed)
            , m_hash(hashOf(packed))
        {
        }

    private:
        friend class KeyNumbers;
        std::string_view m_text;
        std::uint64_t m_packed = 0;
        std::uint32_t m_hash = 0;
        bool m_isText = false;
    };

    [[nodiscard]] int count() const { return int(m_keys.size()); }
    /// Of this key, a new one if it was not there.
    [[nodiscard]] int of(const Key &key);
    /// The same, or -1.
    [[nodiscard]] int findPacked(std::uint64_t packed) const;
    /// Look-ups wait for memory, three times for a text. To be called in this order, each for some
    /// keys, before these are asked for.
    void fetchSlot(const Key &key) const;
    void fetchKey(const Key &key) const;
    void fetchText(const Key &key) const;

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
    void grow(Slots &slots, size_t used, HashOfNumber hashOfNumber) const;
    [[nodiscard]] std::string_view textOf(int number) const;
    /// The first one that may be that of the key, or Free.
    [[nodiscard]] int firstNumber(const Key &key) const;
    [[nodiscard]] int ofText(const Key &key);
    [[nodiscard]] int ofPacked(const Key &key);

    Slots m_textSlots;
    Slots m_packedSlots;
    std::vector<std::uint64_t> m_keys; ///< By number: packed, or where its text begins.
    std::string m_texts;               ///< Each behind its length in four bytes.
    size_t m_textCount = 0;
};

} // namespace Plan
