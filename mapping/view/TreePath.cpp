#include "TreePath.h"

#include "CatalogStructureModel.h"

#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/CatalogStructureNodeI.h>
#include <mapping/data/LookUpTreeI.h>

#include <QAbstractProxyModel>
#include <QTreeView>

namespace {

using Node = CatalogStructureModel::Node;

/// A tree as a view shows it; indexes are the source's.
class Tree
{
public:
    explicit Tree(const QAbstractItemModel *model)
        : m_proxy(qobject_cast<const QAbstractProxyModel *>(model))
        , m_source(
              qobject_cast<const CatalogStructureModel *>(m_proxy ? m_proxy->sourceModel() : model))
    {
    }
    [[nodiscard]] const CatalogStructureModel *operator->() const { return m_source; }
    /// Not valid if it is hidden.
    [[nodiscard]] QModelIndex shown(const QModelIndex &index) const
    {
        return m_proxy ? m_proxy->mapFromSource(index) : index;
    }
    /// Those that may have rows.
    [[nodiscard]] QModelIndexList directories(const QModelIndex &parent) const
    {
        QModelIndexList found;
        const QList<Node> &nodes = m_source->nodesBelow(parent);
        for (int row = 0; row < nodes.size(); ++row) {
            if (!CatalogNodeType::isProject(nodes.at(row)->getNodeType()))
                found += m_source->index(row, 0, parent);
        }
        return found;
    }
    /// Not valid if there is none of this name with anything in it.
    [[nodiscard]] QModelIndex directory(const QString &name, const QModelIndex &parent) const
    {
        for (const QModelIndex &index : directories(parent)) {
            if (m_source->nodeAt(index)->getName() == name && m_source->hasChildren(index))
                return index;
        }
        return {};
    }

private:
    const QAbstractProxyModel *const m_proxy;
    const CatalogStructureModel *const m_source;
};

/// Looks for a project that is shown; an empty version stands for any.
class Search
{
public:
    Search(const Tree &tree, const QString &path, const QString &version)
        : m_tree(tree)
        , m_path(path)
        , m_version(version)
    {
    }
    /// One of those that a root knows of.
    [[nodiscard]] QModelIndex among(const QList<QList<int>> &ways) const
    {
        for (const QList<int> &rows : ways) {
            QModelIndex index;
            for (const int row : rows)
                index = m_tree->index(row, 0, index);
            if (const QModelIndex shown = shownIfWanted(index); shown.isValid())
                return shown;
        }
        return {};
    }
    [[nodiscard]] QModelIndex in(const QModelIndex &directory) const
    {
        QModelIndex found;
        const qsizetype rows = m_tree->nodesBelow(directory).size();
        for (int row = 0; row < rows && !found.isValid(); ++row)
            found = shownIfWanted(m_tree->index(row, 0, directory));
        return found;
    }
    [[nodiscard]] QModelIndex below(const QModelIndex &directory) const
    {
        QModelIndex found;
        const qsizetype rows = m_tree->nodesBelow(directory).size();
        for (int row = 0; row < rows && !found.isValid(); ++row) {
            const QModelIndex index = m_tree->index(row, 0, directory);
            found = shownIfWanted(index);
            if (!found.isValid() && m_tree->hasChildren(index))
                found = below(index);
        }
        return found;
    }

private:
    [[nodiscard]] QModelIndex shownIfWanted(const QModelIndex &index) const
    {
        const Node &node = m_tree->nodeAt(index);
        const bool isWanted =
            node->getPath() == m_path && node->getNodeType() == CatalogNodeType::Project &&
            (m_version.isEmpty() || node->getMapping().getSourceVersion() == m_version);
        return isWanted ? m_tree.shown(index) : QModelIndex();
    }

    const Tree &m_tree;
    const QString m_path;
    const QString m_version;
};

void noteExpanded(const QTreeView &view, const Tree &tree, const QModelIndex &parent,
                  const QString &path, QStringList &paths)
{
    for (const QModelIndex &index : tree.directories(parent)) {
        const QModelIndex shown = tree.shown(index);
        if (!shown.isValid() || !view.isExpanded(shown))
            continue;
        paths << path + tree->nodeAt(index)->getName();
        noteExpanded(view, tree, index, paths.last() + '/', paths);
    }
}

} // namespace

QStringList TreePath::expanded(const QTreeView &tree)
{
    QStringList paths;
    noteExpanded(tree, Tree(tree.model()), QModelIndex(), QString(), paths);
    return paths;
}

void TreePath::expand(QTreeView &tree, const QStringList &paths)
{
    const Tree nodes(tree.model());
    for (const QString &path : paths) {
        QModelIndex index;
        for (const QString &name : path.split('/')) {
            index = nodes.directory(name, index);
            if (!index.isValid())
                break;
        }
        if (const QModelIndex shown = nodes.shown(index); shown.isValid())
            tree.expand(shown);
    }
}

QModelIndex TreePath::find(const QAbstractItemModel *model, const QString &sourcePath,
                           const QString &sourceVersion)
{
    const Tree tree(model);
    const Search search(tree, sourcePath, sourceVersion);
    if (const auto *const root = dynamic_cast<const LookUpTreeI *>(tree->nodeAt({}).get()))
        return search.among(root->rowsTo(sourcePath));
    QModelIndex directory;
    for (const QString &name : sourcePath.split('/').mid(0, sourcePath.count('/'))) {
        const QModelIndex next = tree.directory(name, directory);
        if (!next.isValid())
            break;
        directory = next;
    }
    const QModelIndex found = search.in(directory);
    return found.isValid() ? found : search.below({});
}
