#include "LineCommands.h"

#include "EditorArea.h"
#include "LineStateFilter.h"

#include <core/text/countText.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/binding/VarsetParserC.h>
#include <geomcore/expression/StatementParser.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/session/document/MappingDocument.h>
#include <workbench/window/message/Question.h>

#include <QInputDialog>

LineCommands::LineCommands(MappingDocument *document, EditorArea *editor, QWidget *window)
    : QObject(window)
    , m_document(document)
    , m_editor(editor)
    , m_window(window)
    , m_open(document)
    , m_chosen(document)
{
    connect(&m_open, &OpenLines::countChanged, this, &LineCommands::openCountChanged);
    connect(m_editor, &EditorArea::linesDecided, this, [this] { onDecided(); });
}

LineCommands::~LineCommands() = default;

LineRef LineCommands::here() const
{
    return {m_editor->currentProject(), m_editor->currentLine()};
}

void LineCommands::setKinds(OpenLines::Kinds kinds)
{
    m_kinds = kinds;
    m_chosen.setKinds(kinds);
}

void LineCommands::tellCondition(const QString &condition)
{
    const VKTab::LineId line(m_editor->currentLine());
    VarsetParserC parser(createVarsetFromVKTable(m_editor->sourceTable(), line, {}), {});
    const VKTab::ParsedStatement parsed = parser.parse(condition, QString(), true);
    const QString error = parsed.node ? QString() : parsed.error;
    Q_EMIT noted(error.isEmpty()
                     ? tr("Bedingung in die Zwischenablage kopiert")
                     : tr("Die kopierte Bedingung ist so noch nicht zu gebrauchen, ein Wert fehlt, "
                          "ist ein Bereich oder enthält ein Anführungszeichen: %1")
                           .arg(error));
}

void LineCommands::goNext()
{
    go(true);
}

void LineCommands::goPrevious()
{
    go(false);
}

void LineCommands::goProject(bool forward)
{
    const ProjectId here = m_editor->currentProject();
    const ProjectId next =
        m_projects ? m_projects(here, forward) : walk().nextProject(here, forward);
    if (!next.isValid() || !m_editor->selectProject(next.path))
        return Q_EMIT noted(tr("Kein anderes Projekt hat solche Zeilen"));
    if (m_projects)
        return m_order(true);
    const OpenLines::Shown shown = m_editor->shown();
    for (int row = 0; row < shown.rows; ++row) {
        const LineRef line{shown.project, shown.lineAt(row)};
        const std::optional<OpenLines::Kind> kind = walk().kindOf(line);
        if (kind && walk().kinds().testFlag(*kind)) {
            m_editor->goTo(line);
            return;
        }
    }
}

void LineCommands::go(bool forward)
{
    if (m_order)
        return m_order(forward);
    Q_EMIT noted(gone(forward));
}

QString LineCommands::gone(bool forward)
{
    OpenLines::Found to = seek(forward, here());
    // A line that its table lacks cannot be shown; each is tried once, and of a project without its
    // table one of each kind.
    bool wrapped = to.wrapped;
    for (int tries = walk().count(); to.line.isValid() && tries > 0; --tries) {
        if (m_editor->goTo(to.line)) {
            to.wrapped = wrapped;
            m_last = to;
            return goneText(to, forward);
        }
        const OpenLines::Shown shown = m_editor->shown();
        if (shown.project != to.line.project)
            to = walk().beyond(to.line.project, shown, to.kind, forward);
        else
            to = forward ? walk().next(to.line, shown, to.kind)
                         : walk().previous(to.line, shown, to.kind);
        wrapped = wrapped || to.wrapped;
    }
    return nothingText();
}

void LineCommands::onDecided(const QString &step)
{
    const LineRef decided = here();
    const QString told = step.isEmpty() ? finishedStep() : step;
    const auto kind = m_open.kindOf(decided);
    if (!m_goesOn || !kind || m_open.kinds().testFlag(*kind))
        return;
    const Order &order = m_decisionOrder ? m_decisionOrder : m_order;
    if (order)
        order(true);
    const QString text = order ? QString() : gone(true);
    if (told.isEmpty())
        Q_EMIT noted(text);
    else
        Q_EMIT done(text.isEmpty() ? told : told + QStringLiteral(" · ") + text);
}

