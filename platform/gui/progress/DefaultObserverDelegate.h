#pragma once

#include <gui/VelkGuiGlobal.h>

#include <core/progress/PProgressObserverBase.h>

#include <memory>

class DefaultObserverDelegatePrivate;
class ProgressDisplayI;

/// Shows the progresses of the GUI thread, and those that a ProgressEventAccumulator brings there.
///
/// The display appears when work has gone on for half a second. Meanwhile events are processed
/// every 100 ms at most, and from activate() to deactivate() input to other windows than the
/// display and dialogs opened since is dropped, but that Escape cancels what is shown; a request to
/// quit waits for the end.
///
/// In a program without QApplication, on another thread than the GUI's, or inside another delegate
/// it does nothing: the observer that is active already goes on hearing of everything.
class VELKGUI_EXPORT DefaultObserverDelegate : public PProgressObserverBase
{
public:
    DefaultObserverDelegate();
    ~DefaultObserverDelegate() override;

    void activate(int scope) override;
    void deactivate() override;

    void progressStarted(const PProgressInfo &info) override;
    void progressChanged(const PProgressInfo &info) override;
    void progressText(const PProgressInfo &info) override;
    void progressDone(const PProgressInfo &info) override;

    /// What all delegates show progress with; null brings back the small window. GUI thread, while
    /// no delegate is active.
    static void setDisplay(std::shared_ptr<ProgressDisplayI> display);
    /// Milliseconds of work after which the display appears, and between its changes; 500 and 100
    /// at first. GUI thread.
    static void setTimes(int delay, int interval);

private:
    /// True if the event belongs to the GUI thread and was passed on to the outer observer.
    bool take(PProgressEvent event, const PProgressInfo &info);

    std::unique_ptr<DefaultObserverDelegatePrivate> d;
};
