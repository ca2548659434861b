#pragma once

#include <core/VelkCoreGlobal.h>

#include <QList>

class mzComServerStateEventC;

/// The component server: while it runs, scripts can make components. The host starts and stops it.
/// One thread.
class VELKCORE_EXPORT mzComServerC
{
public:
    /// Can be used while a library loads.
    static mzComServerC &instance();

    /// Tells all who joined, in the order in which they did. Does nothing on a running server.
    void start();
    /// Tells all who joined, the last one first. Does nothing on a stopped server.
    void stop();
    [[nodiscard]] bool isRunning() const { return m_isRunning; }

    /// Once is enough.
    void join(mzComServerStateEventC &member);
    /// For one who goes; it is told nothing.
    void leave(mzComServerStateEventC &member);
    [[nodiscard]] QList<mzComServerStateEventC *> members() const { return m_members; }

private:
    mzComServerC() = default;

    QList<mzComServerStateEventC *> m_members;
    bool m_isRunning = false;
};
