#include "HistoryCommands.h"

#include "HistoryDialog.h"
#include "StepListDialog.h"

#include <core/json/PJsonValue.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/message/ReasonDialog.h>

#include <QAction>
#include <QEvent>

HistoryCommands::HistoryCommands(MappingDocument *document, EditorArea *editor, QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_editor(editor)
    , m_window(window)
    , m_show(new QAction(this))
    , m_reason(new QAction(this))
{
    m_show->setObjectName("showHistory");
    m_reason->setObjectName("giveReason");
    connect(m_show, &QAction::triggered, this, &HistoryCommands::showHistory);
    connect(m_reason, &QAction::triggered, this, &HistoryCommands::giveReason);
    connect(editor, &EditorArea::linesSelected, this, &HistoryCommands::update);
    connect(editor, &EditorArea::projectSelected, this, &HistoryCommands::update);
    connect(editor, &EditorArea::editorMade, this, &HistoryCommands::update);
    connect(editor, &EditorArea::linesDecided, this, [this] { m_decided = selected(); });
    connect(document, &MappingDocument::closed, this, [this] {
        m_decided = Lines();
        delete m_dialog;
        delete m_steps;
        update();
    });
    window->installEventFilter(this);
    retranslate();
    update();
}

/// The list looks into the document, which goes before the window.
HistoryCommands::~HistoryCommands()
{
    delete m_steps;
}

bool HistoryCommands::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    return QObject::eventFilter(watched, event);
}

void HistoryCommands::retranslate()
{
    m_show->setText(tr("&Verlauf der Entscheidungen..."));
    m_show->setToolTip(tr("Wer hat was entschieden, wann und warum"));
    m_reason->setText(tr("Gr&und der Entscheidung..."));
    m_reason->setToolTip(
        tr("Zur letzten Entscheidung oder zu den gewählten Zeilen, etwa warum es keinen "
           "Nachfolger gibt"));
}

void HistoryCommands::update()
{
    const bool hasLines =
        m_editor->isOpen() && (!m_decided.lines.isEmpty() || !m_editor->selectedLines().isEmpty());
    m_show->setEnabled(m_document->isOpen());
    m_reason->setEnabled(hasLines && !m_document->isReadOnly());
    if (m_dialog && m_editor->isOpen())
        m_dialog->setHere({m_editor->currentProject(), m_editor->currentLine()});
}

void HistoryCommands::showHistory()
{
    m_document->finishStep();
    delete m_dialog; // reads anew, and goes to the line that is selected now
    m_dialog = new HistoryDialog(m_document->mappingFile(),
                                 {m_editor->currentProject(), m_editor->currentLine()}, m_window);
    m_dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(m_dialog, &HistoryDialog::lineWanted, this, &HistoryCommands::goTo);
    m_dialog->show();
}

void HistoryCommands::goTo(const QString &path, int line)
{
    if (m_editor->isOpen() && m_editor->selectProject(path) && line >= 0)
        m_editor->selectLine(line);
}

void HistoryCommands::showSteps()
{
    m_document->finishStep();
    if (!m_steps) {
        m_steps = new StepListDialog(m_document, m_window);
        m_steps->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_steps, &StepListDialog::lineWanted, this, &HistoryCommands::goTo);
    }
    m_steps->show();
    m_steps->raise();
    m_steps->activateWindow();
}

HistoryCommands::Lines HistoryCommands::selected() const
{
    return {m_editor->currentProject(), m_editor->selectedLines()};
}

QString HistoryCommands::text(const Lines &lines)
{
    return lines.lines.size() == 1
               ? tr("Zeile %1 in %2").arg(QString::number(lines.lines.first()), lines.project.path)
               : tr("%Ln Zeile(n) in %1", nullptr, int(lines.lines.size())).arg(lines.project.path);
}

void HistoryCommands::giveReason()
{
    QList<Lines> choice;
    for (const Lines &lines : {m_decided, selected()}) {
        if (!lines.lines.isEmpty() && lines.project.isValid() && !choice.contains(lines))
            choice.append(lines);
    }
    if (choice.isEmpty())
        return;
    QStringList texts;
    for (const Lines &lines : std::as_const(choice))
        texts.append(text(lines));
    ReasonDialog dialog(texts, m_lastReason, m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    m_lastReason = dialog.reason();
    const Lines chosen = choice.at(dialog.chosenLines());
    m_document->finishStep(); // the decision stands before its reason
    PJsonValue note(PJsonValue::Object);
    note[QStringLiteral("project")] = PJsonValue(chosen.project.path);
    note[QStringLiteral("version")] = PJsonValue(chosen.project.version);
    PJsonValue list(PJsonValue::Array);
    for (const int line : chosen.lines)
        list.append(PJsonValue::fromInt(line));
    note[QStringLiteral("lines")] = list;
    note[QStringLiteral("reason")] = PJsonValue(m_lastReason);
    m_document->writeNote("reason", note);
    Q_EMIT noted(tr("Grund notiert: %1").arg(m_lastReason));
    if (m_dialog)
        m_dialog->load();
}
