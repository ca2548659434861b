#pragma once

#include <script/run/ScriptSession.h>

#include <QObject>
#include <QPointer>

#include <memory>

class MainWindow;
class ScriptConsole;
class ScriptEditor;
class WorkbenchSettings;

/// Runs scripts in the editor: lines of the console, which share their variables, and whole scripts
/// with variables of their own. Scripts have `workbench` besides what they have in every program,
/// and `mapping` is the open document as it is when they begin. Meanwhile the window answers at
/// each call of an object, and Escape or Stop ends the script; one that computes for long without
/// any is ended.
class ScriptDesk : public QObject
{
    Q_OBJECT

public:
    /// Seconds that a script may compute without a call of an object.
    static constexpr int SilentSeconds = 10;

    ScriptDesk(MainWindow *window, WorkbenchSettings *settings);
    /// The console's history is kept in the settings.
    ~ScriptDesk() override;

    [[nodiscard]] ScriptConsole *console() const { return m_console; }
    /// Shows the window in which scripts are written; made at first.
    ScriptEditor *showEditor();
    [[nodiscard]] bool isRunning() const { return m_running != nullptr; }

    /// A script of a file for the command line: prints to standard output. Gives what became of it.
    [[nodiscard]] ScriptOutcome runFile(const QString &file, const QStringList &arguments,
                                        const QString &output);

public Q_SLOTS:
    void stop();

private:
    /// The session of the console.
    [[nodiscard]] ScriptSession &lines();
    void runLine(const QString &line);
    void runProgram(const QString &program, const QString &name, const QStringList &arguments);
    /// Everything that a run in the window needs around it.
    [[nodiscard]] ScriptOutcome watch(ScriptSession &session, const QString &title,
                                      const std::function<ScriptOutcome()> &run);
    void equip(ScriptSession &session);
    void giveMapping(ScriptSession &session) const;
    void setRunning(ScriptSession *session);

    MainWindow *const m_window;
    WorkbenchSettings *const m_settings;
    ScriptConsole *const m_console;
    QPointer<ScriptEditor> m_editor;
    std::unique_ptr<ScriptSession> m_lines; ///< of the console; made at its first line
    ScriptSession *m_running = nullptr;
};
