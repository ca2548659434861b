#pragma once

#include <core/VelkCoreGlobal.h>

#include <QString>

#include <atomic>

/// Logger of one category, a static object of its user. Lines of a level below its own are not
/// wanted; the user compares before it builds the text.
struct StaticLoggerRecord
{
    constexpr explicit StaticLoggerRecord(const char *categoryName)
        : category(categoryName)
    {
    }

    std::atomic<int> level{-2}; ///< -2: StaticLogger::init has still to read it
    const char *category;
};

/// Log for developers, by category. Levels come from the environment variable VELK_LOG_LEVELS, a
/// list such as "tormeva.libs=5000;*=8000", and then from the section "Levels" of the
/// configuration "logging", with categories as keys. A name stands for itself and all below it
/// ("a" for "a.b"), the longest that fits wins, "*" fits all. Without any entry the level is 10000.
/// Any thread.
///
/// What passes is a debug message of Qt's category "velk" that begins with its level:
/// QT_MESSAGE_PATTERN gives it time and place, qInstallMessageHandler another destination.
class VELKCORE_EXPORT StaticLogger
{
public:
    static constexpr int Silent = 10000;

    /// Reads the configured level into the record and remembers it until release().
    static void init(StaticLoggerRecord &record);
    static void log(int level, const char *file, const char *function, int line,
                    const QString &message);
    /// Forgets the record, whose memory may then go; its level is -2 again.
    static void release(StaticLoggerRecord &record);

    /// Levels as in VELK_LOG_LEVELS, which they replace; known records change at once.
    static void setLevels(const QString &levels);
};
