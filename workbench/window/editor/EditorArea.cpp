#include "EditorArea.h"

#include "readTablesAhead.h"
#include "TargetProjectOpener.h"

#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/session/common/BackgroundWork.h>
#include <workbench/session/document/MappingDocument.h>

#include <QAbstractEventDispatcher>
#include <QAbstractItemModel>
#include <QCoreApplication>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <chrono>
#include <memory>
#include <utility>

namespace {

constexpr std::chrono::milliseconds PaintPatience{500}; // with a loop that never waits

} // namespace

EditorArea::EditorArea(QWidget *parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_paint(new QTimer(this))
{
    setObjectName("EditorArea");
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_paint->setSingleShot(true);
    connect(m_paint, &QTimer::timeout, this, [this] { setUpdatesEnabled(true); });
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &EditorArea::onLoopWaits);
}

EditorArea::~EditorArea()
{
    close();
}

void EditorArea::open(MappingDocument *document, const QString &sourceRoot)
{
    close();
    m_document = document;
    m_sourceRoot = sourceRoot;
    make();
}

void EditorArea::close()
{
    if (!m_editor)
        return;
    m_state = saveState();
    m_changed.clear();
    // The widget leaves its tree's data, and with it the release, to whoever deletes it.
    const std::unique_ptr<QAbstractItemModel> treeModel(m_editor->treeModel());
    delete m_editor;
    m_editor = nullptr;
}

void EditorArea::rebuild()
{
    if (!m_editor || !m_document)
        return;
    paintLater();
    const ProjectId project = currentProject();
    const int line = currentLine();
    const QStringList open = m_editor->expandedDirectories();
    const bool onlyOpen = m_editor->onlyOpenProjects();
    const bool hadKeys = window()->focusWidget() && m_editor->isAncestorOf(window()->focusWidget());
    close();
    make();
    m_editor->expandDirectories(open);
    m_editor->setOnlyOpenProjects(onlyOpen);
    if (goToProject(project.path, project.version) && line >= 0)
        selectLine(line);
    if (hadKeys)
        m_editor->focusLines();
}

void EditorArea::setRemoteTargets(bool remote)
{
    if (m_remoteTargets == remote)
        return;
    m_remoteTargets = remote;
    rebuild();
}

void EditorArea::make()
{
    auto *opener =
        new TargetProjectOpener([this](const QString &path) { Q_EMIT targetProjectWanted(path); });
    m_editor = new CatalogMappingWidget(m_sourceRoot, m_document->createHandler(), opener, nullptr);
    m_editor->setObjectName("CatalogMappingWidget");
    // before anything is selected, and the local ones first: marking runs once for each widget
    m_editor->setConflictedLocalChanges(
        m_document->mergeState().localChanges(m_document->release()));
    m_editor->setConflictedOnlineChanges(m_document->mergeState().onlineChanges());
    m_editor->setRemoteViewerMode(m_remoteTargets);
    m_editor->setComparing(true);
    m_editor->setLineRemarks(m_remarks);
    m_layout->addWidget(m_editor);
    m_editor->restoreState(m_state);
    m_editor->expandDirectories({});
    const QObject *const notifier = m_editor->notifier();
    connect(notifier, SIGNAL(currentProjectChanged()), this, SLOT(onProjectShown()));
    connect(notifier, SIGNAL(selectedLinesChanged()), this, SIGNAL(linesSelected()));
    connect(notifier, SIGNAL(onlyOpenProjectsChanged(bool)), this,
            SIGNAL(onlyOpenProjectsChanged(bool)));
    connect(notifier, SIGNAL(linesReassigned()), this, SIGNAL(linesReassigned()));
    connect(notifier, SIGNAL(linesDecided()), this, SIGNAL(linesDecided()));
    connect(notifier, SIGNAL(conditionCopied(QString)), this, SIGNAL(conditionCopied(QString)));
    filterProjects();
    m_editor->show();
    Q_EMIT editorMade();
}

