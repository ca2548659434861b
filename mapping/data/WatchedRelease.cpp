#include "WatchedRelease.h"

#include <utility>

namespace {

/// Above this a new look at a directory's mappings costs no more than the changes do.
constexpr std::size_t KeptChanges = 10000;

} // namespace

WatchedRelease::Marks WatchedRelease::Marks::of(const PrjMappingC &mapping)
{
    return {mapping.getMappingState(), mapping.getContainsConflicts()};
}

WatchedRelease::WatchedRelease(const ReleaseMappingC &given)
    : m_release(given)
{
    m_marks.reserve(std::size_t(given.countMappings()));
    for (int i = 0; i < given.countMappings(); ++i)
        m_marks.push_back(Marks::of(given.mappingAt(i)));
}

void WatchedRelease::addMapping(const PrjMappingC &mapping)
{
    const int position = m_release.findPosition(mapping.getSourcePath(), mapping.getSourceVersion(),
                                                mapping.getTabVersion());
    const Marks after = Marks::of(mapping);
    m_release.addMapping(mapping);
    if (position < 0) { // it has no place in the tree
        m_marks.push_back(after);
        return;
    }
    const Marks before = std::exchange(m_marks[std::size_t(position)], after);
    if (before == after)
        return;
    m_changes.push_back({position, before, after});
    if (m_changes.size() > KeptChanges) {
        m_changes.pop_front();
        ++m_firstChange;
    }
}
