#include "RowsInSight.h"

#include <QScrollBar>
#include <QTreeView>

namespace {

constexpr int Ahead = 200; // rows, so that a page down finds them

} // namespace

RowsInSight::RowsInSight(QTreeView *tree)
    : QObject(tree)
    , m_tree(tree)
{
    m_look.setSingleShot(true);
    m_look.setInterval(0);
    connect(&m_look, &QTimer::timeout, this, &RowsInSight::look);
    const auto soon = qOverload<>(&QTimer::start);
    const QScrollBar *const bar = tree->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, &m_look, soon);
    connect(bar, &QScrollBar::rangeChanged, &m_look, soon);
    connect(tree, &QTreeView::expanded, &m_look, soon);
    connect(tree->model(), &QAbstractItemModel::layoutChanged, &m_look, soon);
    connect(tree->model(), &QAbstractItemModel::rowsInserted, &m_look, soon);
}

void RowsInSight::look() const
{
    QAbstractItemModel *const model = m_tree->model();
    QList<QPersistentModelIndex> wanted;
    const auto want = [&](const QModelIndex &parent) {
        if (model->canFetchMore(parent) && !wanted.contains(parent))
            wanted += parent;
    };
    const int height = m_tree->viewport()->height();
    for (QModelIndex at = m_tree->indexAt({1, 0});
         at.isValid() && m_tree->visualRect(at).top() < height; at = m_tree->indexBelow(at)) {
        if (model->rowCount(at.parent()) - at.row() < Ahead)
            want(at.parent());
        if (m_tree->isExpanded(at) && model->rowCount(at) == 0)
            want(at);
    }
    for (const QPersistentModelIndex &parent : std::as_const(wanted))
        model->fetchMore(parent);
}
