#include "ScriptConsole.h"

#include <gui/progress/ProgressInputFilter.h>
#include <gui/views/MessageText.h>

#include <QEvent>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QToolButton>

ScriptConsole::ScriptConsole(QWidget *parent)
    : QDockWidget(parent)
    , m_text(new MessageText(LinesAtFirst, this))
    , m_input(new ConsoleInput(this))
    , m_stop(new QToolButton(this))
    , m_clear(new QToolButton(this))
{
    setObjectName("ScriptConsole");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea | Qt::RightDockWidgetArea);
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    m_text->setObjectName("scriptOutput");
    m_text->setFont(font);
    m_text->setMaximumBlockCount(LineLimit);
    m_input->setObjectName("scriptInput");
    m_input->setFont(font);
    m_stop->setObjectName("scriptStop");
    m_stop->setEnabled(false);
    m_stop->setProperty(ProgressInputFilter::CancelsProgress, true);
    m_clear->setObjectName("scriptClear");
    auto *const content = new QWidget(this);
    auto *const layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    layout->addWidget(m_text, 1);
    auto *const row = new QHBoxLayout;
    row->addWidget(m_input, 1);
    row->addWidget(m_stop);
    row->addWidget(m_clear);
    layout->addLayout(row);
    setWidget(content);
    connect(m_input, &ConsoleInput::entered, this, [this](const QString &line) {
        m_text->add(QStringLiteral("> ") + line, Inks::Ink::Quiet);
        Q_EMIT entered(line);
    });
    connect(m_stop, &QToolButton::clicked, this, &ScriptConsole::stopRequested);
    connect(m_clear, &QToolButton::clicked, m_text, &QPlainTextEdit::clear);
    retranslate();
}

void ScriptConsole::print(const QString &text)
{
    m_text->add(text, Inks::Ink::Plain);
}

void ScriptConsole::showError(const QString &text)
{
    m_text->add(text, Inks::Ink::Bad);
    show();
    raise();
}

void ScriptConsole::showValue(const QString &text)
{
    m_text->add(text, Inks::Ink::Value);
}

QString ScriptConsole::text() const
{
    return m_text->toPlainText();
}

void ScriptConsole::setRunning(bool running)
{
    m_input->setReadOnly(running);
    m_stop->setEnabled(running);
}

void ScriptConsole::retranslate()
{
    setWindowTitle(tr("Skriptkonsole"));
    m_text->setAccessibleName(tr("Ausgabe der Skripte"));
    m_input->setAccessibleName(tr("Zeile eines Skripts"));
    m_input->setPlaceholderText(
        tr("Eine Zeile JavaScript. Eingabe führt sie aus, Tab ergänzt, Auf und Ab blättern."));
    m_stop->setText(tr("Anhalten"));
    m_stop->setToolTip(tr("Hält das laufende Skript an (Esc)"));
    m_clear->setText(tr("Leeren"));
    m_clear->setToolTip(tr("Löscht die Ausgabe"));
}

void ScriptConsole::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}
