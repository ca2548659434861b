#include "ColumnChance.h"

#include "CellValues.h"

#include <algorithm>
#include <cmath>

namespace Plan {

namespace {

/// So many numbers say as much about what is near as the distance alone.
constexpr double FewNumbers = 8;
/// A key is unique among more lines than those of a small table.
constexpr int LinesOfKey = 100;

} // namespace

void ColumnChance::finish(const CellValues &values, bool isKey)
{
    int single = 0;
    std::unordered_map<int, int> tokens;
    std::vector<std::pair<int, int>> counts;
    std::vector<std::pair<double, int>> numbers;
    m_counts.forEach([&counts](std::uint64_t key, double weight) {
        counts.emplace_back(int(key - 1), int(weight));
    });
    std::sort(counts.begin(), counts.end());
    for (const auto &[number, count] : counts) {
        m_lineCount += count;
        if (number == CellValues::NoValue)
            continue;
        m_valueCount += count;
        const CellValues::Value &value = values.value(number);
        m_meanTokens += double(count) * double(value.distinct.size());
        single += count == 1 && (isKey || !value.isNumber) ? 1 : 0;
        for (const int token : value.distinct)
            tokens[token] += count;
        if (value.isNumber)
            numbers.emplace_back(value.number, count);
    }
    m_meanTokens /= std::max(1, m_valueCount);
    finishNumbers(std::move(numbers));
    m_further = isKey ? LinesOfKey : 1;
    m_known = 1 - double(single) / (m_valueCount + 1);
    finishTokens(values, tokens);
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
}

void ColumnChance::finishTokens(const CellValues &values,
                                const std::unordered_map<int, int> &counts)
{
    const auto chance = [this](int count) {
        const double share = (count + 0.5) / (m_valueCount + 1);
        return TokenChance{share, std::log(share), std::log(1 - share)};
    };
    m_tokenPlaces.assign(size_t(values.tokenCount()), 0);
    m_tokenChances.assign(1, chance(0));
    m_tokenChances.reserve(counts.size() + 1);
    for (const auto &[token, count] : counts) {
        m_tokenPlaces[size_t(token)] = int(m_tokenChances.size());
        m_tokenChances.push_back(chance(count));
    }
}

double ColumnChance::missing() const
{
    return (m_lineCount - m_valueCount + 0.5) / (m_lineCount + 1);
}

double ColumnChance::share(int value) const
{
    return m_known * (m_counts.of(std::uint64_t(value) + 1) + 0.5) / (m_valueCount + m_further);
}

double ColumnChance::nearShare(double number, double other) const
{
    const double distance = std::abs(other - number);
    const auto first = std::lower_bound(m_numbers.begin(), m_numbers.end(), number - distance);
    const auto last = std::upper_bound(first, m_numbers.end(), number + distance);
    const int near =
        m_below[size_t(last - m_numbers.begin())] - m_below[size_t(first - m_numbers.begin())];
    const double part = distance / std::max(std::abs(number), std::abs(other));
    // One of them is the other number itself, which counts half.
    const double seen = std::max(0.0, double(near) - 1) + 0.5;
    return (seen + FewNumbers * std::min(1.0, part)) / (double(numberCount()) + FewNumbers);
}

} // namespace Plan
