#include "ProjectOrder.h"

#include <geomcore/records/FolderLevel.h>

ProjectOrder::ProjectOrder(const ReleaseMappingC &release)
    : m_order(folderOrder(release))
    , m_places(std::size_t(release.countMappings()), -1)
{
    for (int place = 0; place < size(); ++place)
        m_places[std::size_t(m_order[place])] = place;
    m_lines.reserve(m_places.size());
    for (int i = 0; i < release.countMappings(); ++i)
        m_lines.push_back(release.mappingAt(i).lineCounts());
}

int ProjectOrder::placeOf(const ReleaseMappingC &release, const ProjectId &project) const
{
    const int position = release.findPosition(project.path, project.version, QString());
    return position >= 0 && position < int(m_places.size()) ? m_places[std::size_t(position)] : -1;
}

void ProjectOrder::note(int position, const PrjMappingC &mapping)
{
    if (position >= int(m_lines.size()))
        m_lines.resize(std::size_t(position) + 1);
    m_lines[std::size_t(position)] = mapping.lineCounts();
}

std::optional<int> ProjectOrder::next(int from, bool forward,
                                      const std::function<bool(int place)> &isWanted) const
{
    const int start = from >= 0 ? from : forward ? -1 : size();
    for (int step = 1; step <= size(); ++step) {
        const int at = ((forward ? start + step : start - step) % size() + size()) % size();
        if (at != from && isWanted(at))
            return at;
    }
    return std::nullopt;
}
