#include "SoftAssignment.h"

#include <algorithm>
#include <cmath>

namespace Plan {

namespace {

constexpr int MaxRounds = 60;
constexpr double Precision = 1e-4;
/// Odds beyond e to this power are as good as certain.
constexpr double MaxWeight = 30;

/// A pair, with what its two sides say of how free they are for it.
struct Pair
{
    size_t line;
    size_t node;
    double odds;
    double lineFree = 1;
    double rowFree = 1;
};

/// Sums of parts of which one at a time is left out, also if it is nearly all of the sum.
struct SumWithout
{
    double sum = 0;
    double largest = 0;
    double others = 0; ///< Without the largest.

    void add(double part)
    {
        sum += part;
        others += part > largest ? largest : part;
        largest = std::max(largest, part);
    }
    [[nodiscard]] double without(double part) const
    {
        return part == largest ? others : std::max(0.0, sum - part);
    }
};

double propagate(std::vector<Pair> &pairs, std::vector<SumWithout> &sums, bool toRows)
{
    std::fill(sums.begin(), sums.end(), SumWithout());
    for (const Pair &pair : pairs)
        sums[toRows ? pair.line : pair.node].add(pair.odds *
                                                 (toRows ? pair.rowFree : pair.lineFree));
    double change = 0;
    for (Pair &pair : pairs) {
        const double part = pair.odds * (toRows ? pair.rowFree : pair.lineFree);
        double &free = toRows ? pair.lineFree : pair.rowFree;
        const double now = 1 / (1 + sums[toRows ? pair.line : pair.node].without(part));
        change = std::max(change, std::abs(now - free));
        free = now;
    }
    return change;
}

} // namespace

void spreadProbabilities(EdgeLists &edges, int nodeCount)
{
    std::vector<Pair> pairs;
    for (size_t line = 0; line < edges.size(); ++line) {
        for (const PlanEdge &edge : edges[line])
            pairs.push_back({line, size_t(edge.node), std::exp(std::min(edge.weight, MaxWeight))});
    }
    std::vector<SumWithout> lines(edges.size());
    std::vector<SumWithout> nodes(static_cast<size_t>(nodeCount));
    for (int round = 0; round < MaxRounds; ++round) {
        const double change = propagate(pairs, lines, true);
        if (std::max(change, propagate(pairs, nodes, false)) < Precision)
            break;
    }
    auto pair = pairs.begin();
    for (std::vector<PlanEdge> &line : edges) {
        for (PlanEdge &edge : line) {
            const double odds = pair->odds * pair->lineFree * pair->rowFree;
            edge.probability = odds / (1 + odds);
            ++pair;
        }
    }
}

} // namespace Plan
