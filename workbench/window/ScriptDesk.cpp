#include "ScriptDesk.h"

#include "MainWindow.h"
#include "prxWorkbenchC.h"

#include <gui/progress/DefaultObserverDelegate.h>
#include <workbench/script/ScriptConsole.h>
#include <workbench/script/ScriptEditor.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <core/progress/PProgress.h>

#include <QFileInfo>

#include <cstdio>

namespace {

constexpr qint64 mostBytes = 4'000'000'000;
const QString historyState = QStringLiteral("scriptHistory");

void printLine(std::FILE *stream, const QString &text)
{
    std::fputs((text + u'\n').toUtf8().constData(), stream);
    std::fflush(stream);
}

} // namespace

ScriptDesk::ScriptDesk(MainWindow *window, WorkbenchSettings *settings)
    : QObject(window)
    , m_window(window)
    , m_settings(settings)
    , m_console(new ScriptConsole(window))
{
    m_console->input()->setHistory(
        QString::fromUtf8(settings->state(historyState)).split(u'\n', Qt::SkipEmptyParts));
    m_console->input()->setCompletions([this](const QString &line) {
        giveMapping(lines());
        return lines().engine().completions(line);
    });
    connect(m_console, &ScriptConsole::entered, this, &ScriptDesk::runLine);
    connect(m_console, &ScriptConsole::stopRequested, this, &ScriptDesk::stop);
}

ScriptDesk::~ScriptDesk()
{
    m_settings->setState(historyState, m_console->input()->history().join(u'\n').toUtf8());
}

ScriptEditor *ScriptDesk::showEditor()
{
    if (!m_editor) {
        m_editor = new ScriptEditor(m_window);
        connect(m_editor, &ScriptEditor::runRequested, this, &ScriptDesk::runProgram);
        connect(m_editor, &ScriptEditor::stopRequested, this, &ScriptDesk::stop);
    }
    m_editor->show();
    m_editor->raise();
    m_editor->activateWindow();
    return m_editor;
}

void ScriptDesk::stop()
{
    if (m_running)
        m_running->engine().stop();
}

void ScriptDesk::equip(ScriptSession &session)
{
    session.engine().setGlobal(QStringLiteral("workbench"),
                               static_cast<const proxyObjectC *>(new prxWorkbenchC(m_window)));
    session.engine().setPrinter([this](const QString &text) { m_console->print(text); });
    session.engine().setLimits({.silent = std::chrono::seconds(SilentSeconds), .bytes = mostBytes});
}

void ScriptDesk::giveMapping(ScriptSession &session) const
{
    const MappingDocument *const document = m_window->desk()->document();
    if (!document->isOpen())
        return session.setNoMapping();
    const CatalogRoots roots = document->catalogRoots();
    session.setMapping(document->release(), {roots.source, roots.target});
}

void ScriptDesk::setRunning(ScriptSession *session)
{
    m_running = session;
    m_console->setRunning(session);
    if (m_editor)
        m_editor->setRunning(session);
}

ScriptOutcome ScriptDesk::watch(ScriptSession &session, const QString &title,
                                const std::function<ScriptOutcome()> &run)
{
    giveMapping(session);
    setRunning(&session);
    DefaultObserverDelegate display;
    display.activate(PProgressObserverBase::Thread);
    ScriptOutcome outcome;
    {
        PProgress progress(0, 0, 1, true, true);
        progress.setText(tr("Skript %1").arg(title));
        session.engine().setBreath([&] {
            progress.nextStep();
            if (progress.isCanceled())
                session.engine().stop();
        });
        outcome = run();
        session.engine().setBreath({});
    }
    display.deactivate();
    setRunning(nullptr);
    return outcome;
}

ScriptSession &ScriptDesk::lines()
{
    if (!m_lines) {
        m_lines = std::make_unique<ScriptSession>();
        equip(*m_lines);
    }
    return *m_lines;
}

void ScriptDesk::runLine(const QString &line)
{
    if (isRunning())
        return;
    ScriptSession &session = lines();
    const ScriptOutcome outcome = watch(
        session, tr("(Konsole)"), [&] { return session.run(line, QStringLiteral("console")); });
    if (outcome.state != ScriptOutcome::Done)
        m_console->showError(outcome.error.message);
    else if (!outcome.value.isEmpty())
        m_console->showValue(session.engine().toScript(outcome.value).toString());
}

void ScriptDesk::runProgram(const QString &program, const QString &name,
                            const QStringList &arguments)
{
    if (isRunning())
        return;
    ScriptSession session;
    equip(session);
    session.setArguments(arguments);
    m_console->show();
    m_console->raise();
    const QPointer<ScriptEditor> editor = m_editor;
    const ScriptOutcome outcome =
        watch(session, QFileInfo(name).fileName(), [&] { return session.run(program, name); });
    const bool failed = outcome.state != ScriptOutcome::Done;
    if (failed)
        m_console->showError(outcome.error.text());
    if (!editor)
        return;
    QString text = outcome.error.message;
    if (!failed)
        text = outcome.status == 0 ? tr("Fertig") : tr("Fertig, Status %1").arg(outcome.status);
    else if (outcome.error.line > 0)
        text = tr("Zeile %1: %2").arg(QString::number(outcome.error.line), text);
    editor->showOutcome(text, failed, outcome.error.file == name ? outcome.error.line : 0);
}

ScriptOutcome ScriptDesk::runFile(const QString &file, const QStringList &arguments,
                                  const QString &output)
{
    ScriptSession session;
    equip(session);
    session.setArguments(arguments);
    session.engine().setPrinter([](const QString &text) { printLine(stdout, text); });
    QString cause;
    if (!output.isEmpty() && !session.setOutput(output, &cause))
        return {.state = ScriptOutcome::NotWritten, .error = {cause, output, 0}};
    return watch(session, QFileInfo(file).fileName(), [&] { return session.runFile(file); });
}
