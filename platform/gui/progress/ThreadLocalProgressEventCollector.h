#pragma once

#include "ProgressEventAccumulatorBase.h"

#include <core/progress/PProgressObserverBase.h>

/// Hands the progress events of a worker thread to an accumulator. Made, activated and deleted on
/// the worker thread.
class VELKGUI_EXPORT ThreadLocalProgressEventCollector : public PProgressObserverBase
{
public:
    /// The accumulator is not owned. With nested false only outermost progresses are told.
    ThreadLocalProgressEventCollector(ProgressEventAccumulatorBase *accumulator, bool nested);
    ~ThreadLocalProgressEventCollector() override;

    void progressStarted(const PProgressInfo &info) override;
    void progressChanged(const PProgressInfo &info) override;
    void progressText(const PProgressInfo &info) override;
    void progressDone(const PProgressInfo &info) override;

private:
    void post(PProgressEvent event, const PProgressInfo &info);

    ProgressEventAccumulatorBase *const m_accumulator;
    const bool m_nested;
};
