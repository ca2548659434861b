#include "LinePlanner.h"

#include "CandidateLists.h"
#include "SparseAssignment.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace Plan {

namespace {

/// How often it is learned from the pairs; after five rounds hardly anything moves.
constexpr int Rounds = 5;

/// Share of the lines that have no successor, before anything is known; it counts like
/// VariableRates::Strength lines.
constexpr double AssumedGone = 0.1;
/// Share of the lines that stay in targets of the source's name, if there are any, before anything
/// is known.
constexpr double AssumedNamed = 0.9;
/// Candidates of a line, of all targets together, that are kept after the first round.
constexpr size_t KeptEdges = 12;
/// Candidates that are so far behind the best one of their line after the first round are not kept:
/// what is learned later hardly moves a weight so far.
constexpr double FarBehind = 25;
/// Lines with a candidate that is so probable are looked for only just where their neighbours put
/// them.
constexpr double Certain = 0.9999;
/// Lines that a thread takes at once.
constexpr size_t LinesAtOnce = 64;
/// Pairs below are not learned from.
constexpr double LeastLearned = 0.2;
/// Pairs from here on, more probable than not, show the places of others.
constexpr double Confident = 0.5;
/// Rows around the places that neighbours suggest are candidates.
constexpr int AroundPlace = 2;

} // namespace

LinePlanner::LinePlanner(const PlanTables &tables)
    : m_tables(tables)
    , m_prior(size_t(tables.variableCount), VariableRates::assumed())
    , m_counts(size_t(tables.variableCount))
    , m_gone(AssumedGone)
    , m_edges(tables.openLines.size())
    , m_learned(tables.openLines.size())
    , m_lines(tables.openLines.size())
{
    std::map<int, int> offsets;
    for (const PlanTarget &target : tables.targets) {
        const auto [place, isNew] = offsets.emplace(target.table, m_nodeCount);
        m_nodeOffsets.push_back(place->second);
        m_nodeCount += isNew ? int(target.openRows.size()) : 0;
    }
}

void LinePlanner::run()
{
    if (m_tables.openLines.empty() || m_nodeCount == 0)
        return;
    learnInRounds();
    if (!onlyKeysAgree() || isCanceled())
        return;
    auto other = std::make_unique<LinePlanner>(m_tables);
    other->m_prior = m_prior;
    other->m_isCanceled = m_isCanceled;
    other->m_beginsByKeys = false;
    other->learnInRounds();
    if (other->m_explained > m_explained)
        m_other = std::move(other);
}

/// Of the values of other variables most are not the same in the likely pairs.
bool LinePlanner::onlyKeysAgree() const
{
    std::vector<char> isKey(m_counts.size(), 0);
    for (const PlanTarget &target : m_tables.targets) {
        for (size_t place = 0; place < target.variables.size(); ++place)
            isKey[size_t(target.variables[place])] |= target.keys[place];
    }
    double same = 0;
    double all = 0;
    bool any = false;
    for (size_t v = 0; v < m_counts.size(); ++v) {
        any = any || isKey[v];
        same += isKey[v] ? 0 : m_counts[v].ways[int(Way::Same)];
        all += isKey[v] ? 0 : m_counts[v].total();
    }
    return any && 2 * same < all;
}

void LinePlanner::learnInRounds()
{
    findCandidates();
    m_rates = m_prior;
    learnTargets(std::vector<double>(m_tables.targets.size(), 0));
    for (int round = 0; round < Rounds && !isCanceled(); ++round) {
        m_withKeys = m_beginsByKeys || round > 0;
        findPlaces(round == 0);
        makeEdges();
        if (round == 0)
            keepBest();
        spreadProbabilities(m_edges, m_nodeCount);
        learn();
    }
    choose();
}

bool LinePlanner::isCanceled() const
{
    if (!m_wasCanceled && m_isCanceled && m_isCanceled())
        m_wasCanceled = true;
    return m_wasCanceled;
}

void LinePlanner::forEachLine(const std::function<void(size_t)> &work) const
{
    const size_t count = m_edges.size();
    WorkerPool::instance().run(int((count + LinesAtOnce - 1) / LinesAtOnce), [&](int step) {
        const size_t first = size_t(step) * LinesAtOnce;
        if (isCanceled())
            return;
        for (size_t line = first; line < std::min(count, first + LinesAtOnce); ++line)
            work(line);
    });
}

