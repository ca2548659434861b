#pragma once

#include "SessionTypes.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <functional>
#include <optional>
#include <vector>

/// The projects of a release in the order in which the catalog's tree shows them, each at its
/// place, with the numbers of their lines. Made from the records alone, so it builds no tree.
class ProjectOrder
{
public:
    ProjectOrder() = default;
    explicit ProjectOrder(const ReleaseMappingC &release);

    /// How many places there are; of several mappings of one path and version the first has one.
    [[nodiscard]] int size() const { return int(m_order.size()); }
    /// The mapping's position in the release.
    [[nodiscard]] int positionAt(int place) const { return m_order[place]; }
    /// -1 for a project that the tree does not show.
    [[nodiscard]] int placeOf(const ReleaseMappingC &release, const ProjectId &project) const;

    /// Of the project at a place.
    [[nodiscard]] const LineCounts &linesAt(int place) const
    {
        return m_lines[std::size_t(m_order[place])];
    }
    /// Of all mappings, in stored order.
    [[nodiscard]] const std::vector<LineCounts> &lines() const { return m_lines; }
    /// The mapping at this position has changed, or came.
    void note(int position, const PrjMappingC &mapping);

    /// The place behind or before this one, or from the end on without one, and round the end, that
    /// is wanted; nothing if no other is.
    [[nodiscard]] std::optional<int> next(int from, bool forward,
                                          const std::function<bool(int place)> &isWanted) const;

private:
    QList<int> m_order;
    std::vector<int> m_places; ///< by position, -1: none
    std::vector<LineCounts> m_lines;
};
