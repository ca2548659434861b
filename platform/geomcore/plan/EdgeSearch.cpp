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

bool EdgeSearch::lookUp(size_t target, size_t line, bool isFound, std::vector<int> &rows) const
{
    if (m_known.rows.lists.empty()) {
        const std::span<const int> kept = m_known.rows.kept[target].of(line);
        rows.assign(kept.begin(), kept.end());
        return isFound;
    }
    CandidateLists::Found found = m_known.rows.lists[target]->find(line);
    rows = std::move(found.rows);
    return found.isFarAhead;
}

void EdgeSearch::findCandidates(size_t line, bool isFound, Candidates &found) const
{
    found.all.clear();
    found.parts.clear();
    for (size_t t = 0; t < m_known.tables.targets.size(); ++t) {
        if (m_known.tables.targets[t].takes[line])
            addRows(t, line, isFound, found);
    }
}

void EdgeSearch::addRows(size_t t, size_t line, bool isFound, Candidates &found) const
{
    const PlanTarget &target = m_known.tables.targets[t];
    const PlaceEvidence &place = m_known.places[t];
    const int sourceRow = m_known.tables.openLines[line];
    std::vector<int> &rows = found.rows;
    const bool isFarAhead = lookUp(t, line, isFound, rows);
    const int around = isFarAhead ? 0 : AroundPlace;
    const PlaceEvidence::Places at = place.places(sourceRow);
    for (const int suggested : {at.fromAbove, at.fromBelow}) {
        auto row =
            std::lower_bound(target.openRows.begin(), target.openRows.end(), suggested - around);
        for (; row != target.openRows.end() && *row <= suggested + around; ++row)
            rows.push_back(int(row - target.openRows.begin()));
    }
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    const int firstNode = m_known.nodeOffsets[t];
    std::erase_if(rows, [&](int row) { // another target of the same table has it already
        return std::ranges::any_of(found.all, [node = firstNode + row](const Candidate &other) {
            return other.edge.node == node;
        });
    });
    size_t part = found.parts.size();
    found.most.clear();
    m_known.evidence.bound(target, line, rows, m_known.withKeys, found.parts, found.most);
    for (size_t i = 0; i < rows.size(); ++i) {
        const int row = rows[i];
        const double rest =
            m_known.priors[t] + place.weight(sourceRow, target.openRows[size_t(row)]);
        found.all.push_back({{int(t), row, firstNode + row, rest + found.most[i], 0}, rest, part});
        part += target.variables.size();
    }
}

/// In the order of what they weigh at most, so that most are seen to be far behind by that alone.
void EdgeSearch::find(size_t line, bool isFound, EdgeLists::Block &out) const
{
    thread_local Candidates kept; // of lines before, for its room
    Candidates &found = kept;
    findCandidates(line, isFound, found);
    std::sort(found.all.begin(), found.all.end(),
              [](const Candidate &a, const Candidate &b) { return isBefore(a.edge, b.edge); });
    thread_local std::vector<PlanEdge> keptEdges;
    std::vector<PlanEdge> &edges = keptEdges;
    edges.clear();
    double least = m_known.keepsBest ? -std::numeric_limits<double>::infinity() : -FarBehind;
    for (const Candidate &candidate : found.all) {
        PlanEdge edge = candidate.edge;
        if (edge.weight < least)
            break;
        const PlanTarget &target = m_known.tables.targets[size_t(edge.target)];
        const std::span parts =
            std::span(found.parts).subspan(candidate.firstPart, target.variables.size());
        edge.weight =
            candidate.rest + m_known.evidence.weight(target, line, size_t(edge.row),
                                                     ownWeight(m_known.learned, line, edge.node),
                                                     parts, least - candidate.rest);
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
