#pragma once

#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/ContentRef.h>

#include <QList>

/// Tables of a project and, if wanted, of its target projects in the directory of the new release:
/// read on another thread, while the loop goes on without input by the user. As long as they are
/// held, whoever opens them has nothing to read. GUI thread.
[[nodiscard]] QList<VKTab::ContentRef> readTablesAhead(const ReleaseMappingC &release,
                                                       const QString &sourceRoot,
                                                       const QString &sourcePath, bool withTargets);
