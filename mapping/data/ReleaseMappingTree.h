#pragma once

#include "CatalogStructureNodeI.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <QList>
#include <QPair>
#include <QString>

#include <boost/shared_ptr.hpp>

/// Names a project in the tree of a release: source path and source version.
using ProjectKey = QPair<QString, QString>;

/// Nodes for the projects in \a keys, seen from a directory at \a depth components (1 for the
/// root): first the directories, sorted by code units, then the projects that lie right here, in
/// the order of \a keys. A backslash separates like "/", yet the keys are handed on as they are.
[[nodiscard]] QList<boost::shared_ptr<CatalogStructureNodeI>>
buildReleaseChildren(const QList<ProjectKey> &keys,
                     const boost::shared_ptr<ReleaseMappingC> &release, int depth);
