#include "CatalogFilterModel.h"

#include "CatalogStructureModel.h"

#include <mapping/data/CatalogStructureNodeI.h>

#include <geomcore/records/PRJMAPPING.h>

#include <chrono>

namespace {

constexpr std::chrono::milliseconds Turn{8}; // the rest of a picture's time is for others

bool acceptsState(int state, bool onlyTarget, bool onlyNoTarget)
{
    using namespace PRJMAPPING;
    if (onlyNoTarget)
        return state & StateUnmapped;
    if (onlyTarget)
        return !(state & StateUnmapped) && (state & (StateUnverified | StateIncomplete));
    return state & (StateTableError | StateUnmapped | StateUnverified | StateIncomplete);
}

} // namespace

CatalogFilterModel::CatalogFilterModel(QObject *parent)
    : QSortFilterProxyModel(parent)
{
    m_turn.setSingleShot(true);
    m_turn.setInterval(0);
    connect(&m_turn, &QTimer::timeout, this, [this] { goOn(); });
    // Before any view hears of it.
    const auto forget = [this] {
        m_siblings = {};
    };
    connect(this, &QAbstractItemModel::layoutAboutToBeChanged, this, forget);
    connect(this, &QAbstractItemModel::layoutChanged, this, forget);
    connect(this, &QAbstractItemModel::rowsInserted, this, forget);
    connect(this, &QAbstractItemModel::rowsRemoved, this, forget);
    connect(this, &QAbstractItemModel::modelReset, this, forget);
}

CatalogFilterModel::~CatalogFilterModel() = default;

CatalogFilterModel::Accepts CatalogFilterModel::settings() const
{
    if (!filterToCheck && !hostFilter)
        return {};
    return [host = hostFilter, toCheck = filterToCheck, target = filterTarget,
            noTarget = filterNoTarget](const CatalogStructureNodeI &project) {
        return (!host || host(project.getMapping())) &&
               (!toCheck || acceptsState(project.getMappingState().toInt(), target, noTarget));
    };
}

void CatalogFilterModel::invalidate()
{
    m_walk.reset();
    m_wanted = settings();
    const auto *const source = qobject_cast<const CatalogStructureModel *>(sourceModel());
    if (!source || !m_wanted || !source->nodeAt({}))
        return apply();
    m_walk = std::make_unique<CatalogFilterWalk>(*source->nodeAt({}), m_wanted);
    goOn();
}

void CatalogFilterModel::goOn()
{
    if (m_walk && m_walk->run(QDeadlineTimer(Turn)))
        apply();
    else if (m_walk)
        m_turn.start();
}

void CatalogFilterModel::finish()
{
    if (m_walk && m_walk->run(QDeadlineTimer(QDeadlineTimer::Forever)))
        apply();
}

void CatalogFilterModel::apply()
{
    m_turn.stop();
    m_decided = m_walk ? m_walk->takeDecided() : CatalogFilterWalk::Decided();
    m_walk.reset();
    m_accepts = m_wanted;
    QSortFilterProxyModel::invalidate();
    if (onApplied)
        onApplied();
}

bool CatalogFilterModel::hasChildren(const QModelIndex &parent) const
{
    if (!sourceModel() || (m_accepts && !parent.isValid()))
        return QSortFilterProxyModel::hasChildren(parent);
    return sourceModel()->hasChildren(mapToSource(parent)); // no directory in sight is empty
}

Qt::ItemFlags CatalogFilterModel::flags(const QModelIndex &index) const
{
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): as the source's, which is not asked for that
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    if (!index.isValid())
        return flags;
    if (index.internalPointer() != m_siblings.pointer)
        noteSiblings(index);
    return flags.setFlag(Qt::ItemNeverHasChildren, index.row() >= m_siblings.projectsFrom);
}

void CatalogFilterModel::noteSiblings(const QModelIndex &index) const
{
    const auto *const source = static_cast<const CatalogStructureModel *>(sourceModel());
    const QModelIndex parent = index.parent();
    const int sourceRow = source->projectsFrom(mapToSource(parent));
    // They stand in the order of the source.
    int first = 0;
    for (int last = rowCount(parent); first < last;) {
        const int middle = first + (last - first) / 2;
        if (mapToSource(this->index(middle, 0, parent)).row() < sourceRow)
            first = middle + 1;
        else
            last = middle;
    }
    m_siblings = {index.internalPointer(), first};
}

bool CatalogFilterModel::filterAcceptsRow(int sourceRow, const QModelIndex &sourceParent) const
{
    using Decision = CatalogFilterWalk::Decision;
    if (!m_accepts)
        return QSortFilterProxyModel::filterAcceptsRow(sourceRow, sourceParent);
    const auto *const source = static_cast<const CatalogStructureModel *>(sourceModel());
    const auto known = m_decided.constFind(source->nodeAt(sourceParent).get());
    const Decision decision =
        known == m_decided.cend() ? Decision::None : known->value(sourceRow, Decision::None);
    if (decision != Decision::None)
        return decision == Decision::Stays;
    return decide(*source->nodesBelow(sourceParent).at(sourceRow));
}

/// On one that the walk left out.
bool CatalogFilterModel::decide(const CatalogStructureNodeI &node) const
{
    if (CatalogFilterWalk::isProject(node))
        return m_accepts(node);
    CatalogFilterWalk walk(node, m_accepts);
    (void)walk.run(QDeadlineTimer(QDeadlineTimer::Forever));
    m_decided.insert(walk.takeDecided());
    return walk.isAccepted();
}
