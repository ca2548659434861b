#include "CatalogFilterWalk.h"

#include "CatalogStructureItem.h"

#include <utility>

namespace {

constexpr int LeastInARun = 2000;
constexpr int BetweenLooks = 64; // at the clock

} // namespace

CatalogFilterWalk::CatalogFilterWalk(const CatalogStructureItem &root, const Accepts &accepts)
    : m_accepts(accepts)
{
    if (root.node)
        enter(*root.node, &root);
}

CatalogFilterWalk::CatalogFilterWalk(const CatalogStructureNodeI &directory, const Accepts &accepts)
    : m_accepts(accepts)
{
    enter(directory, nullptr);
}

bool CatalogFilterWalk::isProject(const CatalogStructureNodeI &node)
{
    return node.getName().endsWith(QLatin1String(".prj"));
}

/// Rows that are not there yet are decided on when they come.
bool CatalogFilterWalk::Level::isDone() const
{
    return next == children.size() || (isAccepted && (!item || next >= item->children.size()));
}

bool CatalogFilterWalk::run(const QDeadlineTimer &until)
{
    for (int seen = 1; !m_levels.empty(); ++seen) {
        Level &level = m_levels.back();
        if (level.isDone()) {
            leave();
            continue;
        }
        const qsizetype at = level.next++;
        const CatalogStructureNodeI &child = *level.children.at(at);
        if (isProject(child))
            decide(level, child);
        else
            enter(child, level.item ? level.item->children.value(at) : nullptr);
        if (seen >= LeastInARun && seen % BetweenLooks == 0 && until.hasExpired())
            return false;
    }
    return true;
}

CatalogFilterWalk::Decided CatalogFilterWalk::takeDecided()
{
    return std::exchange(m_decided, {});
}

void CatalogFilterWalk::enter(const CatalogStructureNodeI &directory,
                              const CatalogStructureItem *item)
{
    const bool hasRows = item && item->childrenLoaded;
    m_levels.push_back({&directory, hasRows ? item : nullptr, directory.getChildren()});
}

/// On each that is a row, of the others until one is accepted.
void CatalogFilterWalk::decide(Level &level, const CatalogStructureNodeI &project)
{
    if (level.isAccepted && !level.item)
        return;
    const bool isAccepted = m_accepts(project);
    level.isAccepted = level.isAccepted || isAccepted;
    if (level.item)
        m_decided.insert(&project, isAccepted);
}

void CatalogFilterWalk::leave()
{
    const Level left = std::move(m_levels.back());
    m_levels.pop_back();
    m_decided.insert(left.node, left.isAccepted);
    if (left.isAccepted && !m_levels.empty())
        m_levels.back().isAccepted = true;
}
