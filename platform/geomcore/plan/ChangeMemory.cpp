#include "ChangeMemory.h"

#include <algorithm>

namespace Plan {

void ChangeMemory::add(const CellValues &values, int variable, int oldValue, int newValue,
                       double weight)
{
    if (size_t(variable) >= m_variables.size())
        m_variables.resize(size_t(variable) + 1);
    Variable &seen = m_variables[size_t(variable)];
    if (seen.values.empty()) {
        seen.values.resize(size_t(values.count()), 0);
        seen.tokens.resize(size_t(values.tokenCount()), 0);
    }
    const CellValues::Value value = values.value(oldValue);
    seen.all += weight;
    seen.numbers += value.hasNumber ? weight : 0;
    seen.values[size_t(oldValue)] += weight;
    for (const int token : value.distinct)
        seen.tokens[size_t(token)] += weight;
    if (oldValue == newValue)
        return;
    m_changed.push_back({variable, oldValue, newValue});
    for (const std::uint64_t key : changeBetween(values, variable, oldValue, newValue).keys) {
        if (key != 0)
            m_changes.add(key, weight);
    }
}

void ChangeMemory::finish(const std::vector<CellValues> &values)
{
    for (const Pair &pair : m_changed) {
        const Likely found =
            likely(values[size_t(pair.variable)], pair.variable, pair.oldValue, pair.newValue, 0);
        double &most = m_variables[size_t(pair.variable)].mostLikely;
        most = std::max(most, found.share);
    }
    m_changed = {};
}

double ChangeMemory::applicable(const Variable &seen, const CellValues::Value &oldValue,
                                double ofValue, const CellChange &change, CellChange::Kind kind)
{
    if (kind == CellChange::Whole)
        return ofValue;
    if (kind == CellChange::Factor || kind == CellChange::Offset)
        return seen.numbers;
    double least = seen.all;
    for (int i = change.middleBegin; i < change.middleEnd; ++i)
        least = std::min(least, seen.tokens[size_t(oldValue.tokens[size_t(i)])]);
    return least;
}

ChangeMemory::Likely ChangeMemory::likely(const CellValues &values, int variable, int oldValue,
                                          int newValue, double own) const
{
    Likely best;
    if (m_changes.isEmpty() || size_t(variable) >= m_variables.size() ||
        m_variables[size_t(variable)].all <= 0)
        return best;
    const Variable &seen = m_variables[size_t(variable)];
    const CellChange change = changeBetween(values, variable, oldValue, newValue);
    for (int kind = 0; kind < CellChange::KindCount; ++kind) {
        const std::uint64_t key = change.keys[kind];
        const double supports = key == 0 ? 0 : m_changes.of(key) - own;
        if (supports <= 1e-6)
            continue;
        const double all = applicable(seen, values.value(oldValue), seen.values[size_t(oldValue)],
                                      change, CellChange::Kind(kind)) -
                           own;
        // One pair more that did not change so.
        const double share = supports / (std::max(all, supports) + 1);
        if (share > best.share)
            best = {share, supports};
    }
    return best;
}

} // namespace Plan
