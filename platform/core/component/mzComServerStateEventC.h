#pragma once

#include <core/VelkCoreGlobal.h>

#include <QtGlobal>

/// Somebody who wants to know when the component server starts and stops, such as a library with
/// script classes. The host starts the server once all libraries are loaded. One thread.
class VELKCORE_EXPORT mzComServerStateEventC
{
public:
    enum Event { ServerStarted = 0x10, ServerStopping = 0x40 };

    /// \a events is a sum of Event values.
    explicit mzComServerStateEventC(int events);
    /// Leaves the server.
    virtual ~mzComServerStateEventC();
    Q_DISABLE_COPY_MOVE(mzComServerStateEventC)

    /// 0 means success; anything else is reported to the log window.
    virtual int serverStart();
    virtual void serverDone();

    /// Joins the server; on a running one serverStart() is called at once.
    void init();
    [[nodiscard]] int events() const { return m_events; }

private:
    int m_events;
};
