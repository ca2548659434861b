#pragma once

#include "VarsetMappingRunnable.h"

#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressEventAccumulator.h>

/// Has a VarsetMappingRunnable work on a thread of its own while the window stays alive and shows
/// the progress, for as long as the run is there. GUI thread.
class RangeRun
{
public:
    /// The task's accumulator is replaced by the run's own.
    explicit RangeRun(const VarsetMappingRunnable::Task &task);
    RangeRun(const RangeRun &) = delete;
    RangeRun &operator=(const RangeRun &) = delete;

    /// Returns when all lines are done. Delivers events meanwhile, so that the caller may be gone
    /// afterwards.
    void exec();
    /// To be called before the view goes: the run does without it from then on.
    void forgetTargetView() { m_runnable.forgetTargetView(); }

    // After the run.
    [[nodiscard]] PrjMappingC getMapping() const { return m_runnable.getMapping(); }
    [[nodiscard]] bool isChanged() const { return m_runnable.isChanged(); }

private:
    struct ActiveObserver
    {
        ActiveObserver() { delegate.activate(PProgressObserverBase::Thread); }
        DefaultObserverDelegate delegate;
    };

    const ActiveObserver m_observer; // before the accumulator, which tells it
    ProgressEventAccumulator m_accumulator{500, -1};
    VarsetMappingRunnable m_runnable;
};
