#include "ColumnChance.h"

#include "CellValues.h"

#include <algorithm>
#include <cmath>

namespace Plan {

namespace {

/// A key is unique among more lines than those of a small table.
constexpr int LinesOfKey = 100;
/// Parts in which numbers are looked up.
constexpr size_t MaxParts = 16'384;

} // namespace

void ColumnChance::finish(const CellValues &values, bool isKey)
{
    int single = 0;
    std::vector<int> tokens(size_t(values.tokenCount()), 0);
    std::vector<std::pair<double, int>> numbers;
    for (int number = 0; number < int(m_counts.size()); ++number) {
        const int count = m_counts[size_t(number)];
        m_lineCount += count;
        if (number == CellValues::NoValue || count == 0)
            continue;
        m_valueCount += count;
        const CellValues::Value value = values.value(number);
        m_meanTokens += double(count) * double(value.distinct.size());
        single += count == 1 && (isKey || !value.isNumber) ? 1 : 0;
        for (const int token : value.distinct)
            tokens[size_t(token)] += count;
        if (value.isNumber)
            numbers.emplace_back(value.number, count);
    }
    m_counts.shrink_to_fit();
    m_meanTokens /= std::max(1, m_valueCount);
    finishNumbers(std::move(numbers));
    // Of the values of further lines some are among these.
    const double known = 1 - double(single) / (m_valueCount + 1);
    m_part = known / (m_valueCount + (isKey ? LinesOfKey : 1));
    finishTokens(tokens);
}

void ColumnChance::finishNumbers(std::vector<std::pair<double, int>> counts)
{
    std::sort(counts.begin(), counts.end());
    m_numbers.reserve(counts.size());
    m_below.reserve(counts.size() + 1);
    for (const auto &[number, count] : counts) {
        if (m_numbers.empty() || m_numbers.back() != number) {
            m_numbers.push_back(number);
            m_below.push_back(m_below.back());
        }
        m_below.back() += count;
    }
    m_nearSpan = std::log(2.0 * numberCount() + 2);
    const size_t parts = std::min(MaxParts, m_numbers.size() / 2 + 1);
    m_partBegins.assign(parts + 1, int(m_numbers.size()));
    if (m_numbers.empty())
        return;
    const double width = m_numbers.back() - m_numbers.front();
    m_partsPerUnit = width > 0 && std::isfinite(width) ? double(parts) / width : 0;
    for (size_t i = m_numbers.size(); i-- > 0;)
        m_partBegins[partOf(m_numbers[i])] = int(i);
    for (size_t part = parts; part-- > 0;)
        m_partBegins[part] = std::min(m_partBegins[part], m_partBegins[part + 1]);
    for (const int begin : m_partBegins)
        m_partBelow.push_back(m_below[size_t(begin)]);
}

void ColumnChance::finishTokens(const std::vector<int> &counts)
{
    const auto chance = [this](int count) {
        const double share = (count + 0.5) / (m_valueCount + 1);
        return TokenChance{share, std::log(share), std::log(1 - share)};
    };
    m_tokenPlaces.assign(counts.size(), 0);
    m_tokenChances.assign(1, chance(0));
    std::vector<std::uint16_t> places(1);
    for (size_t token = 0; token < counts.size(); ++token) {
        const auto count = size_t(counts[token]);
        places.resize(std::max(places.size(), count + 1));
        if (count > 0 && places[count] == 0) {
            places[count] = std::uint16_t(m_tokenChances.size());
            m_tokenChances.push_back(chance(counts[token]));
        }
        m_tokenPlaces[token] = places[count];
    }
}

double ColumnChance::missing() const
{
    return (m_lineCount - m_valueCount + 0.5) / (m_lineCount + 1);
}

double ColumnChance::nearShare(double number, double other) const
{
    const double distance = std::abs(other - number);
    int near = 0;
    if (!m_numbers.empty()) {
        const auto begins = [this](size_t part) {
            return m_numbers.begin() + m_partBegins[part];
        };
        const size_t below = partOf(number - distance);
        const size_t above = partOf(number + distance);
        const auto first = std::lower_bound(begins(below), begins(below + 1), number - distance);
        const auto last = std::upper_bound(begins(above), begins(above + 1), number + distance);
        near =
            m_below[size_t(last - m_numbers.begin())] - m_below[size_t(first - m_numbers.begin())];
    }
    const double part = distance / std::max(std::abs(number), std::abs(other));
    // One of them is the other number itself, which counts half.
    const double seen = std::max(0.0, double(near) - 1) + 0.5;
    return (seen + FewNumbers * std::min(1.0, part)) / (double(numberCount()) + FewNumbers);
}

} // namespace Plan
