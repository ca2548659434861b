#include "RangeCommands.h"

#include "EditorArea.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/message/Question.h>

#include <utility>

RangeCommands::RangeCommands(MappingDocument *document, EditorArea *editor, QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_editor(editor)
    , m_window(window)
    , m_dock(new RangeDock(window))
{
    connect(editor, &EditorArea::projectSelected, this, &RangeCommands::noteConfirmed);
    connect(editor, &EditorArea::linesSelected, this, &RangeCommands::followLine);
    connect(m_dock, &QDockWidget::visibilityChanged, this, &RangeCommands::followLine);
    // Looked for before the editor goes on to another project, asked when it has shown the step: a
    // question in the middle of it would be in its way.
    connect(document, &MappingDocument::stepDone, this, [this] {
        const auto later = [this, gaps = newGaps()] {
            followLine();
            askAbout(gaps);
        };
        QMetaObject::invokeMethod(this, later, Qt::QueuedConnection);
    });
}

RangeCommands::~RangeCommands() = default;

void RangeCommands::showRange()
{
    m_dock->show();
    m_dock->raise();
    followLine();
}

void RangeCommands::followLine()
{
    if (!m_dock || !m_dock->isVisible())
        return;
    const int line = m_editor->currentLine();
    const VKTab::ContentRef table = m_editor->sourceTable();
    m_dock->setCoverage(line >= 0 && table.isValid() && m_document->isOpen()
                            ? VelkRelease::rangeCoverage(
                                  table, m_document->mapping(m_editor->currentProject()), line)
                            : VelkRelease::RangeCoverage());
}

std::set<int> RangeCommands::confirmedWithText() const
{
    std::set<int> lines;
    if (!m_document->isOpen() || !m_project.isValid())
        return lines;
    const PrjMappingC mapping = m_document->mapping(m_project);
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines().texts()) {
            if (entry.line().getState() == PRJMAPPING::Verified)
                lines.insert(entry.sourceLine());
        }
    }
    return lines;
}

void RangeCommands::noteConfirmed()
{
    m_project = m_editor->currentProject();
    m_confirmed = confirmedWithText();
    followLine();
}

QStringList RangeCommands::newGaps()
{
    const std::set<int> before = std::exchange(m_confirmed, confirmedWithText());
    const VKTab::ContentRef table = m_editor->sourceTable();
    if (m_editor->currentProject() != m_project || !table.isValid() || !m_document->canUndo())
        return {};
    QStringList gaps;
    const PrjMappingC mapping = m_document->mapping(m_project);
    for (const int line : m_confirmed) {
        if (before.contains(line))
            continue;
        const auto coverage = VelkRelease::rangeCoverage(table, mapping, line);
        if (!coverage.missing().isEmpty())
            gaps += tr("Zeile %1: %2").arg(QString::number(line), RangeDock::text(coverage));
    }
    return gaps;
}

void RangeCommands::askAbout(QStringList gaps)
{
    if (gaps.isEmpty() || !m_document->canUndo())
        return;
    constexpr int shown = 10;
    const int number = int(gaps.size());
    if (gaps.size() > shown)
        gaps = gaps.mid(0, shown) + QStringList{QStringLiteral("…")};
    Question question(m_window);
    question.setWarning();
    question.setText(
        tr("%Ln Zeile(n) sind bestätigt, obwohl Werte ihres Bereichs keine neue Zeile haben.",
           nullptr, number));
    question.setDetails(gaps.join(u'\n'));
    question.addAnswer(Question::Cancel, tr("&Zurücknehmen"));
    question.addAnswer(Question::Accept, tr("&Trotzdem bestätigen"));
    if (question.ask() != Question::Accept)
        m_document->undo();
}
