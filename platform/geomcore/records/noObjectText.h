#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QString>

/// What is told of a mapping file that is no JSON object, in the language of the moment.
[[nodiscard]] VELKGEOMCORE_EXPORT QString noObjectText();
