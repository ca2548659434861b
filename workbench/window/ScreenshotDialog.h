#pragma once

#include <QPixmap>
#include <QString>

class EditorArea;

/// Renders one of the editor's dialogs by its name, "formula" or "search", with a text in it: a
/// statement over the variables of the open project, or words to search for in its catalog.
class ScreenshotDialog
{
public:
    /// Null for a name that is none of both. Takes seconds: the search is a real one.
    [[nodiscard]] static QPixmap take(const QString &name, const QString &text,
                                      const EditorArea &editor);
};