void EditorArea::setLineRemarks(const LineRemarks &remarks)
{
    m_remarks = remarks;
    if (m_editor)
        m_editor->setLineRemarks(remarks);
}

VKTab::ContentRef EditorArea::sourceTable() const
{
    return m_editor ? m_editor->sourceTable() : VKTab::ContentRef();
}

QString EditorArea::currentPath() const
{
    return currentProject().path;
}

ProjectId EditorArea::currentProject() const
{
    const PrjMappingC mapping = m_editor ? m_editor->currentProject() : PrjMappingC();
    return mapping.isValid() ? ProjectId::of(mapping) : ProjectId();
}

bool EditorArea::selectProject(const QString &sourcePath)
{
    return m_editor && goToProject(sourcePath, QString());
}

bool EditorArea::openProject(const QString &sourcePath, int line)
{
    const QPointer<CatalogMappingWidget> editor = m_editor;
    const auto isThere = [&] {
        return editor && editor == m_editor;
    };
    if (sourcePath.isEmpty() || !isThere())
        return false;
    BackgroundWork::letShow();
    const QList<VKTab::ContentRef> held =
        isThere()
            ? readTablesAhead(m_document->release(), m_sourceRoot, sourcePath, !m_remoteTargets)
            : QList<VKTab::ContentRef>();
    if (!isThere())
        return false;
    // Opened in one turn, its line in the next, painted in the last.
    setUpdatesEnabled(false);
    bool isShown = selectProject(sourcePath);
    BackgroundWork::letShow();
    isShown = isShown && isThere() && (line < 0 || selectLine(line));
    BackgroundWork::letShow();
    setUpdatesEnabled(true);
    return isShown && isThere();
}

bool EditorArea::showProject(const QString &sourcePath)
{
    paintLater();
    if (!selectProject(sourcePath))
        return false;
    if (const OpenLines::Shown rows = shown(); rows.rows > 0)
        selectLine(rows.firstOf(OpenLines::linesOf(m_editor->currentProject(),
                                                   OpenLines::Kinds(OpenLines::NeedDecision))));
    focusLines();
    return true;
}

void EditorArea::focusLines()
{
    if (m_editor)
        m_editor->focusLines();
}

void EditorArea::paintLater()
{
    setUpdatesEnabled(false);
    m_paintsAfterTurn = true;
    m_paint->start(PaintPatience);
}

/// What followed from the change is done, however long it took.
void EditorArea::onLoopWaits()
{
    if (std::exchange(m_paintsAfterTurn, false) && m_paint->isActive())
        m_paint->start(1);
}

/// The choices of lines and kinds give way to a project that they hide.
bool EditorArea::goToProject(const QString &path, const QString &version)
{
    if (m_editor->selectProject(path, version))
        return true;
    if (!m_choice.isEmpty()) {
        const LineChoice choice = m_choice;
        setLineChoice({});
        if (goToProject(path, version)) {
            Q_EMIT lineChoiceDropped();
            return true;
        }
        setLineChoice(choice);
        return false;
    }
    if (!m_kinds)
        return false;
    const OpenLines::Kinds kinds = m_kinds;
    setLineKinds({});
    if (!m_editor->selectProject(path, version)) {
        setLineKinds(kinds);
        return false;
    }
    Q_EMIT lineKindsDropped();
    return true;
}

void EditorArea::setLineKinds(OpenLines::Kinds kinds)
{
    if (m_kinds == kinds)
        return;
    m_kinds = kinds;
    filterProjects();
    filterLines();
}

void EditorArea::setLineChoice(const LineChoice &choice)
{
    if (m_choice.isEmpty() && choice.isEmpty())
        return;
    m_choice = choice;
    paintLater();
    filterProjects();
    filterLines();
}

void EditorArea::filterProjects()
{
    if (!m_editor)
        return;
    if (!m_choice.isEmpty())
        m_editor->setProjectFilter(
            [choice = m_choice](const PrjMappingC &mapping) {
                return choice.contains(ProjectId::of(mapping));
            },
            noProjectText());
    else if (m_kinds)
        m_editor->setProjectFilter(
            [kinds = m_kinds](const PrjMappingC &mapping) {
                return OpenLines::countOf(mapping, kinds) > 0;
            },
            noProjectText());
    else
        m_editor->setProjectFilter({});
}

