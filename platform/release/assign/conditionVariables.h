#pragma once

#include <QStringList>

class PrjMappingC;

namespace VelkRelease {

/// Names that any condition of any target reads, each once: their value ranges are walked value by
/// value.
[[nodiscard]] QStringList conditionVariables(const PrjMappingC &mapping);

} // namespace VelkRelease
