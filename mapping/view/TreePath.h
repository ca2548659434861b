#pragma once

#include <QModelIndex>

#include <QStringList>

QT_BEGIN_NAMESPACE
class QAbstractItemModel;
class QTreeView;
QT_END_NAMESPACE

/// Finds projects in the catalog's tree, or in a proxy of it.
class TreePath
{
public:
    /// Asks a root that is a LookUpTreeI; else looks where the path's components lead, then
    /// everywhere. An empty version stands for any. Not valid if there is none.
    [[nodiscard]] static QModelIndex find(const QAbstractItemModel *model,
                                          const QString &sourcePath, const QString &sourceVersion);

    /// Paths of the directories that are open, parents first.
    [[nodiscard]] static QStringList expanded(const QTreeView &tree);
    static void expand(QTreeView &tree, const QStringList &paths);
};
