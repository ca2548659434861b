#include "EdgeSearch.h"

#include <algorithm>
#include <limits>

namespace Plan {

namespace {

/// Candidates of a line, of all targets together.
constexpr size_t KeptEdges = 12;
/// Candidates that are so far behind the best one of their line, or behind having none, are not
/// looked at further: what is learned later hardly moves a weight so far.
constexpr double FarBehind = 25;
/// Rows around the places that neighbours suggest are candidates.
constexpr int AroundPlace = 2;

bool isBefore(const PlanEdge &a, const PlanEdge &b)
{
    if (a.weight != b.weight)
        return a.weight > b.weight;
    return a.target != b.target ? a.target < b.target : a.row < b.row;
}

} // namespace

double ownWeight(const LineLists<EdgeSearch::Learned> &learned, size_t line, int node)
{
    for (const EdgeSearch::Learned &pair : learned.of(line)) {
        if (pair.node == node)
            return pair.weight;
    }
    return 0;
}

bool EdgeSearch::isFound(std::span<const PlanEdge> edges)
{
    return std::any_of(edges.begin(), edges.end(),
                       [](const PlanEdge &edge) { return edge.probability >= Certain; });
}

void EdgeSearch::Rows::keep(const EdgeLists &edges, size_t targets)
{
    lists.clear();
    kept.resize(targets);
    for (LineLists<int> &rows : kept)
        rows.reserve(edges.size());
    for (size_t line = 0; line < edges.size(); ++line) {
        for (const PlanEdge &edge : edges[line])
            kept[size_t(edge.target)].add(edge.row);
        for (LineLists<int> &rows : kept)
            rows.endLine();
    }
    for (LineLists<int> &rows : kept)
        rows.finish();
}

CandidateLists::Found EdgeSearch::lookedUp(size_t target, size_t line, bool isFound) const
{
    if (!m_known.rows.lists.empty())
        return m_known.rows.lists[target]->find(line);
    const std::span<const int> kept = m_known.rows.kept[target].of(line);
    return {{kept.begin(), kept.end()}, isFound};
}

void EdgeSearch::findCandidates(size_t line, bool isFound, std::vector<Candidate> &candidates) const
{
    candidates.clear();
    const int sourceRow = m_known.tables.openLines[line];
    for (size_t t = 0; t < m_known.tables.targets.size(); ++t) {
        const PlanTarget &target = m_known.tables.targets[t];
        if (!target.takes[line])
            continue;
        CandidateLists::Found found = lookedUp(t, line, isFound);
        std::vector<int> &rows = found.rows;
        const int around = found.isFarAhead ? 0 : AroundPlace;
        const PlaceEvidence::Places at = m_known.places[t].places(sourceRow);
        for (const int place : {at.fromAbove, at.fromBelow}) {
            auto row =
                std::lower_bound(target.openRows.begin(), target.openRows.end(), place - around);
            for (; row != target.openRows.end() && *row <= place + around; ++row)
                rows.push_back(int(row - target.openRows.begin()));
        }
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        const size_t others = candidates.size(); // of targets before
        for (const int row : rows) {
            Candidate candidate{{int(t), row, m_known.nodeOffsets[t] + row, 0, 0},
                                m_known.priors[t]};
            if (std::any_of(
                    candidates.begin(), candidates.begin() + std::ptrdiff_t(others),
                    [&](const Candidate &other) { return other.edge.node == candidate.edge.node; }))
                continue;
            candidate.rest += m_known.places[t].weight(sourceRow, target.openRows[size_t(row)]);
            candidate.edge.weight =
                candidate.rest +
                m_known.evidence.atMost(target, line, size_t(row), m_known.withKeys);
            candidates.push_back(candidate);
        }
    }
}

/// In the order of what they weigh at most, so that most are seen to be far behind by that alone.
void EdgeSearch::find(size_t line, bool isFound, EdgeLists::Block &out) const
{
    thread_local std::vector<Candidate> candidates;
    findCandidates(line, isFound, candidates);
    std::sort(candidates.begin(), candidates.end(),
              [](const Candidate &a, const Candidate &b) { return isBefore(a.edge, b.edge); });
    thread_local std::vector<PlanEdge> edges;
    edges.clear();
    double least = m_known.keepsBest ? -std::numeric_limits<double>::infinity() : -FarBehind;
    for (const Candidate &candidate : candidates) {
        PlanEdge edge = candidate.edge;
        if (edge.weight < least)
            break;
        edge.weight =
            candidate.rest + m_known.evidence.weight(m_known.tables.targets[size_t(edge.target)],
                                                     line, size_t(edge.row),
                                                     ownWeight(m_known.learned, line, edge.node),
                                                     m_known.withKeys, least - candidate.rest);
        if (edge.weight < least)
            continue;
        edges.insert(std::upper_bound(edges.begin(), edges.end(), edge, isBefore), edge);
        // Having no successor weighs 0.
        least = std::max({least, edge.weight - FarBehind, std::min(edge.weight, -FarBehind)});
        if (edges.size() > KeptEdges)
            edges.pop_back();
        if (edges.size() == KeptEdges)
            least = std::max(least, edges.back().weight);
    }
    if (!m_known.rows.lists.empty()) // what was far behind at first is not looked at again
        std::erase_if(edges, [least = edges.empty() ? 0 : edges.front().weight - FarBehind](
                                 const PlanEdge &edge) { return edge.weight < least; });
    out.add(edges);
}

} // namespace Plan
