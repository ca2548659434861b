#include "InterruptGuard.h"

#include <csignal>

namespace velkmap {

namespace {

std::atomic<bool> requested{false};
static_assert(std::atomic<bool>::is_always_lock_free, "set in a signal handler");

void request(int)
{
    requested = true;
}

} // namespace

InterruptGuard::InterruptGuard()
{
    requested = false;
    m_formerInterrupt = std::signal(SIGINT, request);
    m_formerTerminate = std::signal(SIGTERM, request);
}

InterruptGuard::~InterruptGuard()
{
    std::signal(SIGINT, m_formerInterrupt);
    std::signal(SIGTERM, m_formerTerminate);
}

const std::atomic<bool> &InterruptGuard::isRequested()
{
    return requested;
}

} // namespace velkmap
