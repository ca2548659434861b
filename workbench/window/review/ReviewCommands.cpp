#include "ReviewCommands.h"

#include "ReplacementsDialog.h"

#include <core/text/countText.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <release/decide/LineEdits.h>
#include <workbench/review/DifferencePanel.h>
#include <workbench/review/PatternDock.h>
#include <workbench/review/PatternText.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/tasks/BulkOperation.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/editor/LineCommands.h>
#include <workbench/window/message/Question.h>

#include <algorithm>
#include <map>

using VelkRelease::DifferencePatterns;

namespace {

/// Of a pattern, or of all, those of most lines first, with -1.
QList<VelkRelease::ValueChange> changesOf(const DifferencePatterns &patterns, int chosen)
{
    if (chosen >= 0)
        return patterns.changes(chosen);
    QList<VelkRelease::ValueChange> changes;
    for (const int pattern : patterns.ranked())
        changes += patterns.changes(pattern);
    return changes;
}

} // namespace

ReviewCommands::ReviewCommands(MappingDocument *document, EditorArea *editor, LineCommands *lines,
                               QWidget *window)
    : m_document(document)
    , m_editor(editor)
    , m_lines(lines)
    , m_window(window)
    , m_work(new ReviewWork(document, this))
    , m_dock(new PatternDock(m_work, window))
    , m_panel(new DifferencePanel(window))
{
    connect(m_dock, &PatternDock::chosenChanged, this, &ReviewCommands::choosePattern);
    // Behind another tab it stays as it is.
    connect(m_dock, &QDockWidget::visibilityChanged, m_work,
            [this] { m_work->setWanted(!m_dock->isHidden()); });
    connect(m_panel, &QDockWidget::visibilityChanged, this, [this](bool visible) {
        m_editor->paintLater(); // it gets more room, or less
        m_explained = LineRef();
        if (visible)
            explainCurrent();
    });
    connect(m_panel, &DifferencePanel::candidateChosen, this, &ReviewCommands::takeCandidate);
    connect(m_work, &ReviewWork::explained, this, &ReviewCommands::showExplanation);
    connect(m_work, &ReviewWork::paired, this, &ReviewCommands::showPairs);
    connect(editor, &EditorArea::linesSelected, this, &ReviewCommands::explainCurrent);
    connect(editor, &EditorArea::projectSelected, this, &ReviewCommands::explainCurrent);
    connect(editor, &EditorArea::lineChoiceDropped, this, [this] { m_dock->choose(-1); });
    connect(document, &MappingDocument::stepDone, this, [this] {
        m_explained = LineRef();
        explainCurrent();
    });
    // Not when the document is opened: where its catalogs lie is known a little later, and they may
    // be others once more.
    connect(editor, &EditorArea::editorMade, m_work, &ReviewWork::readAnew);
    connect(document, &MappingDocument::aboutToClose, this, [this] {
        m_sample.reset();
        m_dock->choose(-1);
        m_panel->clear();
    });
}

ReviewCommands::~ReviewCommands() = default;

void ReviewCommands::showPatterns()
{
    m_dock->show();
    m_dock->raise();
    m_dock->focusList();
}

void ReviewCommands::showDifferences()
{
    // Behind another one of its tabs nobody sees it.
    const bool isSeen = !m_panel->isHidden() && !m_panel->visibleRegion().isEmpty();
    m_panel->setVisible(!isSeen);
    if (!isSeen)
        m_panel->raise();
}

void ReviewCommands::choosePattern(int pattern)
{
    chooseSet(pattern < 0 ? std::vector<Place>() : m_work->patterns().places(pattern));
}

void ReviewCommands::chooseSet(const std::vector<Place> &places)
{
    m_sample.reset();
    m_set = places;
    m_takenOut.clear();
    showSet();
    if (!m_set.empty())
        goTo(m_set.front());
}

void ReviewCommands::showSet()
{
    m_lines->setDecisionOrder(m_set.empty() ? LineCommands::Order()
                                            : [this](bool forward) { go(forward); });
    EditorArea::LineChoice choice;
    ProjectId project;
    int position = -1;
    for (const Place &place : m_set) {
        if (place.project != std::exchange(position, place.project))
            project = m_work->projectAt(place.project);
        if (!m_takenOut.contains(place))
            choice[project].push_back(place.line);
    }
    m_editor->setLineChoice(choice);
}

std::vector<ReviewCommands::Place> ReviewCommands::lines() const
{
    std::vector<Place> open;
    std::copy_if(m_set.begin(), m_set.end(), std::back_inserter(open), [this](const Place &place) {
        return !m_takenOut.contains(place) && m_work->patterns().patternOf(place) >= 0;
    });
    return open;
}

