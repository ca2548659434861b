#include "VariableRates.h"

namespace Plan {

void RateCounts::add(const RateCounts &other, double weight)
{
    for (size_t i = 0; i < ways.size(); ++i)
        ways[i] += weight * other.ways[i];
    lost += weight * other.lost;
    hadValue += weight * other.hadValue;
    gained += weight * other.gained;
    hadNone += weight * other.hadNone;
    staying += weight * other.staying;
    tokens += weight * other.tokens;
    added += weight * other.added;
    expected += weight * other.expected;
}

double RateCounts::total() const
{
    double sum = 0;
    for (const double count : ways)
        sum += count;
    return sum;
}

VariableRates VariableRates::assumed()
{
    VariableRates rates;
    rates.ways = {0.6, 0.1, 0.1, 0.1, 0.1};
    rates.lost = 0.05;
    rates.gained = 0.05;
    rates.stays = 0.5;
    rates.adds = 0.5;
    return rates;
}

VariableRates VariableRates::learned(const RateCounts &counts, const VariableRates &prior)
{
    VariableRates rates;
    const double total = counts.total();
    for (size_t i = 0; i < rates.ways.size(); ++i)
        rates.ways[i] = (counts.ways[i] + Strength * prior.ways[i]) / (total + Strength);
    const auto share = [](double count, double all, double before) {
        return (count + Strength * before) / (all + Strength);
    };
    rates.lost = share(counts.lost, counts.hadValue, prior.lost);
    rates.gained = share(counts.gained, counts.hadNone, prior.gained);
    rates.stays = share(counts.staying, counts.tokens, prior.stays);
    rates.adds = share(counts.added, counts.expected, prior.adds);
    return rates;
}

} // namespace Plan