/// Ends the step of this turn of the event loop. Its text, if there was one.
QString LineCommands::finishedStep()
{
    QString told;
    const QMetaObject::Connection listening =
        connect(m_document, &MappingDocument::stepDone, this,
                [&told](const QString &text) { told = text; });
    m_document->finishStep();
    disconnect(listening);
    return told;
}

/// The walk goes on in its kind as long as the user stays at its line, settled or not.
OpenLines::Found LineCommands::seek(bool forward, const LineRef &from) const
{
    const std::optional<OpenLines::Kind> among =
        from == m_last.line ? std::optional(m_last.kind) : std::nullopt;
    return forward ? walk().next(from, m_editor->shown(), among)
                   : walk().previous(from, m_editor->shown(), among);
}

QString LineCommands::goneText(const OpenLines::Found &found, bool forward) const
{
    QStringList parts;
    const OpenLines::Shown shown = m_editor->shown();
    if (found.wrapped && shown.isFiltered)
        parts += tr("Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.",
                    nullptr, walk().count() - walk().countIn(shown));
    if (found.wrapped)
        parts += forward ? tr("Am Ende angekommen, weiter von vorn")
                         : tr("Am Anfang angekommen, weiter von hinten");
    if (found.kind == OpenLines::Conflict)
        parts += tr("Konflikt %1 von %2")
                     .arg(countText(walk().placeOf(found.line, OpenLines::Conflict)),
                          countText(walk().countOf(OpenLines::Conflict)));
    return parts.join(QStringLiteral(" · "));
}

QString LineCommands::nothingText() const
{
    if (walk().count() == 0)
        return m_kinds ? tr("Keine Zeile ist in einem der gewählten Zustände")
                       : tr("Keine Zeile braucht mehr eine Entscheidung");
    if (m_editor->shown().isFiltered)
        return tr("Hier im Filter ist alles durch, außerhalb ist/sind noch %Ln Zeile(n) offen.",
                  nullptr, walk().count() - walk().countIn(m_editor->shown()));
    return tr("Keine der offenen Zeilen kann gezeigt werden; die Tabellen fehlen");
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
        Q_EMIT noted(tr("Treffer %1 von %2").arg(countText(chosen + 1), countText(lines.size())));
    return true;
}

void LineCommands::runOnMany(BulkOperation::Action action)
{
    if (!m_editor->sourceTable().isValid()) {
        Q_EMIT noted(tr("Es ist kein Projekt gewählt"));
        return;
    }
    QList<int> lines = m_editor->selectedLines();
    const bool selection = lines.size() > 1;
    const bool nothingSelected = lines.isEmpty();
    if (!selection)
        lines = m_editor->shownLines();
    const BulkOperation operation(*m_document, m_editor->currentProject(), lines);
    const BulkOperation::Numbers numbers = operation.preview(action);
    if (numbers.lines == 0) {
        Q_EMIT noted(BulkOperation::question(action, numbers).replace(u'\n', u' '));
        return;
    }
    Question question(m_window);
    question.setText(BulkOperation::question(action, numbers));
    question.setDetails(scopeText(selection));
    // Who has chosen nothing may not know that everything is meant.
    if (nothingSelected)
        question.addAnswer(Question::Cancel, Question::cancelText());
    question.addAnswer(Question::Accept, tr("&Ausführen"));
    if (!nothingSelected)
        question.addAnswer(Question::Cancel, Question::cancelText());
    if (question.ask() == Question::Accept)
        Q_EMIT done(BulkOperation::result(action, operation.run(action)));
}

/// Which lines are meant, by which filter.
QString LineCommands::scopeText(bool selection) const
{
    const QString undo = tr("Der Schritt kann zurückgenommen werden.");
    if (selection)
        return tr("Gemeint sind die markierten Zeilen.") + u' ' + undo;
    const CatalogMappingWidget *const editor = m_editor->editor();
    if (!editor->linesAreFiltered())
        return tr("Gemeint sind alle Zeilen des Projekts.") + u' ' + undo;
    const QString shown = tr("Gemeint sind nur die gezeigten Zeilen des Projekts: %1 von %2.")
                              .arg(countText(editor->shownLineCount()),
                                   countText(m_editor->sourceTable().getLineCount()));
    QStringList filters = editor->columnFilters();
    if (m_kinds)
        filters.prepend(LineStateFilter::names(m_kinds));
    return filters.isEmpty()
               ? shown + u' ' + undo
               : shown + u' ' + tr("Filter: %1.").arg(filters.join(QStringLiteral(", "))) + u' ' +
                     undo;
}
