#pragma once

#if defined(__SANITIZE_ADDRESS__)
#define VELK_FINDS_LEAKS
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VELK_FINDS_LEAKS
#endif
#endif

#ifdef VELK_FINDS_LEAKS
#include <sanitizer/lsan_interface.h>
#endif

/// What is made on this thread while it lives may be left behind: nobody can reach it to delete it.
class LeakOnPurpose
{
public:
#ifdef VELK_FINDS_LEAKS
    LeakOnPurpose()
    {
        __lsan_disable();
    }
    ~LeakOnPurpose()
    {
        __lsan_enable();
    }
#else
    LeakOnPurpose() {}
    ~LeakOnPurpose() {}
#endif
    LeakOnPurpose(const LeakOnPurpose &) = delete;
    LeakOnPurpose &operator=(const LeakOnPurpose &) = delete;
};
