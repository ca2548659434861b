#pragma once

#include <workbench/session/common/SessionTypes.h>

#include <QMainWindow>

#include <memory>

class ConflictCommands;
class DocumentDesk;
class EditorArea;
class ErpNumberColumn;
class FilterCommands;
class HelpDesk;
class KeyedActions;
class HistoryCommands;
class LineCommands;
class LineStateFilter;
class LinkDbCommands;
class LinkDbHost;
class LocatorDesk;
class LogWindow;
class NeighbourCommands;
class PLinkDbGuiI;
class PluginActions;
class PMessageSinkScope;
class PrintCommands;
class RangeCommands;
class CarryCommands;
class ReleaseCommands;
class RemoteCatalogs;
class ReviewCommands;
class ScriptDesk;
class ShareCommands;
class StatusArea;
class WelcomePage;
class WorkbenchActions;
class WorkbenchSettings;

QT_BEGIN_NAMESPACE
class QMenu;
class QStackedWidget;
class QTimer;
QT_END_NAMESPACE

/// The workbench's window: puts its parts together and wires them. From its making on messages go
/// to its log window and progress to its status bar, until it is gone.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// Neither is owned; \a plugin may be null.
    MainWindow(WorkbenchSettings *settings, PLinkDbGuiI *plugin);
    ~MainWindow() override;

    [[nodiscard]] DocumentDesk *desk() const { return m_desk; }
    [[nodiscard]] EditorArea *editor() const { return m_editor; }
    [[nodiscard]] LineCommands *lines() const { return m_lines; }
    [[nodiscard]] ReviewCommands *review() const { return m_review; }
    [[nodiscard]] NeighbourCommands *neighbours() const { return m_neighbours; }
    [[nodiscard]] FilterCommands *filters() const { return m_filters; }
    [[nodiscard]] CarryCommands *carry() const { return m_carry; }
    [[nodiscard]] ReleaseCommands *releases() const { return m_release; }
    [[nodiscard]] ConflictCommands *conflicts() const { return m_conflicts; }
    [[nodiscard]] ShareCommands *share() const { return m_share; }
    [[nodiscard]] LogWindow *log() const { return m_log; }
    [[nodiscard]] StatusArea *status() const { return m_status; }
    [[nodiscard]] ScriptDesk *scripts() const { return m_scripts; }
    [[nodiscard]] WorkbenchActions *commands() const { return m_actions; }
    [[nodiscard]] KeyedActions *keyedActions() const { return m_keyed; }
    [[nodiscard]] LinkDbHost *linkDb() const { return m_linkDb; }

    /// Shows it, as large as the screen if it is larger than that.
    void showOnScreen();

    /// Opens what was open last, or the example with the tour at the very first start.
    void restoreSession();
    void startTour();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildMenus();
    void buildToolBars();
    void collectCommands();
    void connectCommands();
    void connectParts();
    void addReview();
    void boundDocks();
    void connectReview();
    void connectDocument();
    void retranslate();

    void onDocumentReady();
    void onDocumentClosing();
    void onDocumentClosed();
    void onStepDone(const QString &text, int lines);
    void onLineKindsChanged();
    [[nodiscard]] bool isWithoutSuchLine() const;
    void dropNoLineNote();
    void updateState();
    void updateTitle();
    void updateCounter();
    void updateUndo();
    void updateRecentFiles();
    void applySettings();
    /// The keys go to a field of the dialog, unless its name is empty.
    void editSettings(const QString &field = {});
    void editKeys();
    void assignAll();
    void checkValueRanges();
    void showTargetProject(const QString &targetPath);
    void showErpNumbers();
    void showAbout();
    void rememberPlace();

    WorkbenchSettings *const m_settings;
    WorkbenchActions *const m_actions;
    KeyedActions *const m_keyed;
    LogWindow *const m_log;
    StatusArea *const m_status;
    EditorArea *const m_editor;
    DocumentDesk *const m_desk;
    HistoryCommands *const m_history; ///< sees a decision before m_lines goes on
    LineCommands *const m_lines;
    ReviewCommands *const m_review;
    NeighbourCommands *const m_neighbours;
    ConflictCommands *const m_conflicts;
    ShareCommands *const m_share;
    CarryCommands *const m_carry;
    ReleaseCommands *const m_release;
    PrintCommands *const m_print;
    RangeCommands *const m_ranges;
    LineStateFilter *const m_states;
    FilterCommands *const m_filters;
    RemoteCatalogs *const m_remote;
    LinkDbHost *const m_linkDb;
    LinkDbCommands *const m_linkDbCommands;
    ScriptDesk *const m_scripts;
    ErpNumberColumn *const m_erpNumbers;
    LocatorDesk *const m_locator;
    HelpDesk *const m_help;
    QStackedWidget *const m_pages;
    WelcomePage *m_welcome = nullptr;
    PluginActions *m_pluginActions = nullptr;
    QMenu *m_recentMenu = nullptr;
    /// Counting the projects walks all of them: once for a burst of changes.
    QTimer *const m_counterTimer;
    QString m_language;
    QString m_noLineNote; ///< as long as it may be in the status bar
    std::unique_ptr<PMessageSinkScope> m_messages;
};
