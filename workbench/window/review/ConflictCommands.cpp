#include "ConflictCommands.h"

#include <core/text/countText.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/Question.h>

#include <QTimer>

ConflictCommands::ConflictCommands(MappingDocument *document, EditorArea *editor, QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_editor(editor)
    , m_window(window)
    , m_list(new ConflictList(document, this))
    , m_dock(new ConflictDock(m_list, window))
{
    connect(m_list, &ConflictList::reset, this, [this] { m_oneByOne.clear(); });
    connect(m_dock, &ConflictDock::lineWanted, this, &ConflictCommands::goTo);
    connect(m_dock, &ConflictDock::decided, this, &ConflictCommands::decide);
    connect(editor, &EditorArea::linesSelected, this, &ConflictCommands::followEditor);
    connect(editor, &EditorArea::editorMade, this, [this] {
        m_dock->setRoots(m_document->catalogRoots());
        m_dock->setReadOnly(m_document->isReadOnly());
    });
}

/// The dock shows the list for as long as it is there.
ConflictCommands::~ConflictCommands()
{
    delete m_dock;
}

void ConflictCommands::showConflicts()
{
    m_dock->show();
    m_dock->raise();
    followEditor();
    m_dock->focusList();
}

void ConflictCommands::followEditor()
{
    const int place = m_list->placeOf({m_editor->currentProject(), m_editor->currentLine()});
    if (place >= 0)
        m_dock->setCurrent(place);
}

void ConflictCommands::goTo(int place)
{
    m_dock->setCurrent(place);
    if (!m_editor->goTo(m_list->at(place).line))
        Q_EMIT noted(tr("Die Zeile %1 in %2 kann nicht gezeigt werden")
                         .arg(QString::number(m_list->at(place).line.line),
                              m_list->at(place).line.project.path));
}

void ConflictCommands::goNext()
{
    const int next = m_list->nextOpen(m_dock->current());
    if (next < 0)
        return Q_EMIT noted(m_list->count() == 0
                                ? tr("Keine Zeile ist in Konflikt")
                                : tr("Alle Konflikte sind entschieden; nun speichern"));
    goTo(next);
    Q_EMIT noted(
        tr("Konflikt %1 von %2, noch %3 offen")
            .arg(countText(next + 1), countText(m_list->count()), countText(m_list->openCount())));
}

std::vector<int> ConflictCommands::askFor(int place)
{
    std::vector<int> alike = m_list->openAlike(place);
    const int group = m_list->at(place).group;
    if (alike.size() < 2 || m_list->at(place).outcome != ConflictEntry::Open ||
        m_oneByOne.contains(group))
        return {place};
    Question question(m_window);
    question.setText(tr("%Ln Zeile(n) von %1 widersprechen sich in der gleichen Weise. Gilt die "
                        "Entscheidung für alle?",
                        nullptr, int(alike.size()))
                         .arg(m_list->at(place).line.project.path));
    question.setDetails(tr("Eigene: %1\nAndere: %2")
                            .arg(ConflictSides::text(m_list->at(place).clash.ours),
                                 ConflictSides::text(m_list->at(place).clash.theirs)));
    question.addAnswer(Question::Accept, tr("&Für alle"));
    question.addAnswer(Question::Refuse, tr("&Zeile für Zeile"));
    question.addAnswer(Question::Cancel, Question::cancelText());
    switch (question.ask()) {
    case Question::Accept:
        return alike;
    case Question::Refuse:
        m_oneByOne.insert(group);
        return {place};
    case Question::Cancel:
        break;
    }
    return {};
}

void ConflictCommands::decide(MergeState::Side side)
{
    const int place = m_dock->isVisible()
                          ? m_dock->current()
                          : m_list->placeOf({m_editor->currentProject(), m_editor->currentLine()});
    if (place < 0)
        return Q_EMIT noted(tr("Die Zeile ist in keinem Konflikt"));
    if (side == MergeState::Side::Ours && !m_list->at(place).isKnown)
        return Q_EMIT noted(tr("Die eigene Entscheidung ist nicht bekannt: die Zeile war schon "
                               "beim Öffnen in Konflikt"));
    const std::vector<int> places = askFor(place);
    if (places.empty())
        return;
    m_list->settle(places, side);
    // Behind what the editor has to show of this decision. A line to be decided anew stays in
    // sight.
    QTimer::singleShot(0, this, [this, side, place] {
        if (side != MergeState::Side::Neither && m_list->openCount() > 0)
            goNext();
        else if (place < m_list->count())
            goTo(place);
    });
}
