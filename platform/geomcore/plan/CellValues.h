#pragma once

#include "KeyNumbers.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <cmath>
#include <cstdint>
#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Plan {

/// Numbers for the values of cells and for their tokens, so that lines are compared by numbers.
/// Values are the same as where lines are compared: numbers by value, all else as text. Tokens are
/// runs of letters, without case, numbers, by value, and single signs; blanks separate.
class VELKGEOMCORE_EXPORT CellValues
{
public:
    static constexpr int NoValue = 0;
    /// Tokens of a value that are looked at.
    static constexpr int MaxTokens = 48;

    /// Refers to what is kept of all values: only until the next number().
    struct Value
    {
        std::span<const int> tokens;   ///< In written order.
        std::span<const int> distinct; ///< Sorted, each once.
        double number = 0;
        bool isNumber = false;
        bool hasNumber = false; ///< Among its tokens.
    };

    CellValues();
    CellValues(CellValues &&) = default;
    CellValues &operator=(CellValues &&) = default;

    /// An empty text is NoValue.
    [[nodiscard]] int number(std::string_view text, char decimalChar);
    struct Text
    {
        std::string_view text;
        char decimalChar = '.';
    };
    /// The same for several texts in their order, in less time: they wait for memory together.
    void number(std::span<const Text> texts, std::span<int> numbers);
    [[nodiscard]] Value value(int number) const
    {
        const Entry &entry = m_values[size_t(number)];
        if (entry.tokens == 1) {
            const std::span<const int> token(&entry.first, 1);
            return {token, token, entry.isNumber ? tokenNumber(entry.first) : 0, entry.isNumber,
                    entry.hasNumber};
        }
        const std::span<const int> list(m_lists.data() + entry.first,
                                        size_t(entry.tokens) + entry.more);
        return {list.first(entry.tokens), entry.more > 0 ? list.last(entry.more) : list, 0, false,
                entry.hasNumber};
    }
    /// Tells the processor that the value will be asked for.
    void fetch(int number) const { __builtin_prefetch(&m_values[size_t(number)]); }
    /// The same for its tokens, once it is there.
    void fetchTokens(int number) const
    {
        const Entry &entry = m_values[size_t(number)];
        if (entry.isNumber)
            __builtin_prefetch(&m_tokens[size_t(entry.first)]);
        else if (entry.tokens > 1)
            __builtin_prefetch(&m_lists[size_t(entry.first)]);
    }
    /// Of a value that is one.
    [[nodiscard]] double numberOf(int number) const
    {
        return tokenNumber(m_values[size_t(number)].first);
    }
    [[nodiscard]] bool isNumber(int number) const { return m_values[size_t(number)].isNumber; }
    [[nodiscard]] int count() const { return int(m_values.size()); }
    [[nodiscard]] bool isNumberToken(int token) const
    {
        return !std::isnan(m_tokens[size_t(token)]);
    }
    [[nodiscard]] double tokenNumber(int token) const { return m_tokens[size_t(token)]; }
    [[nodiscard]] int tokenCount() const { return int(m_tokens.size()); }
    /// When all values are in: what only number() needs goes.
    void finish();

private:
    /// There is one for each of very many values.
    struct Entry
    {
        int first = 0;           ///< Where its tokens begin, or a single one itself.
        std::uint8_t tokens = 0; ///< In written order,
        std::uint8_t more = 0;   ///< then sorted, each once, unless these are the same.
        bool isNumber = false;   ///< Then it is its only token.
        bool hasNumber = false;
    };
    static_assert(MaxTokens <= std::numeric_limits<std::uint8_t>::max());

    class Cell;
    [[nodiscard]] int number(const Cell &cell);
    void tokenize(std::string_view text);
    /// A token for m_written.
    void addText(std::string_view text);
    void addPacked(std::uint64_t packed, double number);
    void addWhole(std::uint64_t packed, double number);
    void addToken(int number, double value);
    void keep(Entry &entry);

    KeyNumbers m_numbers;       ///< From 0 on; values from 1.
    KeyNumbers m_tokenNumbers;  ///< But for those that are values as well when they come.
    std::vector<int> m_tokenOf; ///< By number there.
    std::vector<Entry> m_values;
    std::vector<int> m_lists;
    std::vector<double> m_tokens; ///< By token: its number, or not a number.
    std::vector<int> m_written;   ///< Tokens of the value that is added.
    std::string m_lower;
};

} // namespace Plan
