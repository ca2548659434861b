#pragma once

#include <core/text/ProxyPtrT.h>
#include <geomcore/table/proxyTableC.h>

#include <QString>

/// The table of a project, all lines. \a path is the project's below the root of its catalogs, as
/// mappings have it; without a root that of the file. What keeps it from being read is an error of
/// the script, with the file's name.
[[nodiscard]] ProxyPtrT<VKTab::proxyTableC> readScriptTable(const QString &root,
                                                            const QString &path);
