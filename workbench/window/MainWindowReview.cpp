#include "MainWindow.h"
#include "ScriptDesk.h"

#include <gui/application/PCommandKeys.h>
#include <workbench/review/ConflictDock.h>
#include <workbench/review/DifferencePanel.h>
#include <workbench/review/FilterDock.h>
#include <workbench/review/NeighbourDock.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/RangeDock.h>
#include <workbench/script/ScriptConsole.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/CarriedWork.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/FilterCommands.h>
#include <workbench/window/editor/LineStateFilter.h>
#include <workbench/window/editor/RangeCommands.h>
#include <workbench/window/look/DockRoom.h>
#include <workbench/window/message/LogWindow.h>
#include <workbench/window/message/StatusArea.h>
#include <workbench/window/review/CarryCommands.h>
#include <workbench/window/review/ConflictCommands.h>
#include <workbench/window/review/NeighbourCommands.h>
#include <workbench/window/review/ReviewCommands.h>
#include <workbench/window/review/ShareCommands.h>
#include <workbench/window/settings/WorkbenchActions.h>

#include <QAction>

void MainWindow::addReview()
{
    // The lists beside the tree have the whole height.
    setCorner(Qt::BottomLeftCorner, Qt::LeftDockWidgetArea);
    addDockWidget(Qt::LeftDockWidgetArea, m_review->dock());
    addDockWidget(Qt::BottomDockWidgetArea, m_review->panel());
    addDockWidget(Qt::BottomDockWidgetArea, m_conflicts->dock());
    m_conflicts->dock()->hide();
    addDockWidget(Qt::BottomDockWidgetArea, m_ranges->dock());
    m_ranges->dock()->hide();
    m_review->dock()->hide();
    m_review->panel()->hide();
    tabifyDockWidget(m_review->dock(), m_neighbours->dock());
    m_neighbours->dock()->hide();
    tabifyDockWidget(m_review->dock(), m_filters->dock());
    m_filters->dock()->hide();
    // Until the user wants another size.
    resizeDocks({m_review->dock()}, {460}, Qt::Horizontal);
}

/// After the state of the last session is there.
void MainWindow::boundDocks()
{
    auto *const room = new DockRoom(this);
    room->add(m_log, 1.0 / 6);
    room->add(m_scripts->console(), 1.0 / 4);
    room->add(m_review->panel(), 1.0 / 4);
    room->add(m_conflicts->dock(), 1.0 / 4);
    room->add(m_ranges->dock(), 1.0 / 4);
}

