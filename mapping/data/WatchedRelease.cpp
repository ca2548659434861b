#include "WatchedRelease.h"

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
}

void WatchedRelease::addMapping(const PrjMappingC &mapping)
{
    const int position = m_release.findPosition(mapping.getSourcePath(), mapping.getSourceVersion(),
                                                mapping.getTabVersion());
    const Marks before = Marks::of(m_release.mappingAt(position));
    const Marks after = Marks::of(mapping);
    m_release.addMapping(mapping);
    // A mapping that is new has no place in the tree.
    if (position < 0 || before == after)
        return;
    m_changes.push_back({position, before, after});
    if (m_changes.size() > KeptChanges) {
        m_changes.pop_front();
        ++m_firstChange;
    }
}
