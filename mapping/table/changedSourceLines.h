#pragma once

#include <geomcore/records/PrjMappingC.h>

#include <optional>
#include <vector>

/// Ids of the source lines whose entries differ in any target, ascending and each once. Nothing if
/// the targets themselves differ, so that any line may be concerned; a target that was added or
/// taken away at the end is no such difference.
[[nodiscard]] std::optional<std::vector<int>> changedSourceLines(const PrjMappingC &before,
                                                                 const PrjMappingC &after);
