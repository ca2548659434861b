#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QStringView>

namespace Mapper {

/// How far the paths of two projects say that they are the same project.
enum class NameRank {
    Other = 1, ///< Nothing speaks for it.
    Name = 2,  ///< Equal file names, but for case, ending and all that is neither letter nor digit.
    Path = 3,  ///< Equal paths below the catalog.
};

/// Paths relative to the catalog root; the first component, the catalog, does not count.
[[nodiscard]] VELKGEOMCORE_EXPORT NameRank nameRank(QStringView sourcePath, QStringView targetPath);

} // namespace Mapper
