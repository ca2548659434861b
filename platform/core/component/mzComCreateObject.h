#pragma once

#include "mzComPtrC.h"

#include <core/VelkCoreGlobal.h>

/// Makes an object of the class with that component id and gives one of its interfaces. Another
/// number than 0 and an empty pointer if that cannot be.
[[nodiscard]] VELKCORE_EXPORT int mzComCreateObject(const char *id, const mzIIDS &interfaceId,
                                                    mzComPtrC &result);
