#pragma once

namespace velkmap {

/// Exit status of the program.
enum class ExitStatus {
    Done = 0,
    WrongUsage = 1,
    InputUnreadable = 2,
    ResultUnwritable = 3,
};

} // namespace velkmap
