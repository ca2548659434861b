#pragma once

namespace velkmap {

/// Exit status of the program.
enum class ExitStatus {
    Done = 0,
    WrongUsage = 1,
    InputUnreadable = 2,
    ResultUnwritable = 3,
    Interrupted = 130, ///< by Ctrl+C; what was done is kept
};

} // namespace velkmap
