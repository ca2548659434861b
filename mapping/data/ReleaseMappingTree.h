#pragma once

#include "CatalogStructureNodeI.h"
#include "WatchedRelease.h"

#include <QList>

#include <boost/shared_ptr.hpp>

/// Nodes for the projects at \a positions of the release, seen from a directory at \a depth
/// components (1 for the root): first the directories, sorted by code units, then the projects that
/// lie right here, in the order of \a positions. A backslash separates like "/".
[[nodiscard]] QList<boost::shared_ptr<CatalogStructureNodeI>>
buildReleaseChildren(const QList<int> &positions, const boost::shared_ptr<WatchedRelease> &release,
                     int depth);
