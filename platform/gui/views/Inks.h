#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QColor>
#include <QPalette>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Colours that mean something, each for a light and for a dark ground, with a contrast of at least
/// 4.5 to it. None may be the only thing that tells.
namespace Inks {

enum class Ink {
    Plain,
    Good,    ///< equal, done
    Bad,     ///< an error, a difference
    Warning, ///< to be looked at
    Value,   ///< a result
    Quiet    ///< beside other text
};

/// For text on the ground of that role.
[[nodiscard]] VELKGUI_EXPORT QColor ink(Ink ink, const QPalette &palette,
                                        QPalette::ColorRole ground = QPalette::Base);
/// The ground of a value that differs, and the colour of the text on it.
[[nodiscard]] VELKGUI_EXPORT QColor differenceGround(const QPalette &palette);
[[nodiscard]] VELKGUI_EXPORT QColor differenceText(const QPalette &palette);
/// Whether the colour of that role is dark.
[[nodiscard]] VELKGUI_EXPORT bool isDark(const QPalette &palette,
                                         QPalette::ColorRole ground = QPalette::Base);
/// Links in labels keep the colour that they were written in: those below \a parent get the one of
/// now.
VELKGUI_EXPORT void rewriteLinks(const QWidget *parent);

} // namespace Inks
