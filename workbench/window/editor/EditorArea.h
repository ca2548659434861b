#pragma once

#include <geomcore/table/ContentRef.h>
#include <workbench/session/tasks/OpenLines.h>

#include <QHash>
#include <QPointer>
#include <QWidget>

class CatalogMappingWidget;
class MappingDocument;

QT_BEGIN_NAMESPACE
class QTimer;
class QVBoxLayout;
QT_END_NAMESPACE

/// Holds the mapping editor of the open document and makes it anew when the document wants it.
/// Knows where in it the user is: project and line.
class EditorArea : public QWidget
{
    Q_OBJECT

public:
    explicit EditorArea(QWidget *parent);
    ~EditorArea() override;

    /// Makes the editor of a document, which must outlive it or close it. \a sourceRoot holds the
    /// old release's catalog.
    void open(MappingDocument *document, const QString &sourceRoot);
    void close();
    /// Makes it anew with everything read anew, and goes to where the user was.
    void rebuild();
    /// Target projects are read from repositories instead of the directory of the new release. An
    /// editor that is open is made anew.
    void setRemoteTargets(bool remote);
    [[nodiscard]] bool hasRemoteTargets() const { return m_remoteTargets; }
    [[nodiscard]] bool isOpen() const { return m_editor != nullptr; }

    /// Source path of the selected project; empty if there is none.
    [[nodiscard]] QString currentPath() const;
    [[nodiscard]] ProjectId currentProject() const;
    /// Selects a project in the tree and opens the directories on the way. A filter that hides it
    /// is taken away. False if the tree does not have it.
    bool selectProject(const QString &sourcePath);
    /// The same in turns of the event loop, without input by the user: what is there is painted,
    /// then the project's tables are read on another thread, then it is shown. Selects the line,
    /// unless it is -1. False also if the editor went meanwhile.
    bool openProject(const QString &sourcePath, int line);
    /// As selectProject(), and its first line that needs a decision, or else its first one, is
    /// selected and has the keys.
    bool showProject(const QString &sourcePath);
    /// The keys go to the source table, or to the tree if no project is selected.
    void focusLines();
    /// What this turn of the event loop changes is laid out in it and painted in the next one, so
    /// that neither of them takes long.
    void paintLater();
    /// The project's mapping changed behind the editor, which shows it soon. The selected one is
    /// shown in place; it is only opened anew if more than its lines changed. Another single one is
    /// selected. So is \a line, unless it is -1, is selected already among others, or is hidden.
    void showChange(const ProjectId &project, int line = -1);

    /// Shows only lines of these kinds and only projects that have any; none stands for all.
    void setLineKinds(OpenLines::Kinds kinds);
    [[nodiscard]] OpenLines::Kinds lineKinds() const { return m_kinds; }

    /// Projects with those of their lines that are meant.
    using LineChoice = QHash<ProjectId, std::vector<int>>;
    /// Shows only these lines and projects, whatever their kinds; an empty one takes that away.
    void setLineChoice(const LineChoice &choice);

    /// What tables say of lines beside what the mapping does; empty: nothing. Asked at any time.
    using LineRemarks = std::function<QString(const PrjMappingC &mapping, int line)>;
    /// Given again when they would say something else.
    void setLineRemarks(const LineRemarks &remarks);

    /// Source line ids in display order.
    [[nodiscard]] QList<int> selectedLines() const;
    /// -1 if none or several are selected.
    [[nodiscard]] int currentLine() const;
    /// A filter that hides the line is taken away. False if the table does not have it.
    bool selectLine(int line);
    /// Selects project and line, and the keys go to the line's table. False if there is no such
    /// line.
    bool goTo(const LineRef &ref);
    /// The rows of the project that is shown, as the user sees them. Good until these change. The
    /// choice of kinds is no filter here, for it holds in all projects.
    [[nodiscard]] OpenLines::Shown shown() const;
    [[nodiscard]] QList<int> shownLines() const;
    /// Not valid if no project is open or it cannot be read.
    [[nodiscard]] VKTab::ContentRef sourceTable() const;

    /// Null if no document is open.
    [[nodiscard]] CatalogMappingWidget *editor() const { return m_editor; }

    [[nodiscard]] QByteArray saveState() const;
    /// Of an editor that is open or will be.
    void restoreState(const QByteArray &state);

Q_SIGNALS:
    /// The editor was made, anew perhaps.
    void editorMade();
    /// Another project is shown, or the same one read anew.
    void projectSelected();
    /// Other lines of the source table are selected.
    void linesSelected();
    /// The tree's filter for projects with work left was set or taken away.
    void onlyOpenProjectsChanged(bool on);
    /// The lines of the project were assigned anew at the user's wish, with or without a change.
    void linesReassigned();
    /// A project was to be shown that has no line of the chosen kinds: all are shown from now on.
    void lineKindsDropped();
    /// The same of chosen lines.
    void lineChoiceDropped();
    /// The user decided on the selected lines in the editor; the step is not over yet.
    void linesDecided();
    /// A condition was made of a line and put on the clipboard.
    void conditionCopied(const QString &text);
    /// The host's part view should show a target project.
    void targetProjectWanted(const QString &targetPath);

private Q_SLOTS:
    void onProjectShown();

private:
    void make();
    void onLoopWaits();
    void showChanges();
    void showChangedLine();
    void filterProjects();
    void filterLines();
    /// For a table without a line in the filter, and for a tree without a project.
    [[nodiscard]] static QString noLineText();
    [[nodiscard]] static QString noProjectText();
    /// \a text with the command that opens the filter and the one that lifts it.
    [[nodiscard]] static QString liftingText(const QString &text);
    [[nodiscard]] bool goToProject(const QString &path, const QString &version);

    QVBoxLayout *const m_layout;
    QPointer<MappingDocument> m_document;
    QString m_sourceRoot;
    bool m_remoteTargets = false;
    CatalogMappingWidget *m_editor = nullptr;
    QByteArray m_state;
    OpenLines::Kinds m_kinds; ///< none: lines of all kinds are shown
    LineRemarks m_remarks;
    LineChoice m_choice;      ///< empty: no choice
    QList<LineRef> m_changed; ///< that showChanges() has still to show
    LineRef m_changedLine;    ///< that showChangedLine() has
    QTimer *const m_paint;
    bool m_paintsAfterTurn = false; ///< when the loop waits
};
