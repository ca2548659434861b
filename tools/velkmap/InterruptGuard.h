#pragma once

#include <atomic>

namespace velkmap {

/// While it lives, Ctrl+C (and a request to terminate) asks the work to end instead of ending the
/// program, however often, so that what is done can be written. One at a time.
class InterruptGuard
{
public:
    InterruptGuard();
    ~InterruptGuard();
    InterruptGuard(const InterruptGuard &) = delete;
    InterruptGuard &operator=(const InterruptGuard &) = delete;

    [[nodiscard]] static const std::atomic<bool> &isRequested();

private:
    void (*m_formerInterrupt)(int);
    void (*m_formerTerminate)(int);
};

} // namespace velkmap
