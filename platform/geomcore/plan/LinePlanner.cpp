#include "LinePlanner.h"

#include "SparseAssignment.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>

namespace Plan {

namespace {

/// How often it is learned from the pairs; after five rounds hardly anything moves.
constexpr int Rounds = 5;

/// Share of the lines that have no successor, before anything is known; it counts like
/// VariableRates::Strength lines.
constexpr double AssumedGone = 0.1;
/// Share of such lines at first where a table may have changed so much that hardly a pair is likely
/// before it is known how: as long as nothing is learned, nothing is likely.
constexpr double HardlyGone = 0.01;
/// Share of the lines that stay in targets of the source's name, if there are any, before anything
/// is known.
constexpr double AssumedNamed = 0.9;
/// Candidates of a line, of all targets together.
constexpr size_t KeptEdges = 12;
/// Candidates that are so far behind the best one of their line are not looked at further: what is
/// learned later hardly moves a weight so far.
constexpr double FarBehind = 25;
/// Lines with a candidate that is so probable are looked for only just where their neighbours put
/// them.
constexpr double Certain = 0.9999;
/// Lines that a thread takes at once.
constexpr size_t LinesAtOnce = 64;
/// Lines of a kind that it is learned from.
constexpr size_t MaxSampled = 4096;
/// Pairs below are not learned from.
constexpr double LeastLearned = 0.2;
/// Pairs from here on, more probable than not, show the places of others.
constexpr double Confident = 0.5;
/// What is less probable is nobody's best candidate at the cost of another one.
constexpr double LeastChosen = 1e-6;
/// Rows around the places that neighbours suggest are candidates.
constexpr int AroundPlace = 2;

} // namespace

LinePlanner::LinePlanner(const PlanTables &tables)
    : m_tables(tables)
    , m_standsFor(tables.openLines.size(), 1)
    , m_prior(size_t(tables.variableCount), VariableRates::assumed())
    , m_counts(size_t(tables.variableCount))
    , m_gone(AssumedGone)
    , m_edges(tables.openLines.size())
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
    if (isCanceled())
        return;
    const bool otherKeys = onlyKeysAgree();
    const bool unknown = mostAreOpen();
    if (otherKeys)
        learnAgain(false, AssumedGone);
    if (unknown)
        learnAgain(true, HardlyGone);
}

void LinePlanner::learnAgain(bool beginsByKeys, double gone)
{
    auto other = std::make_unique<LinePlanner>(m_tables);
    other->m_prior = m_prior;
    other->m_isCanceled = m_isCanceled;
    other->m_beginsByKeys = beginsByKeys;
    other->m_gone = gone;
    other->learnInRounds();
    if (other->m_explained > best().m_explained)
        m_other = std::move(other);
}

