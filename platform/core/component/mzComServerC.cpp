#include "mzComServerC.h"

#include "mzComServerStateEventC.h"

#include <core/message/PMessage.h>

#include <algorithm>

namespace {

void tellStart(mzComServerStateEventC &member)
{
    if (!(member.events() & mzComServerStateEventC::ServerStarted))
        return;
    if (const int result = member.serverStart(); result != 0) {
        PMessage::LogToWindow(
            QStringLiteral("A script component could not be registered (error %1)").arg(result));
    }
}

} // namespace

mzComServerC &mzComServerC::instance()
{
    // Never destroyed, as libraries may go late.
    static auto *const server = new mzComServerC;
    return *server;
}

void mzComServerC::start()
{
    if (m_isRunning)
        return;
    m_isRunning = true;
    const QList<mzComServerStateEventC *> members = m_members;
    for (mzComServerStateEventC *member : members) {
        if (m_members.contains(member)) // and has not left meanwhile
            tellStart(*member);
    }
}

void mzComServerC::stop()
{
    if (!m_isRunning)
        return;
    m_isRunning = false;
    const QList<mzComServerStateEventC *> members = m_members;
    std::for_each(members.crbegin(), members.crend(), [this](mzComServerStateEventC *member) {
        if (m_members.contains(member) && member->events() & mzComServerStateEventC::ServerStopping)
            member->serverDone();
    });
}

void mzComServerC::join(mzComServerStateEventC &member)
{
    if (m_members.contains(&member))
        return;
    m_members.append(&member);
    if (m_isRunning)
        tellStart(member);
}

void mzComServerC::leave(mzComServerStateEventC &member)
{
    m_members.removeOne(&member);
}
