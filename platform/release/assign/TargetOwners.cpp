#include "TargetOwners.h"

#include "LineCells.h"
#include "ProjectName.h"
#include "RuleProposals.h"
#include "TableMatch.h"

#include <algorithm>

namespace VelkRelease {

TargetOwners::TargetOwners(const std::vector<Table> &sources, const std::vector<Table> &targets,
                           const std::vector<std::vector<int>> &found)
    : m_sources(sources)
    , m_targets(targets)
    , m_found(found)
    , m_owners(targets.size())
{
    for (size_t source = 0; source < found.size(); ++source) {
        if (!found[source].empty())
            m_owners[size_t(found[source].front())].push_back(int(source));
    }
}

std::vector<int> TargetOwners::withoutOthers(int source) const
{
    std::vector<int> tables = m_found[size_t(source)];
    std::erase_if(tables, [&](int table) { return isNamesake(source, table); });
    if (tables.size() < 2)
        return tables;
    const auto gone = std::remove_if(tables.begin() + 1, tables.end(),
                                     [&](int table) { return !hasOwnLine(source, table); });
    tables.erase(gone, tables.end());
    const bool another = std::any_of(tables.begin() + 1, tables.end(),
                                     [&](int table) { return holdsMost(source, table); });
    const QString &name = m_targets[size_t(tables.front())].name;
    if (another && !name.startsWith(m_sources[size_t(source)].name) &&
        !hasOwnLine(source, tables.front()))
        tables.erase(tables.begin());
    return tables;
}

/// Of another project that stood there before; the two have no line in common.
bool TargetOwners::isNamesake(int source, int target) const
{
    const Table &project = m_sources[size_t(source)];
    const Table &table = m_targets[size_t(target)];
    if (project.name != table.name || project.place == table.place)
        return false;
    const auto &owners = m_owners[size_t(target)];
    return std::ranges::any_of(
               owners, [&](int owner) { return m_sources[size_t(owner)].place == table.place; }) &&
           !TableMatch(*project.cells, *table.cells).anyFound();
}

bool TargetOwners::holdsMost(int source, int target) const
{
    const LineCells &cells = *m_targets[size_t(target)].cells;
    const Table &project = m_sources[size_t(source)];
    const bool isNear = folderOf(project.place) == folderOf(m_targets[size_t(target)].place);
    const LineCells lines = RuleProposals::renamed(*project.cells, {&cells, isNear});
    const TableMatch match(lines, cells);
    int held = 0;
    for (int row = 0; row < lines.rowCount(); ++row)
        held += match.isHeld(row) ? 1 : 0;
    return 2 * held > lines.rowCount();
}

bool TargetOwners::hasOwnLine(int source, int target) const
{
    const LineCells &lines = *m_sources[size_t(source)].cells;
    const Table &table = m_targets[size_t(target)];
    const double likeness = nameLikeness(m_sources[size_t(source)].name, table.name);
    const TableMatch match(lines, *table.cells);
    std::vector<bool> own(size_t(lines.rowCount()), false);
    for (int row = 0; row < lines.rowCount(); ++row)
        own[size_t(row)] = match.isEqual(row) || match.isHeld(row);
    for (const int owner : m_owners[size_t(target)]) {
        const Table &other = m_sources[size_t(owner)];
        if (owner == source || likeness >= nameLikeness(other.name, table.name))
            continue;
        const TableMatch before(lines, *other.cells);
        for (int row = 0; row < lines.rowCount(); ++row) {
            if (before.isEqual(row) || before.isHeld(row))
                own[size_t(row)] = false;
        }
    }
    // A table that has no line as it was is there for another reason, and so is one without owner.
    return std::ranges::count(own, true) > 0 || m_owners[size_t(target)].empty() ||
           !match.anyFound();
}

} // namespace VelkRelease