/// Of the lines that could have a partner less than half are likely to have one, though there is a
/// target of the source's name.
bool LinePlanner::mostAreOpen() const
{
    const auto &targets = m_tables.targets;
    if (std::none_of(targets.begin(), targets.end(),
                     [](const PlanTarget &target) { return target.hasSourceName; }))
        return false;
    double successors = 0;
    for (const std::vector<PlanEdge> &edges : m_edges) {
        for (const PlanEdge &edge : edges)
            successors += edge.probability;
    }
    return 2 * successors < double(std::min(m_edges.size(), size_t(m_nodeCount)));
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
    for (const PlanTarget &target : m_tables.targets)
        m_lists.push_back(std::make_unique<CandidateLists>(m_tables, target));
    m_rates = m_prior;
    learnTargets(std::vector<double>(m_tables.targets.size(), 0));
    for (int round = 0; round < Rounds && !isCanceled(); ++round) {
        const bool isLast = round + 1 == Rounds;
        m_withKeys = m_beginsByKeys || round > 0;
        findPlaces(round == 0);
        makeEdges(isLast);
        if (round == 0)
            keepBest();
        spreadProbabilities(m_edges, m_nodeCount);
        if (round == 0)
            takeSample();
        learn(isLast);
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

/// What was far behind at first is not looked at again.
void LinePlanner::keepBest()
{
    m_lists.clear();
    m_found.resize(m_tables.targets.size());
    for (LineLists<int> &found : m_found)
        found.reserve(m_edges.size());
    for (std::vector<PlanEdge> &edges : m_edges) {
        std::erase_if(edges, [least = edges.empty() ? 0 : edges.front().weight - FarBehind](
                                 const PlanEdge &edge) { return edge.weight < least; });
        for (const PlanEdge &edge : edges)
            m_found[size_t(edge.target)].add(edge.row);
        for (LineLists<int> &found : m_found)
            found.endLine();
    }
}

bool LinePlanner::isFound(size_t line) const
{
    return std::any_of(m_edges[line].begin(), m_edges[line].end(),
                       [](const PlanEdge &edge) { return edge.probability >= Certain; });
}

/// Of the lines that are found and of the others each: what the many teach, a part of them teaches
/// as well. All lines compete in each round, those that are not looked at with what they had.
void LinePlanner::takeSample()
{
    std::array<size_t, 2> counts{};
    std::array<size_t, 2> seen{};
    for (size_t line = 0; line < m_edges.size(); ++line)
        ++counts[isFound(line) ? 1 : 0];
    for (size_t line = 0; line < m_edges.size(); ++line) {
        const size_t kind = isFound(line) ? 1 : 0;
        const size_t step = (counts[kind] + MaxSampled - 1) / MaxSampled;
        const size_t taken = (counts[kind] + step - 1) / step;
        const bool isTaken = seen[kind]++ % step == 0;
        m_standsFor[line] = isTaken ? float(double(counts[kind]) / double(taken)) : 0;
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
    for (const Learned &learned : m_learned.of(line)) {
        if (learned.node == node)
            return learned.weight;
    }
    return 0;
}

void LinePlanner::makeEdges(bool ofAll)
{
    m_evidence = std::make_unique<PairEvidence>(m_tables, m_rates, m_changes);
    forEachLine([this, ofAll](size_t line) {
        if (ofAll || m_standsFor[line] > 0)
            makeEdges(line);
    });
}

double LinePlanner::prior(int target) const
{
    const auto rows = double(m_tables.targets[size_t(target)].openRows.size());
    return std::log((1 - m_gone) * m_shares[size_t(target)] / (m_gone * rows));
}

CandidateLists::Found LinePlanner::lookedUp(size_t target, size_t line) const
{
    if (!m_lists.empty())
        return m_lists[target]->find(line);
    const std::span<const int> kept = m_found[target].of(line);
    return {{kept.begin(), kept.end()}, isFound(line)};
}

std::vector<LinePlanner::Candidate> LinePlanner::candidatesOf(size_t line) const
{
    std::vector<Candidate> candidates;
    for (size_t t = 0; t < m_tables.targets.size(); ++t) {
        const PlanTarget &target = m_tables.targets[t];
        if (!target.takes[line])
            continue;
        CandidateLists::Found found = lookedUp(t, line);
        std::vector<int> &rows = found.rows;
        const int around = found.isFarAhead ? 0 : AroundPlace;
        const PlaceEvidence::Places at = m_places[t].places(m_tables.openLines[line]);
        for (const int place : {at.fromAbove, at.fromBelow}) {
            auto row =
                std::lower_bound(target.openRows.begin(), target.openRows.end(), place - around);
            for (; row != target.openRows.end() && *row <= place + around; ++row)
                rows.push_back(int(row - target.openRows.begin()));
        }
        std::sort(rows.begin(), rows.end());
        rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
        const size_t others = candidates.size(); // of targets before
        const double before = prior(int(t));
        for (const int row : rows) {
            Candidate candidate{{int(t), row, nodeOf(int(t), row), 0, 0}, before};
            if (std::any_of(
                    candidates.begin(), candidates.begin() + std::ptrdiff_t(others),
                    [&](const Candidate &other) { return other.edge.node == candidate.edge.node; }))
                continue;
            candidate.rest +=
                m_places[t].weight(m_tables.openLines[line], target.openRows[size_t(row)]);
            candidate.edge.weight =
                candidate.rest + m_evidence->atMost(target, line, size_t(row), m_withKeys);
            candidates.push_back(candidate);
        }
    }
    return candidates;
}

/// In the order of what they weigh at most, so that most are seen to be far behind by that alone.
void LinePlanner::makeEdges(size_t line)
{
    std::vector<Candidate> candidates = candidatesOf(line);
    const auto isBefore = [](const PlanEdge &a, const PlanEdge &b) {
        if (a.weight != b.weight)
            return a.weight > b.weight;
        return a.target != b.target ? a.target < b.target : a.row < b.row;
    };
    std::sort(candidates.begin(), candidates.end(),
              [&](const Candidate &a, const Candidate &b) { return isBefore(a.edge, b.edge); });
    std::vector<PlanEdge> edges;
    double least = -std::numeric_limits<double>::infinity();
    for (const Candidate &candidate : candidates) {
        PlanEdge edge = candidate.edge;
        if (edge.weight < least)
            break;
        edge.weight =
            candidate.rest + m_evidence->weight(m_tables.targets[size_t(edge.target)], line,
                                                size_t(edge.row), own(line, edge.node), m_withKeys,
                                                least - candidate.rest);
        if (edge.weight < least)
            continue;
        edges.insert(std::upper_bound(edges.begin(), edges.end(), edge, isBefore), edge);
        least = std::max(least, edge.weight - FarBehind);
        if (edges.size() > KeptEdges)
            edges.pop_back();
        if (edges.size() == KeptEdges)
            least = std::max(least, edges.back().weight);
    }
    m_edges[line] = std::move(edges);
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

void LinePlanner::learn(bool isLast)
{
    std::vector<RateCounts> counts(m_counts.size());
    ChangeMemory changes;
    double gone = 0;
    std::vector<double> perTarget(m_tables.targets.size(), 0);
    LineLists<Learned> added;
    added.reserve(m_edges.size());
    for (size_t line = 0; line < m_edges.size(); ++line) {
        const auto lines = double(m_standsFor[line]);
        const double shown = isLast ? 1 : lines;
        double successor = 0;
        for (const PlanEdge &edge : m_edges[line]) {
            successor += edge.probability;
            perTarget[size_t(edge.target)] += lines * edge.probability;
            if (edge.probability < LeastLearned || shown == 0)
                continue;
            const PlanTarget &target = m_tables.targets[size_t(edge.target)];
            PlanEdge seen = edge;
            seen.probability = lines * edge.probability;
            if (lines > 0)
                m_evidence->count(target, seen, line, own(line, edge.node), counts);
            seen.probability = shown * edge.probability;
            if (m_evidence->countChanges(target, seen, line, changes))
                added.add({edge.node, seen.probability});
        }
        added.endLine();
        gone += lines * std::max(0.0, 1 - successor);
    }
    m_learned = std::move(added);
    m_counts = counts;
    m_changes = std::move(changes);
    if (isLast)
        m_changes.finish();
    else
        m_changes.finish(m_tables.values);
    for (size_t v = 0; v < counts.size(); ++v)
        m_rates[v] = VariableRates::learned(counts[v], m_prior[v]);
    m_evidence = std::make_unique<PairEvidence>(m_tables, m_rates, m_changes);
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
            const PlanEdge &candidate = m_edges[line][size_t(edge)];
            if (taken[size_t(candidate.node)] || candidate.probability < LeastChosen)
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
    return m_evidence->cell(m_tables.targets[size_t(edge.target)], line, size_t(edge.row), place,
                            own(line, edge.node));
}

} // namespace Plan
