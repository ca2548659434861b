#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

namespace VKTab {

/// Number of a layer type, never 0; the same name gives the same number for the life of the
/// process. Any thread.
VELKGEOMCORE_EXPORT int registerLayerType(const QString &name);

/// Types of the library's own layers.
[[nodiscard]] VELKGEOMCORE_EXPORT int fileLayerType();
[[nodiscard]] VELKGEOMCORE_EXPORT int erpLayerType();
[[nodiscard]] VELKGEOMCORE_EXPORT int modifyLayerType();

} // namespace VKTab

/// First variable id of a layer type; each type has room for 2^20 variables.
[[nodiscard]] VELKGEOMCORE_EXPORT int getLayerIdOffset(int layerType);
