#pragma once

#include <workbench/session/tasks/FilterWork.h>

#include <QObject>

class EditorArea;
class FilterDock;
class LineCommands;
class LineStateFilter;
class MappingDocument;
class WorkbenchSettings;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// The filter over all lines: tree and table show what it accepts, going to the next open line
/// walks it. The switches of the states are a part of it. Kept in the settings.
class FilterCommands : public QObject
{
    Q_OBJECT

public:
    /// All must live as long.
    FilterCommands(MappingDocument *document, EditorArea *editor, LineCommands *lines,
                   LineStateFilter *states, WorkbenchSettings *settings, QWidget *window);
    ~FilterCommands() override;

    [[nodiscard]] FilterWork *work() const { return m_work; }
    [[nodiscard]] FilterDock *dock() const { return m_dock; }
    /// Shows the list and gives it the keys.
    void showFilter();
    /// Chooses anew what is shown, after something else was.
    void apply();

Q_SIGNALS:
    void noted(const QString &text);
    /// Other numbers, or none any more.
    void numbersChanged();

private:
    void takeStates();
    void go(bool forward);
    [[nodiscard]] bool goWithin(bool forward, int from);
    void choose();

    MappingDocument *const m_document;
    EditorArea *const m_editor;
    LineCommands *const m_lines;
    LineStateFilter *const m_states;
    WorkbenchSettings *const m_settings;
    FilterWork *const m_work;
    FilterDock *const m_dock;
    bool m_isShown = false; ///< its lines are those of the editor
};
