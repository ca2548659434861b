#pragma once

#include <QStringList>

class QColor;
class QSize;
class QWidget;

/// What keeps a window from being used by keyboard or with a screen reader, one text for each
/// fault. Looks at everything that is not hidden, on pages of tabs and in menus too.
class ControlCheck
{
public:
    /// Marked keys that lead nowhere or to several places: labels without a field that takes the
    /// keys, the same letter twice in one window or one menu.
    [[nodiscard]] static QStringList mnemonics(const QWidget &window);
    /// A title that is empty, the name of the object, or not in the letters of the language if that
    /// has letters of its own. Titles of documents are not asked for.
    [[nodiscard]] static QStringList title(const QWidget &window, const QString &language);
    /// Keys of commands and buttons that lead to several: then they do nothing at all.
    [[nodiscard]] static QStringList keys(const QWidget &window);
    /// Controls without a name or role, and those that the keyboard does not reach.
    [[nodiscard]] static QStringList access(const QWidget &window);
    /// Texts that are wider or higher than their room, controls that reach beyond it, and a window
    /// that needs more than \a room. The window is made that small before; all pages of tabs are
    /// looked at.
    [[nodiscard]] static QStringList cuts(QWidget *window, const QSize &room);
    /// Texts that cannot be told from their ground: enabled ones below a contrast of 4.5.
    [[nodiscard]] static QStringList contrasts(const QWidget &window);
    /// After the recommendations for accessible pages (WCAG 2): from 1, equal, to 21.
    [[nodiscard]] static double contrast(const QColor &a, const QColor &b);
    /// Leaves a picture in the folder that VELK_PICTURES names; does nothing without one.
    static void picture(QWidget *window, const QString &name);
};
