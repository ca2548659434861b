#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace Plan {

class CellValues;

/// How often values and tokens occur in one variable of a target's table: what a comparison would
/// give for two lines that have nothing to do with each other.
class VELKGEOMCORE_EXPORT ColumnChance
{
public:
    /// At most MaxLines times.
    void add(int value)
    {
        if (size_t(value) >= m_counts.size())
            m_counts.resize(size_t(value) + 1);
        ++m_counts[size_t(value)];
    }
    static constexpr int MaxLines = std::numeric_limits<std::uint16_t>::max();
    /// To be called when all values are in. \a isKey: the values are meant to
    /// tell lines apart, also from those of other tables, and numbers are no measures.
    void finish(const CellValues &values, bool isKey);

    [[nodiscard]] int lineCount() const { return m_lineCount; }
    [[nodiscard]] int valueCount() const { return m_valueCount; }
    /// Share of the lines without a value, of lines with this value or token among those that have
    /// one. Half a line more is counted, so that nothing is impossible. Where many texts stand in
    /// one line only, further lines would mostly have texts that are not here (Good and Turing):
    /// the same text by chance is then rarer than its share. Measures meet by chance more often.
    [[nodiscard]] double missing() const;
    [[nodiscard]] double share(int value) const { return shareOf(count(value)); }
    /// How many lines have the value, and what share() says of one that so many have.
    [[nodiscard]] int count(int value) const
    {
        return size_t(value) < m_counts.size() ? m_counts[size_t(value)] : 0;
    }
    /// Tells the processor that the value will be asked for.
    void fetch(int value) const
    {
        if (size_t(value) < m_counts.size())
            __builtin_prefetch(&m_counts[size_t(value)]);
    }
    [[nodiscard]] double shareOf(int count) const { return (count + 0.5) * m_part; }
    [[nodiscard]] double tokenShare(int token) const { return tokenChance(token).share; }
    /// Share of a token with its logarithm and that of the lines without it: a comparison of long
    /// texts asks for many of them.
    struct TokenChance
    {
        double share = 0;
        double logShare = 0;
        double logWithout = 0;
    };
    [[nodiscard]] const TokenChance &tokenChance(int token) const
    {
        return m_tokenChances[size_t(token) < m_tokenPlaces.size()
                                  ? size_t(m_tokenPlaces[size_t(token)])
                                  : 0];
    }
    /// Different tokens of a value, on average.
    [[nodiscard]] double meanTokens() const { return m_meanTokens; }
    /// Share of the numbers that are at least as near to \a number as \a other is. As long as there
    /// are few numbers, it is the part of the larger one by which the two differ.
    [[nodiscard]] double nearShare(double number, double other) const;
    /// At most nearShare(), and seldom much less; numbers are counted by parts, without looking one
    /// up.
    [[nodiscard]] double nearShareAtLeast(double number, double other) const
    {
        const double distance = std::abs(other - number);
        int near = 0;
        if (!m_numbers.empty()) {
            const size_t first = partOf(number - distance) + 1;
            const size_t last = partOf(number + distance);
            near = last > first ? m_partBelow[last] - m_partBelow[first] : 0;
        }
        const double seen = std::max(0.0, double(near) - 1) + 0.5;
        return seen / (double(numberCount()) + FewNumbers);
    }
    [[nodiscard]] int numberCount() const { return m_below.back(); }
    /// About the logarithm of the greatest nearShare() divided by the least.
    [[nodiscard]] double nearSpan() const { return m_nearSpan; }

private:
    /// So many numbers say as much about what is near as the distance alone.
    static constexpr double FewNumbers = 8;

    void finishNumbers(std::vector<std::pair<double, int>> counts);
    /// A part of the way from the least number to the greatest, with those beyond; where numbers
    /// are spread, few share one.
    [[nodiscard]] size_t partOf(double number) const
    {
        const double part = (number - m_numbers.front()) * m_partsPerUnit;
        const auto last = double(m_partBegins.size() - 2);
        return part > 0 ? size_t(std::min(part, last)) : 0;
    }
    void finishTokens(const std::vector<int> &counts);

    std::vector<std::uint16_t> m_counts;      ///< By value.
    std::vector<std::uint16_t> m_tokenPlaces; ///< By token: place in m_tokenChances; 0: none.
    /// Of tokens that occur equally often, one; the first of those that do not occur.
    std::vector<TokenChance> m_tokenChances = std::vector<TokenChance>(1);
    std::vector<double> m_numbers; ///< Sorted, each once.
    std::vector<int> m_partBegins; ///< By partOf() its first number; at the end all.
    std::vector<int> m_partBelow;  ///< By part: lines with a number of those before.
    double m_partsPerUnit = 0;
    std::vector<int> m_below{0}; ///< By number: lines with a smaller one; at the end all.
    double m_nearSpan = 0;
    double m_meanTokens = 0;
    double m_part = 1; ///< What a line is of all that are counted.
    int m_lineCount = 0;
    int m_valueCount = 0;
};

} // namespace Plan
