#pragma once

#include <gui/VelkGuiGlobal.h>

#include <core/progress/PProgressInfo.h>

/// Takes events of progresses on any thread and tells them on its own.
class VELKGUI_EXPORT ProgressEventAccumulatorBase
{
public:
    ProgressEventAccumulatorBase() = default;
    virtual ~ProgressEventAccumulatorBase();
    ProgressEventAccumulatorBase(const ProgressEventAccumulatorBase &) = delete;
    ProgressEventAccumulatorBase &operator=(const ProgressEventAccumulatorBase &) = delete;

    virtual void post(PProgressEvent event, const PProgressInfo &info) = 0;
};
