#include "LineChoice.h"

#include "SparseAssignment.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <utility>

namespace Plan {

namespace {

/// What is less probable is nobody's best candidate at the cost of another one.
constexpr double LeastChosen = 1e-6;

/// By line the index of its edge, or -1: first what the assignment gives, then of what is left.
std::vector<int> chosenEdges(const EdgeLists &edges, int nodeCount, double &explained)
{
    std::vector<int> chosen = assignPairs(edges, nodeCount, 0);
    std::vector<char> taken(size_t(nodeCount), 0);
    for (size_t line = 0; line < edges.size(); ++line) {
        if (chosen[line] < 0)
            continue;
        const PlanEdge &edge = edges[line][size_t(chosen[line])];
        explained += edge.weight;
        taken[size_t(edge.node)] = 1;
    }
    const std::vector<int> left =
        assignPairs(edges, nodeCount, -1e6, [&](size_t line, const PlanEdge &edge) {
            return chosen[line] < 0 && !taken[size_t(edge.node)] && edge.probability >= LeastChosen;
        });
    for (size_t line = 0; line < edges.size(); ++line)
        chosen[line] = std::max(chosen[line], left[line]);
    return chosen;
}

} // namespace

LineChoice LineChoice::of(EdgeLists &edges, int nodeCount)
{
    LineChoice choice;
    const std::vector<int> chosen = chosenEdges(edges, nodeCount, choice.explained);
    choice.noSuccessor.resize(edges.size());
    WorkerPool::instance().run(int(edges.blockCount()), [&](int block) {
        edges.refill(size_t(block), [&](size_t line, EdgeLists::Block &out) {
            const std::span<PlanEdge> all = edges[line];
            const int node = chosen[line] >= 0 ? all[size_t(chosen[line])].node : -1;
            double successor = 0;
            for (const PlanEdge &edge : all)
                successor += edge.probability;
            std::stable_sort(all.begin(), all.end(), [node](const PlanEdge &a, const PlanEdge &b) {
                if ((a.node == node) != (b.node == node))
                    return a.node == node;
                return a.probability > b.probability;
            });
            out.add(all.first(std::min(all.size(), MaxCandidates)));
            choice.noSuccessor[line] = std::clamp(1 - successor, 0.0, 1.0);
        });
    });
    return choice;
}

} // namespace Plan
