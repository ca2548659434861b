#include "TableRoom.h"

#include "LineCells.h"
#include "ProjectName.h"

#include <algorithm>

namespace VelkRelease {

TableRoom::TableRoom(const std::vector<TargetOwners::Table> &sources,
                     const std::vector<TargetOwners::Table> &targets,
                     const std::vector<std::vector<int>> &found)
    : m_sources(sources)
    , m_targets(targets)
    , m_owners(targets.size())
{
    for (int source = 0; source < int(found.size()); ++source) {
        const std::vector<int> &tables = found[size_t(source)];
        int rest = m_sources[size_t(source)].cells->rowCount();
        if (!tables.empty() && hasName(source, tables.front())) {
            const QString folder = folderOf(m_sources[size_t(source)].place);
            const bool stayed = folderOf(m_targets[size_t(tables.front())].place) == folder;
            m_stayed[folder] += stayed ? 1 : -1;
        }
        for (const int table : tables) {
            const bool named = hasName(source, table);
            if (!named && table != tables.front())
                continue;
            const int rows = m_targets[size_t(table)].cells->rowCount();
            const int lines = named ? std::min(rest, rows) : rest;
            m_owners[size_t(table)].push_back({source, lines});
            rest -= lines;
        }
    }
}

bool TableRoom::isMissing(int source, const std::vector<int> &found) const
{
    if (found.empty())
        return true;
    int room = m_targets[size_t(found.front())].cells->rowCount();
    for (const Owner &owner : m_owners[size_t(found.front())])
        room -= owner.source == source ? 0 : owner.lines;
    return !hasName(source, found.front()) &&
           2 * room < m_sources[size_t(source)].cells->rowCount();
}

bool TableRoom::isThere(int source, int target) const
{
    const TargetOwners::Table &project = m_sources[size_t(source)];
    const TargetOwners::Table &table = m_targets[size_t(target)];
    const double likeness = nameLikeness(project.name, table.name);
    int room = table.cells->rowCount();
    for (const Owner &owner : m_owners[size_t(target)]) {
        if (nameLikeness(m_sources[size_t(owner.source)].name, table.name) > likeness)
            room -= owner.lines;
    }
    return 2 * room >= project.cells->rowCount();
}

bool TableRoom::isFolderKept(int source) const
{
    return m_stayed.value(folderOf(m_sources[size_t(source)].place)) >= 0;
}

bool TableRoom::hasName(int source, int target) const
{
    return m_targets[size_t(target)].name.startsWith(m_sources[size_t(source)].name);
}

} // namespace VelkRelease
