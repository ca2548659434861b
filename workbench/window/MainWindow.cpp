#include "MainWindow.h"

#include "LocatorDesk.h"
#include "ScriptDesk.h"

#include <core/plugin/PTranslateManager.h>
#include <geomcore/erp/ErpNumberColumn.h>
#include <geomcore/erp/LinkDbErpNumbers.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/project/CatalogPlaces.h>
#include <gui/application/PApplication.h>
#include <gui/application/PCommandKeys.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <workbench/script/ScriptConsole.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/document/ReleaseCommands.h>
#include <workbench/window/document/RemoteCatalogs.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/FilterCommands.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/editor/LineStateFilter.h>
#include <workbench/window/editor/PrintCommands.h>
#include <workbench/window/editor/RangeCommands.h>
#include <workbench/window/help/HelpDesk.h>
#include <workbench/window/help/WelcomePage.h>
#include <workbench/window/history/HistoryCommands.h>
#include <workbench/window/linkdb/LinkDbCommands.h>
#include <workbench/window/linkdb/LinkDbHost.h>
#include <workbench/window/linkdb/PluginActions.h>
#include <workbench/window/look/ApplicationTheme.h>
#include <workbench/window/look/useLanguage.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/Question.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/message/StatusProgress.h>
#include <workbench/window/message/WindowMessageSink.h>
#include <workbench/window/review/CarryCommands.h>
#include <workbench/window/review/ConflictCommands.h>
#include <workbench/window/review/NeighbourCommands.h>
#include <workbench/window/review/ReviewCommands.h>
#include <workbench/window/review/ShareCommands.h>
#include <workbench/window/settings/KeyedActions.h>
#include <workbench/window/settings/WorkbenchActions.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <QCloseEvent>
#include <QMenu>
#include <QStackedWidget>
#include <QTimer>
#include <QToolBar>

MainWindow::MainWindow(WorkbenchSettings *settings, PLinkDbGuiI *plugin)
    : m_settings(settings)
    , m_actions(new WorkbenchActions(this))
    , m_keyed(new KeyedActions(this))
    , m_log(new LogWindow(this))
    , m_status(new StatusArea(this))
    , m_editor(new EditorArea(this))
    , m_desk(new DocumentDesk(settings, this))
    , m_history(new HistoryCommands(m_desk->document(), m_editor, this))
    , m_lines(new LineCommands(m_desk->document(), m_editor, this))
    , m_review(new ReviewCommands(m_desk->document(), m_editor, m_lines, this))
    , m_neighbours(new NeighbourCommands(m_desk->document(), m_editor, this))
    , m_conflicts(new ConflictCommands(m_desk->document(), m_editor, this))
    , m_share(new ShareCommands(m_desk, m_editor, this))
    , m_carry(new CarryCommands(m_desk->document(), m_editor, settings->store(), this))
    , m_release(new ReleaseCommands(m_desk->document(), settings->store(), this))
    , m_print(new PrintCommands(m_editor, m_release, this))
    , m_ranges(new RangeCommands(m_desk->document(), m_editor, this))
    , m_states(new LineStateFilter(this))
    , m_filters(new FilterCommands(m_desk->document(), m_editor, m_lines, m_states, settings, this))
    , m_remote(new RemoteCatalogs(settings->repositoryCache(), this))
    , m_linkDb(new LinkDbHost(plugin, this))
    , m_linkDbCommands(new LinkDbCommands(m_linkDb, m_editor, m_desk, this))
    , m_scripts(new ScriptDesk(this, settings))
    , m_erpNumbers(new ErpNumberColumn(std::make_shared<LinkDbErpNumbers>(), this))
    , m_locator(new LocatorDesk(this, settings))
    , m_help(new HelpDesk(this))
    , m_pages(new QStackedWidget(this))
    , m_counterTimer(new QTimer(this))
    , m_language(settings->values().language)
    , m_messages(
          std::make_unique<PMessageSinkScope>(std::make_shared<WindowMessageSink>(this, m_log)))
{
    setObjectName("MainWindow");
    DefaultObserverDelegate::setDisplay(
        std::make_shared<StatusProgressDisplay>(m_status->progress()));
    PProgressObserverBase::setMakerForWaits([]() -> std::unique_ptr<PProgressObserverBase> {
        return std::make_unique<DefaultObserverDelegate>();
    });
    addDockWidget(Qt::BottomDockWidgetArea, m_log);
    m_log->hide();
    addReview();
    addDockWidget(Qt::BottomDockWidgetArea, m_scripts->console());
    tabifyDockWidget(m_log, m_scripts->console());
    m_scripts->console()->hide();
    setStatusBar(m_status);
    connect(m_log, &LogWindow::problemAdded, m_status->progress(), &StatusProgress::countProblem);
    m_welcome = new WelcomePage({m_actions->action(WorkbenchActions::OpenFile),
                                 m_actions->action(WorkbenchActions::NewMapping),
                                 m_actions->action(WorkbenchActions::OpenExample)},
                                m_pages);
    m_pages->addWidget(m_welcome);
    m_pages->addWidget(m_editor);
    setCentralWidget(m_pages);
    buildMenus();
    buildToolBars();
    auto *pluginBar = addToolBar(QString());
    pluginBar->setObjectName("pluginToolBar");
    m_pluginActions =
        new PluginActions(plugin, {m_editor, m_linkDb, m_linkDbCommands}, pluginBar, this);
    collectCommands();
    connectCommands();
    connectParts();
    connectReview();
    connectDocument();
    applySettings();
    retranslate();
    updateState();
    resize(1400, 900);
    PApplication::setupWindow(this);
    restoreState(m_settings->state("window"));
    m_editor->restoreState(m_settings->state("editor"));
    boundDocks();
}

