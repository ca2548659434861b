#include "SoftAssignment.h"

#include "SharedRows.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace Plan {

namespace {

constexpr int MaxRounds = 60;
constexpr double Precision = 1e-4;
/// Odds beyond e to this power are as good as certain.
constexpr double MaxWeight = 30;

/// What the two sides of a pair say of how free they are for it.
struct Free
{
    double line = 1;
    double row = 1;
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

/// The pairs' odds stand in the edges as their probabilities until these are known. A line that
/// meets no other one has its own odds.
class Spreading
{
public:
    Spreading(EdgeLists &edges, int nodeCount)
        : m_edges(edges)
        , m_shared(edges, nodeCount, [](size_t, const PlanEdge &) { return true; })
    {
        for (size_t line = 0; line < edges.size(); ++line) {
            for (PlanEdge &edge : edges[line])
                edge.probability = std::exp(std::min(edge.weight, MaxWeight));
        }
        if (m_shared.lines().empty())
            return;
        m_sumOf.assign(size_t(nodeCount), None);
        size_t pairs = 0;
        int sums = 0;
        for (const std::uint32_t line : m_shared.lines()) {
            for (const PlanEdge &edge : edges[line]) {
                int &sum = m_sumOf[size_t(edge.node)];
                if (sum == None && m_shared.isShared(edge.node))
                    sum = sums++;
                ++pairs;
            }
        }
        m_free.resize(pairs);
        m_sums.resize(size_t(sums));
    }

    void run()
    {
        for (int round = 0; round < MaxRounds; ++round) {
            const double change = tellRows();
            if (std::max(change, tellLines()) < Precision)
                break;
        }
        auto free = m_free.begin();
        for (const std::uint32_t line : m_shared.lines()) {
            for (PlanEdge &edge : m_edges[line]) {
                edge.probability = edge.probability * free->line * free->row;
                ++free;
            }
        }
        for (size_t line = 0; line < m_edges.size(); ++line) {
            for (PlanEdge &edge : m_edges[line])
                edge.probability /= 1 + edge.probability;
        }
    }

private:
    double tellRows()
    {
        double change = 0;
        auto free = m_free.begin();
        for (const std::uint32_t line : m_shared.lines()) {
            const std::span<const PlanEdge> edges = std::as_const(m_edges)[line];
            SumWithout sum;
            for (size_t i = 0; i < edges.size(); ++i)
                sum.add(edges[i].probability * free[std::ptrdiff_t(i)].row);
            for (const PlanEdge &edge : edges) {
                const double now = 1 / (1 + sum.without(edge.probability * free->row));
                change = std::max(change, std::abs(now - free->line));
                free->line = now;
                ++free;
            }
        }
        return change;
    }

    double tellLines()
    {
        std::fill(m_sums.begin(), m_sums.end(), SumWithout());
        forEachShared([](SumWithout &sum, double part, Free &) { sum.add(part); });
        double change = 0;
        forEachShared([&change](const SumWithout &sum, double part, Free &free) {
            const double now = 1 / (1 + sum.without(part));
            change = std::max(change, std::abs(now - free.row));
            free.row = now;
        });
        return change;
    }

    /// Rows with a single pair are free for it whatever its line says.
    template<class Take>
    void forEachShared(Take take)
    {
        auto free = m_free.begin();
        for (const std::uint32_t line : m_shared.lines()) {
            for (const PlanEdge &edge : std::as_const(m_edges)[line]) {
                const int sum = m_sumOf[size_t(edge.node)];
                if (sum >= 0)
                    take(m_sums[size_t(sum)], edge.probability * free->line, *free);
                ++free;
            }
        }
    }

    static constexpr int None = -1;
    EdgeLists &m_edges;
    const SharedRows m_shared;
    std::vector<int> m_sumOf; ///< By node, place in m_sums of one that several lines share.
    std::vector<SumWithout> m_sums;
    std::vector<Free> m_free; ///< By pair of these lines, in their order.
};

} // namespace

void spreadProbabilities(EdgeLists &edges, int nodeCount)
{
    Spreading(edges, nodeCount).run();
}

} // namespace Plan
