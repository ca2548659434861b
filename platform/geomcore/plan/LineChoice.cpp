#include "LineChoice.h"

#include "SparseAssignment.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <numbers>
#include <utility>

namespace Plan {

namespace {

/// What is less probable is nobody's best candidate at the cost of another one.
constexpr double LeastChosen = 1e-6;

/// Pairs of lines and rows that are alike do not cross, as long as that is worth hardly more than
/// crossing: the places that each line's neighbours suggest, taken by themselves, do not show it.
class OrderKeeper
{
public:
    OrderKeeper(const EdgeLists &edges, int nodeCount, const LineChoice::AreAlike &areAlike,
                std::vector<int> &chosen)
        : m_edges(edges)
        , m_areAlike(areAlike)
        , m_chosen(chosen)
        , m_lineOf(size_t(nodeCount), -1)
    {
        for (size_t line = 0; line < edges.size(); ++line) {
            if (chosen[line] >= 0)
                m_lineOf[size_t(chosenOf(line).node)] = int(line);
        }
    }

    void run()
    {
        for (bool changed = true; changed;) {
            changed = false;
            for (size_t line = 0; line < m_edges.size(); ++line) {
                for (size_t i = 0; i < m_edges[line].size() && m_chosen[line] >= 0; ++i)
                    changed = exchange(line, i) || changed;
            }
        }
    }

private:
    /// Two to one is no odds to cross for.
    static constexpr double HardlyMore = std::numbers::ln2;

    [[nodiscard]] const PlanEdge &chosenOf(size_t line) const
    {
        return m_edges[line][size_t(m_chosen[line])];
    }

    /// If a line behind has the row of this edge, which is before the line's own.
    bool exchange(size_t line, size_t i)
    {
        const PlanEdge &own = chosenOf(line);
        const PlanEdge &edge = m_edges[line][i];
        const int other = m_lineOf[size_t(edge.node)];
        if (other <= int(line) || edge.target != own.target || edge.row >= own.row)
            return false;
        const std::span<const PlanEdge> others = m_edges[size_t(other)];
        const auto back = std::find_if(others.begin(), others.end(), [&own](const PlanEdge &at) {
            return at.node == own.node && at.target == own.target;
        });
        const PlanEdge &now = chosenOf(size_t(other));
        if (back == others.end() ||
            own.weight + now.weight - edge.weight - back->weight > HardlyMore ||
            !m_areAlike(line, size_t(other), own, edge))
            return false;
        m_lineOf[size_t(own.node)] = other;
        m_lineOf[size_t(edge.node)] = int(line);
        m_chosen[line] = int(i);
        m_chosen[size_t(other)] = int(back - others.begin());
        return true;
    }

    const EdgeLists &m_edges;
    const LineChoice::AreAlike &m_areAlike;
    std::vector<int> &m_chosen;
    std::vector<int> m_lineOf; ///< By node; -1: none.
};

/// By line the index of its edge, or -1: first what the assignment gives, then of what is left.
std::vector<int> chosenEdges(const EdgeLists &edges, int nodeCount,
                             const LineChoice::AreAlike &areAlike, LineChoice &choice)
{
    choice.isAssigned.resize(edges.size(), 0);
    std::vector<int> chosen = assignPairs(edges, nodeCount, 0);
    OrderKeeper(edges, nodeCount, areAlike, chosen).run();
    std::vector<char> taken(size_t(nodeCount), 0);
    for (size_t line = 0; line < edges.size(); ++line) {
        if (chosen[line] < 0)
            continue;
        const PlanEdge &edge = edges[line][size_t(chosen[line])];
        choice.explained += edge.weight;
        ++choice.pairs;
        taken[size_t(edge.node)] = 1;
    }
    const std::vector<int> left =
        assignPairs(edges, nodeCount, -1e6, [&](size_t line, const PlanEdge &edge) {
            return chosen[line] < 0 && !taken[size_t(edge.node)] && edge.probability >= LeastChosen;
        });
    for (size_t line = 0; line < edges.size(); ++line) {
        chosen[line] = std::max(chosen[line], left[line]);
        choice.isAssigned[line] = chosen[line] >= 0 ? 1 : 0;
    }
    return chosen;
}

} // namespace

LineChoice LineChoice::of(EdgeLists &edges, int nodeCount, const AreAlike &areAlike)
{
    LineChoice choice;
    const std::vector<int> chosen = chosenEdges(edges, nodeCount, areAlike, choice);
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
