#include "MainWindow.h"

#include "LocatorDesk.h"
#include "ScriptDesk.h"

#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/script/ScriptConsole.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/ReleaseCommands.h>
#include <workbench/window/document/RemoteCatalogs.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/editor/LineStateFilter.h>
#include <workbench/window/editor/PrintCommands.h>
#include <workbench/window/help/HelpDesk.h>
#include <workbench/window/help/WelcomePage.h>
#include <workbench/window/history/HistoryCommands.h>
#include <workbench/window/linkdb/LinkDbCommands.h>
#include <workbench/window/linkdb/PluginActions.h>
#include <workbench/window/look/FocusHelp.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/review/CarryCommands.h>
#include <workbench/window/settings/KeyedActions.h>
#include <workbench/window/settings/WorkbenchActions.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QAction>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace {

using Command = WorkbenchActions::Command;

constexpr Command Separator = WorkbenchActions::CommandCount;

void fill(QMenu *menu, const WorkbenchActions *actions, std::initializer_list<Command> commands)
{
    for (const Command command : commands) {
        if (command == Separator)
            menu->addSeparator();
        else
            menu->addAction(actions->action(command));
    }
}

} // namespace

void MainWindow::buildMenus()
{
    const auto addMenu = [this](const char *name) {
        QMenu *const menu = menuBar()->addMenu(QString());
        menu->setObjectName(name);
        menu->setToolTipsVisible(true);
        return menu;
    };
    QMenu *const file = addMenu("fileMenu");
    fill(file, m_actions, {WorkbenchActions::NewMapping, WorkbenchActions::OpenFile});
    m_recentMenu = file->addMenu(QString());
    m_recentMenu->setObjectName("recentMenu");
    fill(file, m_actions,
         {WorkbenchActions::OpenExample, Separator, WorkbenchActions::Save,
          WorkbenchActions::SaveAs, WorkbenchActions::CatalogRoots, WorkbenchActions::CloseFile,
          Separator});
    QMenu *const share = file->addMenu(QString());
    share->setObjectName("shareMenu");
    share->setToolTipsVisible(true);
    fill(share, m_actions,
         {WorkbenchActions::ShareFile, WorkbenchActions::ShareUpdate,
          WorkbenchActions::SharePublish, WorkbenchActions::ShareFolders,
          WorkbenchActions::ShareWho});
    fill(file, m_actions,
         {Separator, WorkbenchActions::ImportTables, WorkbenchActions::ExportLines,
          WorkbenchActions::WriteReport, Separator, WorkbenchActions::PrintTable,
          WorkbenchActions::PrintReport, Separator, WorkbenchActions::Quit});
    QMenu *const edit = addMenu("editMenu");
    fill(edit, m_actions,
         {WorkbenchActions::Undo, WorkbenchActions::Redo, WorkbenchActions::Steps, Separator,
          WorkbenchActions::ConfirmLines, WorkbenchActions::ConfirmExpiredLines,
          WorkbenchActions::RemoveLines, WorkbenchActions::RemoveConfirmLines, Separator,
          WorkbenchActions::AssignAll, WorkbenchActions::CarryDecisions,
          WorkbenchActions::CheckValueRanges});
    edit->addActions({m_history->reasonAction(), m_linkDbCommands->proofAction()});
    fill(edit, m_actions,
         {Separator, WorkbenchActions::EditScript, Separator, WorkbenchActions::Settings});
    fill(addMenu("goMenu"), m_actions,
         {WorkbenchActions::NextOpen, WorkbenchActions::PreviousOpen, WorkbenchActions::NextProject,
          WorkbenchActions::PreviousProject, WorkbenchActions::JumpToLine,
          WorkbenchActions::OtherTable, Separator, WorkbenchActions::Locate});
    fill(addMenu("reviewMenu"), m_actions,
         {WorkbenchActions::ReviewPatterns,
          WorkbenchActions::ReviewDifferences,
          WorkbenchActions::FilterLines,
          Separator,
          WorkbenchActions::ConfirmPattern,
          WorkbenchActions::TakeOutLine,
          WorkbenchActions::NextInPattern,
          WorkbenchActions::PreviousInPattern,
          WorkbenchActions::NextPattern,
          WorkbenchActions::LeastSureFirst,
          Separator,
          WorkbenchActions::TakeCandidate1,
          WorkbenchActions::TakeCandidate2,
          WorkbenchActions::TakeCandidate3,
          WorkbenchActions::TakeCandidate4,
          WorkbenchActions::TakeCandidate5,
          Separator,
          WorkbenchActions::StartSample,
          WorkbenchActions::SampleRight,
          WorkbenchActions::SampleWrong,
          Separator,
          WorkbenchActions::Neighbours,
          WorkbenchActions::MendNeighbours,
          Separator,
          WorkbenchActions::Replacements,
          Separator,
          WorkbenchActions::RangeOfLine,
          WorkbenchActions::Conflicts,
          WorkbenchActions::NextConflict,
          WorkbenchActions::ConflictOurs,
          WorkbenchActions::ConflictTheirs,
          WorkbenchActions::ConflictAnew});
    QMenu *const view = addMenu("viewMenu");
    fill(view, m_actions, {WorkbenchActions::Refresh, Separator});
    QMenu *const states = view->addMenu(QString());
    states->setObjectName("statesMenu");
    states->setToolTipsVisible(true);
    states->addActions(m_states->actions());
    view->addSeparator();
    view->addAction(m_history->showAction());
    view->addAction(m_log->toggleViewAction());
    view->addAction(m_scripts->console()->toggleViewAction());
    fill(addMenu("helpMenu"), m_actions,
         {WorkbenchActions::ShowManual, WorkbenchActions::ShowKeys, WorkbenchActions::ShowTour,
          WorkbenchActions::ShowReason, WorkbenchActions::About});
}

