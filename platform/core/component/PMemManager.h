#pragma once

#include <core/VelkCoreGlobal.h>

#include <cstddef>

/// Base of objects whose memory comes from this library and goes back to it, whichever library
/// makes the object and whichever drops it last. Any thread.
class VELKCORE_EXPORT PMemManager
{
public:
    static void *operator new(std::size_t size);
    static void operator delete(void *memory) noexcept;

    /// Number of such objects in the process; scripts that still hold some show here.
    [[nodiscard]] static int liveObjects();

protected:
    PMemManager() = default;
    ~PMemManager() = default;
};
