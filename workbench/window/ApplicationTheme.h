#pragma once

#include <QString>

/// Colours and fonts of the whole program. GUI thread, once there is a QApplication.
class ApplicationTheme
{
public:
    /// "light", "dark"; anything else keeps the desktop's colours.
    static void setColours(const QString &theme);
    /// In percent of the font that the program started with.
    static void setFontPercent(int percent);
    /// Whether text is light on a dark ground now.
    [[nodiscard]] static bool isDark();
};
