#pragma once

#include <QStringList>

class QWidget;

/// What keeps a window from being used by keyboard or with a screen reader, one text for each
/// fault. Looks at everything that is not hidden, on pages of tabs and in menus too.
class ControlCheck
{
public:
    /// Marked keys that lead nowhere or to several places: labels without a field that takes the
    /// keys, the same letter twice in one window or one menu.
    [[nodiscard]] static QStringList mnemonics(const QWidget &window);
    /// Keys of commands and buttons that lead to several: then they do nothing at all.
    [[nodiscard]] static QStringList keys(const QWidget &window);
    /// Controls without a name or role, and those that the keyboard does not reach.
    [[nodiscard]] static QStringList access(const QWidget &window);
};
