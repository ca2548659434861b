#pragma once

#include "PProgressInfo.h"

#include <core/VelkCoreGlobal.h>

class PProgressObserverNode;

/// Takes a thread's observer over to threads that it starts:
///
///     const PProgressHandOver handOver;                       // on the starting thread
///     std::thread([&] { PProgressHandOver::Receiver r(handOver); ... });
///
/// Progresses of the started thread are nested in the one that ran on the starting thread when it
/// was made, and are cancelled with it. May be copied and outlive what it was made from.
class VELKCORE_EXPORT PProgressHandOver
{
public:
    PProgressHandOver();

    /// On the started thread, as long as the observer is to hear of it.
    class VELKCORE_EXPORT Receiver
    {
    public:
        explicit Receiver(const PProgressHandOver &handOver);
        ~Receiver();
        Receiver(const Receiver &) = delete;
        Receiver &operator=(const Receiver &) = delete;

    private:
        std::shared_ptr<PProgressObserverNode> m_formerObserver;
        std::shared_ptr<PProgressCancel> m_formerCancel;
        quint64 m_formerId = 0;
        int m_formerDepth = 0;
    };

private:
    std::shared_ptr<PProgressObserverNode> m_observer;
    std::shared_ptr<PProgressCancel> m_cancel;
    quint64 m_id = 0;
    int m_depth = 0;
};
