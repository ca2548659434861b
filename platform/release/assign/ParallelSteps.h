#pragma once

#include <release/VelkReleaseGlobal.h>

#include <atomic>
#include <functional>

class PProgress;

namespace VelkRelease {

/// Runs \a step for 0 to \a count - 1 on all cores, in no certain order, and counts each one on the
/// progress of the calling thread. \a step may be called on several threads at once and throws
/// nothing. False if the progress was cancelled: then steps may not have been made.
[[nodiscard]] VELKRELEASE_EXPORT bool
runParallelSteps(int count, const std::function<void(int)> &step, PProgress &progress);

/// The same for work that another thread breaks off by \a cancelled; \a tell, where there is one,
/// is called on the calling thread with the number of steps made so far.
[[nodiscard]] VELKRELEASE_EXPORT bool runParallelSteps(int count,
                                                       const std::function<void(int)> &step,
                                                       const std::atomic<bool> &cancelled,
                                                       const std::function<void(int)> &tell = {});

} // namespace VelkRelease
