#pragma once

#include <array>

namespace velkmap {

/// Exit status of the program.
enum class ExitStatus {
    Done = 0,
    WrongUsage = 1,
    InputUnreadable = 2,
    ResultUnwritable = 3,
    NothingFound = 4,
    Clashes = 4,
    IndexBuilding = 5,
    ScriptFailed = 6,
    Interrupted = 130, ///< by Ctrl+C; what was done is kept
};

struct ExitStatusText
{
    ExitStatus status;
    const char *text; ///< For help text and manual.
};

/// All of them, in ascending order.
inline constexpr std::array<ExitStatusText, 8> exitStatusTexts{{
    {ExitStatus::Done, "done"},
    {ExitStatus::WrongUsage, "wrong usage"},
    {ExitStatus::InputUnreadable, "input could not be read; all other work is done"},
    {ExitStatus::ResultUnwritable, "the result could not be written, or somebody else works on it"},
    {ExitStatus::NothingFound,
     "search: nothing was found; merge, update, publish: decisions clash"},
    {ExitStatus::IndexBuilding,
     "search: the index is not complete yet; what it has so far was searched"},
    {ExitStatus::ScriptFailed, "run: the script failed, or ran into a limit"},
    {ExitStatus::Interrupted, "ended by Ctrl+C; what was done is written"},
}};

} // namespace velkmap
