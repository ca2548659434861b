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
/// Whether the conditions are the same texts in the same order.
[[nodiscard]] VELKGEOMCORE_EXPORT bool sameConditions(const PrjMappingTargetC &a,
                                                      const PrjMappingTargetC &b);
/// Whether the modifiers are the same in the same order.
[[nodiscard]] VELKGEOMCORE_EXPORT bool sameModifiers(const PrjMappingTargetC &a,
                                                     const PrjMappingTargetC &b);
/// Whether two mappings are the same in all: path, versions, state, targets and their lines.
[[nodiscard]] VELKGEOMCORE_EXPORT bool sameMapping(const PrjMappingC &a, const PrjMappingC &b);
