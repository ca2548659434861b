#include "ChangeMemory.h"

#include "CellValues.h"

#include <algorithm>

namespace Plan {

namespace {

/// Kinds of keys beside those of CellChange: how many pairs have a value, a token, a number, and
/// any value at all in a variable.
enum : std::uint64_t { OfValue = 11, OfToken, OfNumbers, OfAll };

std::uint64_t applicableKey(int variable, std::uint64_t kind, int number)
{
    return keyOf(std::uint64_t(variable), kind, std::uint64_t(number), 0);
}

bool hasNumber(const CellValues &values, int value)
{
    const std::span<const int> tokens = values.value(value).tokens;
    return std::any_of(tokens.begin(), tokens.end(),
                       [&](int token) { return values.isNumberToken(token); });
}

} // namespace

void ChangeMemory::add(const CellValues &values, int variable, int oldValue, int newValue,
                       double weight)
{
    m_weights.add(applicableKey(variable, OfAll, 0), weight);
    m_weights.add(applicableKey(variable, OfValue, oldValue), weight);
    for (const int token : values.value(oldValue).distinct)
        m_weights.add(applicableKey(variable, OfToken, token), weight);
    if (hasNumber(values, oldValue))
        m_weights.add(applicableKey(variable, OfNumbers, 0), weight);
    if (oldValue == newValue)
        return;
    for (const std::uint64_t key : changeBetween(values, variable, oldValue, newValue).keys) {
        if (key != 0)
            m_weights.add(key, weight);
    }
}

void ChangeMemory::clear()
{
    m_weights.clear();
}

double ChangeMemory::applicable(const CellValues &values, int variable, int oldValue,
                                const CellChange &change, CellChange::Kind kind) const
{
    if (kind == CellChange::Whole)
        return m_weights.of(applicableKey(variable, OfValue, oldValue));
    if (kind == CellChange::Factor || kind == CellChange::Offset)
        return m_weights.of(applicableKey(variable, OfNumbers, 0));
    double least = m_weights.of(applicableKey(variable, OfAll, 0));
    const std::span<const int> tokens = values.value(oldValue).tokens;
    for (int i = change.middleBegin; i < change.middleEnd; ++i)
        least = std::min(least, m_weights.of(applicableKey(variable, OfToken, tokens[size_t(i)])));
    return least;
}

ChangeMemory::Likely ChangeMemory::likely(const CellValues &values, int variable, int oldValue,
                                          int newValue, double own) const
{
    Likely best;
    if (m_weights.isEmpty())
        return best;
    const CellChange change = changeBetween(values, variable, oldValue, newValue);
    for (int kind = 0; kind < CellChange::KindCount; ++kind) {
        const std::uint64_t key = change.keys[kind];
        const double supports = key == 0 ? 0 : m_weights.of(key) - own;
        if (supports <= 1e-6)
            continue;
        const double all =
            applicable(values, variable, oldValue, change, CellChange::Kind(kind)) - own;
        // One pair more that did not change so.
        const double share = supports / (std::max(all, supports) + 1);
        if (share > best.share)
            best = {share, supports};
    }
    return best;
}

} // namespace Plan
