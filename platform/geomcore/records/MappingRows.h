#pragma once

#include "PrjMappingTargetLineC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <vector>

class PrjMappingC;

/// An entry of a line in one target of a mapping.
struct MappingRow
{
    int sourceLine = -1;
    int target = -1; ///< index in the mapping
    PrjMappingTargetLineC entry;
};

/// All entries of a mapping by source line, then by target: a line of which several targets hold a
/// part has a row for each.
[[nodiscard]] VELKGEOMCORE_EXPORT std::vector<MappingRow> mappingRows(const PrjMappingC &mapping);
