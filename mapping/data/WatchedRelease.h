#pragma once

#include <geomcore/records/ReleaseMappingC.h>

#include <cstdint>
#include <deque>
#include <vector>

/// The working copy of a release, shared by a handler and the nodes of its tree. Keeps the latest
/// changes of its mappings' marks, so that whoever sums them up need not look at all of them again.
class WatchedRelease
{
public:
    /// The state of a mapping, and whether it contains conflicts.
    struct Marks
    {
        PRJMAPPING::MappingState state;
        bool conflicts = false;

        [[nodiscard]] static Marks of(const PrjMappingC &mapping);
        friend bool operator==(const Marks &, const Marks &) = default;
    };
    struct Change
    {
        int position;
        Marks before;
        Marks after;
    };

    explicit WatchedRelease(const ReleaseMappingC &given);

    [[nodiscard]] const ReleaseMappingC &release() const { return m_release; }
    /// Those of the mapping at a position, without a look at it.
    [[nodiscard]] const Marks &marksAt(int position) const
    {
        return m_marks[std::size_t(position)];
    }
    /// Replaces the mapping of its path, version and table version, or appends.
    void addMapping(const PrjMappingC &mapping);

    /// How many changes there were, which is the number of the next one.
    [[nodiscard]] std::int64_t changeCount() const
    {
        return m_firstChange + std::int64_t(m_changes.size());
    }
    /// Changes before this one are no longer kept.
    [[nodiscard]] std::int64_t firstChange() const { return m_firstChange; }
    [[nodiscard]] const Change &change(std::int64_t number) const
    {
        return m_changes[std::size_t(number - m_firstChange)];
    }

    /// Differs after every dropStates: what was remembered under another number is out of date.
    [[nodiscard]] int generation() const { return m_generation; }
    /// Makes all directories of the tree drop what they remember of their state.
    void dropStates() { ++m_generation; }

private:
    ReleaseMappingC m_release;
    std::vector<Marks> m_marks; ///< of the mappings in stored order
    std::deque<Change> m_changes;
    std::int64_t m_firstChange = 0;
    int m_generation = 0;
};