void LinePlanner::findCandidates()
{
    for (const PlanTarget &target : m_tables.targets) {
        const CandidateLists lists(m_tables, target);
        std::vector<std::vector<int>> found(m_edges.size());
        forEachLine([&](size_t line) {
            if (target.takes[line])
                found[line] = lists.find(line);
        });
        m_found.push_back(std::move(found));
    }
}

/// What was far behind at first is not looked at again.
void LinePlanner::keepBest()
{
    for (std::vector<std::vector<int>> &found : m_found)
        found.assign(m_edges.size(), {});
    for (size_t line = 0; line < m_edges.size(); ++line) {
        std::vector<PlanEdge> &edges = m_edges[line];
        size_t kept = 0;
        while (kept < std::min(edges.size(), KeptEdges) &&
               edges[kept].weight >= edges.front().weight - FarBehind)
            ++kept;
        edges.resize(kept);
        for (const PlanEdge &edge : m_edges[line])
            m_found[size_t(edge.target)][line].push_back(edge.row);
    }
}

void LinePlanner::findPlaces(bool first)
{
    m_places.clear();
    for (size_t t = 0; t < m_tables.targets.size(); ++t) {
        const PlanTarget &target = m_tables.targets[t];
        std::vector<int> partners = target.settled;
        for (size_t line = 0; line < m_edges.size() && !first; ++line) {
            for (const PlanEdge &edge : m_edges[line]) {
                const bool same = m_tables.targets[size_t(edge.target)].table == target.table;
                if (same && edge.probability >= Confident)
                    partners[size_t(m_tables.openLines[line])] = target.openRows[size_t(edge.row)];
            }
        }
        m_places.emplace_back(std::move(partners), target.rowCount);
        m_places.back().learn();
    }
}

double LinePlanner::own(size_t line, int node) const
{
    for (const PlanEdge &edge : m_learned[line]) {
        if (edge.node == node)
            return edge.probability;
    }
    return 0;
}

void LinePlanner::addEdges(size_t line, int t, const std::vector<int> &rows)
{
    const PlanTarget &target = m_tables.targets[size_t(t)];
    const PairEvidence evidence(m_tables, m_rates, m_changes);
    const PlaceEvidence &places = m_places[size_t(t)];
    const double prior =
        std::log((1 - m_gone) * m_shares[size_t(t)] / (m_gone * double(target.openRows.size())));
    std::vector<PlanEdge> &edges = m_edges[line];
    for (const int row : rows) {
        const int node = nodeOf(t, row);
        const bool known = std::any_of(edges.begin(), edges.end(),
                                       [node](const PlanEdge &edge) { return edge.node == node; });
        if (known)
            continue;
        PlanEdge edge{t, row, node, 0, 0};
        edge.weight = prior +
                      evidence.weight(target, line, size_t(row), own(line, node), m_withKeys) +
                      places.weight(m_tables.openLines[line], target.openRows[size_t(row)]);
        edges.push_back(edge);
    }
}

void LinePlanner::makeEdges()
{
    forEachLine([this](size_t line) { makeEdges(line); });
}

void LinePlanner::makeEdges(size_t line)
{
    const std::vector<PlanEdge> &former = m_edges[line];
    const bool isFound = std::any_of(former.begin(), former.end(), [](const PlanEdge &edge) {
        return edge.probability >= Certain;
    });
    m_edges[line].clear();
    for (size_t t = 0; t < m_tables.targets.size(); ++t) {
        const PlanTarget &target = m_tables.targets[t];
        if (!target.takes[line])
            continue;
        std::vector<int> rows = m_found[t][line];
        const int around = isFound ? 0 : AroundPlace;
        const PlaceEvidence::Places at = m_places[t].places(m_tables.openLines[line]);
        for (const int place : {at.fromAbove, at.fromBelow}) {
            auto row =
                std::lower_bound(target.openRows.begin(), target.openRows.end(), place - around);
            for (; row != target.openRows.end() && *row <= place + around; ++row)
                rows.push_back(int(row - target.openRows.begin()));
        }
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        addEdges(line, int(t), rows);
    }
    std::stable_sort(m_edges[line].begin(), m_edges[line].end(),
                     [](const PlanEdge &a, const PlanEdge &b) { return a.weight > b.weight; });
    if (m_edges[line].size() > CandidateLists::MaxRows)
        m_edges[line].resize(CandidateLists::MaxRows);
}

