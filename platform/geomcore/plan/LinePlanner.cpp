#include "LinePlanner.h"

#include "CellChange.h"
#include "giveBack.h"
#include "SoftAssignment.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <utility>

namespace Plan {

namespace {

/// How often it is learned from the pairs; after five rounds hardly anything moves.
constexpr int Rounds = 5;

/// Share of the lines without a successor at first where a table may have changed so much that
/// hardly a pair is likely before it is known how: as long as nothing is learned, nothing is
/// likely.
constexpr double HardlyGone = 0.01;
/// Lines of a kind that it is learned from.
constexpr size_t MaxSampled = 4096;
/// Pairs from here on, more probable than not, show the places of others.
constexpr double Confident = 0.5;

} // namespace

LinePlanner::LinePlanner(const PlanTables &tables)
    : m_tables(tables)
    , m_standsFor(tables.openLines.size(), 1)
    , m_prior(size_t(tables.variableCount), VariableRates::assumed())
    , m_counts(size_t(tables.variableCount))
    , m_gone(AssumedGone)
    , m_edges(tables.openLines.size())
{
    std::map<int, int> offsets;
    for (const PlanTarget &target : tables.targets) {
        const auto [place, isNew] = offsets.emplace(target.table, m_nodeCount);
        m_nodeOffsets.push_back(place->second);
        m_nodeCount += isNew ? int(target.openRows.size()) : 0;
        const std::vector<int> &settled = target.settled;
        m_settled.push_back(
            double(std::ranges::count_if(settled, [](int row) { return row >= 0; })));
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
    other->m_known = m_known;
    other->m_isCanceled = m_isCanceled;
    other->m_beginsByKeys = beginsByKeys;
    other->m_gone = gone;
    other->learnInRounds();
    if (other->m_choice.explained > best().m_choice.explained)
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
    for (size_t line = 0; line < m_edges.size(); ++line) {
        for (const PlanEdge &edge : std::as_const(m_edges)[line])
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
        m_rows.lists.push_back(std::make_unique<CandidateLists>(m_tables, target));
    m_rates = m_prior;
    m_changes = ChangeMemory(m_tables.variableCount, m_known);
    learnTargets(std::vector<double>(m_tables.targets.size(), 0));
    for (int round = 0; round < Rounds && !isCanceled(); ++round) {
        const bool isLast = round + 1 == Rounds;
        m_withKeys = m_beginsByKeys || round > 0;
        findPlaces(round == 0);
        makeEdges(isLast);
        if (isLast)
            freeSearch();
        if (round == 0)
            m_rows.keep(m_edges, m_tables.targets.size());
        spreadProbabilities(m_edges, m_nodeCount);
        if (round == 0)
            takeSample();
        learn(isLast);
    }
    giveBack(m_standsFor);
    m_choice = LineChoice::of(
        m_edges, m_nodeCount,
        [this](size_t line, size_t otherLine, const PlanEdge &row, const PlanEdge &otherRow) {
            return areAlike(line, otherLine, row, otherRow);
        });
    m_choice.explained += m_doubt * double(m_choice.pairs);
}

LinePlanner::Line LinePlanner::line(size_t line) const
{
    const LinePlanner &made = best();
    if (made.m_choice.noSuccessor.empty())
        return {};
    return {std::as_const(made.m_edges)[line], made.m_choice.noSuccessor[line],
            made.m_choice.isAssigned[line] != 0};
}

bool LinePlanner::areAlike(size_t line, size_t otherLine, const PlanEdge &row,
                           const PlanEdge &otherRow) const
{
    const PlanTarget &target = m_tables.targets[size_t(row.target)];
    for (size_t place = 0; place < target.variables.size(); ++place) {
        if (target.lines.at(line, place) != target.lines.at(otherLine, place) ||
            target.rows.at(size_t(row.row), place) != target.rows.at(size_t(otherRow.row), place))
            return false;
    }
    return m_keepsOrder[size_t(row.target)] != 0;
}

void LinePlanner::freeSearch()
{
    m_rows = {};
    m_places = {};
}

bool LinePlanner::isCanceled() const
{
    if (!m_wasCanceled && m_isCanceled && m_isCanceled())
        m_wasCanceled = true;
    return m_wasCanceled;
}

/// Of the lines that are found and of the others each: what the many teach, a part of them teaches
/// as well. All lines compete in each round, those that are not looked at with what they had.
void LinePlanner::takeSample()
{
    std::array<size_t, 2> counts{};
    std::array<size_t, 2> seen{};
    for (size_t line = 0; line < m_edges.size(); ++line)
        ++counts[EdgeSearch::isFound(std::as_const(m_edges)[line]) ? 1 : 0];
    for (size_t line = 0; line < m_edges.size(); ++line) {
        const size_t kind = EdgeSearch::isFound(std::as_const(m_edges)[line]) ? 1 : 0;
        const size_t step = (counts[kind] + MaxSampled - 1) / MaxSampled;
        const size_t taken = (counts[kind] + step - 1) / step;
        const bool isTaken = seen[kind]++ % step == 0;
        m_standsFor[line] = isTaken ? float(double(counts[kind]) / double(taken)) : 0;
    }
}

/// Lines that differ in nothing have rows that differ in nothing in the order of the table: which
/// of them is whose is not known, and crossed ones would show places that confirm each other.
void LinePlanner::uncross(const PlanTarget &target, std::vector<std::pair<size_t, int>> &pairs)
{
    std::vector<std::pair<std::uint64_t, size_t>> alike; // values and place of each pair
    for (size_t i = 0; i < pairs.size(); ++i) {
        std::uint64_t key = 0;
        for (size_t place = 0; place < target.variables.size(); ++place)
            key = keyOf(key, place, std::uint64_t(target.lines.at(pairs[i].first, place)),
                        std::uint64_t(target.rows.at(size_t(pairs[i].second), place)));
        alike.emplace_back(key, i);
    }
    std::sort(alike.begin(), alike.end());
    std::vector<int> rows;
    for (size_t first = 0; first < alike.size(); first += rows.size()) {
        rows.clear();
        for (size_t i = first; i < alike.size() && alike[i].first == alike[first].first; ++i)
            rows.push_back(pairs[alike[i].second].second);
        std::sort(rows.begin(), rows.end());
        for (size_t i = 0; i < rows.size(); ++i)
            pairs[alike[first + i].second].second = rows[i];
    }
}

void LinePlanner::findPlaces(bool first)
{
    m_places.clear();
    m_keepsOrder.clear();
    for (size_t t = 0; t < m_tables.targets.size(); ++t) {
        const PlanTarget &target = m_tables.targets[t];
        std::vector<int> partners = target.settled;
        std::vector<std::pair<size_t, int>> likely;
        for (size_t line = 0; line < m_edges.size() && !first; ++line) {
            for (const PlanEdge &edge : std::as_const(m_edges)[line]) {
                const bool same = m_tables.targets[size_t(edge.target)].table == target.table;
                if (same && edge.probability >= Confident)
                    likely.emplace_back(line, edge.row);
            }
        }
        uncross(target, likely);
        for (const auto &[line, row] : likely)
            partners[size_t(m_tables.openLines[line])] = target.openRows[size_t(row)];
        m_places.emplace_back(std::move(partners), target.rowCount);
        m_places.back().learn();
        m_keepsOrder.push_back(m_places.back().keepsOrder() ? 1 : 0);
    }
}

double LinePlanner::prior(size_t target) const
{
    const auto rows = double(m_tables.targets[target].openRows.size());
    return std::log((1 - m_gone) * m_shares[target] / (m_gone * rows)) - m_doubt;
}

void LinePlanner::makeEdges(bool ofAll)
{
    if (!m_evidence) // else it is what the round before has learned
        m_evidence = std::make_unique<PairEvidence>(m_tables, m_rates, m_changes);
    std::vector<double> priors;
    for (size_t t = 0; t < m_tables.targets.size(); ++t)
        priors.push_back(prior(t));
    const EdgeSearch search({m_tables, m_nodeOffsets, m_rows, m_places, *m_evidence, m_learned,
                             std::move(priors), m_withKeys, ofAll || !m_rows.lists.empty()});
    const auto isAsked = [&](size_t line) {
        return ofAll || m_standsFor[line] > 0;
    };
    WorkerPool::instance().run(int(m_edges.blockCount()), [&](int block) {
        if (isCanceled())
            return;
        thread_local EdgeSearch::LookedUp rows;
        rows.clear();
        const size_t first = size_t(block) * EdgeLists::LinesOfBlock;
        for (size_t line = first; line < std::min(m_edges.size(), first + EdgeLists::LinesOfBlock);
             ++line) {
            if (isAsked(line))
                search.lookUp(line, EdgeSearch::isFound(std::as_const(m_edges)[line]), rows);
        }
        m_edges.refill(size_t(block), [&](size_t line, EdgeLists::Block &out) {
            if (isAsked(line))
                search.find(line, rows, out);
            else
                out.add(std::as_const(m_edges)[line]);
        });
    });
}

} // namespace Plan
