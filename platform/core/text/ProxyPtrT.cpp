#include "ProxyPtrT.h"

#include <atomic>

bool mzThreadSafeExchangePtr(void **slot, void *expected, void *desired)
{
    return std::atomic_ref(*slot).compare_exchange_strong(expected, desired,
                                                          std::memory_order_acq_rel);
}

void *mzThreadSafeReadPtr(void *const *slot)
{
    return std::atomic_ref(*const_cast<void **>(slot)).load(std::memory_order_acquire);
}
