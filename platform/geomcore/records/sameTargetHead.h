#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

class PrjMappingC;
class PrjMappingTargetC;

/// Whether two targets agree in all but their lines: path, versions, validity, conditions and
/// modifiers in order. Quick for targets that share their content.
[[nodiscard]] VELKGEOMCORE_EXPORT bool sameTargetHead(const PrjMappingTargetC &a,
                                                      const PrjMappingTargetC &b);
/// Whether two valid mappings have as many targets, each with the same head.
[[nodiscard]] VELKGEOMCORE_EXPORT bool sameTargetHeads(const PrjMappingC &a, const PrjMappingC &b);
