#pragma once

#include <QStringList>

/// Colours and fonts of the whole program. GUI thread, once there is a QApplication.
class ApplicationTheme
{
public:
    /// One of names(); anything else stands for the desktop's colours.
    static void setColours(const QString &theme);
    /// "light", "dark" and "contrast", white on black with every edge drawn.
    [[nodiscard]] static QStringList names();
    /// In percent of the font that the program started with.
    static void setFontPercent(int percent);
    /// Whether text is light on a dark ground now.
    [[nodiscard]] static bool isDark();
};
