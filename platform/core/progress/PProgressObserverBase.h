#pragma once

#include "PProgressInfo.h"

#include <core/VelkCoreGlobal.h>

#include <memory>

class PProgressObserverNode;

/// Hears of progresses while it is active. Of nested observers of one thread the innermost one
/// hears of them; outer() leads to the next.
///
/// The operations are called on the thread of the progress. The calls of other threads than the
/// observer's own come one at a time, but may coincide with one of its own thread.
class VELKCORE_EXPORT PProgressObserverBase
{
public:
    /// Whose progresses are heard.
    enum Scope {
        Process = 0, ///< of every thread that has no observer of its own
        Thread =
            1 ///< of this thread, and of those to which it is handed over, see PProgressHandOver
    };

    PProgressObserverBase();
    virtual ~PProgressObserverBase();
    PProgressObserverBase(const PProgressObserverBase &) = delete;
    PProgressObserverBase &operator=(const PProgressObserverBase &) = delete;

    /// Begins with the scope's number. On this thread until deactivate(); a second call does
    /// nothing.
    virtual void activate(int scope);
    /// Ends it on the thread of activate() and waits for calls of other threads that are under way.
    /// A derived class calls it first thing in its destructor.
    virtual void deactivate();
    [[nodiscard]] bool isActive() const { return m_node != nullptr; }

    using Maker = std::unique_ptr<PProgressObserverBase> (*)();
    /// What ofWait() takes; null for nothing, as at first. For a program with windows. Any thread.
    static void setMakerForWaits(Maker maker);
    /// An observer, active on this thread, for somebody who has begun to wait and tells so by a
    /// progress: null if one is active already. It is to end after the progress.
    [[nodiscard]] static std::unique_ptr<PProgressObserverBase> ofWait();

    virtual void progressStarted(const PProgressInfo &info) = 0;
    virtual void progressChanged(const PProgressInfo &info) = 0;
    /// The text has changed; progressChanged() unless overridden.
    virtual void progressText(const PProgressInfo &info);
    virtual void progressDone(const PProgressInfo &info) = 0;

protected:
    /// The observer that was active when this one became it, null if there is none any more.
    [[nodiscard]] std::shared_ptr<PProgressObserverNode> outer() const;

private:
    std::shared_ptr<PProgressObserverNode> m_node;
};
