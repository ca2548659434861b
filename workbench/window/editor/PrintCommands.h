#pragma once

#include <QObject>

#include <functional>

class EditorArea;
class ReleaseCommands;
struct PageHead;

QT_BEGIN_NAMESPACE
class QPrinter;
class QWidget;
QT_END_NAMESPACE

/// Prints the table in sight and the report of the release: a preview shows the pages, changes
/// paper and orientation, and prints them. GUI thread.
class PrintCommands : public QObject
{
    Q_OBJECT

public:
    /// All must live as long; dialogs belong to \a window.
    PrintCommands(EditorArea *editor, ReleaseCommands *release, QWidget *window);

    /// Rows and columns as they are shown; nothing without a table, which is told.
    void printTable();
    void printReport();

Q_SIGNALS:
    /// One sentence on what was done or not.
    void noted(const QString &text);

private:
    /// \a paint is called for each look at the pages and for the printing itself.
    void run(const QString &title, bool isWide,
             const std::function<bool(QPrinter &printer)> &paint);

    EditorArea *const m_editor;
    ReleaseCommands *const m_release;
    QWidget *const m_window;
};