void LinePlanner::learnTargets(const std::vector<double> &lines)
{
    const std::vector<PlanTarget> &targets = m_tables.targets;
    const auto named = std::count_if(targets.begin(), targets.end(),
                                     [](const PlanTarget &target) { return target.hasSourceName; });
    const auto others = double(targets.size()) - double(named);
    m_shares = lines;
    double total = 0;
    for (size_t t = 0; t < targets.size(); ++t) {
        for (const int row : targets[t].settled)
            m_shares[t] += row >= 0 ? 1 : 0;
        const double ofNamed = others == 0 ? 1 : (named == 0 ? 0 : AssumedNamed);
        const double assumed =
            targets[t].hasSourceName ? ofNamed / double(named) : (1 - ofNamed) / others;
        m_shares[t] += VariableRates::Strength * assumed;
        total += m_shares[t];
    }
    for (double &share : m_shares)
        share /= total;
}

void LinePlanner::learn()
{
    std::vector<RateCounts> counts(m_counts.size());
    ChangeMemory changes;
    const PairEvidence evidence(m_tables, m_rates, m_changes);
    double gone = 0;
    std::vector<double> perTarget(m_tables.targets.size(), 0);
    for (size_t line = 0; line < m_edges.size(); ++line) {
        double successor = 0;
        std::vector<PlanEdge> learned;
        for (const PlanEdge &edge : m_edges[line]) {
            successor += edge.probability;
            perTarget[size_t(edge.target)] += edge.probability;
            if (edge.probability < LeastLearned)
                continue;
            const PlanTarget &target = m_tables.targets[size_t(edge.target)];
            if (evidence.count(target, edge, line, own(line, edge.node), counts, changes))
                learned.push_back(edge);
        }
        m_learned[line] = learned;
        gone += std::max(0.0, 1 - successor);
    }
    m_counts = counts;
    m_changes = changes;
    for (size_t v = 0; v < counts.size(); ++v)
        m_rates[v] = VariableRates::learned(counts[v], m_prior[v]);
    learnTargets(perTarget);
    m_gone = (gone + VariableRates::Strength * AssumedGone) /
             (double(m_edges.size()) + VariableRates::Strength);
}

void LinePlanner::choose()
{
    const std::vector<int> pairs = assignPairs(m_edges, m_nodeCount, 0);
    std::vector<char> taken(size_t(m_nodeCount), 0);
    EdgeLists rest(m_edges.size());
    std::vector<std::vector<int>> places(m_edges.size());
    for (size_t line = 0; line < m_edges.size(); ++line) {
        if (pairs[line] >= 0)
            m_explained += m_edges[line][size_t(pairs[line])].weight;
        if (pairs[line] >= 0)
            taken[size_t(m_edges[line][size_t(pairs[line])].node)] = 1;
    }
    for (size_t line = 0; line < m_edges.size(); ++line) {
        for (int edge = 0; edge < int(m_edges[line].size()) && pairs[line] < 0; ++edge) {
            if (taken[size_t(m_edges[line][size_t(edge)].node)])
                continue;
            rest[line].push_back(m_edges[line][size_t(edge)]);
            places[line].push_back(edge);
        }
    }
    const std::vector<int> left = assignPairs(rest, m_nodeCount, -1e6);
    for (size_t line = 0; line < m_edges.size(); ++line) {
        const int chosen = pairs[line] >= 0
                               ? pairs[line]
                               : (left[line] >= 0 ? places[line][size_t(left[line])] : -1);
        std::vector<PlanEdge> &edges = m_edges[line];
        const int node = chosen >= 0 ? edges[size_t(chosen)].node : -1;
        double successor = 0;
        for (const PlanEdge &edge : edges)
            successor += edge.probability;
        std::stable_sort(edges.begin(), edges.end(), [node](const PlanEdge &a, const PlanEdge &b) {
            if ((a.node == node) != (b.node == node))
                return a.node == node;
            return a.probability > b.probability;
        });
        if (edges.size() > MaxCandidates)
            edges.resize(MaxCandidates);
        m_lines[line] = {edges, std::clamp(1 - successor, 0.0, 1.0)};
    }
}

CellEvidence LinePlanner::cell(const PlanEdge &edge, size_t line, size_t place) const
{
    if (m_other)
        return m_other->cell(edge, line, place);
    const PairEvidence evidence(m_tables, m_rates, m_changes);
    return evidence.cell(m_tables.targets[size_t(edge.target)], line, size_t(edge.row), place,
                         own(line, edge.node));
}

} // namespace Plan
