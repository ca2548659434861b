#pragma once

#include "MappingDifference.h"

#include <QList>

/// What a change of a mapping lost or left undone without a word of the editor: confirmed expired
/// lines, conditions, variable mappings, and lines that were not assigned anew.
[[nodiscard]] QList<ChangeNotice> stepNotices(const MappingDifference &difference);
