#pragma once

#include "PRJMAPPING.h"

#include <array>

/// Counts of the entries of a target, kept while entries come and go. The five numbers overlap: an
/// entry in state 1 or 2 without target line is among `mapped` or `verified` and among `notFound`.
class LineCounts
{
public:
    void add(int targetLine, int state, bool conflict, int factor = 1)
    {
        m_entries[slot(targetLine, state)] += factor;
        if (conflict) // hardly any is
            m_conflicts[slot(targetLine, state)] += factor;
    }
    void add(const LineCounts &other, int factor = 1)
    {
        for (std::size_t i = 0; i < m_entries.size(); ++i) {
            m_entries[i] += factor * other.m_entries[i];
            m_conflicts[i] += factor * other.m_conflicts[i];
        }
    }

    [[nodiscard]] int lines() const { return sum(m_entries); }
    [[nodiscard]] int notFound() const
    {
        return m_entries[0] + m_entries[1] + m_entries[2] + m_entries[3];
    }
    [[nodiscard]] int mapped() const { return m_entries[1] + m_entries[5]; }
    [[nodiscard]] int toCheck() const { return m_entries[4]; }
    [[nodiscard]] int verified() const { return m_entries[2] + m_entries[6]; }
    [[nodiscard]] int conflicts() const { return sum(m_conflicts); }
    /// Entries without target line that nobody confirmed.
    [[nodiscard]] int unmapped() const { return notFound() - m_entries[2]; }
    /// Entries with a target line that the program assigned and nobody confirmed.
    [[nodiscard]] int assigned() const { return m_entries[5]; }
    /// Entries with a target line in state 0 or in a state above 2.
    [[nodiscard]] int unverified() const { return m_entries[4] + m_entries[7]; }
    /// Entries that are confirmed to have no target line.
    [[nodiscard]] int expired() const { return m_entries[2]; }
    /// The same four of entries in conflict.
    [[nodiscard]] int unmappedConflicts() const
    {
        return m_conflicts[0] + m_conflicts[1] + m_conflicts[3];
    }
    [[nodiscard]] int assignedConflicts() const { return m_conflicts[5]; }
    [[nodiscard]] int unverifiedConflicts() const { return m_conflicts[4] + m_conflicts[7]; }
    [[nodiscard]] int expiredConflicts() const { return m_conflicts[2]; }
    [[nodiscard]] int verifiedConflicts() const { return m_conflicts[2] + m_conflicts[6]; }

    friend bool operator==(const LineCounts &, const LineCounts &) = default;

private:
    using Slots = std::array<int, 8>;

    static int sum(const Slots &counts)
    {
        int result = 0;
        for (int count : counts)
            result += count;
        return result;
    }
    static std::size_t slot(int targetLine, int state)
    {
        return (targetLine == -1 ? 0U : 4U) + (state >= 0 && state <= 2 ? unsigned(state) : 3U);
    }

    Slots m_entries{};   ///< without target line by state 0, 1, 2, other; then with one
    Slots m_conflicts{}; ///< those of them that are in conflict
};
