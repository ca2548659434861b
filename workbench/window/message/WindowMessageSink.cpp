#include "WindowMessageSink.h"

#include "LogWindow.h"
#include "Question.h"

#include <core/message/PMessage.h>

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

namespace {

bool onGuiThread()
{
    return QThread::currentThread() == QCoreApplication::instance()->thread();
}

LogWindow::Severity severityOf(PMsgDlgModes mode)
{
    // Warning holds the bit of Error.
    if (mode == PMsgDlgMode::Warning)
        return LogWindow::Severity::Warning;
    return mode == PMsgDlgMode::Error ? LogWindow::Severity::Error
                                      : LogWindow::Severity::Information;
}

} // namespace

WindowMessageSink::WindowMessageSink(QWidget *window, LogWindow *log)
    : m_window(window)
    , m_log(log)
{
}

WindowMessageSink::~WindowMessageSink() = default;

PMsgReply WindowMessageSink::show(const QString &text, PMsgDlgModes mode)
{
    if (PMessage::isQuestion(mode)) {
        if (onGuiThread())
            return ask(text, mode);
        PMsgReply reply = PMsgReply::Cancel;
        QMetaObject::invokeMethod(
            QCoreApplication::instance(), [&] { reply = ask(text, mode); },
            Qt::BlockingQueuedConnection);
        return reply;
    }
    QMetaObject::invokeMethod(QCoreApplication::instance(), [log = m_log, text, mode] {
        if (log)
            log->addMessage(severityOf(mode), text);
    });
    return PMsgReply::Ok;
}

void WindowMessageSink::logToWindow(const QString &text)
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), [log = m_log, text] {
        if (log)
            log->addMessage(LogWindow::Severity::Information, text);
    });
}

PMsgReply WindowMessageSink::ask(const QString &text, PMsgDlgModes mode) const
{
    Question question(m_window);
    question.setText(text);
    if (mode == PMsgDlgMode::OkCancel) {
        question.addAnswer(Question::Accept, Question::okText());
        question.addAnswer(Question::Cancel, Question::cancelText());
        return question.ask() == Question::Accept ? PMsgReply::Ok : PMsgReply::Cancel;
    }
    question.addAnswer(Question::Accept, Question::yesText());
    question.addAnswer(Question::Refuse, Question::noText());
    question.addAnswer(Question::Cancel, Question::cancelText());
    switch (question.ask()) {
    case Question::Accept:
        return PMsgReply::Yes;
    case Question::Refuse:
        return PMsgReply::No;
    default:
        return PMsgReply::Cancel;
    }
}
