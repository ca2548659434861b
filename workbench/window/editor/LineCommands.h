#pragma once

#include <workbench/session/tasks/BulkOperation.h>
#include <workbench/session/tasks/OpenLines.h>

#include <QObject>

class EditorArea;
class MappingDocument;

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// Commands on lines of the open document: going from one open line to the next, jumping to a line,
/// and work on many at once.
class LineCommands : public QObject
{
    Q_OBJECT

public:
    LineCommands(MappingDocument *document, EditorArea *editor, QWidget *window);
    ~LineCommands() override;

    [[nodiscard]] const OpenLines &openLines() const { return m_open; }
    /// Those of the kinds that the user wants to see; null: of all.
    [[nodiscard]] const OpenLines *chosenLines() const { return m_kinds ? &m_chosen : nullptr; }

    void goNext();
    void goPrevious();
    /// The next project that has lines to go to, at its first such line.
    void goProject(bool forward);
    /// Asks for number or designation.
    void jumpByDialog();
    /// Lines of the selected project that a text names: the first one is selected, or the next one
    /// behind the selected line. False if there is none.
    bool jumpTo(const QString &text);
    /// goNext() and goPrevious() go through lines of these kinds; none: through what is open.
    void setKinds(OpenLines::Kinds kinds);
    using Order = std::function<void(bool forward)>;
    /// A decision on one line that leaves it open no more leads to the next one.
    void setGoesOn(bool on) { m_goesOn = on; }
    /// Where decisions lead to instead, such as the next line of a set. Empty: as goNext().
    void setDecisionOrder(const Order &order) { m_decisionOrder = order; }
    /// The current line was decided: goes on if that is wanted. \a step is what is known of it
    /// already; without one the step ends here.
    void onDecided(const QString &step = QString());
    /// Another order of open lines: goNext() and goPrevious() call it. Empty: their own.
    void setOrder(const Order &order) { m_order = order; }
    /// The same of projects for goProject().
    using Projects = std::function<ProjectId(const ProjectId &from, bool forward)>;
    void setProjects(const Projects &projects) { m_projects = projects; }
    /// Says of a condition on the selected line that was put on the clipboard whether it can be
    /// used as it is.
    void tellCondition(const QString &condition);
    /// On the selected lines if there are several, else on all that the table shows, all filters
    /// applied; asks with the number of lines first.
    void runOnMany(BulkOperation::Action action);

Q_SIGNALS:
    void noted(const QString &text);
    /// A step was done that can be taken back.
    void done(const QString &text);
    void openCountChanged();

private:
    void go(bool forward);
    /// What there is to say of it.
    [[nodiscard]] QString gone(bool forward);
    [[nodiscard]] QString finishedStep();
    [[nodiscard]] const OpenLines &walk() const { return m_kinds ? m_chosen : m_open; }
    [[nodiscard]] OpenLines::Found seek(bool forward, const LineRef &from) const;
    [[nodiscard]] QString goneText(const OpenLines::Found &found, bool forward) const;
    [[nodiscard]] QString nothingText() const;
    [[nodiscard]] QString scopeText(bool selection) const;
    [[nodiscard]] LineRef here() const;

    MappingDocument *const m_document;
    EditorArea *const m_editor;
    QWidget *const m_window;
    OpenLines m_open;
    OpenLines m_chosen; ///< the kinds that the user wants to see
    OpenLines::Kinds m_kinds;
    Order m_order;
    Order m_decisionOrder;
    Projects m_projects;
    bool m_goesOn = false;
    OpenLines::Found m_last; ///< where the last walk ended
    QString m_lastText;      ///< of the last jump
};
