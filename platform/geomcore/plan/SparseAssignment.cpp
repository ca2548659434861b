#include "SparseAssignment.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <limits>
#include <queue>
#include <span>
#include <utility>

namespace Plan {

namespace {

constexpr double Never = std::numeric_limits<double>::infinity();

/// Successive shortest augmenting paths with prices. A line may always stay without a partner, at
/// cost 0; a pair costs least - weight.
class Assigner
{
public:
    using Counts = std::function<bool(size_t, const PlanEdge &)>;

    Assigner(const EdgeLists &edges, int nodeCount, double least, const Counts &counts)
        : m_edges(edges)
        , m_least(least)
        , m_counts(counts)
        , m_edgeOf(edges.size(), -1)
        , m_lineOf(size_t(nodeCount), -1)
        , m_linePrice(edges.size(), 0)
        , m_rowPrice(size_t(nodeCount), 0)
        , m_distance(size_t(nodeCount), Never)
        , m_from(size_t(nodeCount), {-1, -1})
        , m_done(size_t(nodeCount), 0)
    {
    }

    std::vector<int> run()
    {
        for (size_t line = 0; line < m_edges.size(); ++line)
            augment(int(line));
        return m_edgeOf;
    }

private:
    struct From
    {
        int line;
        int edge;
    };

    [[nodiscard]] double cost(int line, int edge) const
    {
        const PlanEdge &pair = m_edges[size_t(line)][size_t(edge)];
        return m_counts && !m_counts(size_t(line), pair) ? Never : m_least - pair.weight;
    }

    void relax(int line, double base, int skippedEdge)
    {
        const std::span<const PlanEdge> list = m_edges[size_t(line)];
        for (int edge = 0; edge < int(list.size()); ++edge) {
            const double price = cost(line, edge);
            if (edge == skippedEdge || price >= 0)
                continue;
            const auto node = size_t(list[size_t(edge)].node);
            if (m_done[node])
                continue;
            const double distance = base + price - m_linePrice[size_t(line)] - m_rowPrice[node];
            if (distance < m_distance[node]) {
                if (m_distance[node] == Never)
                    m_touched.push_back(int(node));
                m_distance[node] = distance;
                m_from[node] = {line, edge};
                m_queue.push({distance, int(node)});
            }
        }
    }

    /// Finds the cheapest way to give the line a partner, or to leave it or one that it drives away
    /// without.
    void augment(int start)
    {
        // The line's price makes all its ways cost at least nothing.
        double lowest = 0;
        int nearest = -1;
        const std::span<const PlanEdge> list = m_edges[size_t(start)];
        for (int edge = 0; edge < int(list.size()); ++edge) {
            const int node = list[size_t(edge)].node;
            const double price = cost(start, edge) - m_rowPrice[size_t(node)];
            const bool isFirst =
                price == lowest && nearest >= 0 && node < list[size_t(nearest)].node;
            if (price < lowest || isFirst)
                nearest = edge;
            lowest = std::min(lowest, price);
        }
        m_linePrice[size_t(start)] = lowest;
        if (nearest >= 0 && m_lineOf[size_t(list[size_t(nearest)].node)] < 0) {
            m_edgeOf[size_t(start)] = nearest;
            m_lineOf[size_t(list[size_t(nearest)].node)] = start;
            return; // nothing is cheaper than the cheapest way to a free row
        }
        double bestEnd = -lowest; // staying alone
        int endLine = start;
        int endNode = -1;
        m_queue = {};
        relax(start, 0, -1);
        while (!m_queue.empty()) {
            const auto [distance, node] = m_queue.top();
            m_queue.pop();
            if (m_done[size_t(node)] || distance > m_distance[size_t(node)])
                continue;
            if (distance >= bestEnd)
                break;
            m_done[size_t(node)] = 1;
            const int line = m_lineOf[size_t(node)];
            if (line < 0) {
                bestEnd = distance;
                endNode = node;
                endLine = -1;
                break;
            }
            const double alone = distance - m_linePrice[size_t(line)];
            if (alone < bestEnd) {
                bestEnd = alone;
                endLine = line;
                endNode = -1;
            }
            relax(line, distance, m_edgeOf[size_t(line)]);
        }
        settlePrices(start, bestEnd);
        if (endNode < 0 && endLine == start)
            return;
        int node = endNode;
        if (node < 0) {
            node = m_edges[size_t(endLine)][size_t(m_edgeOf[size_t(endLine)])].node;
            m_edgeOf[size_t(endLine)] = -1;
        }
        while (node >= 0) {
            const From from = m_from[size_t(node)];
            const int next =
                from.line == start || m_edgeOf[size_t(from.line)] < 0
                    ? -1
                    : m_edges[size_t(from.line)][size_t(m_edgeOf[size_t(from.line)])].node;
            m_edgeOf[size_t(from.line)] = from.edge;
            m_lineOf[size_t(node)] = from.line;
            node = next;
        }
    }

    void settlePrices(int start, double end)
    {
        for (const int node : m_touched) {
            if (m_done[size_t(node)] && m_distance[size_t(node)] < end) {
                const double less = end - m_distance[size_t(node)];
                m_rowPrice[size_t(node)] -= less;
                if (m_lineOf[size_t(node)] >= 0)
                    m_linePrice[size_t(m_lineOf[size_t(node)])] += less;
            }
            m_done[size_t(node)] = 0;
            m_distance[size_t(node)] = Never;
        }
        m_linePrice[size_t(start)] += end;
        m_touched.clear();
    }

    using Item = std::pair<double, int>;

    const EdgeLists &m_edges;
    const double m_least;
    const Counts &m_counts;
    std::vector<int> m_edgeOf;
    std::vector<int> m_lineOf;
    std::vector<double> m_linePrice;
    std::vector<double> m_rowPrice;
    std::vector<double> m_distance;
    std::vector<From> m_from;
    std::vector<char> m_done;
    std::vector<int> m_touched;
    std::priority_queue<Item, std::vector<Item>, std::greater<>> m_queue;
};

} // namespace

std::vector<int> assignPairs(const EdgeLists &edges, int nodeCount, double least,
                             const std::function<bool(size_t, const PlanEdge &)> &counts)
{
    return Assigner(edges, nodeCount, least, counts).run();
}

} // namespace Plan
