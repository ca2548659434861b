#pragma once

#include <QPixmap>
#include <QString>

class MainWindow;

/// Renders one of the editor's dialogs by its name: "formula" or "search" with a text in it, a
/// statement over the variables of the open project, or words to search for in its catalog;
/// "links", "proof" or, of the selected line, "documents" over the link database whose address the
/// text is; "script" with the file that it is, which runs; "locator" and "keys" with words to look
/// for; "manual" at a topic; "review" and "sample" with the beginning of a difference pattern;
/// "neighbours".
class ScreenshotDialog
{
public:
    /// Null for a name that is none of these, and for a database that cannot be opened, which the
    /// window's messages tell. Takes seconds: the search is a real one.
    [[nodiscard]] static QPixmap take(const QString &name, const QString &text, MainWindow &window);
};