LineRef ReviewCommands::here() const
{
    return {m_editor->currentProject(), m_editor->currentLine()};
}

void ReviewCommands::goTo(const Place &place)
{
    if (!m_editor->goTo(m_work->lineAt(place)))
        Q_EMIT noted(tr("Die Zeile %1 kann nicht gezeigt werden").arg(place.line));
}

void ReviewCommands::go(bool forward)
{
    std::vector<Place> open = m_set.empty() ? m_work->patterns().leastSure() : lines();
    if (!m_leastSureFirst)
        std::sort(open.begin(), open.end());
    if (open.empty() && goOn())
        return;
    if (open.empty())
        return Q_EMIT noted(m_work->hasPatterns() ? tr("Keine Zeile mehr offen")
                                                  : tr("Die Tabellen sind noch nicht verglichen"));
    const DifferencePatterns &patterns = m_work->patterns();
    const auto order = [&](const Place &place) {
        return std::pair(m_leastSureFirst ? patterns.probability(place).value_or(0) : 0.0, place);
    };
    if (m_leastSureFirst)
        std::stable_sort(open.begin(), open.end(),
                         [&](const Place &a, const Place &b) { return order(a) < order(b); });
    const LineRef from = here();
    const Place at = from.isValid() ? m_work->placeOf(from) : Place();
    const auto known = std::find(open.begin(), open.end(), at);
    auto next = open.begin();
    if (known != open.end()) {
        const auto index = known - open.begin();
        const auto size = std::ptrdiff_t(open.size());
        next += (index + (forward ? 1 : size - 1)) % size;
        if ((next <= known) == forward)
            Q_EMIT noted(tr("Von vorn: %Ln Zeile(n) offen", nullptr, int(open.size())));
    } else if (from.isValid() && !m_leastSureFirst) {
        // A line that was just decided: the one behind it.
        const auto behind = std::upper_bound(open.begin(), open.end(), at);
        next = forward ? (behind == open.end() ? open.begin() : behind)
                       : (behind == open.begin() ? std::prev(open.end()) : std::prev(behind));
    }
    goTo(*next);
}

void ReviewCommands::chooseNext()
{
    showPatterns();
    m_dock->chooseNext();
}

void ReviewCommands::setLeastSureFirst(bool on)
{
    m_leastSureFirst = on;
    if (on && !m_work->isWanted())
        showPatterns();
    m_lines->setOrder(on ? [this](bool forward) { go(forward); } : LineCommands::Order());
    Q_EMIT noted(on ? tr("Offene Zeilen kommen nach ihrer Unsicherheit")
                    : tr("Offene Zeilen kommen nach ihrem Ort"));
}

void ReviewCommands::takeOut()
{
    const Place at = m_work->placeOf(here());
    if (std::find(m_set.begin(), m_set.end(), at) == m_set.end())
        return Q_EMIT noted(tr("Die Zeile gehört nicht zum gewählten Muster"));
    m_takenOut.insert(at);
    m_dock->setTakenOut(int(m_takenOut.size()));
    Q_EMIT noted(tr("Zeile %1 herausgenommen").arg(at.line));
    const std::vector<Place> rest = lines();
    const auto next = std::upper_bound(rest.begin(), rest.end(), at);
    showSet();
    if (!rest.empty())
        goTo(next == rest.end() ? rest.front() : *next);
}

void ReviewCommands::confirmAll()
{
    const std::vector<Place> places = lines();
    if (places.empty())
        return Q_EMIT noted(tr("Es ist kein Muster gewählt, oder alle Zeilen sind entschieden"));
    const QString pattern =
        m_dock->chosen() < 0 ? QString() : PatternText::of(m_work->patterns(), m_dock->chosen());
    const bool asksReason = !goneOf(places).isEmpty();
    if (!asksReason && (doubtfulIn(places) > 0 || !isTold(places)) && !ask(places, pattern))
        return;
    confirm(places, pattern, QString());
}

/// The list says how many lines these are.
bool ReviewCommands::isTold(const std::vector<Place> &places) const
{
    return m_dock->chosen() >= 0 && m_work->patterns().numbers(m_dock->chosen()).lines ==
                                        int(places.size() + m_takenOut.size());
}

int ReviewCommands::doubtfulIn(const std::vector<Place> &places) const
{
    return int(std::count_if(places.begin(), places.end(), [this](const Place &place) {
        return m_work->patterns().probability(place).value_or(0) < DifferencePatterns::SureFrom;
    }));
}

