#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <deque>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
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

    struct Value
    {
        std::span<const int> tokens;   ///< In written order.
        std::span<const int> distinct; ///< Sorted, each once.
        double number = 0;
        bool isNumber = false;
    };

    CellValues();
    CellValues(const CellValues &) = delete;
    CellValues &operator=(const CellValues &) = delete;

    /// An empty text is NoValue.
    [[nodiscard]] int number(std::string_view text, char decimalChar);
    [[nodiscard]] const Value &value(int number) const { return m_values[size_t(number)]; }
    [[nodiscard]] int count() const { return int(m_values.size()); }
    [[nodiscard]] bool isNumberToken(int token) const { return m_tokens[size_t(token)].isNumber; }
    [[nodiscard]] double tokenNumber(int token) const { return m_tokens[size_t(token)].number; }
    [[nodiscard]] int tokenCount() const { return int(m_tokens.size()); }

private:
    struct Token
    {
        double number = 0;
        bool isNumber = false;
    };

    void tokenize(std::string_view text, std::vector<int> &tokens);
    /// Where the list stays.
    [[nodiscard]] std::span<const int> kept(const std::vector<int> &list);
    int token(std::string text, const Token &token);

    std::unordered_map<std::string, int> m_numbers;
    std::unordered_map<std::string, int> m_tokenNumbers;
    std::vector<Value> m_values;
    std::deque<std::vector<int>> m_kept; ///< Token lists of all values, in blocks.
    std::vector<Token> m_tokens;
};

} // namespace Plan
