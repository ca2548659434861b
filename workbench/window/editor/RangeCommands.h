#pragma once

#include <workbench/review/RangeDock.h>
#include <workbench/session/common/SessionTypes.h>

#include <QObject>
#include <QPointer>

#include <set>

class EditorArea;
class MappingDocument;

/// Shows how the ranges of the line in sight are covered, and asks when a line is confirmed some of
/// whose values have no new line.
class RangeCommands : public QObject
{
    Q_OBJECT

public:
    /// Both must live as long; dialogs belong to \a window.
    RangeCommands(MappingDocument *document, EditorArea *editor, QWidget *window);
    ~RangeCommands() override;

    [[nodiscard]] RangeDock *dock() const { return m_dock; }
    void showRange();

private:
    void followLine();
    void noteConfirmed();
    /// Lines that the last step confirmed, each with the values that have no new line.
    [[nodiscard]] QStringList newGaps();
    void askAbout(QStringList gaps);
    [[nodiscard]] std::set<int> confirmedWithText() const;

    MappingDocument *const m_document;
    EditorArea *const m_editor;
    QWidget *const m_window;
    const QPointer<RangeDock> m_dock;
    ProjectId m_project;       ///< of the next
    std::set<int> m_confirmed; ///< lines with a text, that need no question
};
