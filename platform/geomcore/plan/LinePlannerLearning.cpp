// The part of LinePlanner that learns from the pairs that it made likely.
#include "LinePlanner.h"

#include "nextBestDoubt.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Plan {

namespace {

/// Share of the lines that stay in targets of the source's name, if there are any, before anything
/// is known.
constexpr double AssumedNamed = 0.9;
/// Pairs below are not learned from.
constexpr double LeastLearned = 0.2;
/// Pairs that a thread takes at once.
constexpr size_t PairsAtOnce = 4096;

} // namespace

void LinePlanner::learnTargets(const std::vector<double> &lines)
{
    const std::vector<PlanTarget> &targets = m_tables.targets;
    const auto named = std::count_if(targets.begin(), targets.end(),
                                     [](const PlanTarget &target) { return target.hasSourceName; });
    const auto others = double(targets.size()) - double(named);
    m_shares = lines;
    double total = 0;
    for (size_t t = 0; t < targets.size(); ++t) {
        m_shares[t] += m_settled[t];
        const double ofNamed = others == 0 ? 1 : (named == 0 ? 0 : AssumedNamed);
        const double assumed =
            targets[t].hasSourceName ? ofNamed / double(named) : (1 - ofNamed) / others;
        m_shares[t] += VariableRates::Strength * assumed;
        total += m_shares[t];
    }
    for (double &share : m_shares)
        share /= total;
}

std::vector<LinePlanner::Shown> LinePlanner::shownPairs(bool ofAll) const
{
    std::vector<Shown> pairs;
    for (size_t line = 0; line < m_edges.size(); ++line) {
        const std::span<const PlanEdge> edges = m_edges[line];
        for (size_t i = 0; i < edges.size() && (ofAll || m_standsFor[line] > 0); ++i) {
            if (edges[i].probability >= LeastLearned)
                pairs.push_back({std::uint32_t(line), std::uint16_t(i), false});
        }
    }
    const size_t steps = (pairs.size() + PairsAtOnce - 1) / PairsAtOnce;
    WorkerPool::instance().run(int(steps), [&](int step) {
        const size_t first = size_t(step) * PairsAtOnce;
        for (size_t i = first; i < std::min(pairs.size(), first + PairsAtOnce); ++i) {
            const PlanEdge &edge = m_edges[pairs[i].line][pairs[i].edge];
            pairs[i].isModel = PairEvidence::hasCommonValue(m_tables.targets[size_t(edge.target)],
                                                            pairs[i].line, size_t(edge.row));
        }
    });
    return pairs;
}

template<class Take>
void LinePlanner::forEachShown(const std::vector<Shown> &pairs, Take take) const
{
    for (const Shown &pair : pairs) {
        const PlanEdge &edge = m_edges[pair.line][pair.edge];
        take(pair, edge, m_tables.targets[size_t(edge.target)]);
    }
}

std::vector<std::vector<size_t>> LinePlanner::placesOf(int variable) const
{
    std::vector<std::vector<size_t>> places;
    for (const PlanTarget &target : m_tables.targets) {
        std::vector<size_t> &own = places.emplace_back();
        for (size_t place = 0; place < target.variables.size(); ++place) {
            if (target.variables[place] == variable)
                own.push_back(place);
        }
    }
    return places;
}

void LinePlanner::learnRates(const std::vector<Shown> &pairs)
{
    WorkerPool::instance().run(int(m_counts.size()), [&](int variable) {
        const auto places = placesOf(variable);
        RateCounts counts;
        forEachShown(pairs, [&](const Shown &pair, PlanEdge edge, const PlanTarget &target) {
            edge.probability *= double(m_standsFor[pair.line]);
            for (const size_t place : places[size_t(edge.target)])
                m_evidence->count(target, place, edge, pair.line,
                                  ownWeight(m_learned, pair.line, edge.node), counts);
        });
        m_counts[size_t(variable)] = counts;
    });
}