void MainWindow::buildToolBars()
{
    QToolBar *const bar = addToolBar(QString());
    bar->setObjectName("mainToolBar");
    for (const Command command :
         {WorkbenchActions::NewMapping, WorkbenchActions::OpenFile, WorkbenchActions::Save,
          Separator, WorkbenchActions::Undo, WorkbenchActions::Redo, Separator,
          WorkbenchActions::PreviousOpen, WorkbenchActions::NextOpen, WorkbenchActions::JumpToLine,
          Separator, WorkbenchActions::ConfirmLines, WorkbenchActions::RemoveLines, Separator,
          WorkbenchActions::Refresh}) {
        if (command == Separator)
            bar->addSeparator();
        else
            bar->addAction(m_actions->action(command));
    }
    QToolBar *const states = addToolBar(QString());
    states->setObjectName("statesToolBar");
    m_states->fill(states);
}

/// Whatever is in the menus by a name, or comes from the plug-in, can have a key and is found by
/// the locator.
void MainWindow::collectCommands()
{
    QAction *const showLog = m_log->toggleViewAction();
    QAction *const showConsole = m_scripts->console()->toggleViewAction();
    showLog->setObjectName("viewLog");
    showConsole->setObjectName("viewScriptConsole");
    QList<QAction *> actions;
    for (int i = 0; i < WorkbenchActions::CommandCount; ++i)
        actions << m_actions->action(WorkbenchActions::Command(i));
    const QList<QMenu *> menus = menuBar()->findChildren<QMenu *>();
    for (const QMenu *const menu : menus) {
        for (QAction *const action : menu->actions()) {
            if (!action->objectName().isEmpty() && !action->menu() && !actions.contains(action))
                actions << action;
        }
    }
    actions << m_pluginActions->actions();
    m_keyed->add(actions);
    connect(m_keyed, &KeyedActions::changed, m_actions, &WorkbenchActions::retranslate);
}

