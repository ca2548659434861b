#pragma once

/// Tool tips for who works without the mouse.
class FocusHelp
{
public:
    /// Shows the tool tip of what has the keys: in a list or table that of the current cell, or the
    /// first of its row; else that of the widget or of one round it. False if there is none.
    static bool show();
};
