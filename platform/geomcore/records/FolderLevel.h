#pragma once

#include "ReleaseMappingC.h"

#include <QList>
#include <QMap>
#include <QString>

/// Projects of a release seen from one directory of its catalog, told apart by one component of
/// their source paths. A backslash separates like "/".
struct VELKGEOMCORE_EXPORT FolderLevel
{
    /// \a positions are those in the release; \a depth counts components, 1 for the catalog itself.
    FolderLevel(const ReleaseMappingC &release, const QList<int> &positions, int depth);

    QMap<QString, QList<int>> folders; ///< what lies below each, sorted by code units
    QList<int> projects;               ///< those that lie right here, in the order given
};

/// The folders that a source path leads through, by the same rule; views of \a path.
[[nodiscard]] VELKGEOMCORE_EXPORT QList<QStringView> foldersOf(QStringView path);

/// The positions of all projects in the order in which a tree of the catalog shows them: folders
/// before projects. Of several with the same path and version the first one stands for all.
[[nodiscard]] VELKGEOMCORE_EXPORT QList<int> folderOrder(const ReleaseMappingC &release);
