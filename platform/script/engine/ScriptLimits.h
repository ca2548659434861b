#pragma once

#include <QtGlobal>

#include <atomic>
#include <chrono>

/// When a script is stopped. What is 0 or null is no limit.
struct ScriptLimits
{
    /// The script's own time in all; what it waits for in calls of objects does not count.
    std::chrono::milliseconds total{0};
    /// The script's own time without any call of an object.
    std::chrono::milliseconds silent{0};
    /// Memory that the program takes on top of what it had when the script began.
    qint64 bytes = 0;
    /// Somebody else's wish, such as Ctrl+C; not owned.
    const std::atomic<bool> *wish = nullptr;
};

/// Why a script was stopped.
enum class ScriptStop {
    No,
    ByHand, ///< or by ScriptLimits::wish
    TotalTime,
    SilentTime,
    Memory,
    Exit, ///< by itself: exit(status)
};
