#include "nextBestDoubt.h"

#include "EdgeSearch.h"
#include "VariableRates.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace Plan {

namespace {

/// Nine of ten pairs from here on are right: what lies around others is no wrong row for sure.
constexpr double Found = 0.9;
/// A row that is more probably than not another line's is not to be had.
constexpr double Taken = 0.5;
/// Halvings of the range in which the doubt lies.
constexpr int Steps = 20;

struct Weighed
{
    double weight = 0;
    double lines = 0;
};

double chanceOf(double weight)
{
    return 1 / (1 + std::exp(-weight));
}

/// What a line's best row weighs that is nobody's beside its own.
std::optional<double> nextBest(std::span<const PlanEdge> edges, const PlanEdge &own,
                               const std::vector<double> &taken)
{
    std::optional<double> best;
    for (const PlanEdge &edge : edges) {
        if (edge.node != own.node && taken[size_t(edge.node)] - edge.probability < Taken)
            best = std::max(best.value_or(edge.weight), edge.weight);
    }
    return best;
}

} // namespace

double nextBestDoubt(const EdgeLists &edges, int nodeCount, std::span<const float> standsFor,
                     double already)
{
    std::vector<double> taken(size_t(nodeCount), 0);
    for (size_t line = 0; line < edges.size(); ++line) {
        for (const PlanEdge &edge : edges[line])
            taken[size_t(edge.node)] += edge.probability;
    }
    std::vector<Weighed> right;
    std::vector<Weighed> wrong;
    for (size_t line = 0; line < edges.size(); ++line) {
        const auto own = std::ranges::find_if(
            edges[line], [](const PlanEdge &edge) { return edge.probability >= Found; });
        // Of lines with a partner that is far ahead the rows behind it are not known.
        if (own == edges[line].end() || own->weight > EdgeSearch::FarBehind)
            continue;
        const double lines = double(standsFor[line]) * own->probability;
        right.push_back({own->weight + already, lines});
        if (const auto next = nextBest(edges[line], *own, taken))
            wrong.push_back({*next + already, lines});
    }
    // As if so many pairs of weight 0 had been right half the time.
    const auto tooLittle = [&](double doubt) {
        double sum = VariableRates::Strength * (0.5 - chanceOf(doubt));
        for (const Weighed &pair : right)
            sum -= pair.lines * chanceOf(doubt - pair.weight);
        for (const Weighed &pair : wrong)
            sum += pair.lines * chanceOf(pair.weight - doubt);
        return sum > 0;
    };
    double least = 0;
    if (wrong.empty() || !tooLittle(least))
        return 0;
    double most = EdgeSearch::FarBehind;
    for (int step = 0; step < Steps; ++step) {
        const double middle = (least + most) / 2;
        (tooLittle(middle) ? least : most) = middle;
    }
    return most;
}

} // namespace Plan
