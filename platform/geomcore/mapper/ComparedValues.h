#pragma once

#include "LineInput.h"

namespace Mapper {

class SourceTable;

/// Whether so many values of a line have a counterpart in the target that equal ones mean
/// something: all of them, or at least two and half of them.
[[nodiscard]] bool enoughCompared(int compared, int values);
[[nodiscard]] int countValues(const LineInput &line, const SourceTable &source);

} // namespace Mapper
