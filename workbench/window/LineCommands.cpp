#include "LineCommands.h"

#include "EditorArea.h"
#include "Question.h"

#include <workbench/session/MappingDocument.h>

#include <QInputDialog>

LineCommands::LineCommands(MappingDocument *document, EditorArea *editor, QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_editor(editor)
    , m_window(window)
    , m_open(document)
{
    connect(&m_open, &OpenLines::countChanged, this, &LineCommands::openCountChanged);
}

LineCommands::~LineCommands() = default;

LineRef LineCommands::here() const
{
    return {m_editor->currentProject(), m_editor->currentLine()};
}

void LineCommands::goNext()
{
    go(true);
}

void LineCommands::goPrevious()
{
    go(false);
}

void LineCommands::go(bool forward)
{
    const LineRef from = here();
    LineRef to = forward ? m_open.next(from) : m_open.previous(from);
    // A line that its table lacks cannot be shown; each is tried once.
    for (int tries = m_open.count(); to.isValid() && tries > 0; --tries) {
        if (m_editor->goTo(to)) {
            if (m_open.wraps(from, to, forward))
                Q_EMIT noted(forward ? tr("Am Ende angekommen, weiter von vorn")
                                     : tr("Am Anfang angekommen, weiter von hinten"));
            return;
        }
        to = forward ? m_open.next(to) : m_open.previous(to);
    }
    Q_EMIT noted(m_open.count() == 0
                     ? tr("Keine Zeile braucht mehr eine Entscheidung")
                     : tr("Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen"));
}

void LineCommands::jumpByDialog()
{
    QInputDialog dialog(m_window);
    dialog.setObjectName("JumpDialog");
    dialog.setWindowTitle(tr("Gehe zu Zeile"));
    dialog.setLabelText(tr("Nummer oder Normbezeichnung:"));
    dialog.setTextValue(m_lastText);
    dialog.setOkButtonText(tr("Gehe zu"));
    dialog.setCancelButtonText(Question::cancelText());
    if (dialog.exec() == QDialog::Accepted)
        jumpTo(dialog.textValue());
}

bool LineCommands::jumpTo(const QString &text)
{
    m_lastText = text;
    const VKTab::ContentRef table = m_editor->sourceTable();
    if (!table.isValid()) {
        Q_EMIT noted(tr("Es ist kein Projekt gewählt"));
        return false;
    }
    const QList<int> lines = OpenLines::linesByText(table, text.trimmed());
    if (lines.isEmpty()) {
        Q_EMIT noted(tr("Keine Zeile mit „%1“ in diesem Projekt").arg(text.trimmed()));
        return false;
    }
    // The same text once more goes on to the next one.
    const auto at = lines.indexOf(m_editor->currentLine());
    const auto chosen = at < 0 ? 0 : (at + 1) % lines.size();
    m_editor->selectLine(lines.at(chosen));
    if (lines.size() > 1)
        Q_EMIT noted(tr("Treffer %1 von %2").arg(chosen + 1).arg(lines.size()));
    return true;
}

void LineCommands::runOnMany(BulkOperation::Action action)
{
    const VKTab::ContentRef table = m_editor->sourceTable();
    if (!table.isValid()) {
        Q_EMIT noted(tr("Es ist kein Projekt gewählt"));
        return;
    }
    QList<int> lines = m_editor->selectedLines();
    const bool selection = lines.size() > 1;
    if (!selection)
        lines = BulkOperation::shownLines(table);
    const BulkOperation operation(*m_document, m_editor->currentProject(), lines);
    const BulkOperation::Preview preview = operation.preview(action);
    if (preview.lines == 0) {
        Q_EMIT noted(tr("Keine der Zeilen würde sich ändern"));
        return;
    }
    Question question(m_window);
    question.setText(preview.text);
    question.setDetails(selection ? tr("Gemeint sind die markierten Zeilen. Der Schritt kann "
                                       "zurückgenommen werden.")
                                  : tr("Gemeint sind alle gezeigten Zeilen des Projekts. Der "
                                       "Schritt kann zurückgenommen werden."));
    question.addAnswer(Question::Accept, tr("&Ausführen"));
    question.addAnswer(Question::Cancel, Question::cancelText());
    if (question.ask() == Question::Accept)
        operation.run(action);
}
