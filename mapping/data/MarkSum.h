#pragma once

#include "WatchedRelease.h"

#include <QList>

#include <array>

/// How many mappings of a directory have each mark. Looks at all of them once, and from then on at
/// those that changed.
class MarkSum
{
public:
    /// \a positions are the mappings' places in the release; one can occur more than once.
    explicit MarkSum(const QList<int> &positions);

    void bringUpToDate(const WatchedRelease &release);
    /// The states of RolledUpStates that any mapping has.
    [[nodiscard]] PRJMAPPING::MappingState states() const;
    [[nodiscard]] bool hasConflicts() const { return m_conflicts > 0; }

private:
    void countAll(const WatchedRelease &release);
    void count(const WatchedRelease::Marks &marks, int times);

    QList<int> m_positions; ///< sorted
    std::array<int, std::size(PRJMAPPING::RolledUpStates)> m_states{};
    int m_conflicts = 0;
    std::int64_t m_nextChange = -1; ///< the first change not counted; -1 before all were counted
};
