#include "CellValues.h"

#include "giveBack.h"

#include <geomcore/value/CanonicalNumber.h>

#include <algorithm>
#include <limits>
#include <optional>

namespace Plan {

using VKTab::CanonicalNumber;

namespace {

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

void lower(std::string &text)
{
    for (char &c : text) {
        if (c >= 'A' && c <= 'Z')
            c = char(c - 'A' + 'a');
    }
}

/// Texts that wait for memory together.
constexpr size_t AtOnce = 16;

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

/// The text of a cell, with what it takes to look for its number.
class CellValues::Cell
{
public:
    Cell(std::string_view cellText, char decimalChar)
        : text(cellText)
        , parsed(CanonicalNumber::mayBegin(text, decimalChar)
                     ? CanonicalNumber::parse(text, decimalChar)
                     : std::nullopt)
        , key(parsed ? KeyNumbers::Key(parsed->packed()) : KeyNumbers::Key(text))
    {
    }

    std::string_view text;
    std::optional<CanonicalNumber> parsed;
    KeyNumbers::Key key;
};

CellValues::CellValues()
    : m_values(1)
{
}

int CellValues::number(std::string_view text, char decimalChar)
{
    return text.empty() ? int(NoValue) : number(Cell(text, decimalChar));
}

void CellValues::number(std::span<const Text> texts, std::span<int> numbers)
{
    std::vector<Cell> cells;
    cells.reserve(AtOnce);
    for (size_t first = 0; first < texts.size(); first += AtOnce) {
        const auto some = texts.subspan(first, std::min(AtOnce, texts.size() - first));
        cells.clear();
        for (const Text &text : some)
            cells.emplace_back(text.text, text.decimalChar);
        for (const Cell &cell : cells)
            m_numbers.fetchSlot(cell.key);
        for (const Cell &cell : cells)
            m_numbers.fetchKey(cell.key);
        for (const Cell &cell : cells)
            m_numbers.fetchText(cell.key);
        for (size_t i = 0; i < some.size(); ++i)
            numbers[first + i] = some[i].text.empty() ? int(NoValue) : number(cells[i]);
    }
}

int CellValues::number(const Cell &cell)
{
    const int number = 1 + m_numbers.of(cell.key);
    if (number < count())
        return number;
    Entry entry;
    m_written.clear();
    if (cell.parsed) {
        entry.isNumber = true;
        addWhole(cell.parsed->packed(), cell.parsed->toDouble());
    } else {
        tokenize(cell.text);
    }
    keep(entry);
    return number;
}

void CellValues::keep(Entry &entry)
{
    entry.tokens = std::uint8_t(m_written.size());
    entry.hasNumber = std::any_of(m_written.begin(), m_written.end(),
                                  [this](int token) { return isNumberToken(token); });
    entry.first = entry.tokens == 1 ? m_written.front() : int(m_lists.size());
    if (entry.tokens > 1) {
        m_lists.insert(m_lists.end(), m_written.begin(), m_written.end());
        std::sort(m_written.begin(), m_written.end());
        m_written.erase(std::unique(m_written.begin(), m_written.end()), m_written.end());
        const std::span<const int> tokens = std::span(m_lists).last(entry.tokens);
        if (!std::ranges::equal(tokens, m_written)) {
            entry.more = std::uint8_t(m_written.size());
            m_lists.insert(m_lists.end(), m_written.begin(), m_written.end());
        }
    }
    m_values.push_back(entry);
}

void CellValues::tokenize(std::string_view text)
{
    for (size_t i = 0; i < text.size() && int(m_written.size()) < MaxTokens;) {
        size_t end = i + 1;
        if (isDigit(text[i])) {
            end = endOfNumber(text, i);
            const std::string_view digits = text.substr(i, end - i);
            if (const auto parsed = CanonicalNumber::parse(digits))
                addPacked(parsed->packed(), parsed->toDouble());
            else
                addText(digits);
        } else if (isLetter(text[i])) {
            while (end < text.size() && isLetter(text[end]))
                ++end;
            m_lower.assign(text, i, end - i);
            lower(m_lower);
            addText(m_lower);
        } else if (static_cast<unsigned char>(text[i]) > ' ') {
            addText(text.substr(i, 1));
        }
        i = end;
    }
}

void CellValues::addText(std::string_view text)
{
    addToken(m_tokenNumbers.of(KeyNumbers::Key(text)), std::numeric_limits<double>::quiet_NaN());
}

void CellValues::addPacked(std::uint64_t packed, double number)
{
    const int value = 1 + m_numbers.findPacked(packed);
    if (value > NoValue)
        m_written.push_back(m_values[size_t(value)].first);
    else
        addToken(m_tokenNumbers.of(KeyNumbers::Key(packed)), number);
}

/// The token of a value is found by its value.
void CellValues::addWhole(std::uint64_t packed, double number)
{
    const int known = m_tokenNumbers.findPacked(packed);
    m_written.push_back(known < 0 ? tokenCount() : m_tokenOf[size_t(known)]);
    if (known < 0)
        m_tokens.push_back(number);
}

void CellValues::addToken(int number, double value)
{
    if (size_t(number) == m_tokenOf.size()) {
        m_tokenOf.push_back(tokenCount());
        m_tokens.push_back(value);
    }
    m_written.push_back(m_tokenOf[size_t(number)]);
}

void CellValues::finish()
{
    giveBack(m_numbers);
    giveBack(m_tokenNumbers);
    giveBack(m_tokenOf);
    giveBack(m_written);
    m_values.shrink_to_fit();
    m_lists.shrink_to_fit();
    m_tokens.shrink_to_fit();
}

} // namespace Plan
