#pragma once

#include <geomcore/csv/TableError.h>

namespace VKTab {

/// Writes what reading a project met to the log window, unless that was told of this project the
/// last time already: who selects a project again need not read it again. Any thread.
VELKGEOMCORE_EXPORT void tellTableErrors(const QString &project, const TableErrorList &errors);

} // namespace VKTab
