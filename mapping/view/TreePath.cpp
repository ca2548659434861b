#include "TreePath.h"

#include "CatalogStructureItem.h"
#include "CatalogStructureModel.h"

#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/CatalogStructureNodeI.h>

#include <QAbstractProxyModel>
#include <QTreeView>

#include <algorithm>

namespace {

using Node = boost::shared_ptr<CatalogStructureNodeI>;

/// What is looked for; an empty version stands for any.
struct Project
{
    QString path;
    QString version;
};

bool isProject(const CatalogStructureNodeI &node, const Project &project)
{
    return node.getPath() == project.path && node.getNodeType() == CatalogNodeType::Project &&
           (project.version.isEmpty() || node.getMapping().getSourceVersion() == project.version);
}

/// Looks for nodes, most of which are no rows yet.
class Search
{
public:
    explicit Search(QAbstractItemModel *model)
        : m_proxy(qobject_cast<QAbstractProxyModel *>(model))
        , m_tree(qobject_cast<CatalogStructureModel *>(m_proxy ? m_proxy->sourceModel() : model))
    {
        toTop();
    }

    void toTop()
    {
        m_rows.clear();
        m_node = m_tree ? m_tree->rootItem().node : Node();
    }
    /// To the directory of this name in the one reached so far.
    bool enter(const QString &name)
    {
        const QList<Node> children = m_node ? m_node->getChildren() : QList<Node>();
        const auto found = std::ranges::find_if(children, [&name](const Node &child) {
            return child->getName() == name && !child->getChildren().isEmpty();
        });
        if (found == children.end())
            return false;
        m_rows += int(found - children.begin());
        m_node = *found;
        return true;
    }
    /// Of the node reached so far; not valid if it is the root or hidden.
    [[nodiscard]] QModelIndex index() const
    {
        QModelIndex index;
        for (const int row : m_rows) {
            m_tree->fetchRow(row, index);
            index = m_tree->index(row, 0, index);
        }
        return m_proxy ? m_proxy->mapFromSource(index) : index;
    }
    /// In the directory reached so far, or anywhere below it.
    QModelIndex find(const Project &project, bool deep)
    {
        if (!m_node)
            return {};
        const Node directory = m_node;
        const QList<Node> children = directory->getChildren();
        QModelIndex found;
        for (int row = 0; row < children.size() && !found.isValid(); ++row) {
            m_rows += row;
            m_node = children.at(row);
            if (isProject(*m_node, project))
                found = index();
            else if (deep)
                found = find(project, true);
            m_rows.removeLast();
        }
        m_node = directory;
        return found;
    }

private:
    const QAbstractProxyModel *const m_proxy;
    CatalogStructureModel *const m_tree;
    Node m_node;
    QList<int> m_rows; ///< on the way to it
};

void noteExpanded(const QTreeView &tree, const QModelIndex &parent, const QString &path,
                  QStringList &paths)
{
    const QAbstractItemModel *const model = tree.model();
    for (int row = 0; row < model->rowCount(parent); ++row) {
        const QModelIndex child = model->index(row, 0, parent);
        if (!tree.isExpanded(child))
            continue;
        paths << path + child.data().toString();
        noteExpanded(tree, child, paths.last() + '/', paths);
    }
}

} // namespace

QStringList TreePath::expanded(const QTreeView &tree)
{
    QStringList paths;
    noteExpanded(tree, QModelIndex(), QString(), paths);
    return paths;
}

void TreePath::expand(QTreeView &tree, const QStringList &paths)
{
    for (const QString &path : paths) {
        Search search(tree.model());
        const QStringList names = path.split('/');
        if (!std::ranges::all_of(names, [&](const QString &name) { return search.enter(name); }))
            continue;
        if (const QModelIndex index = search.index(); index.isValid())
            tree.expand(index);
    }
}

QModelIndex TreePath::find(QAbstractItemModel *model, const QString &sourcePath,
                           const QString &sourceVersion)
{
    const Project project{sourcePath, sourceVersion};
    Search search(model);
    const QStringList names = sourcePath.split('/').mid(0, sourcePath.count('/'));
    (void)std::ranges::all_of(names, [&](const QString &name) { return search.enter(name); });
    const QModelIndex found = search.find(project, false);
    if (found.isValid())
        return found;
    search.toTop();
    return search.find(project, true);
}