ChangeMemory::Pairs LinePlanner::valuesOf(const std::vector<Shown> &pairs, int variable,
                                          bool ofAll) const
{
    return [this, &pairs, places = placesOf(variable), ofAll](const ChangeMemory::TakePair &take) {
        forEachShown(pairs, [&](const Shown &pair, const PlanEdge &edge, const PlanTarget &target) {
            if (!pair.isModel)
                return;
            const double shown = ofAll ? 1 : double(m_standsFor[pair.line]);
            for (const size_t place : places[size_t(edge.target)]) {
                const int oldValue = target.lines.at(pair.line, place);
                const int newValue = target.rows.at(size_t(edge.row), place);
                if (oldValue != CellValues::NoValue && newValue != CellValues::NoValue)
                    take(oldValue, newValue, shown * edge.probability);
            }
        });
    };
}

ChangeMemory LinePlanner::changesOf(const std::vector<Shown> &pairs, bool ofAll) const
{
    ChangeMemory changes(m_tables.variableCount, m_known);
    WorkerPool::instance().run(m_tables.variableCount, [&](int variable) {
        changes.learn(m_tables.values[size_t(variable)], variable, valuesOf(pairs, variable, ofAll),
                      !ofAll);
    });
    return changes;
}

void LinePlanner::forgetChanges()
{
    m_evidence.reset();
    m_learned = {};
    m_changes = ChangeMemory(m_tables.variableCount, m_known);
}

void LinePlanner::learnChanges(const std::vector<Shown> &pairs)
{
    m_changes = changesOf(pairs, false);
    auto pair = pairs.begin();
    for (size_t line = 0; line < m_edges.size(); ++line) {
        for (; pair != pairs.end() && pair->line == line; ++pair) {
            const PlanEdge &edge = m_edges[line][pair->edge];
            if (pair->isModel)
                m_learned.add({edge.node, double(m_standsFor[line]) * edge.probability});
        }
        m_learned.endLine();
    }
}

void LinePlanner::learn(bool isLast)
{
    double gone = 0;
    std::vector<double> perTarget(m_tables.targets.size(), 0);
    for (size_t line = 0; line < m_edges.size(); ++line) {
        const auto lines = double(m_standsFor[line]);
        double successor = 0;
        for (const PlanEdge &edge : std::as_const(m_edges)[line]) {
            successor += edge.probability;
            perTarget[size_t(edge.target)] += lines * edge.probability;
        }
        gone += lines * std::max(0.0, 1 - successor);
    }
    const std::vector<Shown> pairs = shownPairs(false);
    learnRates(pairs);
    forgetChanges();
    if (!isLast)
        learnChanges(pairs);
    for (size_t v = 0; v < m_counts.size(); ++v)
        m_rates[v] = VariableRates::learned(m_counts[v], m_prior[v]);
    if (!isLast)
        m_evidence = std::make_unique<PairEvidence>(m_tables, m_rates, m_changes);
    learnTargets(perTarget);
    if (!isLast)
        m_doubt = nextBestDoubt(m_edges, m_nodeCount, m_standsFor,
                                m_doubt - std::log((1 - m_gone) / m_gone));
    m_gone = (gone + VariableRates::Strength * AssumedGone) /
             (double(m_edges.size()) + VariableRates::Strength);
}

void LinePlanner::learnToTell() const
{
    m_changes = changesOf(shownPairs(true), true);
    m_evidence = std::make_unique<PairEvidence>(m_tables, m_rates, m_changes);
}

CellEvidence LinePlanner::cell(const PlanEdge &edge, size_t line, size_t place) const
{
    if (m_other)
        return m_other->cell(edge, line, place);
    std::call_once(m_toldOnce, [this] { learnToTell(); });
    const PlanTarget &target = m_tables.targets[size_t(edge.target)];
    double own = 0;
    for (const PlanEdge &candidate : m_edges[line]) {
        if (candidate.node == edge.node && candidate.probability >= LeastLearned &&
            PairEvidence::hasCommonValue(target, line, size_t(edge.row)))
            own = candidate.probability;
    }
    return m_evidence->cell(target, line, size_t(edge.row), place, own);
}

} // namespace Plan
