#include "PMessageSink.h"

#include "PMessage.h"

#include <cstdio>

namespace {

void writeLine(const QString &text)
{
    const QByteArray line = text.toUtf8() + '\n';
    // One call for each line: lines of several threads are not mixed.
    std::fwrite(line.constData(), 1, size_t(line.size()), stderr);
    std::fflush(stderr);
}

} // namespace

PMessageSink::~PMessageSink() = default;

void PMessageSink::displayException(const PScriptException &exception)
{
    show(exception.text(), PMsgDlgMode::Error);
}

PConsoleMessageSink::~PConsoleMessageSink() = default;

PMsgReply PConsoleMessageSink::show(const QString &text, PMsgDlgModes mode)
{
    const QString prefix = PMessage::severityName(mode) + QStringLiteral(": ");
    const bool named = prefix == u"info: " || text.startsWith(prefix);
    writeLine(named ? text : prefix + text);
    return PMessage::isQuestion(mode) ? PMsgReply::Cancel : PMsgReply::Ok;
}

void PConsoleMessageSink::logToWindow(const QString &text)
{
    writeLine(text);
}

PMessageSinkScope::PMessageSinkScope(std::shared_ptr<PMessageSink> sink)
    : m_former(PMessage::setSink(std::move(sink)))
{
}

PMessageSinkScope::~PMessageSinkScope()
{
    PMessage::setSink(m_former);
}
