#include "EdgeSearch.h"

#include <algorithm>
#include <limits>

namespace Plan {

namespace {

/// Candidates of a line, of all targets together.
constexpr size_t KeptEdges = 12;
/// Rows around the places that neighbours suggest are candidates.
constexpr int AroundPlace = 2;
/// While a part is compared, the values of one so far behind are fetched, and their tokens once
/// they are there.
constexpr size_t ValuesAhead = 4;
constexpr size_t TokensAhead = 2;

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

bool EdgeSearch::findLike(size_t target, size_t line, bool isFound, std::vector<int> &rows) const
{
    if (m_known.rows.lists.empty()) {
        const std::span<const int> kept = m_known.rows.kept[target].of(line);
        rows.assign(kept.begin(), kept.end());
        return isFound;
    }
    const CandidateLists &lists = *m_known.rows.lists[target];
    lists.fetch(line + 1); // it is the next one to be asked for
    CandidateLists::Found found = lists.find(line);
    rows = std::move(found.rows);
    return found.isFarAhead;
}

/// The first so many rows are known already: mostly one of them is in the place.
void EdgeSearch::addAround(const std::vector<int> &openRows, int place, int around, size_t known,
                           std::vector<int> &rows)
{
    const auto isThere = [&](int row) {
        return openRows[size_t(row)] == place;
    };
    if (around == 0 && std::any_of(rows.begin(), rows.begin() + std::ptrdiff_t(known), isThere))
        return;
    auto row = std::lower_bound(openRows.begin(), openRows.end(), place - around);
    for (; row != openRows.end() && *row <= place + around; ++row)
        rows.push_back(int(row - openRows.begin()));
}

void EdgeSearch::findRows(size_t t, size_t line, bool isFound, std::vector<int> &rows) const
{
    const PlanTarget &target = m_known.tables.targets[t];
    const bool isFarAhead = findLike(t, line, isFound, rows);
    const int around = isFarAhead ? 0 : AroundPlace;
    const PlaceEvidence::Places at = m_known.places[t].places(m_known.tables.openLines[line]);
    const size_t known = rows.size();
    addAround(target.openRows, at.fromAbove, around, known, rows);
    if (at.fromBelow != at.fromAbove)
        addAround(target.openRows, at.fromBelow, around, known, rows);
    std::sort(rows.begin(), rows.end());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
}

void EdgeSearch::LookedUp::clear()
{
    m_parts.clear();
    m_rows.clear();
    m_next = 0;
}

void EdgeSearch::lookUp(size_t line, bool isFound, LookedUp &rows) const
{
    thread_local std::vector<int> found;
    for (size_t t = 0; t < m_known.tables.targets.size(); ++t) {
        const PlanTarget &target = m_known.tables.targets[t];
        if (!target.takes[line])
            continue;
        findRows(t, line, isFound, found);
        for (const int row : found)
            target.rows.fetch(size_t(row));
        rows.m_parts.push_back({line, t, rows.m_rows.size(), found.size()});
        rows.m_rows.insert(rows.m_rows.end(), found.begin(), found.end());
    }
}

void EdgeSearch::fetchAhead(const LookedUp &rows, size_t part) const
{
    const auto fetch = [&](size_t at, bool tokens) {
        if (at >= rows.m_parts.size())
            return;
        const LookedUp::Part &next = rows.m_parts[at];
        const PlanTarget &target = m_known.tables.targets[next.target];
        if (tokens)
            m_known.evidence.fetchTokens(target, next.line, rows.rowsOf(next));
        else
            m_known.evidence.fetchValues(target, next.line, rows.rowsOf(next));
    };
    for (size_t at = 0; at < ValuesAhead && part == 0; ++at)
        fetch(at, false);
    for (size_t at = 0; at < TokensAhead && part == 0; ++at)
        fetch(at, true);
    fetch(part + ValuesAhead, false);
    fetch(part + TokensAhead, true);
}

void EdgeSearch::findCandidates(size_t line, LookedUp &rows, Candidates &found) const
{
    found.all.clear();
    found.parts.clear();
    size_t &next = rows.m_next;
    for (; next < rows.m_parts.size() && rows.m_parts[next].line == line; ++next) {
        fetchAhead(rows, next);
        compare(rows.m_parts[next], rows, found);
    }
}

void EdgeSearch::compare(const LookedUp::Part &lookedUp, const LookedUp &all,
                         Candidates &found) const
{
    const size_t t = lookedUp.target;
    const PlanTarget &target = m_known.tables.targets[t];
    const int sourceRow = m_known.tables.openLines[lookedUp.line];
    const int firstNode = m_known.nodeOffsets[t];
    const std::span<const int> those = all.rowsOf(lookedUp);
    std::vector<int> &rows = found.rows;
    rows.assign(those.begin(), those.end());
    std::erase_if(rows, [&](int row) { // another target of the same table has it already
        return std::ranges::any_of(found.all, [node = firstNode + row](const Candidate &other) {
            return other.edge.node == node;
        });
    });
    size_t part = found.parts.size();
    found.most.clear();
    m_known.evidence.bound(target, lookedUp.line, rows, m_known.withKeys, found.parts, found.most);
    for (size_t i = 0; i < rows.size(); ++i) {
        const int row = rows[i];
        const double rest =
            m_known.priors[t] + m_known.places[t].weight(sourceRow, target.openRows[size_t(row)]);
        found.all.push_back({{int(t), row, firstNode + row, rest + found.most[i], 0}, rest, part});
        part += target.variables.size();
    }
}

/// In the order of what they weigh at most, so that most are seen to be far behind by that alone.
void EdgeSearch::find(size_t line, LookedUp &rows, EdgeLists::Block &out) const
{
    thread_local Candidates kept; // of lines before, for its room
    Candidates &found = kept;
    findCandidates(line, rows, found);
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
