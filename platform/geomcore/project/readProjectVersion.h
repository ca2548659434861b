#pragma once

#include <core/text/PString.h>
#include <geomcore/VelkGeomCoreGlobal.h>

/// Version under which a project's documents are kept: "VERSION" in the section of the project's
/// file name in "verhist.cfg" beside it, else the project's lexeme "VERSIONPRJ", else "v1". Has
/// nothing to do with the version of mapping records, which is made of the project's date.
[[nodiscard]] VELKGEOMCORE_EXPORT PString readProjectVersion(const PString &path);
