#include "LogWindow.h"

#include <gui/views/MessageText.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QTime>

LogWindow::LogWindow(QWidget *parent)
    : QDockWidget(parent)
    , m_text(new MessageText(LinesAtFirst, this))
    , m_clear(new QAction(this))
    , m_copy(new QAction(this))
{
    setObjectName("LogWindow");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea | Qt::RightDockWidgetArea);
    m_text->setObjectName("logText");
    m_text->setMaximumBlockCount(LineLimit);
    m_text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_text->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_text->addActions({m_copy, m_clear});
    setWidget(m_text);
    connect(m_clear, &QAction::triggered, m_text, &QPlainTextEdit::clear);
    connect(m_copy, &QAction::triggered, this,
            [this] { QApplication::clipboard()->setText(m_text->toPlainText()); });
    retranslate();
}

void LogWindow::addMessage(Severity severity, const QString &text)
{
    const QString mark = severity == Severity::Error     ? tr("Fehler: ")
                         : severity == Severity::Warning ? tr("Warnung: ")
                                                         : QString();
    const Inks::Ink ink = severity == Severity::Error     ? Inks::Ink::Bad
                          : severity == Severity::Warning ? Inks::Ink::Warning
                                                          : Inks::Ink::Plain;
    m_text->add(QTime::currentTime().toString("HH:mm:ss  ") + mark + text.trimmed(), ink);
    if (severity == Severity::Information)
        return;
    Q_EMIT problemAdded();
    show();
    raise();
}

QString LogWindow::text() const
{
    return m_text->toPlainText();
}

void LogWindow::retranslate()
{
    setWindowTitle(tr("Meldungen"));
    m_text->setAccessibleName(tr("Meldungen"));
    m_clear->setText(tr("Meldungen löschen"));
    m_copy->setText(tr("Alle Meldungen kopieren"));
}

void LogWindow::changeEvent(QEvent *event)
{
    QDockWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}
