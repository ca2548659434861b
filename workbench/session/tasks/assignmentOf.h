#pragma once

#include <geomcore/records/PrjMappingC.h>

#include <utility>

/// Where a line is assigned to, as target and target line; -1 twice if nowhere. An entry without
/// target line does not count.
[[nodiscard]] std::pair<int, int> assignmentOf(const PrjMappingC &mapping, int line);
