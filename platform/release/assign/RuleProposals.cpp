#include "RuleProposals.h"

#include "ColumnPairs.h"
#include "LineCells.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <unordered_map>
#include <utility>

namespace VelkRelease {

namespace {

/// Lines that are equal in everything else before their values tell of a name.
constexpr int EnoughPairs = 3;
/// Share of them, and of values and lines in general, that has to agree.
constexpr double Agreeing = 0.9;
constexpr double MostLines = 0.8;
/// The share where both tables lie in one folder, which tells that they belong together.
constexpr double TwoThirds = 2.0 / 3;
/// A variable by which a project was split has few values.
constexpr int MostValues = 12;
/// Ways to part the values among the targets that are tried.
constexpr double MostPartings = 20'000;
constexpr double MostWork = 5e7;
/// How much better, in lines, the best way has to be than the next one.
constexpr double ClearShare = 0.02;

/// Share of the pairs in which both columns have the same value, 0 if there is but one value.
double agreement(const LineCells &source, const LineCells &target,
                 const std::vector<std::pair<int, int>> &pairs, const ColumnPair &columns)
{
    int agreeing = 0;
    quint32 first = 0;
    bool several = false;
    for (const auto &[row, other] : pairs) {
        const quint32 value = source.cell(row, columns.first);
        if (value == 0 || value != target.cell(other, columns.second))
            continue;
        ++agreeing;
        several = several || (first != 0 && first != value);
        first = value;
    }
    return several && !pairs.empty() ? double(agreeing) / double(pairs.size()) : 0;
}

/// Share of the source's values that the other column has, each as often as it stands there; 0 with
/// less than three different ones.
double likeness(const LineCells &source, const LineCells &target, const ColumnPair &columns)
{
    const std::vector<quint32> a = source.sortedValues(columns.first);
    const std::vector<quint32> b = target.sortedValues(columns.second);
    std::vector<quint32> both;
    std::set_intersection(a.begin(), a.end(), b.begin(), b.end(), std::back_inserter(both));
    const double share = a.empty() ? 0 : double(both.size()) / double(a.size());
    both.erase(std::unique(both.begin(), both.end()), both.end());
    return both.size() < 3 ? 0 : share;
}

/// Values of a column that another one never has.
int countStrange(const LineCells &cells, int column, const LineCells &other, int otherColumn)
{
    const std::vector<quint32> known = other.sortedValues(otherColumn);
    const std::vector<quint32> values = cells.sortedValues(column);
    return int(std::count_if(values.begin(), values.end(), [&known](quint32 value) {
        return !std::binary_search(known.begin(), known.end(), value);
    }));
}

/// The columns without those in which many lines have a value that the target lacks: what changed
/// does not tell equal lines.
std::vector<ColumnPair> keptColumns(const LineCells &source, const LineCells &target,
                                    std::vector<ColumnPair> columns)
{
    std::erase_if(columns, [&](const ColumnPair &pair) {
        const auto count = double(source.sortedValues(pair.first).size());
        return countStrange(source, pair.first, target, pair.second) > (1 - MostLines) * count;
    });
    return columns;
}

/// The columns without those in which many lines of the target have a value that the source never
/// has: there the lines changed, and what is left tells where they went.
std::vector<ColumnPair> unchangedColumns(const LineCells &source, const LineCells &target,
                                         std::vector<ColumnPair> columns)
{
    std::erase_if(columns, [&](const ColumnPair &pair) {
        return countStrange(target, pair.second, source, pair.first) >
               (1 - MostLines) * target.rowCount();
    });
    return columns;
}

struct PairCandidate
{
    ColumnPair columns;
    double score;
};

/// Candidates of which neither column has another one nearly as good.
std::vector<ColumnPair> clearOnes(const std::vector<PairCandidate> &candidates)
{
    std::vector<ColumnPair> clear;
    for (const PairCandidate &candidate : candidates) {
        const bool rival =
            std::any_of(candidates.begin(), candidates.end(), [&](const PairCandidate &other) {
                const bool shares = (other.columns.first == candidate.columns.first) !=
                                    (other.columns.second == candidate.columns.second);
                return shares && other.score > candidate.score - (1 - Agreeing);
            });
        if (!rival)
            clear.push_back(candidate.columns);
    }
    return clear;
}

int countHeld(const LineCells &source, const LineCells &target,
              const std::vector<ColumnPair> &columns)
{
    const auto targets = uniqueRows(target, columnsIn(columns, &ColumnPair::second));
    const std::vector<int> own = columnsIn(columns, &ColumnPair::first);
    int held = 0;
    for (int row = 0; row < source.rowCount(); ++row)
        held += targets.contains(keyOf(source, row, own)) ? 1 : 0;
    return held;
}

} // namespace

RuleProposals::RuleProposals(const LineCells &source, const std::vector<Target> &targets)
    : m_source(source)
    , m_targets(targets)
{
    for (const Target &target : m_targets)
        m_renames.push_back(findRenames(target));
}

std::vector<RuleProposals::Rename> RuleProposals::findRenames(const Target &table) const
{
    const LineCells &target = *table.cells;
    const std::vector<int> old = ownColumns(m_source, target);
    const std::vector<int> now = ownColumns(target, m_source);
    if (old.empty() || now.empty())
        return {};
    const int fewer = std::min(m_source.rowCount(), target.rowCount());
    const auto findBy = [&](const auto &scoreOf, std::vector<ColumnPair> all, double least,
                            double leastHeld) {
        std::vector<PairCandidate> candidates;
        for (const int from : old) {
            for (const int to : now) {
                const double score = scoreOf(ColumnPair(from, to));
                if (score >= least)
                    candidates.push_back({{from, to}, score});
            }
        }
        std::vector<Rename> renames;
        for (const ColumnPair &columns : clearOnes(candidates)) {
            all.push_back(columns);
            renames.push_back({m_source.variables()[size_t(columns.first)],
                               target.variables()[size_t(columns.second)]});
        }
        if (renames.empty() || countHeld(m_source, target, all) < leastHeld * fewer)
            renames.clear();
        return renames;
    };
    const std::vector<ColumnPair> common = commonColumns(m_source, target);
    const auto pairs = equalRows(m_source, target, common);
    const bool aligned = int(pairs.size()) >= EnoughPairs;
    std::vector<Rename> renames;
    if (aligned) {
        const auto scoreOf = [&](const ColumnPair &columns) {
            return agreement(m_source, target, pairs, columns);
        };
        renames = findBy(scoreOf, common, Agreeing, MostLines);
    }
    // Where most lines are equal in the rest, they tell; few of them may be so by chance.
    if (!renames.empty() || (aligned && countHeld(m_source, target, common) >= MostLines * fewer))
        return renames;
    const auto scoreOf = [&](const ColumnPair &columns) {
        return likeness(m_source, target, columns);
    };
    return findBy(scoreOf, keptColumns(m_source, target, common),
                  table.isNear ? TwoThirds : Agreeing, table.isNear ? TwoThirds : MostLines);
}

LineCells RuleProposals::renamed(const LineCells &source, const Target &target)
{
    std::vector<std::pair<int, int>> names;
    const RuleProposals proposals(source, {target});
    for (const Rename &rename : proposals.renames(0))
        names.emplace_back(rename.source, rename.target);
    return source.renamed(names);
}

/// How well the lines are parted among the targets by the values of a column.
struct RuleProposals::Parting
{
    double score = 0; ///< lines that are where they should be, of both sides
    bool isClear = false;
    std::vector<int> targets; ///< by value
    std::vector<int> rows;    ///< the first row with each value
};

RuleProposals::Parting RuleProposals::part(int column) const
{
    Parting parting;
    std::map<quint32, int> values;
    std::vector<int> valueOf(size_t(m_source.rowCount()), -1);
    for (int row = 0; row < m_source.rowCount(); ++row) {
        const quint32 value = m_source.cell(row, column);
        const auto [found, isNew] = values.try_emplace(value, int(values.size()));
        if (isNew)
            parting.rows.push_back(row);
        valueOf[size_t(row)] = found->second;
        if (value == 0 || int(values.size()) > MostValues)
            return {};
    }
    const size_t count = values.size();
    const size_t targets = m_targets.size();
    const double partings = std::pow(double(targets), double(count));
    if (count < targets || partings > MostPartings || partings * m_source.rowCount() > MostWork)
        return {};
    // For each value and target: lines that the target holds, and rows that hold them.
    std::vector<std::vector<int>> held(count, std::vector<int>(targets));
    std::vector<std::vector<std::vector<bool>>> holders(count,
                                                        std::vector<std::vector<bool>>(targets));
    for (size_t t = 0; t < targets; ++t) {
        std::vector<ColumnPair> columns = commonColumns(m_source, *m_targets[t].cells);
        for (const Rename &rename : m_renames[t])
            columns.emplace_back(columnOf(m_source, rename.source),
                                 columnOf(*m_targets[t].cells, rename.target));
        columns = unchangedColumns(m_source, *m_targets[t].cells, columns);
        std::unordered_map<quint64, std::vector<int>> rows;
        for (int row = 0; row < m_targets[t].cells->rowCount(); ++row)
            rows[keyOf(*m_targets[t].cells, row, columnsIn(columns, &ColumnPair::second))]
                .push_back(row);
        for (auto &value : holders)
            value[t].resize(size_t(m_targets[t].cells->rowCount()));
        const std::vector<int> own = columnsIn(columns, &ColumnPair::first);
        for (int row = 0; row < m_source.rowCount(); ++row) {
            const quint64 key = keyOf(m_source, row, own);
            const auto found = key == 0 ? rows.end() : rows.find(key);
            if (found == rows.end())
                continue;
            const auto value = size_t(valueOf[size_t(row)]);
            ++held[value][t];
            for (const int holder : found->second)
                holders[value][t][size_t(holder)] = true;
        }
    }
    const auto scoreOf = [&](const std::vector<int> &chosen) {
        double score = 0;
        for (size_t t = 0; t < targets; ++t) {
            std::vector<bool> covered(size_t(m_targets[t].cells->rowCount()));
            bool used = false;
            for (size_t value = 0; value < count; ++value) {
                if (chosen[value] != int(t))
                    continue;
                used = true;
                score += held[value][t];
                for (size_t row = 0; row < covered.size(); ++row)
                    covered[row] = covered[row] || holders[value][t][row];
            }
            if (!used)
                return -1.0;
            score += double(std::count(covered.begin(), covered.end(), true));
        }
        return score;
    };
    double second = -1;
    std::vector<int> chosen(count, 0);
    parting.score = -1;
    while (true) {
        const double score = scoreOf(chosen);
        if (score > parting.score) {
            second = parting.score;
            parting.score = score;
            parting.targets = chosen;
        } else {
            second = std::max(second, score);
        }
        size_t digit = 0;
        while (digit < count && ++chosen[digit] == int(targets))
            chosen[digit++] = 0;
        if (digit == count)
            break;
    }
    double all = m_source.rowCount();
    for (const Target &target : m_targets)
        all += target.cells->rowCount();
    parting.isClear = parting.score >= MostLines * all &&
                      parting.score - second >= std::max(1.0, ClearShare * all);
    return parting;
}

RuleProposals::Split RuleProposals::split() const
{
    Split split;
    if (m_targets.size() < 2)
        return split;
    std::optional<Parting> best;
    for (size_t column = 0; column < m_source.variables().size(); ++column) {
        const int variable = m_source.variables()[column];
        const bool stays =
            std::any_of(m_targets.begin(), m_targets.end(), [&](const Target &target) {
                return columnOf(*target.cells, variable) >= 0;
            });
        const bool renamed =
            std::any_of(m_renames.begin(), m_renames.end(), [&](const std::vector<Rename> &all) {
                return std::any_of(all.begin(), all.end(),
                                   [&](const Rename &rename) { return rename.source == variable; });
            });
        if (stays || renamed)
            continue;
        const Parting parting = part(int(column));
        if (!parting.isClear || (best && best->rows.size() <= parting.rows.size()))
            continue;
        best = parting;
        split.variable = variable;
    }
    if (!best)
        return split;
    split.rows.resize(m_targets.size());
    for (size_t value = 0; value < best->rows.size(); ++value)
        split.rows[size_t(best->targets[value])].push_back(best->rows[value]);
    return split;
}

} // namespace VelkRelease
