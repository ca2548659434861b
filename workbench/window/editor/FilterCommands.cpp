#include "FilterCommands.h"

#include "EditorArea.h"
#include "LineCommands.h"
#include "LineStateFilter.h"

#include <workbench/review/FilterDock.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <utility>

using VelkRelease::LineFilter;
using VelkRelease::LineState;
using VelkRelease::LineTrait;

namespace {

const QString filterState = QStringLiteral("lineFilter");

QStringList keysOf(OpenLines::Kinds kinds)
{
    QStringList keys;
    for (int state = 0; state < VelkRelease::LineStateCount; ++state) {
        if (kinds.testFlag(OpenLines::Kind(1U << unsigned(state))))
            keys += VelkRelease::lineStateKey(LineState(state));
    }
    return keys;
}

OpenLines::Kinds kindsOf(const LineFilter::Choice &choice)
{
    OpenLines::Kinds kinds;
    for (int state = 0; state < VelkRelease::LineStateCount && !choice.isNot; ++state)
        kinds.setFlag(OpenLines::Kind(1U << unsigned(state)),
                      choice.values.contains(VelkRelease::lineStateKey(LineState(state))));
    return kinds;
}

} // namespace

FilterCommands::FilterCommands(MappingDocument *document, EditorArea *editor, LineCommands *lines,
                               LineStateFilter *states, WorkbenchSettings *settings,
                               QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_editor(editor)
    , m_lines(lines)
    , m_states(states)
    , m_settings(settings)
    , m_work(new FilterWork(document, this))
    , m_dock(new FilterDock(m_work, window))
{
    m_work->setFilter(LineFilter::fromText(settings->state(filterState)));
    connect(m_work, &FilterWork::changed, this, &FilterCommands::apply);
    connect(m_work, &FilterWork::linesChanged, this, &FilterCommands::numbersChanged);
    connect(states, &LineStateFilter::kindsChanged, this, &FilterCommands::takeStates);
    connect(editor, &EditorArea::lineKindsDropped, states, &LineStateFilter::clear);
    connect(editor, &EditorArea::lineChoiceDropped, this, [this] {
        if (!m_isShown)
            return;
        m_work->setFilter({});
        Q_EMIT noted(tr("Der Filter ist aufgehoben: das Projekt hat keine Zeile darin"));
    });
    // Catalogs and tables may be others.
    connect(editor, &EditorArea::editorMade, m_work, &FilterWork::readAnew);
    connect(editor, &EditorArea::editorMade, this, &FilterCommands::apply);
}

FilterCommands::~FilterCommands() = default;

void FilterCommands::showFilter()
{
    m_dock->show();
    m_dock->raise();
    m_dock->focusList();
}

/// Without a document the switches are off, and the filter is kept for the next one.
void FilterCommands::takeStates()
{
    if (!m_document->isOpen())
        return;
    LineFilter filter = m_work->filter();
    filter.of(LineTrait::State) = {keysOf(m_states->kinds()), false};
    m_work->setFilter(filter);
}

/// States alone need nothing that has to be read.
void FilterCommands::apply()
{
    const LineFilter &filter = m_work->filter();
    m_settings->setState(filterState, filter.isEmpty() ? QByteArray() : filter.toText());
    const OpenLines::Kinds kinds = kindsOf(filter.of(LineTrait::State));
    m_states->setKinds(kinds);
    const bool isStates = !m_work->asksForMore();
    m_lines->setKinds(isStates ? kinds : OpenLines::Kinds());
    const bool isShown = !isStates && m_work->isActive();
    if (isShown) {
        m_editor->setLineKinds({});
        choose();
    } else if (m_isShown) {
        m_editor->setLineChoice({});
    }
    if (!isShown)
        m_editor->setLineKinds(isStates ? kinds : OpenLines::Kinds());
    if (isShown != std::exchange(m_isShown, isShown)) {
        m_lines->setOrder(isShown ? [this](bool forward) { go(forward); } : LineCommands::Order());
        m_lines->setProjects(isShown ? [this](const ProjectId &from, bool forward) {
            return m_work->nextProject(from, forward);
        } : LineCommands::Projects());
    }
    Q_EMIT numbersChanged();
}

void FilterCommands::choose()
{
    EditorArea::LineChoice choice = m_work->lines();
    if (choice.isEmpty())
        choice.insert(ProjectId(), {}); // none at all
    m_editor->setLineChoice(choice);
}

void FilterCommands::go(bool forward)
{
    if (goWithin(forward, m_editor->currentLine()))
        return;
    const ProjectId next = m_work->nextProject(m_editor->currentProject(), forward);
    if (next.isValid()) {
        choose(); // what was decided meanwhile is no longer in it
        if (m_editor->selectProject(next.path) && goWithin(forward, -1))
            return Q_EMIT noted(QString());
    }
    if (goWithin(forward, -1))
        return Q_EMIT noted(forward ? tr("Am Ende angekommen, weiter von vorn")
                                    : tr("Am Anfang angekommen, weiter von hinten"));
    Q_EMIT noted(tr("Keine Zeile ist mehr im Filter"));
}

/// Among the rows in sight, in their order.
bool FilterCommands::goWithin(bool forward, int from)
{
    const OpenLines::Shown shown = m_editor->shown();
    const int row = from < 0 || !shown.rowOf ? -1 : shown.rowOf(from);
    const int step = forward ? 1 : -1;
    for (int at = forward ? row + 1 : (row < 0 ? shown.rows : row) - 1; at >= 0 && at < shown.rows;
         at += step) {
        const LineRef line{shown.project, shown.lineAt(at)};
        if (m_work->accepts(line) && m_editor->goTo(line))
            return true;
    }
    return false;
}
