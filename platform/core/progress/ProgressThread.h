#pragma once

#include "PProgressObserverNode.h"

class PProgress;

namespace Internal {

/// What goes on in one thread.
struct ProgressThread
{
    std::shared_ptr<PProgressObserverNode> observer; ///< of scope thread, possibly closed
    PProgress *innermost = nullptr;
    /// The progress of another thread round those of this one.
    std::shared_ptr<PProgressCancel> cancel;
    quint64 id = 0;
    int depth = 0;
};

[[nodiscard]] ProgressThread &progressThread();

} // namespace Internal
