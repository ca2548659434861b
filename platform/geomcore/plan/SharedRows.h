#pragma once

#include "EdgeLists.h"

#include <cstdint>
#include <vector>

namespace Plan {

/// Tells the lines whose choice has to do with that of others. Most lines of a large table have a
/// single pair, with a row that no other line has one with: these need no room and no rounds.
class SharedRows
{
public:
    /// \a counts: called with line and pair; pairs for which it is false are not there.
    template<class Counts>
    SharedRows(const EdgeLists &edges, int nodeCount, Counts counts)
        : m_uses(size_t(nodeCount), 0)
    {
        std::vector<std::uint8_t> pairsOf(edges.size(), 0);
        for (size_t line = 0; line < edges.size(); ++line) {
            for (const PlanEdge &edge : edges[line]) {
                if (counts(line, edge)) {
                    noteOne(m_uses[size_t(edge.node)]);
                    noteOne(pairsOf[line]);
                }
            }
        }
        for (size_t line = 0; line < edges.size(); ++line) {
            bool isBound = pairsOf[line] > 1;
            for (const PlanEdge &edge : edges[line])
                isBound = isBound || (isShared(edge.node) && counts(line, edge));
            if (isBound)
                m_lines.push_back(std::uint32_t(line));
        }
    }
    /// Several lines have pairs with it.
    [[nodiscard]] bool isShared(int node) const { return m_uses[size_t(node)] > 1; }
    /// Lines with several pairs or with one whose row is shared, ascending.
    [[nodiscard]] const std::vector<std::uint32_t> &lines() const { return m_lines; }

private:
    static void noteOne(std::uint8_t &count) { count = count == 0 ? 1 : 2; }

    std::vector<std::uint8_t> m_uses; ///< By node: 0, 1 or 2 for more.
    std::vector<std::uint32_t> m_lines;
};

} // namespace Plan