MainWindow::~MainWindow()
{
    DefaultObserverDelegate::setDisplay(nullptr);
    // While all is there that its views ask when they go out of sight.
    hide();
    // The editor's handler speaks to the document, and both to the log window.
    IndexTreeC::instance()->setErpSource({});
    static_cast<void>(m_linkDb->leave()); // before what reads numbers is waited for
    delete m_erpNumbers;
    delete m_locator;
    delete m_scripts;
    delete m_history;
    delete m_editor;
    delete m_ranges;
    delete m_share;
    delete m_conflicts;
    delete m_review;
    delete m_neighbours;
    delete m_filters;
    delete m_lines;
    delete m_desk;
    delete m_linkDbCommands;
    delete m_linkDb;
}

void MainWindow::connectParts()
{
    connect(m_settings, &WorkbenchSettings::valuesChanged, this, &MainWindow::applySettings);
    connect(m_settings, &WorkbenchSettings::recentFilesChanged, this,
            &MainWindow::updateRecentFiles);
    connect(m_welcome, &WelcomePage::fileChosen, this,
            [this](const QString &file) { m_desk->open({.file = file}); });
    connect(m_desk, &DocumentDesk::ready, this, &MainWindow::onDocumentReady);
    connect(m_desk, &DocumentDesk::aboutToClose, this, &MainWindow::onDocumentClosing);
    const auto note = [this](const QString &text) {
        m_status->showNote(text);
    };
    connect(m_desk, &DocumentDesk::noted, this, note);
    connect(m_lines, &LineCommands::noted, this, note);
    connect(m_history, &HistoryCommands::noted, this, note);
    m_release->setLanguage(m_language);
    connect(m_release, &ReleaseCommands::noted, this, note);
    connect(m_print, &PrintCommands::noted, this, note);
    connect(m_lines, &LineCommands::done, this, [this](const QString &text) {
        m_status->showNote(text, m_desk->document()->canUndo());
    });
    connect(m_lines, &LineCommands::openCountChanged, m_counterTimer, qOverload<>(&QTimer::start));
    connect(m_status, &StatusArea::nextOpenRequested, m_lines, &LineCommands::goNext);
    connect(m_status, &StatusArea::undoRequested, m_desk->document(), &MappingDocument::undo);
    connect(m_editor, &EditorArea::targetProjectWanted, this, &MainWindow::showTargetProject);
    connect(m_editor, &EditorArea::conditionCopied, m_lines, &LineCommands::tellCondition);
    connect(m_states, &LineStateFilter::kindsChanged, this, &MainWindow::onLineKindsChanged);
    connect(m_filters, &FilterCommands::noted, this, note);
    connect(m_filters, &FilterCommands::numbersChanged, this, &MainWindow::dropNoLineNote);
    connect(m_editor, &EditorArea::projectSelected, this, &MainWindow::dropNoLineNote);
    connect(m_filters, &FilterCommands::numbersChanged, m_counterTimer,
            qOverload<>(&QTimer::start));
    connect(m_remote, &RemoteCatalogs::told, this,
            [this](const QString &text) { m_log->addMessage(LogWindow::Severity::Warning, text); });
    connect(m_linkDb, &LinkDbHost::groupChanged, m_settings, &WorkbenchSettings::setLinkDbGroup);
    connect(m_linkDb, &LinkDbHost::failed, this, [this](const QString &text) {
        m_status->showNote(tr("Keine Verbindung zur Linkdatenbank: %1").arg(text));
    });
    IndexTreeC::instance()->setErpSource(std::make_shared<LinkDbErpNumbers>());
    connect(m_editor, &EditorArea::projectSelected, this, &MainWindow::showErpNumbers);
    connect(m_linkDb, &LinkDbHost::changed, this, &MainWindow::showErpNumbers);
    connect(m_erpNumbers, &ErpNumberColumn::failed, this, [this](const QString &reason) {
        m_log->addMessage(LogWindow::Severity::Warning,
                          tr("Die ERP-Nummern können nicht gelesen werden. %1").arg(reason));
    });
    // What changed, if anything did, is told at the end of the step, over this.
    connect(m_editor, &EditorArea::linesReassigned, this,
            [this] { m_status->showNote(tr("Zeilen neu zugeordnet: keine Änderung")); });
    m_counterTimer->setSingleShot(true);
    m_counterTimer->setInterval(30);
    connect(m_counterTimer, &QTimer::timeout, this, &MainWindow::updateCounter);
    updateRecentFiles();
}

