#include "StatusArea.h"

#include "StatusProgress.h"

#include <gui/views/Inks.h>

#include <QEvent>
#include <QLabel>

StatusArea::StatusArea(QWidget *parent)
    : QStatusBar(parent)
    , m_note(new QLabel(this))
    , m_progress(new StatusProgress(this))
    , m_readOnly(new QLabel(this))
    , m_open(new QLabel(this))
{
    setObjectName("StatusArea");
    m_note->setObjectName("statusNote");
    m_note->setTextFormat(Qt::RichText);
    m_note->setTextInteractionFlags(Qt::LinksAccessibleByKeyboard | Qt::LinksAccessibleByMouse);
    // A long text is cut and stands in the tool tip; it must not widen the window.
    m_note->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_readOnly->setObjectName("statusReadOnly");
    m_open->setObjectName("statusOpen");
    m_open->setTextFormat(Qt::RichText);
    m_open->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    setContentsMargins(6, 0, 6, 0);
    addWidget(m_note, 1);
    addWidget(m_progress);
    addPermanentWidget(m_readOnly);
    addPermanentWidget(m_open);
    m_readOnly->hide();
    connect(m_note, &QLabel::linkActivated, this, &StatusArea::undoRequested);
    connect(m_open, &QLabel::linkActivated, this, [this](const QString &link) {
        if (link == u"assign")
            Q_EMIT assignRequested();
        else
            Q_EMIT nextOpenRequested();
    });
    retranslate();
    writeNote();
}

void StatusArea::showNote(const QString &text, bool undoable)
{
    clearMessage();
    m_noteText = text;
    m_undoable = undoable;
    writeNote();
}

void StatusArea::dropNote(const QString &text)
{
    if (m_noteText == text)
        showNote(QString());
}

void StatusArea::dropUndo()
{
    m_undoable = false;
    writeNote();
}

void StatusArea::writeNote()
{
    QString text = m_noteText.toHtmlEscaped();
    if (m_undoable)
        text += QStringLiteral(" · <a href=\"undo\">%1</a>").arg(tr("rückgängig"));
    m_note->setText(QString());
    m_note->setText(text);
    // Without a link there is nothing to do with it.
    m_note->setFocusPolicy(m_undoable ? Qt::StrongFocus : Qt::NoFocus);
    m_note->setToolTip(m_noteText);
}

QString StatusArea::linesText(int lines, int projects)
{
    //: "12 lines in 3 projects"
    return tr("%1 in %Ln Projekt(en)", nullptr, projects)
        .arg(tr("<a href=\"next\">%Ln Zeile(n)</a>", nullptr, lines));
}

void StatusArea::setOpenLines(int lines, int projects)
{
    m_counted = Counted::Open;
    m_lines = lines;
    m_projects = projects;
    m_open->setVisible(lines >= 0);
    if (lines == 0) {
        m_open->setText(tr("Alles entschieden"));
    } else {
        m_open->setText(tr("Offen: %1").arg(linesText(lines, projects)));
    }
    m_open->setToolTip(tr("Zeilen, die noch eine Entscheidung brauchen"));
}

void StatusArea::setFilteredLines(int lines, int projects)
{
    m_counted = Counted::Filtered;
    m_lines = lines;
    m_projects = projects;
    m_open->show();
    if (lines == 0) {
        m_open->setText(tr("Filter: keine Zeile"));
    } else {
        m_open->setText(tr("Filter: %1").arg(linesText(lines, projects)));
    }
    m_open->setToolTip(tr("Zeilen, die der Filter über alle Zeilen zeigt"));
}

void StatusArea::setNothingAssigned()
{
    m_counted = Counted::Nothing;
    m_open->show();
    m_open->setText(
        QStringLiteral("<a href=\"assign\">%1</a>").arg(tr("Noch keine Zeile zugeordnet")));
    m_open->setToolTip(QString());
}

void StatusArea::setReadOnly(const QString &reason)
{
    m_readOnlyReason = reason;
    m_readOnly->setVisible(!reason.isEmpty());
    m_readOnly->setToolTip(reason);
    m_readOnly->setText(tr("Schreibgeschützt"));
}

void StatusArea::retranslate()
{
    writeNote();
    switch (m_counted) {
    case Counted::Open:
        setOpenLines(m_lines, m_projects);
        break;
    case Counted::Filtered:
        setFilteredLines(m_lines, m_projects);
        break;
    case Counted::Nothing:
        setNothingAssigned();
        break;
    }
    setReadOnly(m_readOnlyReason);
}

void StatusArea::changeEvent(QEvent *event)
{
    QStatusBar::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    else if (event->type() == QEvent::PaletteChange)
        Inks::rewriteLinks(this);
}
