#pragma once

#include <workbench/review/ConflictDock.h>

#include <QObject>
#include <QPointer>

#include <set>

class EditorArea;
class MappingDocument;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The walk through lines in conflict: the list shows the line in sight and the editor the current
/// row's; a decision goes on to the next one that is open.
class ConflictCommands : public QObject
{
    Q_OBJECT

public:
    /// All must live as long; dialogs belong to \a window.
    ConflictCommands(MappingDocument *document, EditorArea *editor, QWidget *window);
    ~ConflictCommands() override;

    [[nodiscard]] const ConflictList &list() const { return *m_list; }
    [[nodiscard]] ConflictDock *dock() const { return m_dock; }

    /// Shows the list and gives it the keys.
    void showConflicts();
    void goNext();
    /// Decides the list's current line, or the line in sight if the list is hidden. If others clash
    /// in the same way it asks once whether they are meant too.
    void decide(MergeState::Side side);

Q_SIGNALS:
    void noted(const QString &text);

private:
    void goTo(int place);
    void followEditor();
    /// Places that are meant; none: called off.
    [[nodiscard]] std::vector<int> askFor(int place);

    MappingDocument *const m_document;
    EditorArea *const m_editor;
    QWidget *const m_window;
    ConflictList *const m_list;
    const QPointer<ConflictDock> m_dock; ///< the window may delete it first
    std::set<int> m_oneByOne;            ///< groups whose lines the user wants to decide singly
};
