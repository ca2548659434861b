#include "PMemManager.h"

#include <atomic>
#include <new>

namespace {

std::atomic<int> live{0};

} // namespace

void *PMemManager::operator new(std::size_t size)
{
    void *const memory = ::operator new(size);
    live.fetch_add(1, std::memory_order_relaxed);
    return memory;
}

void PMemManager::operator delete(void *memory) noexcept
{
    if (!memory)
        return;
    live.fetch_sub(1, std::memory_order_relaxed);
    ::operator delete(memory);
}

int PMemManager::liveObjects()
{
    return live.load(std::memory_order_relaxed);
}
