#include "PairEvidence.h"

#include <algorithm>
#include <cmath>

namespace Plan {

namespace {

/// Of sorted numbers.
bool haveCommon(std::span<const int> a, std::span<const int> b)
{
    auto i = a.begin();
    auto j = b.begin();
    while (i != a.end() && j != b.end() && *i != *j)
        ++(*i < *j ? i : j);
    return i != a.end() && j != b.end();
}

} // namespace

double PairEvidence::nearRatio(const ColumnChance &chance, int oldValue, int newValue) const
{
    const CellValues::Value &a = m_tables.values.value(oldValue);
    const CellValues::Value &b = m_tables.values.value(newValue);
    if (!a.isNumber || !b.isNumber || a.number * b.number <= 0)
        return 0;
    // The share of numbers as near by chance is even in 0 to 1; between partners its logarithm is.
    const double share = chance.nearShare(a.number, b.number);
    return 1 / (share * std::log(2.0 * chance.numberCount() + 2));
}

double PairEvidence::alikeRatio(const ColumnChance &chance, const VariableRates &rates,
                                int oldValue, int newValue) const
{
    const std::span<const int> a = m_tables.values.value(oldValue).distinct;
    const std::span<const int> b = m_tables.values.value(newValue).distinct;
    if (!haveCommon(a, b))
        return 0;
    // A token of the old text stays or does not; further ones come as they come in any text of the
    // column, but more seldom, so that the common ones which a text does without count for it.
    double sum = (1 - rates.adds) * chance.meanTokens();
    const double added = std::log(rates.adds);
    const double stays = std::log(rates.stays);
    const double goes = std::log(1 - rates.stays);
    auto i = a.begin();
    auto j = b.begin();
    while (i != a.end() || j != b.end()) {
        const bool onlyOld = j == b.end() || (i != a.end() && *i < *j);
        const bool onlyNew = !onlyOld && (i == a.end() || *j < *i);
        const ColumnChance::TokenChance &token = chance.tokenChance(onlyNew ? *j : *i);
        sum -= (1 - rates.adds) * token.share;
        if (onlyOld)
            sum += goes - token.logWithout;
        else
            sum += onlyNew ? added : stays - token.logShare;
        i += onlyNew ? 0 : 1;
        j += onlyOld ? 0 : 1;
    }
    // No value says more than that it is this one of all.
    return std::min(std::exp(sum), 1 / chance.share(newValue));
}

CellEvidence PairEvidence::cell(const PlanTarget &target, size_t line, size_t row, size_t place,
                                double own) const
{
    CellEvidence evidence;
    const int a = target.lines.at(line, place);
    const int b = target.rows.at(row, place);
    const int variable = target.variables[place];
    const VariableRates &rates = m_rates[size_t(variable)];
    const ColumnChance &chance = target.chances[place];
    const double missing = chance.missing();
    if (a == CellValues::NoValue || b == CellValues::NoValue) {
        if (a != b && a == CellValues::NoValue)
            evidence.weight = std::log(rates.gained / (1 - missing));
        else if (a != b)
            evidence.weight = std::log(rates.lost / missing);
        else
            evidence.weight = std::log((1 - rates.gained) / missing);
        return evidence;
    }
    auto &ways = evidence.ways;
    ways[int(Way::Other)] = rates.way(Way::Other);
    if (a == b) {
        ways[int(Way::Same)] = rates.way(Way::Same) / chance.share(b);
    } else {
        const ChangeMemory::Likely likely = m_changes.likely(m_tables.values, variable, a, b, own);
        evidence.supports = likely.supports;
        ways[int(Way::Change)] = rates.way(Way::Change) * likely.share / chance.share(b);
        ways[int(Way::Near)] = rates.way(Way::Near) * nearRatio(chance, a, b);
        ways[int(Way::Alike)] = rates.way(Way::Alike) * alikeRatio(chance, rates, a, b);
    }
    double sum = 0;
    for (const double way : ways)
        sum += way;
    for (double &way : ways)
        way /= sum;
    evidence.weight = std::log(sum) + std::log((1 - rates.lost) / (1 - missing));
    return evidence;
}

double PairEvidence::weight(const PlanTarget &target, size_t line, size_t row, double own,
                            bool withKeys) const
{
    double sum = 0;
    double nearest = 0;
    bool hasCommon = false;
    for (size_t place = 0; place < target.variables.size(); ++place) {
        if (!withKeys && target.keys[place])
            continue;
        const CellEvidence evidence = cell(target, line, row, place, own);
        sum += evidence.weight;
        const auto &ways = evidence.ways;
        hasCommon = hasCommon ||
                    ways[int(Way::Same)] + ways[int(Way::Change)] + ways[int(Way::Alike)] > 0.5;
        if (ways[int(Way::Near)] > 0.5)
            nearest = std::max(nearest, evidence.weight);
    }
    // Some number is always near: where nothing is the same, one says nothing.
    return hasCommon ? sum : sum - nearest;
}

bool PairEvidence::hasCommonValue(const PlanTarget &target, size_t line, size_t row) const
{
    for (size_t place = 0; place < target.variables.size(); ++place) {
        const int value = target.lines.at(line, place);
        if (value != CellValues::NoValue && value == target.rows.at(row, place) &&
            target.chances[place].share(value) < 0.5)
            return true;
    }
    return false;
}

void PairEvidence::countTokens(const ColumnChance &chance, int oldValue, int newValue,
                               double weight, RateCounts &seen) const
{
    const std::span<const int> tokens = m_tables.values.value(oldValue).distinct;
    const std::span<const int> others = m_tables.values.value(newValue).distinct;
    double staying = 0;
    double expected = chance.meanTokens();
    for (const int token : tokens) {
        staying += std::binary_search(others.begin(), others.end(), token) ? 1 : 0;
        expected -= chance.tokenShare(token);
    }
    seen.tokens += weight * double(tokens.size());
    seen.staying += weight * staying;
    seen.added += weight * (double(others.size()) - staying);
    seen.expected += weight * std::max(0.0, expected);
}

bool PairEvidence::count(const PlanTarget &target, const PlanEdge &edge, size_t line, double own,
                         std::vector<RateCounts> &counts, ChangeMemory &changes) const
{
    const auto row = size_t(edge.row);
    const double probability = edge.probability;
    // A change that nothing else speaks for is no model for others: in a series of numbers every
    // shift looks like a rule.
    const bool isModel = hasCommonValue(target, line, row);
    for (size_t place = 0; place < target.variables.size(); ++place) {
        const int a = target.lines.at(line, place);
        const int b = target.rows.at(row, place);
        RateCounts &seen = counts[size_t(target.variables[place])];
        (a == CellValues::NoValue ? seen.hadNone : seen.hadValue) += probability;
        if (a == CellValues::NoValue || b == CellValues::NoValue) {
            if (a != b)
                (a == CellValues::NoValue ? seen.gained : seen.lost) += probability;
            continue;
        }
        const CellEvidence evidence = cell(target, line, row, place, own);
        for (size_t way = 0; way < evidence.ways.size(); ++way)
            seen.ways[way] += probability * evidence.ways[way];
        if (isModel)
            changes.add(m_tables.values, target.variables[place], a, b, probability);
        if (a == b)
            continue;
        countTokens(target.chances[place], a, b, probability * evidence.ways[int(Way::Alike)],
                    seen);
    }
    return isModel;
}

} // namespace Plan
