#pragma once

#include "MappingDifference.h"

#include <QList>

/// What a change of a mapping lost or left undone without a word of the editor: confirmed expired
/// lines, conditions, variable mappings, lines that were not assigned anew, and target lines that
/// were confirmed for a second line. \a after is the mapping after the change.
[[nodiscard]] QList<ChangeNotice> stepNotices(const MappingDifference &difference,
                                              const PrjMappingC &after);