void EditorArea::filterLines()
{
    if (!m_editor)
        return;
    if (!m_choice.isEmpty())
        m_editor->showOnlyLines(m_choice.value(currentProject()), noLineText());
    else if (m_kinds)
        m_editor->showOnlyLines(OpenLines::linesOf(m_editor->currentProject(), m_kinds),
                                noLineText());
    else
        m_editor->showAllLines();
}

void EditorArea::onProjectShown()
{
    if (m_kinds || !m_choice.isEmpty())
        filterLines();
    Q_EMIT projectSelected();
}

void EditorArea::showChange(const ProjectId &project, int line)
{
    if (m_changed.isEmpty())
        QTimer::singleShot(0, this, &EditorArea::showChanges);
    m_changed.removeIf([&project](const LineRef &each) { return each.project == project; });
    m_changed += {project, line};
}

void EditorArea::showChanges()
{
    const QList<LineRef> changed = std::exchange(m_changed, {});
    if (!m_editor || !m_document || changed.isEmpty())
        return;
    paintLater();
    const ProjectId current = currentProject();
    const auto found = std::ranges::find(changed, current, &LineRef::project);
    const LineRef &shown = found == changed.end() ? changed.first() : *found;
    if (found == changed.end() && changed.size() == 1 &&
        !goToProject(shown.project.path, shown.project.version))
        return rebuild();
    // Of all others only sums are to be seen, and they come along with any.
    m_editor->showMapping(m_document->mapping(shown.project));
    m_changedLine = shown;
    QTimer::singleShot(0, this, &EditorArea::showChangedLine);
}

/// In a turn of its own.
void EditorArea::showChangedLine()
{
    const LineRef line = std::exchange(m_changedLine, {});
    if (line.isValid() && line.project == currentProject() &&
        !selectedLines().contains(line.line) && m_editor->rowOfLine(line.line) >= 0)
        selectLine(line.line);
}

QList<int> EditorArea::selectedLines() const
{
    return m_editor ? m_editor->selectedLines() : QList<int>();
}

int EditorArea::currentLine() const
{
    return m_editor ? m_editor->currentLine() : -1;
}

bool EditorArea::selectLine(int line)
{
    return m_editor && m_editor->selectLine(line);
}

bool EditorArea::goTo(const LineRef &ref)
{
    if (!m_editor || !ref.isValid())
        return false;
    showChanges(); // later they would lead back to where they are
    m_changedLine = {};
    if (ref.project != currentProject() && !goToProject(ref.project.path, ref.project.version))
        return false;
    if (!selectLine(ref.line))
        return false;
    m_editor->focusLines();
    return true;
}

OpenLines::Shown EditorArea::shown() const
{
    OpenLines::Shown rows;
    if (!sourceTable().isValid())
        return rows;
    rows.project = currentProject();
    rows.rows = m_editor->shownLineCount();
    rows.isFiltered = m_kinds || !m_choice.isEmpty() ? !m_editor->columnFilters().isEmpty()
                                                     : m_editor->linesAreFiltered();
    rows.lineAt = [editor = m_editor](int row) {
        return editor->shownLine(row);
    };
    rows.rowOf = [editor = m_editor](int line) {
        return editor->rowOfLine(line);
    };
    return rows;
}

QList<int> EditorArea::shownLines() const
{
    const OpenLines::Shown rows = shown();
    QList<int> lines;
    lines.reserve(rows.rows);
    for (int row = 0; row < rows.rows; ++row)
        lines += rows.lineAt(row);
    return lines;
}

QByteArray EditorArea::saveState() const
{
    return m_editor ? m_editor->saveState() : m_state;
}

void EditorArea::restoreState(const QByteArray &state)
{
    m_state = state;
    if (m_editor)
        m_editor->restoreState(state);
}
