#include "PlaceEvidence.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace Plan {

namespace {

/// Pairs that are looked at to learn from.
constexpr size_t MaxLearned = 4000;
constexpr int PlaceRounds = 6;
/// So far most rows that are looked at are from where their neighbours put them.
constexpr int KeptDistances = 64;
/// As if so many pairs had shown what is assumed.
constexpr double Strength = 4;

} // namespace

PlaceEvidence::PlaceEvidence(std::vector<int> partners, int targetRows)
    : m_partners(std::move(partners))
    , m_targetRows(targetRows)
{
    const auto count = int(m_partners.size());
    const auto lookAbove = [&] {
        m_above.resize(m_partners.size());
        for (int row = 0, above = -1; row < count; ++row) {
            m_above[size_t(row)] = above;
            above = m_partners[size_t(row)] >= 0 ? row : above;
        }
    };
    const auto lookBelow = [&] {
        m_below.resize(m_partners.size());
        for (int row = count - 1, below = count; row >= 0; --row) {
            m_below[size_t(row)] = below;
            below = m_partners[size_t(row)] >= 0 ? row : below;
        }
    };
    // All rows count, though few lines are open.
    WorkerPool::instance().run(2, [&](int way) { way == 0 ? lookAbove() : lookBelow(); });
}

PlaceEvidence::Places PlaceEvidence::places(int sourceRow) const
{
    const int above = m_above[size_t(sourceRow)];
    const int below = m_below[size_t(sourceRow)];
    const int fromAbove = above < 0 ? -1 : m_partners[size_t(above)];
    const int fromBelow =
        below == int(m_partners.size()) ? m_targetRows : m_partners[size_t(below)];
    return {fromAbove + sourceRow - above, fromBelow - (below - sourceRow)};
}

double PlaceEvidence::near(int distance) const
{
    if (size_t(distance) < m_near.size())
        return m_near[size_t(distance)];
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
    std::vector<int> known;
    for (int row = 0; row < int(m_partners.size()); ++row) {
        if (m_partners[size_t(row)] >= 0)
            known.push_back(row);
    }
    const size_t step = known.size() / MaxLearned + 1;
    for (int round = 0; round < PlaceRounds && !known.empty(); ++round) {
        Kinds counts{};
        double distances = 0;
        for (size_t i = 0; i < known.size(); i += step) {
            const int row = known[i];
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
    for (int distance = 0; distance < KeptDistances; ++distance)
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
