#include "PairEvidence.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <numbers>
#include <optional>

namespace Plan {

namespace {

/// Values that so many lines have are looked up, and not worked out each time.
constexpr size_t CountsKept = 2048;

/// Of sorted numbers.
bool haveCommon(std::span<const int> a, std::span<const int> b)
{
    auto i = a.begin();
    auto j = b.begin();
    while (i != a.end() && j != b.end() && *i != *j)
        ++(*i < *j ? i : j);
    return i != a.end() && j != b.end();
}

/// At least the logarithm of a positive number, and hardly more; in a fraction of the time.
double logAtMost(double number)
{
    constexpr int Bits = 6;
    static const auto above = [] {
        std::array<double, 1 << Bits> logs{};
        for (size_t i = 0; i < logs.size(); ++i)
            logs[i] = std::log1p(double(i + 1) / double(logs.size())) + 1e-12;
        return logs;
    }();
    const auto bits = std::bit_cast<std::uint64_t>(number);
    const auto exponent = int(bits >> 52) - 1023;
    return exponent * std::numbers::ln2 + above[size_t(bits >> (52 - Bits)) % above.size()];
}

} // namespace

PairEvidence::PairEvidence(const PlanTables &tables, const std::vector<VariableRates> &rates,
                           const ChangeMemory &changes)
    : m_tables(tables)
    , m_rates(rates)
    , m_changes(changes)
{
    m_weights.resize(tables.targets.size());
    for (size_t t = 0; t < tables.targets.size(); ++t) {
        for (size_t place = 0; place < tables.targets[t].variables.size(); ++place)
            m_weights[t].push_back(weightsOf(tables.targets[t], place));
    }
}

PairEvidence::PlaceWeights PairEvidence::weightsOf(const PlanTarget &target, size_t place) const
{
    const VariableRates &rates = m_rates[size_t(target.variables[place])];
    const ColumnChance &chance = target.chances[place];
    const double missing = chance.missing();
    PlaceWeights weights;
    weights.gained = std::log(rates.gained / (1 - missing));
    weights.lost = std::log(rates.lost / missing);
    weights.without = std::log((1 - rates.gained) / missing);
    weights.bothThere = std::log((1 - rates.lost) / (1 - missing));
    weights.change = rates.way(Way::Change) * m_changes.mostLikely(target.variables[place]);
    // Few lines look at few rows.
    const size_t kept = std::min(CountsKept, target.openRows.size() / 8);
    for (size_t count = 0; count < kept; ++count)
        weights.same.push_back(
            std::log(rates.way(Way::Same) / chance.shareOf(int(count)) + rates.way(Way::Other)) +
            weights.bothThere);
    return weights;
}

void PairEvidence::bound(const PlanTarget &target, size_t line, std::span<const int> rows,
                         bool withKeys, std::vector<Part> &parts, std::vector<double> &sums) const
{
    const size_t count = target.variables.size();
    const size_t before = parts.size();
    parts.resize(before + rows.size() * count);
    const std::span<Part> added = std::span(parts).subspan(before);
    for (size_t place = 0; place < count && !rows.empty(); ++place) {
        if (!withKeys && target.keys[place])
            continue;
        const int oldValue = target.lines.at(line, place);
        if (oldValue != CellValues::NoValue) {
            boundPlace(target, place, oldValue, rows, added.subspan(place));
            continue;
        }
        const PlaceWeights &at = weights(target, place);
        for (size_t i = 0; i < rows.size(); ++i) {
            const bool without = target.rows.at(size_t(rows[i]), place) == CellValues::NoValue;
            added[i * count + place].weight = without ? at.without : at.gained;
        }
    }
    for (size_t i = 0; i < rows.size(); ++i) {
        double sum = 0;
        for (const Part &part : added.subspan(i * count, count))
            sum += part.weight;
        sums.push_back(sum);
    }
}

void PairEvidence::fetchValues(const PlanTarget &target, size_t line,
                               std::span<const int> rows) const
{
    for (size_t place = 0; place < target.variables.size(); ++place) {
        const CellValues &values = m_tables.values[size_t(target.variables[place])];
        const int oldValue = target.lines.at(line, place);
        values.fetch(oldValue);
        for (const int row : rows) {
            const int value = target.rows.at(size_t(row), place);
            target.chances[place].fetch(value);
            if (value != oldValue)
                values.fetch(value);
        }
    }
}

void PairEvidence::fetchTokens(const PlanTarget &target, size_t line,
                               std::span<const int> rows) const
{
    for (size_t place = 0; place < target.variables.size(); ++place) {
        const CellValues &values = m_tables.values[size_t(target.variables[place])];
        const int oldValue = target.lines.at(line, place);
        bool differs = false;
        for (const int row : rows) {
            const int value = target.rows.at(size_t(row), place);
            if (value == oldValue)
                continue;
            values.fetchTokens(value);
            differs = true;
        }
        if (differs)
            values.fetchTokens(oldValue);
    }
}

void PairEvidence::boundPlace(const PlanTarget &target, size_t place, int oldValue,
                              std::span<const int> rows, std::span<Part> parts) const
{
    const PlaceWeights &at = weights(target, place);
    const ColumnChance &chance = target.chances[place];
    const CellValues &values = m_tables.values[size_t(target.variables[place])];
    const VariableRates &rates = m_rates[size_t(target.variables[place])];
    std::optional<CellValues::Value> old; // where another value is to be compared with it
    std::optional<Part> equal;            // the same for all rows
    const double nearest = rates.way(Way::Near) / chance.nearSpan();
    for (size_t i = 0; i < rows.size(); ++i) {
        Part &part = parts[i * target.variables.size()];
        const int newValue = target.rows.at(size_t(rows[i]), place);
        if (newValue == CellValues::NoValue) {
            part.weight = at.lost;
            continue;
        }
        if (newValue == oldValue) {
            if (!equal)
                equal = same(target, place, newValue);
            part = *equal;
            continue;
        }
        if (!old)
            old = values.value(oldValue);
        double ratio = rates.way(Way::Other);
        if (at.change > 0)
            ratio += at.change / chance.share(newValue);
        if (old->isNumber && values.isNumber(newValue)) {
            const double other = values.numberOf(newValue);
            ratio +=
                old->number * other > 0 ? nearest / chance.nearShareAtLeast(old->number, other) : 0;
        } else if (haveCommon(old->distinct, values.value(newValue).distinct)) {
            ratio += rates.way(Way::Alike) / chance.share(newValue);
        }
        part = {logAtMost(ratio) + at.bothThere, false, false};
    }
}

PairEvidence::Part PairEvidence::same(const PlanTarget &target, size_t place, int value) const
{
    const VariableRates &rates = m_rates[size_t(target.variables[place])];
    const double ratio = rates.way(Way::Same) / target.chances[place].share(value);
    return {sameWeight(target, place, value), true, ratio > rates.way(Way::Other)};
}

double PairEvidence::nearRatio(const CellValues &values, const ColumnChance &chance, int oldValue,
                               int newValue) const
{
    if (!values.isNumber(oldValue) || !values.isNumber(newValue))
        return 0;
    const double a = values.numberOf(oldValue);
    const double b = values.numberOf(newValue);
    if (a * b <= 0)
        return 0;
    // The share of numbers as near by chance is even in 0 to 1; between partners its logarithm is.
    return 1 / (chance.nearShare(a, b) * chance.nearSpan());
}

double PairEvidence::alikeRatio(const CellValues &values, const ColumnChance &chance,
                                const VariableRates &rates, int oldValue, int newValue) const
{
    const std::span<const int> a = values.value(oldValue).distinct;
    const std::span<const int> b = values.value(newValue).distinct;
    if (!haveCommon(a, b))
        return 0;
    // A token of the old text stays or does not; further ones come as they come in any text of the
    // column, but more seldom, so that the common ones which a text does without count for it.
    double sum = (1 - rates.adds) * chance.meanTokens();
    const double added = std::log(rates.adds);
    const double stays = std::log(rates.stays);
    const double goes = std::log(1 - rates.stays);
    double whole = sum; // what it would be if all of the old text stayed, and nothing else came
    auto i = a.begin();
    auto j = b.begin();
    while (i != a.end() || j != b.end()) {
        const bool onlyOld = j == b.end() || (i != a.end() && *i < *j);
        const bool onlyNew = !onlyOld && (i == a.end() || *j < *i);
        const ColumnChance::TokenChance &token = chance.tokenChance(onlyNew ? *j : *i);
        const double usual = (1 - rates.adds) * token.share;
        const double kept = stays - token.logShare;
        whole += onlyNew ? 0 : kept - usual;
        sum -= usual;
        if (onlyOld)
            sum += goes - token.logWithout;
        else
            sum += onlyNew ? added : kept;
        i += onlyNew ? 0 : 1;
        j += onlyOld ? 0 : 1;
    }
    // No value says more than that it is this one of all. Where the tokens of the old text, each
    // taken by itself, would say more, each says so much less: of two texts that have most of it
    // the one that has more is still ahead.
    const double most = -std::log(chance.share(newValue));
    if (sum > 0 && whole > most)
        sum *= most / whole;
    return std::exp(std::min(sum, most));
}

double PairEvidence::sameWeight(const PlanTarget &target, size_t place, int value) const
{
    const PlaceWeights &at = weights(target, place);
    const ColumnChance &chance = target.chances[place];
    const auto count = size_t(chance.count(value));
    if (count < at.same.size())
        return at.same[count];
    const VariableRates &rates = m_rates[size_t(target.variables[place])];
    return std::log(rates.way(Way::Same) / chance.share(value) + rates.way(Way::Other)) +
           at.bothThere;
}

double PairEvidence::compare(const PlanTarget &target, size_t place, int oldValue, int newValue,
                             double own, CellEvidence &evidence) const
{
    const int variable = target.variables[place];
    const CellValues &values = m_tables.values[size_t(variable)];
    const VariableRates &rates = m_rates[size_t(variable)];
    const ColumnChance &chance = target.chances[place];
    const ChangeMemory::Likely likely = m_changes.likely(values, variable, oldValue, newValue, own);
    evidence.supports = likely.supports;
    auto &ways = evidence.ways;
    ways[int(Way::Change)] = rates.way(Way::Change) * likely.share / chance.share(newValue);
    ways[int(Way::Near)] = rates.way(Way::Near) * nearRatio(values, chance, oldValue, newValue);
    ways[int(Way::Alike)] =
        rates.way(Way::Alike) * alikeRatio(values, chance, rates, oldValue, newValue);
    ways[int(Way::Other)] = rates.way(Way::Other);
    return ways[int(Way::Change)] + ways[int(Way::Near)] + ways[int(Way::Alike)] +
           ways[int(Way::Other)];
}

CellEvidence PairEvidence::cell(const PlanTarget &target, size_t line, size_t row, size_t place,
                                double own) const
{
    CellEvidence evidence;
    const int a = target.lines.at(line, place);
    const int b = target.rows.at(row, place);
    const VariableRates &rates = m_rates[size_t(target.variables[place])];
    const PlaceWeights &at = weights(target, place);
    if (a == CellValues::NoValue || b == CellValues::NoValue) {
        if (a != b)
            evidence.weight = a == CellValues::NoValue ? at.gained : at.lost;
        else
            evidence.weight = at.without;
        return evidence;
    }
    auto &ways = evidence.ways;
    double sum = 0;
    if (a == b) {
        ways[int(Way::Same)] = rates.way(Way::Same) / target.chances[place].share(b);
        ways[int(Way::Other)] = rates.way(Way::Other);
        sum = ways[int(Way::Same)] + ways[int(Way::Other)];
    } else {
        sum = compare(target, place, a, b, own, evidence);
    }
    for (double &way : ways)
        way /= sum;
    evidence.weight = std::log(sum) + at.bothThere;
    return evidence;
}

double PairEvidence::weight(const PlanTarget &target, size_t line, size_t row, double own,
                            std::span<Part> parts, double least) const
{
    double most = 0;
    bool hasCommon = false;
    for (const Part &part : parts) {
        most += part.weight;
        hasCommon = hasCommon || part.isCommon;
    }
    // Those first that may give most: it takes few of them to see that a row is no candidate.
    double nearest = 0;
    while (most >= least) {
        size_t loosest = parts.size();
        for (size_t place = 0; place < parts.size(); ++place) {
            if (!parts[place].isKnown &&
                (loosest == parts.size() || parts[place].weight > parts[loosest].weight))
                loosest = place;
        }
        if (loosest == parts.size())
            break;
        CellEvidence evidence;
        const double ratio = compare(target, loosest, target.lines.at(line, loosest),
                                     target.rows.at(row, loosest), own, evidence);
        const double weight = std::log(ratio) + weights(target, loosest).bothThere;
        most += weight - parts[loosest].weight;
        parts[loosest] = {weight, true, false};
        const auto &ways = evidence.ways;
        hasCommon =
            hasCommon || ways[int(Way::Change)] / ratio + ways[int(Way::Alike)] / ratio > 0.5;
        if (ways[int(Way::Near)] / ratio > 0.5)
            nearest = std::max(nearest, weight);
    }
    if (most < least)
        return most;
    double sum = 0;
    for (const Part &part : parts)
        sum += part.weight;
    // Some number is always near: where nothing is the same, one says nothing.
    return hasCommon ? sum : sum - nearest;
}

bool PairEvidence::hasCommonValue(const PlanTarget &target, size_t line, size_t row)
{
    for (size_t place = 0; place < target.variables.size(); ++place) {
        const int value = target.lines.at(line, place);
        if (value != CellValues::NoValue && value == target.rows.at(row, place) &&
            target.chances[place].share(value) < 0.5)
            return true;
    }
    return false;
}

void PairEvidence::countTokens(const CellValues &values, const ColumnChance &chance, int oldValue,
                               int newValue, double weight, RateCounts &seen) const
{
    const std::span<const int> tokens = values.value(oldValue).distinct;
    const std::span<const int> others = values.value(newValue).distinct;
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

void PairEvidence::count(const PlanTarget &target, size_t place, const PlanEdge &edge, size_t line,
                         double own, RateCounts &seen) const
{
    const auto row = size_t(edge.row);
    const double probability = edge.probability;
    const int a = target.lines.at(line, place);
    const int b = target.rows.at(row, place);
    (a == CellValues::NoValue ? seen.hadNone : seen.hadValue) += probability;
    if (a == CellValues::NoValue || b == CellValues::NoValue) {
        if (a != b)
            (a == CellValues::NoValue ? seen.gained : seen.lost) += probability;
        return;
    }
    const CellEvidence evidence = cell(target, line, row, place, own);
    for (size_t way = 0; way < evidence.ways.size(); ++way)
        seen.ways[way] += probability * evidence.ways[way];
    if (a != b)
        countTokens(m_tables.values[size_t(target.variables[place])], target.chances[place], a, b,
                    probability * evidence.ways[int(Way::Alike)], seen);
}

} // namespace Plan
