#include "CellValues.h"

#include <geomcore/value/CanonicalNumber.h>

#include <algorithm>

namespace Plan {

using VKTab::CanonicalNumber;

namespace {

/// More than a value has.
constexpr size_t TokensInBlock = 16'384;

bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// Bytes of other scripts count as letters.
bool isLetter(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
           (static_cast<unsigned char>(c) >= 128);
}

std::string lowered(std::string_view text)
{
    std::string lower(text);
    for (char &c : lower) {
        if (c >= 'A' && c <= 'Z')
            c = char(c - 'A' + 'a');
    }
    return lower;
}

/// End of a number from \a begin on: digits with at most one point among them.
size_t endOfNumber(std::string_view text, size_t begin)
{
    size_t end = begin;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    if (end + 1 < text.size() && text[end] == '.' && isDigit(text[end + 1])) {
        ++end;
        while (end < text.size() && isDigit(text[end]))
            ++end;
    }
    return end;
}

} // namespace

CellValues::CellValues()
    : m_values(1)
{
}

int CellValues::number(std::string_view text, char decimalChar)
{
    if (text.empty())
        return NoValue;
    std::optional<CanonicalNumber> parsed;
    if (CanonicalNumber::mayBegin(text, decimalChar))
        parsed = CanonicalNumber::parse(text, decimalChar);
    const std::string key = parsed ? '\x01' + std::to_string(parsed->packed()) : std::string(text);
    const auto [place, isNew] = m_numbers.emplace(key, count());
    if (!isNew)
        return place->second;
    Value value;
    std::vector<int> tokens;
    if (parsed) {
        value.isNumber = true;
        value.number = parsed->toDouble();
        tokens.push_back(token(key, {value.number, true}));
    } else {
        tokenize(text, tokens);
    }
    value.tokens = kept(tokens);
    std::vector<int> distinct = std::move(tokens);
    std::sort(distinct.begin(), distinct.end());
    distinct.erase(std::unique(distinct.begin(), distinct.end()), distinct.end());
    const bool isSame = std::ranges::equal(value.tokens, distinct);
    value.distinct = isSame ? value.tokens : kept(distinct);
    m_values.push_back(value);
    return place->second;
}

std::span<const int> CellValues::kept(const std::vector<int> &list)
{
    if (m_kept.empty() || m_kept.back().capacity() - m_kept.back().size() < list.size())
        m_kept.emplace_back().reserve(TokensInBlock);
    std::vector<int> &block = m_kept.back();
    block.insert(block.end(), list.begin(), list.end());
    return std::span(block).last(list.size());
}

void CellValues::tokenize(std::string_view text, std::vector<int> &tokens)
{
    for (size_t i = 0; i < text.size() && int(tokens.size()) < MaxTokens;) {
        size_t end = i + 1;
        if (isDigit(text[i])) {
            end = endOfNumber(text, i);
            const std::string_view digits = text.substr(i, end - i);
            const auto parsed = CanonicalNumber::parse(digits);
            const std::string key =
                parsed ? '\x01' + std::to_string(parsed->packed()) : std::string(digits);
            tokens.push_back(token(key, {parsed ? parsed->toDouble() : 0, bool(parsed)}));
        } else if (isLetter(text[i])) {
            while (end < text.size() && isLetter(text[end]))
                ++end;
            tokens.push_back(token(lowered(text.substr(i, end - i)), {}));
        } else if (static_cast<unsigned char>(text[i]) > ' ') {
            tokens.push_back(token(std::string(1, text[i]), {}));
        }
        i = end;
    }
}

int CellValues::token(std::string text, const Token &token)
{
    const auto [place, isNew] = m_tokenNumbers.emplace(std::move(text), tokenCount());
    if (isNew)
        m_tokens.push_back(token);
    return place->second;
}

} // namespace Plan