void MainWindow::connectReview()
{
    const auto connectTo = [this](WorkbenchActions::Command command, auto slot) {
        connect(m_actions->action(command), &QAction::triggered, this, slot);
    };
    connectTo(WorkbenchActions::ReviewPatterns, [this] { m_review->showPatterns(); });
    connectTo(WorkbenchActions::FilterLines, [this] { m_filters->showFilter(); });
    connect(m_carry, &CarryCommands::noted, m_status,
            [this](const QString &text) { m_status->showNote(text); });
    connect(m_carry, &CarryCommands::done, m_status, [this](const QString &text) {
        m_status->showNote(text, m_desk->document()->canUndo());
    });
    connect(m_carry->work(), &CarriedWork::changed, m_filters->work(),
            [this] { m_filters->work()->setCarried(m_carry->work()->lines()); });
    // A pattern's lines take the place of the filter's, as long as it is chosen.
    connect(m_review->dock(), &PatternDock::chosenChanged, this, [this](int pattern) {
        if (pattern < 0)
            m_filters->apply();
    });
    connectTo(WorkbenchActions::ReviewDifferences, [this] { m_review->showDifferences(); });
    connectTo(WorkbenchActions::ConfirmPattern, [this] { m_review->confirmAll(); });
    connectTo(WorkbenchActions::TakeOutLine, [this] { m_review->takeOut(); });
    connectTo(WorkbenchActions::NextInPattern, [this] { m_review->goNext(); });
    connectTo(WorkbenchActions::PreviousInPattern, [this] { m_review->goPrevious(); });
    connectTo(WorkbenchActions::NextPattern, [this] { m_review->chooseNext(); });
    connectTo(WorkbenchActions::LeastSureFirst,
              [this](bool on) { m_review->setLeastSureFirst(on); });
    connectTo(WorkbenchActions::Neighbours, [this] { m_neighbours->showList(); });
    connectTo(WorkbenchActions::MendNeighbours, [this] { m_neighbours->mend(); });
    connectTo(WorkbenchActions::Replacements, [this] { m_review->editReplacements(); });
    connectTo(WorkbenchActions::StartSample, [this] { m_review->startSample(); });
    connectTo(WorkbenchActions::SampleRight, [this] { m_review->judge(true); });
    connectTo(WorkbenchActions::SampleWrong, [this] { m_review->judge(false); });
    for (int key = 1; key <= 5; ++key)
        connectTo(WorkbenchActions::Command(WorkbenchActions::TakeCandidate1 + key - 1),
                  [this, key] { m_review->takeCandidate(key); });
    connectTo(WorkbenchActions::ShareFile, [this] { m_share->shareByDialog(); });
    connectTo(WorkbenchActions::ShareUpdate, [this] { m_share->update(); });
    connectTo(WorkbenchActions::SharePublish, [this] { m_share->publish(); });
    connectTo(WorkbenchActions::ShareFolders, [this] { m_share->takeFoldersByDialog(); });
    connectTo(WorkbenchActions::ShareWho, [this] { m_share->tellWho(); });
    connect(m_share, &ShareCommands::noted, this,
            [this](const QString &text) { m_status->showNote(text); });
    connect(m_share, &ShareCommands::conflictsWanted, m_conflicts,
            &ConflictCommands::showConflicts);
    connectTo(WorkbenchActions::RangeOfLine, [this] { m_ranges->showRange(); });
    connectTo(WorkbenchActions::Conflicts, [this] { m_conflicts->showConflicts(); });
    connectTo(WorkbenchActions::NextConflict, [this] { m_conflicts->goNext(); });
    connectTo(WorkbenchActions::ConflictOurs,
              [this] { m_conflicts->decide(MergeState::Side::Ours); });
    connectTo(WorkbenchActions::ConflictTheirs,
              [this] { m_conflicts->decide(MergeState::Side::Theirs); });
    connectTo(WorkbenchActions::ConflictAnew,
              [this] { m_conflicts->decide(MergeState::Side::Neither); });
    connect(m_conflicts, &ConflictCommands::noted, this, [this](const QString &text) {
        m_status->showNote(text, m_desk->document()->canUndo());
    });
    connect(m_desk, &DocumentDesk::conflictsWanted, m_conflicts, &ConflictCommands::showConflicts);
    const auto showNote = [this](const QString &text) {
        m_status->showNote(text);
    };
    const auto showStep = [this](const QString &text) {
        m_status->showNote(text, m_desk->document()->canUndo());
    };
    connect(m_review, &ReviewCommands::noted, this, showNote);
    connect(m_review, &ReviewCommands::done, this, showStep);
    connect(m_neighbours, &NeighbourCommands::noted, this, showNote);
    connect(m_neighbours, &NeighbourCommands::done, this, showStep);
}

void MainWindow::onLineKindsChanged()
{
    if (!isWithoutSuchLine())
        return dropNoLineNote();
    const QString next = PCommandKeys::instance().keyText(QStringLiteral("goNext"));
    m_noLineNote = tr("Hier ist keine solche Zeile. %1 geht zur nächsten.").arg(next);
    m_status->showNote(m_noLineNote);
}

bool MainWindow::isWithoutSuchLine() const
{
    return m_states->kinds() && m_editor->shown().rows == 0;
}

/// The filter was lifted, or there are such lines by now.
void MainWindow::dropNoLineNote()
{
    if (!m_noLineNote.isEmpty() && !isWithoutSuchLine())
        m_status->dropNote(std::exchange(m_noLineNote, QString()));
}
