#include "CatalogFilterWalk.h"

#include <mapping/data/FilledNodeI.h>

#include <utility>

namespace {

constexpr int LeastInARun = 2000;
constexpr int BetweenLooks = 64; // at the clock

} // namespace

CatalogFilterWalk::CatalogFilterWalk(const CatalogStructureNodeI &top, const Accepts &accepts)
    : m_accepts(accepts)
{
    enter(top);
}

bool CatalogFilterWalk::isProject(const CatalogStructureNodeI &node)
{
    return node.getName().endsWith(QLatin1String(".prj"));
}

void CatalogFilterWalk::Level::decide(bool stays)
{
    decisions[next - 1] = stays ? Decision::Stays : Decision::Goes;
    isAccepted = isAccepted || stays;
}

bool CatalogFilterWalk::run(const QDeadlineTimer &until)
{
    for (int seen = 1; !m_levels.empty(); ++seen) {
        Level &level = m_levels.back();
        if (level.next == level.children.size()) {
            leave();
            continue;
        }
        const CatalogStructureNodeI &child = *level.children.at(level.next++);
        if (isProject(child))
            level.decide(m_accepts(child));
        else if (!level.isAccepted || m_levels.size() == 1 ||
                 dynamic_cast<const FilledNodeI *>(&child))
            enter(child);
        if (seen >= LeastInARun && seen % BetweenLooks == 0 && until.hasExpired())
            return false;
    }
    return true;
}

CatalogFilterWalk::Decided CatalogFilterWalk::takeDecided()
{
    return std::exchange(m_decided, {});
}

void CatalogFilterWalk::enter(const CatalogStructureNodeI &directory)
{
    const QList<Node> children = directory.getChildren();
    m_levels.push_back(
        {&directory, children, QList<Decision>(children.size(), Decision::None), 0, false});
}

void CatalogFilterWalk::leave()
{
    const Level left = std::move(m_levels.back());
    m_levels.pop_back();
    m_decided.insert(left.node, left.decisions);
    if (m_levels.empty())
        m_isAccepted = left.isAccepted;
    else
        m_levels.back().decide(left.isAccepted);
}
