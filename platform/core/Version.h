#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>

/// Version of the whole product, for "--version" and file headers. The same for all its libraries.
[[nodiscard]] VELKCORE_EXPORT QString velkVersion();
