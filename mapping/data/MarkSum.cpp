#include "MarkSum.h"

#include <algorithm>

MarkSum::MarkSum(const QList<int> &positions)
    : m_positions(positions)
{
    if (!std::is_sorted(positions.begin(), positions.end()))
        std::sort(m_positions.begin(), m_positions.end());
}

void MarkSum::bringUpToDate(const WatchedRelease &release)
{
    if (m_nextChange < release.firstChange())
        countAll(release);
    else
        for (; m_nextChange < release.changeCount(); ++m_nextChange) {
            const WatchedRelease::Change &change = release.change(m_nextChange);
            const auto range =
                std::equal_range(m_positions.cbegin(), m_positions.cend(), change.position);
            const int times = int(range.second - range.first);
            count(change.before, -times);
            count(change.after, times);
        }
    m_nextChange = release.changeCount();
}

void MarkSum::countAll(const WatchedRelease &release)
{
    m_states = {};
    m_conflicts = 0;
    for (const int position : std::as_const(m_positions))
        count(release.marksAt(position), 1);
}

void MarkSum::count(const WatchedRelease::Marks &marks, int times)
{
    for (std::size_t i = 0; i < m_states.size(); ++i)
        m_states[i] += marks.state.testFlag(PRJMAPPING::RolledUpStates[i]) ? times : 0;
    m_conflicts += marks.conflicts ? times : 0;
}

PRJMAPPING::MappingState MarkSum::states() const
{
    PRJMAPPING::MappingState states;
    for (std::size_t i = 0; i < m_states.size(); ++i)
        states.setFlag(PRJMAPPING::RolledUpStates[i], m_states[i] > 0);
    return states;
}
