#pragma once

#include "ProgressEventAccumulatorBase.h"

#include <memory>

class ProgressEventAccumulatorPrivate;

/// Brings progress from worker threads to the observer that is active where and when it is made,
/// normally the GUI thread's DefaultObserverDelegate. That thread has to process events. Outlives
/// the workers; made and deleted on one thread, which hears of the rest at the end.
class VELKGUI_EXPORT ProgressEventAccumulator : public ProgressEventAccumulatorBase
{
public:
    /// Tells every `milliseconds` at most. `limit` is the number of waiting events above which the
    /// oldest intermediate states are dropped, -1 for none; beginnings and ends are never dropped.
    ProgressEventAccumulator(int milliseconds, int limit);
    ~ProgressEventAccumulator() override;

    void post(PProgressEvent event, const PProgressInfo &info) override;

private:
    std::unique_ptr<ProgressEventAccumulatorPrivate> d;
};
