#pragma once

#include "CsvScan.h"

namespace VKTab {

/// Runs \a scan, which was just made for all rows of \a bytes from \a begin on, with the threads of
/// WorkerPool. Result and errors are those of CsvScan::run(), whatever the number of threads.
/// \a partSize: bytes that are worth a thread's while.
[[nodiscard]] bool scanInParts(CsvScan &scan, qsizetype partSize = 1 << 20);

} // namespace VKTab
