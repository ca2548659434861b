#pragma once

#include <geomcore/project/PrjClass.h>
#include <geomcore/VelkGeomCoreGlobal.h>

namespace VKTab {

/// Turns a project's reference to its table into one that holds where the project was read from. A
/// reference may be written relative to the project's directory or, beginning with the catalog's
/// name, relative to the catalog root; afterwards it is relative to the project's directory. \a
/// catalogPath is the project's own path in the catalog, "catalog/folder/name.prj". For projects
/// that were read with keepRelative; absolute references stay as they are.
VELKGEOMCORE_EXPORT void makeSachmRelativeToCatalog(const refHandle<PrjClass> &project,
                                                    const QString &catalogPath);

} // namespace VKTab