bool ReviewCommands::ask(const std::vector<Place> &places, const QString &details) const
{
    std::set<int> projects;
    for (const Place &place : places)
        projects.insert(place.project);
    Question question(m_window);
    question.setText(tr("%Ln Zeile(n)", nullptr, int(places.size())) + u' ' +
                     tr("in %Ln Projekt(en) bestätigen?", nullptr, int(projects.size())));
    QStringList texts;
    if (!details.isEmpty())
        texts += details;
    if (const int doubtful = doubtfulIn(places); doubtful > 0)
        texts += tr("%Ln davon ist/sind unsicher.", nullptr, doubtful);
    texts += tr("Der Schritt kann zurückgenommen werden.");
    question.setDetails(texts.join(u'\n'));
    question.addAnswer(Question::Accept, tr("&Bestätigen"));
    question.addAnswer(Question::Cancel, Question::cancelText());
    return question.ask() == Question::Accept;
}

/// \a stepText: empty for the number of lines.
void ReviewCommands::confirm(const std::vector<Place> &places, const QString &details,
                             const QString &stepText)
{
    const QList<Place> gone = goneOf(places);
    if (!gone.isEmpty() && !askReason(places, details))
        return;
    const int count = int(places.size());
    const QString decided = gone.size() == count
                                ? tr("%Ln Zeile(n) als ausgelaufen bestätigt", nullptr, count)
                                : tr("%Ln Zeile(n) bestätigt", nullptr, count);
    const QString text =
        (stepText.isEmpty() ? decided + QStringLiteral(": ") + details : stepText) +
        (gone.isEmpty() ? QString() : QStringLiteral(" (") + m_reason + u')');
    const std::set<Place> without(gone.begin(), gone.end());
    std::map<int, QList<int>> byProject;
    for (const Place &place : places) {
        if (!without.contains(place))
            byProject[place.project].append(place.line);
    }
    m_document->beginStep(text);
    confirmGone(gone);
    for (const auto &[position, lines] : byProject)
        (void)BulkOperation(*m_document, m_work->projectAt(position), lines)
            .run(BulkOperation::Confirm);
    m_document->endStep();
    noteReason(gone);
    const bool ended = lines().empty() && !goOn() && m_goesOn;
    Q_EMIT done(ended ? text + QStringLiteral(" · ") + tr("Alle Muster sind erledigt") : text);
}

/// From a set without open lines to the next pattern, if there is one and the user wants it.
bool ReviewCommands::goOn()
{
    const int next = m_goesOn && m_dock->chosen() >= 0 ? m_dock->nextOpen() : -1;
    if (next >= 0)
        m_dock->choose(next);
    return next >= 0;
}

void ReviewCommands::takeCandidate(int key)
{
    const LineCandidateC *const candidate = m_panel->candidate(key);
    if (!candidate || m_explained != here() || !m_explained.isValid())
        return Q_EMIT noted(tr("Einen Kandidaten %1 gibt es nicht").arg(key));
    const LineRef line = m_explained;
    const int targetLine = candidate->lineId.value(0);
    VelkRelease::LineEdits edits(m_document->mapping(line.project));
    const QString text = tr("Zeile %1 → %2 bestätigt").arg(line.line).arg(targetLine);
    m_document->beginStep();
    edits.remove(line.line);
    edits.assign(line.line, candidate->targetIndex, targetLine, PRJMAPPING::Verified);
    m_document->updateMapping(edits.mapping());
    m_document->endStep();
    Q_EMIT done(text);
    m_lines->onDecided(text);
}

void ReviewCommands::explainCurrent()
{
    if (m_panel->isHidden())
        return;
    const LineRef line = here();
    if (line == m_explained && line.isValid())
        return;
    if (const QList<int> several = m_editor->selectedLines(); several.size() > 1) {
        m_explained = LineRef();
        m_work->pair(m_editor->currentProject(), several);
        return;
    }
    if (!line.isValid()) {
        m_explained = LineRef();
        m_panel->clear();
    }
    m_work->explain(line);
}

void ReviewCommands::showExplanation(const LineExplanation &explanation)
{
    if (explanation.line != here())
        return;
    m_explained = explanation.line;
    m_panel->show(explanation);
}

void ReviewCommands::showPairs(const LinePairs &pairs)
{
    if (pairs.project == m_editor->currentProject() && pairs.lines == m_editor->selectedLines())
        m_panel->show(pairs);
}

void ReviewCommands::editReplacements()
{
    ReplacementsDialog dialog(m_document->release(), m_document->catalogRoots().source,
                              changesOf(m_work->patterns(), m_dock->chosen()),
                              m_editor->currentPath(), m_window);
    if (dialog.exec() != QDialog::Accepted ||
        dialog.replacements() == m_document->release().getReplacements())
        return;
    const QString text =
        tr("Ersetzungen vereinbart: %1").arg(countText(dialog.replacements().size()));
    m_document->setReplacements(dialog.replacements(), text);
    Q_EMIT done(text);
}
