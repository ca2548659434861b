#pragma once

#include "WorkbenchActions.h"

#include <array>

/// What a command of the window is: names, texts before they are translated, keys.
struct CommandRow
{
    WorkbenchActions::Command command;
    const char *name;
    const char *text;
    const char *tip;
    const char *shortcut; ///< portable text
    const char *icon;     ///< below ":/workbench/", without "_24.png"
    bool needsDocument;
    bool needsWriting;
};

/// In the order of the commands.
extern const std::array<CommandRow, WorkbenchActions::CommandCount> commandRows;