void MainWindow::connectCommands()
{
    const auto connectTo = [this](Command command, auto slot) {
        connect(m_actions->action(command), &QAction::triggered, this, slot);
    };
    const auto onMany = [this](BulkOperation::Action action) {
        return [this, action] {
            m_lines->runOnMany(action);
        };
    };
    connectTo(WorkbenchActions::NewMapping, [this] { m_desk->makeByDialog(); });
    connectTo(WorkbenchActions::OpenFile, [this] { m_desk->openByDialog(); });
    connectTo(WorkbenchActions::OpenExample, [this] { m_desk->openExample(); });
    connectTo(WorkbenchActions::Save, [this] { m_desk->save(); });
    connectTo(WorkbenchActions::SaveAs, [this] { m_desk->saveAs(); });
    connectTo(WorkbenchActions::CloseFile, [this] { m_desk->close(); });
    connectTo(WorkbenchActions::CatalogRoots, [this] { m_desk->changeRoots(); });
    connectTo(WorkbenchActions::ImportTables, [this] { m_release->importByDialog(); });
    connectTo(WorkbenchActions::ExportLines, [this] { m_release->exportByDialog(); });
    connectTo(WorkbenchActions::WriteReport, [this] { m_release->reportByDialog(); });
    connectTo(WorkbenchActions::PrintTable, [this] { m_print->printTable(); });
    connectTo(WorkbenchActions::PrintReport, [this] { m_print->printReport(); });
    connectTo(WorkbenchActions::Quit, [this] { close(); });
    connectTo(WorkbenchActions::Undo, [this] { m_desk->document()->undo(); });
    connectTo(WorkbenchActions::Redo, [this] { m_desk->document()->redo(); });
    connectTo(WorkbenchActions::Steps, [this] { m_history->showSteps(); });
    connectTo(WorkbenchActions::ConfirmLines, onMany(BulkOperation::Confirm));
    connectTo(WorkbenchActions::ConfirmExpiredLines, onMany(BulkOperation::ConfirmExpired));
    connectTo(WorkbenchActions::RemoveLines, onMany(BulkOperation::Remove));
    connectTo(WorkbenchActions::RemoveConfirmLines, onMany(BulkOperation::RemoveAndConfirm));
    connectTo(WorkbenchActions::AssignAll, [this] { assignAll(); });
    connect(m_status, &StatusArea::assignRequested, m_actions->action(WorkbenchActions::AssignAll),
            &QAction::trigger);
    connectTo(WorkbenchActions::CarryDecisions, [this] { m_carry->carryByDialog(); });
    connectTo(WorkbenchActions::CheckValueRanges, [this] { checkValueRanges(); });
    connectTo(WorkbenchActions::EditScript, [this] { m_scripts->showEditor(); });
    connectTo(WorkbenchActions::Settings, [this] { editSettings(); });
    connectTo(WorkbenchActions::ShowManual, [this] {
        m_help->showFor(m_desk->document()->isOpen() ? focusWidget() : m_welcome);
    });
    connectTo(WorkbenchActions::ShowKeys, [this] { editKeys(); });
    connectTo(WorkbenchActions::Locate, [this] { m_locator->open(); });
    connect(m_locator, &LocatorDesk::settingChosen, this, &MainWindow::editSettings);
    connectTo(WorkbenchActions::NextOpen, [this] { m_lines->goNext(); });
    connectTo(WorkbenchActions::PreviousOpen, [this] { m_lines->goPrevious(); });
    connectTo(WorkbenchActions::NextProject, [this] { m_lines->goProject(true); });
    connectTo(WorkbenchActions::PreviousProject, [this] { m_lines->goProject(false); });
    connectTo(WorkbenchActions::JumpToLine, [this] { m_lines->jumpByDialog(); });
    connectTo(WorkbenchActions::OtherTable, [this] { m_editor->editor()->focusOtherTable(); });
    connectTo(WorkbenchActions::ShowReason, [this] {
        if (!FocusHelp::show())
            m_status->showNote(tr("Zu dieser Stelle gibt es keinen Hinweis"));
    });
    connectTo(WorkbenchActions::Refresh, [this] {
        m_remote->refresh();
        m_editor->rebuild();
    });
    connectTo(WorkbenchActions::ShowTour, [this] { startTour(); });
    connectTo(WorkbenchActions::About, [this] { showAbout(); });
}

void MainWindow::updateRecentFiles()
{
    const QStringList files = m_settings->recentFiles();
    m_recentMenu->clear();
    m_recentMenu->setEnabled(!files.isEmpty());
    int number = 0;
    for (const QString &file : files) {
        QString shown = file;
        shown.replace('&', QLatin1String("&&"));
        QAction *const action = m_recentMenu->addAction(
            QStringLiteral("&%1  %2").arg(QString::number(++number), shown));
        connect(action, &QAction::triggered, this, [this, file] { m_desk->open({.file = file}); });
    }
    m_recentMenu->addSeparator();
    connect(m_recentMenu->addAction(tr("Liste &leeren")), &QAction::triggered, m_settings,
            &WorkbenchSettings::clearRecentFiles);
    m_welcome->setRecentFiles(files);
}

void MainWindow::retranslate()
{
    m_actions->retranslate();
    m_pluginActions->retranslate();
    m_states->retranslate();
    const auto setTitle = [this](const char *name, const QString &title) {
        findChild<QMenu *>(QLatin1String(name))->setTitle(title);
    };
    setTitle("fileMenu", tr("&Datei"));
    setTitle("shareMenu", tr("&Teilen"));
    setTitle("recentMenu", tr("&Zuletzt geöffnet"));
    setTitle("editMenu", tr("&Bearbeiten"));
    setTitle("goMenu", tr("&Gehe zu"));
    setTitle("reviewMenu", tr("&Prüfen"));
    setTitle("viewMenu", tr("&Ansicht"));
    setTitle("statesMenu", tr("Nur &Zeilen"));
    setTitle("helpMenu", tr("&Hilfe"));
    const auto bars = findChildren<QToolBar *>(Qt::FindDirectChildrenOnly);
    for (QToolBar *bar : bars) {
        bar->setWindowTitle(bar->objectName() == "pluginToolBar"   ? tr("Linkdatenbank")
                            : bar->objectName() == "statesToolBar" ? tr("Zustände der Zeilen")
                                                                   : tr("Werkzeuge"));
        // What has no room is behind a button of Qt's, which has no name.
        if (auto *const more = bar->findChild<QToolButton *>("qt_toolbar_ext_button"))
            more->setAccessibleName(bar->windowTitle());
    }
    updateRecentFiles();
    updateTitle();
}
