#pragma once

#include "PMessageSink.h"
#include "PMsgDlgMode.h"
#include "PScriptException.h"

#include <core/VelkCoreGlobal.h>

#include <QString>

class PStringMessageImpl;

/// Messages to the user. They go to the innermost PStringMessageImpl of the calling thread, or to
/// the process's sink. Any thread.
class VELKCORE_EXPORT PMessage
{
public:
    /// Information with Ok.
    static PMsgReply Show(const QString &text);
    /// Library code reports errors with PMsgDlgMode::Error. Questions get the user's answer, all
    /// others Ok.
    static PMsgReply Show(const QString &text, QFlags<PMsgDlgMode> mode);
    static void DisplayException(const PScriptException &exception);
    /// Adds a line to the log window; no capture collects it.
    static void LogToWindow(const QString &text);

    /// Gives the process another sink and returns the former one; null stands for the console.
    static std::shared_ptr<PMessageSink> setSink(std::shared_ptr<PMessageSink> sink);

    /// "error", "warning", "question" or "info".
    [[nodiscard]] static QString severityName(PMsgDlgModes mode);
    [[nodiscard]] static bool isQuestion(PMsgDlgModes mode);

private:
    friend class PStringMessageImpl;

    /// To the given capture, or to the sink if that is null.
    static PMsgReply showOutside(PStringMessageImpl *capture, const QString &text,
                                 PMsgDlgModes mode);
};
