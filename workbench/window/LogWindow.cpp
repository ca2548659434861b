#include "LogWindow.h"

#include "ApplicationTheme.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QPlainTextEdit>
#include <QTextCursor>
#include <QTime>

namespace {

/// A few lines high at first: the tables need the room.
class LogText : public QPlainTextEdit
{
public:
    using QPlainTextEdit::QPlainTextEdit;
    [[nodiscard]] QSize sizeHint() const override
    {
        return {600, fontMetrics().lineSpacing() * 6 + 2 * frameWidth()};
    }
};

} // namespace

LogWindow::LogWindow(QWidget *parent)
    : QDockWidget(parent)
    , m_text(new LogText(this))
    , m_clear(new QAction(this))
    , m_copy(new QAction(this))
{
    setObjectName("LogWindow");
    setAllowedAreas(Qt::BottomDockWidgetArea | Qt::TopDockWidgetArea | Qt::RightDockWidgetArea);
    m_text->setObjectName("logText");
    m_text->setReadOnly(true);
    m_text->setMaximumBlockCount(LineLimit);
    m_text->setLineWrapMode(QPlainTextEdit::WidgetWidth);
    m_text->setContextMenuPolicy(Qt::ActionsContextMenu);
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_text->addActions({m_copy, m_clear});
    setWidget(m_text);
    connect(m_clear, &QAction::triggered, m_text, &QPlainTextEdit::clear);
    connect(m_copy, &QAction::triggered, this,
            [this] { QApplication::clipboard()->setText(m_text->toPlainText()); });
    retranslate();
}

QColor LogWindow::colourOf(Severity severity) const
{
    const bool dark = ApplicationTheme::isDark();
    switch (severity) {
    case Severity::Error:
        return dark ? QColor(0xff8a80) : QColor(0xb3261e);
    case Severity::Warning:
        return dark ? QColor(0xf2b857) : QColor(0x8a5000);
    case Severity::Information:
        break;
    }
    return palette().color(QPalette::Text);
}

void LogWindow::addMessage(Severity severity, const QString &text)
{
    QTextCharFormat format;
    format.setForeground(colourOf(severity));
    QTextCursor cursor(m_text->document());
    cursor.movePosition(QTextCursor::End);
    if (!m_text->document()->isEmpty())
        cursor.insertBlock();
    const QString mark = severity == Severity::Error     ? tr("Fehler: ")
                         : severity == Severity::Warning ? tr("Warnung: ")
                                                         : QString();
    cursor.insertText(QTime::currentTime().toString("HH:mm:ss  ") + mark + text.trimmed(), format);
    m_text->moveCursor(QTextCursor::End);
    m_text->ensureCursorVisible();
    if (severity == Severity::Information)
        return;
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
