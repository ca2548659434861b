#include "ChangeMemory.h"

#include <algorithm>

namespace Plan {

void ChangeMemory::learn(const CellValues &values, int variable, const Pairs &pairs,
                         bool mostLikely)
{
    Variable &seen = m_variables[size_t(variable)];
    seen = {};
    bool hasParts = false;
    int last = -1; // the source table's values have the first numbers
    pairs([&](int oldValue, int newValue, double weight) {
        last = std::max(last, oldValue);
        seen.all += weight;
        seen.numbers += values.value(oldValue).hasNumber ? weight : 0;
        if (oldValue == newValue)
            return;
        const CellChange change = changeBetween(values, variable, oldValue, newValue);
        hasParts = hasParts || change.keys[CellChange::Middle] != 0;
        for (const std::uint64_t key : change.keys) {
            if (key != 0)
                seen.changes.add(key, weight);
        }
    });
    if (seen.changes.isEmpty() &&
        !isKnown(variable)) // then nobody asks how often values could have changed
        return;
    seen.values.resize(size_t(last) + 1, 0);
    seen.tokens.resize(hasParts ? size_t(values.tokenCount()) : 0, 0);
    pairs([&](int oldValue, int, double weight) {
        seen.values[size_t(oldValue)] += weight;
        if (!hasParts)
            return;
        for (const int token : values.value(oldValue).distinct)
            seen.tokens[size_t(token)] += weight;
    });
    if (!mostLikely)
        return;
    pairs([&](int oldValue, int newValue, double) {
        if (oldValue != newValue) {
            const Likely found = likely(values, variable, oldValue, newValue, 0);
            seen.mostLikely = std::max(seen.mostLikely, found.share);
        }
    });
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
    if (size_t(variable) >= m_variables.size() ||
        (m_variables[size_t(variable)].changes.isEmpty() && !isKnown(variable)))
        return best;
    const Variable &seen = m_variables[size_t(variable)];
    const CellChange change = changeBetween(values, variable, oldValue, newValue);
    for (int kind = 0; kind < CellChange::KindCount; ++kind) {
        const std::uint64_t key = change.keys[kind];
        const double known = key != 0 && m_known ? m_known->pairs(variable, key) : 0;
        double supports = key == 0 ? 0 : seen.changes.of(key) - own;
        if (supports <= 1e-6 && known == 0)
            continue;
        supports = std::max(0.0, supports);
        const double ofValue =
            size_t(oldValue) < seen.values.size() ? seen.values[size_t(oldValue)] : 0;
        const double all =
            applicable(seen, values.value(oldValue), ofValue, change, CellChange::Kind(kind)) - own;
        // One pair more that did not change so.
        const double share = (supports + known) / (std::max(all, supports) + known + 1);
        if (share > best.share)
            best = {share, supports};
    }
    return best;
}

} // namespace Plan
