#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QStringList>

namespace VKTab {

/// A name of its own for every column. A name stays as it is written, also one that differs from
/// another in case alone; a column without a name gets "Column3" (its place, from 1), and a name
/// that stood before gets the first free suffix "_2", "_3" ...
[[nodiscard]] VELKGEOMCORE_EXPORT QStringList uniqueColumnNames(const QStringList &header);

} // namespace VKTab
