#include "PMessage.h"

#include "PStringMessageImpl.h"

#include <QMutex>

namespace {

constexpr int SeverityBits = 0x30;

struct Sink
{
    QMutex mutex;
    std::shared_ptr<PMessageSink> sink;
};

/// Never destroyed: messages may come until the very end of the process.
Sink &holder()
{
    static auto *const instance = new Sink{{}, std::make_shared<PConsoleMessageSink>()};
    return *instance;
}

/// Held by the caller while it is used, so that another thread may set a new one meanwhile.
std::shared_ptr<PMessageSink> currentSink()
{
    const QMutexLocker lock(&holder().mutex);
    return holder().sink;
}

} // namespace

PMsgReply PMessage::Show(const QString &text)
{
    return Show(text, PMsgDlgMode::Information);
}

PMsgReply PMessage::Show(const QString &text, QFlags<PMsgDlgMode> mode)
{
    return showOutside(PStringMessageImpl::innermost(), text, mode);
}

PMsgReply PMessage::showOutside(PStringMessageImpl *capture, const QString &text, PMsgDlgModes mode)
{
    if (capture)
        return capture->take(text, mode);
    return currentSink()->show(text, mode);
}

void PMessage::DisplayException(const PScriptException &exception)
{
    if (PStringMessageImpl *capture = PStringMessageImpl::innermost())
        capture->take(exception.text(), PMsgDlgMode::Error);
    else
        currentSink()->displayException(exception);
}

void PMessage::LogToWindow(const QString &text)
{
    currentSink()->logToWindow(text);
}

std::shared_ptr<PMessageSink> PMessage::setSink(std::shared_ptr<PMessageSink> sink)
{
    if (!sink)
        sink = std::make_shared<PConsoleMessageSink>();
    const QMutexLocker lock(&holder().mutex);
    holder().sink.swap(sink);
    return sink;
}

bool PMessage::isQuestion(PMsgDlgModes mode)
{
    return (int(mode) & PMsgDlgButtonBits) != 0;
}

QString PMessage::severityName(PMsgDlgModes mode)
{
    const int severity = int(mode) & SeverityBits;
    if (severity == int(PMsgDlgMode::Warning))
        return QStringLiteral("warning");
    if (severity == int(PMsgDlgMode::Error))
        return QStringLiteral("error");
    return isQuestion(mode) ? QStringLiteral("question") : QStringLiteral("info");
}