/// Without a link database the table stays as it is.
void MainWindow::showErpNumbers()
{
    const bool isConnected = PLinkDbC::instance()->isOpen();
    m_erpNumbers->attach(isConnected ? m_editor->sourceTable() : VKTab::ContentRef(),
                         m_editor->currentPath());
}

void MainWindow::showOnScreen()
{
    // Title and frame need room too.
    const QSize room = screen()->availableSize() - QSize(10, 40);
    if (width() > room.width() || height() > room.height())
        showMaximized();
    else
        show();
}

void MainWindow::updateState()
{
    const MappingDocument *const document = m_desk->document();
    m_actions->setDocumentOpen(document->isOpen(), document->isReadOnly());
    m_states->setDocumentOpen(document->isOpen());
    m_status->setReadOnly(document->isOpen() ? document->readOnlyText() : QString());
    m_pluginActions->update();
    updateTitle();
    updateCounter();
    updateUndo();
}

void MainWindow::updateCounter()
{
    const OpenLines &open = m_lines->openLines();
    if (!m_desk->document()->isOpen())
        return m_status->setOpenLines(-1, 0);
    if (m_filters->work()->isActive() && m_filters->work()->asksForMore()) {
        const FilterWork::Numbers numbers = m_filters->work()->numbers();
        m_status->setFilteredLines(numbers.lines, numbers.projects);
    } else if (const OpenLines *const chosen = m_lines->chosenLines()) {
        m_status->setFilteredLines(chosen->count(), chosen->projectCount());
    } else if (m_desk->document()->counts().lines() == 0) {
        m_status->setNothingAssigned();
    } else {
        m_status->setOpenLines(open.count(), open.projectCount());
    }
    m_states->setCounts([&open](OpenLines::Kind kind) { return open.countOf(kind); });
}

void MainWindow::applySettings()
{
    const WorkbenchSettings::Values &values = m_settings->values();
    PCommandKeys::instance().setChoice(values.keys);
    m_lines->setGoesOn(values.goesOn);
    m_review->setGoesOn(values.goesOn);
    ApplicationTheme::setColours(values.theme);
    ApplicationTheme::setFontPercent(values.fontPercent);
    m_desk->document()->setAutosaveInterval(values.autosaveMinutes * 60);
    CatalogPlaces::instance().setAllowed(values.allowedPlaces);
    m_remote->apply(values.repository);
    m_linkDb->apply(values.linkDb, m_settings->linkDbGroup());
    m_editor->setRemoteTargets(values.repository.isUsed);
    if (values.language == m_language)
        return;
    m_language = values.language;
    useLanguage(m_language);
    m_release->setLanguage(m_language);
    // The editor's widgets take their texts when they are made.
    m_editor->rebuild();
}

void MainWindow::changeEvent(QEvent *event)
{
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::LanguageChange && m_pluginActions)
        retranslate();
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    const QString open = m_desk->document()->mappingFile();
    if (!m_desk->close()) {
        event->ignore();
        return;
    }
    m_settings->setSessionFile(open);
    m_settings->setState("window", saveState());
    PApplication::saveWindow(this);
    m_linkDbCommands->leave(); // while the user sees what still has to be written
    event->accept();
}
