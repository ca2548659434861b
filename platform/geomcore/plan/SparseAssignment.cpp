#include "SparseAssignment.h"

#include "SharedRows.h"

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
/// cost 0; a pair costs least - weight. Lines that meet no other one take their pair; of the others
/// and their rows each has a number of its own here, in the same order.
class Assigner
{
public:
    using Counts = std::function<bool(size_t, const PlanEdge &)>;

    Assigner(const EdgeLists &edges, int nodeCount, double least, const Counts &counts)
        : m_edges(edges)
        , m_least(least)
        , m_counts(counts)
    {
        m_lines = SharedRows(edges, nodeCount, [this](size_t line, const PlanEdge &edge) {
                      return costOf(line, edge) < 0;
                  }).lines();
        m_edgeOf.assign(m_lines.size(), -1);
        m_linePrice.assign(m_lines.size(), 0);
        std::vector<char> isMet(m_lines.empty() ? 0 : size_t(nodeCount), 0);
        forEachPair([&](const PlanEdge &edge) { isMet[size_t(edge.node)] = 1; });
        m_rowOf.assign(isMet.size(), -1);
        int rows = 0;
        for (size_t node = 0; node < isMet.size(); ++node) {
            if (isMet[node])
                m_rowOf[node] = rows++;
        }
        m_lineOf.assign(size_t(rows), -1);
        m_rowPrice.assign(size_t(rows), 0);
        m_distance.assign(size_t(rows), Never);
        m_from.assign(size_t(rows), {-1, -1});
        m_done.assign(size_t(rows), 0);
    }

    std::vector<int> run()
    {
        for (size_t line = 0; line < m_lines.size(); ++line)
            augment(int(line));
        std::vector<int> edgeOf(m_edges.size(), -1);
        auto bound = m_lines.begin();
        for (size_t line = 0; line < edgeOf.size(); ++line) {
            if (bound != m_lines.end() && *bound == line)
                edgeOf[line] = m_edgeOf[size_t(bound++ - m_lines.begin())];
            else
                edgeOf[line] = onlyEdge(line);
        }
        return edgeOf;
    }

private:
    struct From
    {
        int line;
        int edge;
    };

    [[nodiscard]] double costOf(size_t line, const PlanEdge &edge) const
    {
        return m_counts && !m_counts(line, edge) ? Never : m_least - edge.weight;
    }
    [[nodiscard]] std::span<const PlanEdge> pairs(int line) const
    {
        return m_edges[m_lines[size_t(line)]];
    }
    [[nodiscard]] double cost(int line, int edge) const
    {
        return costOf(m_lines[size_t(line)], pairs(line)[size_t(edge)]);
    }
    [[nodiscard]] int rowOf(const PlanEdge &edge) const { return m_rowOf[size_t(edge.node)]; }

    template<class Take>
    void forEachPair(Take take) const
    {
        for (const std::uint32_t line : m_lines) {
            for (const PlanEdge &edge : m_edges[line]) {
                if (costOf(line, edge) < 0)
                    take(edge);
            }
        }
    }
    /// Of a line that is not among them.
    [[nodiscard]] int onlyEdge(size_t line) const
    {
        const std::span<const PlanEdge> list = m_edges[line];
        const auto found = std::find_if(
            list.begin(), list.end(), [&](const PlanEdge &edge) { return costOf(line, edge) < 0; });
        return found == list.end() ? -1 : int(found - list.begin());
    }

    void relax(int line, double base, int skippedEdge)
    {
        const std::span<const PlanEdge> list = pairs(line);
        for (int edge = 0; edge < int(list.size()); ++edge) {
            const double price = cost(line, edge);
            if (edge == skippedEdge || price >= 0)
                continue;
            const auto node = size_t(rowOf(list[size_t(edge)]));
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
        const std::span<const PlanEdge> list = pairs(start);
        for (int edge = 0; edge < int(list.size()); ++edge) {
            const double own = cost(start, edge);
            if (own >= 0)
                continue;
            const int node = rowOf(list[size_t(edge)]);
            const double price = own - m_rowPrice[size_t(node)];
            const bool isFirst =
                price == lowest && nearest >= 0 && node < rowOf(list[size_t(nearest)]);
            if (price < lowest || isFirst)
                nearest = edge;
            lowest = std::min(lowest, price);
        }
        m_linePrice[size_t(start)] = lowest;
        if (nearest >= 0 && m_lineOf[size_t(rowOf(list[size_t(nearest)]))] < 0) {
            m_edgeOf[size_t(start)] = nearest;
            m_lineOf[size_t(rowOf(list[size_t(nearest)]))] = start;
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
            node = rowOf(pairs(endLine)[size_t(m_edgeOf[size_t(endLine)])]);
            m_edgeOf[size_t(endLine)] = -1;
        }
        while (node >= 0) {
            const From from = m_from[size_t(node)];
            const int next = from.line == start || m_edgeOf[size_t(from.line)] < 0
                                 ? -1
                                 : rowOf(pairs(from.line)[size_t(m_edgeOf[size_t(from.line)])]);
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
    std::vector<std::uint32_t> m_lines; ///< Those that may meet others.
    std::vector<int> m_rowOf;           ///< By node; -1 for one that they have no pair with.
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
