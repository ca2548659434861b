#include "TreePath.h"

#include "CatalogStructureModel.h"

#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/CatalogStructureNodeI.h>

#include <QAbstractItemModel>
#include <QTreeView>

namespace {

/// What is looked for; an empty version stands for any.
struct Project
{
    QString path;
    QString version;
};

bool isProject(const QModelIndex &index, const Project &project)
{
    const auto node =
        CatalogStructureModel::nodeFrom(index.data(CatalogStructureModel::StructureNodeRole));
    return node && node->getNodeType() == CatalogNodeType::Project &&
           node->getPath() == project.path &&
           (project.version.isEmpty() || node->getMapping().getSourceVersion() == project.version);
}

/// Fetches rows as far as it takes.
bool hasRow(QAbstractItemModel *model, int row, const QModelIndex &parent)
{
    while (row >= model->rowCount(parent) && model->canFetchMore(parent))
        model->fetchMore(parent);
    return row < model->rowCount(parent);
}

QModelIndex childNamed(QAbstractItemModel *model, const QModelIndex &parent, const QString &name)
{
    for (int row = 0; hasRow(model, row, parent); ++row) {
        const QModelIndex child = model->index(row, 0, parent);
        if (child.data().toString() == name && model->hasChildren(child))
            return child;
    }
    return {};
}

QModelIndex findBelow(QAbstractItemModel *model, const QModelIndex &parent, const Project &project,
                      bool deep)
{
    for (int row = 0; hasRow(model, row, parent); ++row) {
        const QModelIndex child = model->index(row, 0, parent);
        if (isProject(child, project))
            return child;
        if (!deep)
            continue;
        const QModelIndex found = findBelow(model, child, project, true);
        if (found.isValid())
            return found;
    }
    return {};
}

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
        QModelIndex index;
        const QStringList names = path.split('/');
        for (const QString &name : names) {
            index = childNamed(tree.model(), index, name);
            if (!index.isValid())
                break;
        }
        if (index.isValid())
            tree.expand(index);
    }
}

QModelIndex TreePath::find(QAbstractItemModel *model, const QString &sourcePath,
                           const QString &sourceVersion)
{
    const Project project{sourcePath, sourceVersion};
    QModelIndex parent;
    const QStringList names = sourcePath.split('/').mid(0, sourcePath.count('/'));
    for (const QString &name : names) {
        const QModelIndex child = childNamed(model, parent, name);
        if (!child.isValid())
            break;
        parent = child;
    }
    const QModelIndex found = findBelow(model, parent, project, false);
    return found.isValid() ? found : findBelow(model, QModelIndex(), project, true);
}
