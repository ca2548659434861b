#include "PScriptedMessageSink.h"

#include "PMessage.h"

PScriptedMessageSink::PScriptedMessageSink(const QList<PMsgReply> &answers)
    : m_answers(answers)
{
}

PScriptedMessageSink::~PScriptedMessageSink() = default;

PMsgReply PScriptedMessageSink::show(const QString &text, PMsgDlgModes mode)
{
    const QMutexLocker lock(&m_mutex);
    PMsgReply reply = PMsgReply::Ok;
    if (PMessage::isQuestion(mode))
        reply = m_answers.isEmpty() ? PMsgReply::Cancel : m_answers.takeFirst();
    m_shown.append({text, mode, reply});
    return reply;
}

void PScriptedMessageSink::logToWindow(const QString &text)
{
    const QMutexLocker lock(&m_mutex);
    m_logged.append(text);
}

void PScriptedMessageSink::addAnswer(PMsgReply reply)
{
    const QMutexLocker lock(&m_mutex);
    m_answers.append(reply);
}

QList<PScriptedMessageSink::Shown> PScriptedMessageSink::shown() const
{
    const QMutexLocker lock(&m_mutex);
    return m_shown;
}

QStringList PScriptedMessageSink::texts() const
{
    QStringList texts;
    for (const Shown &message : shown())
        texts.append(message.text);
    return texts;
}

QStringList PScriptedMessageSink::logged() const
{
    const QMutexLocker lock(&m_mutex);
    return m_logged;
}

qsizetype PScriptedMessageSink::answersLeft() const
{
    const QMutexLocker lock(&m_mutex);
    return m_answers.size();
}

void PScriptedMessageSink::clear()
{
    const QMutexLocker lock(&m_mutex);
    m_answers.clear();
    m_shown.clear();
    m_logged.clear();
}
