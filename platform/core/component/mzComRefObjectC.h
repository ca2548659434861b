#pragma once

#include <core/VelkCoreGlobal.h>

#include <atomic>

/// Count of an object's references; what happens at the last one is the object's own. Any thread.
class VELKCORE_EXPORT mzComRefObjectC
{
public:
    mzComRefObjectC(const mzComRefObjectC &) = delete;
    mzComRefObjectC &operator=(const mzComRefObjectC &) = delete;

    [[nodiscard]] int refCount() const { return m_count.load(std::memory_order_relaxed); }

protected:
    mzComRefObjectC() = default;
    ~mzComRefObjectC() = default;

    /// Both give the new count.
    int countUp() const { return m_count.fetch_add(1, std::memory_order_relaxed) + 1; }
    int countDown() const { return m_count.fetch_sub(1, std::memory_order_acq_rel) - 1; }

private:
    mutable std::atomic<int> m_count{0};
};
