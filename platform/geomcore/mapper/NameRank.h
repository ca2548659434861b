#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QStringView>

namespace Mapper {

/// How far the paths of two projects say that they are the same project.
enum class NameRank {
    Other = 1, ///< Nothing speaks for it.
    Name = 2,  ///< File names of the same runs of letters and of digits, but for case and ending.
    Path = 3,  ///< Equal paths below the catalog.
};

/// Paths relative to the catalog root; the first component, the catalog, does not count.
[[nodiscard]] VELKGEOMCORE_EXPORT NameRank nameRank(QStringView sourcePath, QStringView targetPath);

} // namespace Mapper
