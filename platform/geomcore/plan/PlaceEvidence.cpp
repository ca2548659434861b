#include "PlaceEvidence.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdlib>

namespace Plan {

namespace {

/// Pairs that are looked at to learn from.
constexpr size_t MaxLearned = 4000;
constexpr int PlaceRounds = 6;
/// So far most rows that are looked at are from where their neighbours put them.
constexpr int KeptDistances = 256;
/// What is less adds nothing to what any row of a table has.
constexpr double Nothing = 1e-30;
/// Rows of a word of the set of known ones.
constexpr size_t WordSize = 64;
/// As if so many pairs had shown what is assumed.
constexpr double Strength = 4;

} // namespace

PlaceEvidence::PlaceEvidence(std::vector<int> partners, int targetRows)
    : m_partners(std::move(partners))
    , m_targetRows(targetRows)
{
    const auto count = int(m_partners.size());
    m_words.resize((m_partners.size() + WordSize - 1) / WordSize);
    int nearest = -1;
    for (size_t word = 0; word < m_words.size(); ++word) {
        const size_t first = word * WordSize;
        const size_t size = std::min(WordSize, m_partners.size() - first);
        std::uint64_t known = 0;
        for (size_t i = 0; i < size; ++i)
            known |= std::uint64_t(m_partners[first + i] >= 0) << i;
        m_words[word] = {known, nearest, count};
        nearest = known ? int(first + WordSize) - 1 - std::countl_zero(known) : nearest;
    }
    nearest = count;
    for (size_t word = m_words.size(); word-- > 0;) {
        m_words[word].below = nearest;
        const std::uint64_t known = m_words[word].known;
        nearest = known ? int(word * WordSize) + std::countr_zero(known) : nearest;
    }
}

int PlaceEvidence::above(int row) const
{
    const size_t word = size_t(row) / WordSize;
    const std::uint64_t known =
        m_words[word].known & ((std::uint64_t(1) << size_t(row) % WordSize) - 1);
    return known ? int((word + 1) * WordSize) - 1 - std::countl_zero(known) : m_words[word].above;
}

int PlaceEvidence::below(int row) const
{
    const size_t word = size_t(row) / WordSize;
    // Shifted once more by itself: by the whole word there would be nothing said of the result.
    const std::uint64_t known =
        m_words[word].known & (~std::uint64_t(0) << size_t(row) % WordSize << 1);
    return known ? int(word * WordSize) + std::countr_zero(known) : m_words[word].below;
}

std::vector<int> PlaceEvidence::knownRows(size_t step) const
{
    std::vector<int> rows;
    size_t next = 0; // of all known ones
    size_t before = 0;
    for (size_t word = 0; word < m_words.size(); ++word) {
        const auto count = size_t(std::popcount(m_words[word].known));
        size_t at = before;
        std::uint64_t known = m_words[word].known;
        for (; next < before + count; next += step) {
            for (; at < next; ++at)
                known &= known - 1;
            rows.push_back(int(word * WordSize) + std::countr_zero(known));
        }
        before += count;
    }
    return rows;
}

PlaceEvidence::Places PlaceEvidence::places(int sourceRow) const
{
    const int above = this->above(sourceRow);
    const int below = this->below(sourceRow);
    const int fromAbove = above < 0 ? -1 : m_partners[size_t(above)];
    const int fromBelow =
        below == int(m_partners.size()) ? m_targetRows : m_partners[size_t(below)];
    return {fromAbove + sourceRow - above, fromBelow - (below - sourceRow)};
}

double PlaceEvidence::near(int distance) const
{
    if (size_t(distance) < m_near.size())
        return m_near[size_t(distance)];
    if (!m_near.empty() && m_near.back() < Nothing)
        return 0;
    return (1 - m_decay) / (1 + m_decay) * std::pow(m_decay, distance);
}

PlaceEvidence::Kinds PlaceEvidence::densities(int sourceRow, int targetRow) const
{
    const Places at = places(sourceRow);
    const int first = std::max(0, std::min(at.fromAbove, at.fromBelow));
    const int last = std::min(m_targetRows - 1, std::max(at.fromAbove, at.fromBelow));
    const bool inside = targetRow >= first && targetRow <= last;
    return {near(std::abs(targetRow - at.fromAbove)), near(std::abs(targetRow - at.fromBelow)),
            inside ? 1.0 / (last - first + 1) : 0, 1.0 / m_targetRows};
}

void PlaceEvidence::learn()
{
    const Kinds assumed = m_shares;
    const double assumedDecay = m_decay;
    size_t all = 0;
    for (const Rows &rows : m_words)
        all += size_t(std::popcount(rows.known));
    const std::vector<int> known = knownRows(all / MaxLearned + 1);
    for (int round = 0; round < PlaceRounds && !known.empty(); ++round) {
        Kinds counts{};
        double distances = 0;
        for (const int row : known) {
            const int partner = m_partners[size_t(row)];
            Kinds parts = densities(row, partner);
            double sum = 0;
            for (int kind = 0; kind < KindCount; ++kind)
                sum += parts[size_t(kind)] *= m_shares[size_t(kind)];
            const Places at = places(row);
            for (int kind = 0; kind < KindCount; ++kind)
                counts[size_t(kind)] += parts[size_t(kind)] / sum;
            distances += parts[Above] / sum * std::abs(partner - at.fromAbove) +
                         parts[Below] / sum * std::abs(partner - at.fromBelow);
        }
        double total = Strength;
        for (const double count : counts)
            total += count;
        for (int kind = 0; kind < KindCount; ++kind) {
            m_shares[size_t(kind)] =
                (counts[size_t(kind)] + Strength * assumed[size_t(kind)]) / total;
        }
        // Mean distance of a two-sided geometric distribution: 2 q / (1 - q^2).
        const double assumedMean = 2 * assumedDecay / (1 - assumedDecay * assumedDecay);
        const double mean =
            (distances + Strength * assumedMean) / (counts[Above] + counts[Below] + Strength);
        m_decay = (std::sqrt(1 + mean * mean) - 1) / mean;
    }
    for (int distance = 0; distance < KeptDistances && (m_near.empty() || m_near.back() >= Nothing);
         ++distance)
        m_near.push_back((1 - m_decay) / (1 + m_decay) * std::pow(m_decay, distance));
}

double PlaceEvidence::weight(int sourceRow, int targetRow) const
{
    const Kinds parts = densities(sourceRow, targetRow);
    double sum = 0;
    for (int kind = 0; kind < KindCount; ++kind)
        sum += parts[size_t(kind)] * m_shares[size_t(kind)];
    return std::log(sum * m_targetRows);
}

} // namespace Plan
