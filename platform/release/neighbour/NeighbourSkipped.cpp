#include "NeighbourSearch.h"

#include <algorithm>

namespace VelkRelease {

namespace {

/// Of a line that has no row, if it does not fit one as well as others fit theirs: lines go, and
/// others that are like them come.
constexpr double LeastLikeness = 10;

} // namespace

/// A row that a change has left belongs to the same mistake, which is seen already: half as much
/// shows that the line is part of it.
int NeighbourSearch::leftRow(int index, int after, int before)
{
    int best = -1;
    double most = LeastGain / 2 - m_order.freeWeight() - m_order.withoutWeight();
    for (auto row = m_left.upper_bound(after); row != m_left.end() && *row < before; ++row) {
        if (!m_order.isFree(*row) || m_filled.contains(*row))
            continue;
        const double likeness = m_likeness.of(index, *row, false);
        if (likeness >= most) {
            most = likeness;
            best = *row;
        }
    }
    return best;
}

int NeighbourSearch::skippedRow(int index, int position)
{
    const int after = position > 0 ? m_order.rowAt(position - 1) : -1;
    const int before = position < m_order.count() ? m_order.rowAt(position) : m_order.rowCount();
    if (const int row = leftRow(index, after, before); row >= 0)
        return row;
    if (before - after > 2 * Reach)
        return -1;
    const int row = bestFree(index, after, before);
    if (row < 0)
        return -1;
    const double gain =
        m_likeness.of(index, row, false) + m_order.freeWeight() + m_order.withoutWeight();
    const bool fits = m_likeness.room(index, row) < LeastRoom;
    return gain < (fits ? LeastGain : LeastLikeness) ? -1 : row;
}

/// The line gets the row of the one beside it, that the next one's, and the last a free row.
NeighbourSearch::Skipped NeighbourSearch::skippedChain(int index, int position, int step)
{
    int at = step < 0 ? position - 1 : position;
    if (at < 0 || at >= m_order.count())
        return {};
    Skipped chain{m_order.rowAt(at), {}, 0};
    const double own =
        m_likeness.of(index, chain.row, false) + m_order.withoutWeight() + m_order.freeWeight();
    const bool fits = m_likeness.room(index, chain.row) < LeastRoom;
    double sum = 0;
    for (; at >= 0 && at < m_order.count() && !m_moved[std::size_t(at)]; at += step) {
        const int row = m_order.rowAt(at);
        const int beside = at + step;
        const int next = beside < 0                  ? -1
                         : beside >= m_order.count() ? m_order.rowCount()
                                                     : m_order.rowAt(beside);
        if (next != row && (next < row) != (step < 0))
            return {};
        const int free = step < 0 ? bestFree(m_order.indexAt(at), next, row)
                                  : bestFree(m_order.indexAt(at), row, next);
        if (const double all = free < 0 ? -1 : sum + gain(at, free); all >= 0) {
            const double least = m_left.contains(free) ? LeastGain / 2
                                 : fits                ? LeastGain
                                                       : LeastLikeness;
            if (own + all >= least) {
                chain.moves.emplace_back(at, free);
                std::sort(chain.moves.begin(), chain.moves.end());
                return chain;
            }
        }
        sum += gain(at, next);
        if (next < 0 || next >= m_order.rowCount() || sum < -MostLoss)
            return {};
        chain.moves.emplace_back(at, next);
    }
    return {};
}

NeighbourSearch::Skipped NeighbourSearch::skipped(int index, int position)
{
    Skipped found{skippedRow(index, position), {}, 0};
    for (const int step : {-1, 1}) {
        if (found.row < 0)
            found = skippedChain(index, position, step);
    }
    if (found.row < 0)
        return found;
    m_filled.insert(found.row);
    if (!found.moves.empty())
        found.steps = stepsOf(found.moves);
    apply(found.moves);
    for (const auto &[moved, row] : found.moves)
        m_moved[std::size_t(moved)] = true;
    return found;
}

} // namespace VelkRelease
