#pragma once

#include "PMsgDlgMode.h"

#include <core/VelkCoreGlobal.h>

#include <QString>

#include <memory>

struct PScriptException;

/// Where messages go that no capture collects. Called on the thread that issues the message, by
/// several threads at once; one with windows has to change to its own thread.
class VELKCORE_EXPORT PMessageSink
{
public:
    PMessageSink() = default;
    virtual ~PMessageSink();
    PMessageSink(const PMessageSink &) = delete;
    PMessageSink &operator=(const PMessageSink &) = delete;

    /// Shows a message and gives the user's answer.
    virtual PMsgReply show(const QString &text, PMsgDlgModes mode) = 0;
    virtual void logToWindow(const QString &text) = 0;
    /// Shows it as an error unless overridden.
    virtual void displayException(const PScriptException &exception);
};

/// Writes to the standard error stream; errors and warnings with their name in front. Nobody is
/// there to answer, so questions get Cancel.
class VELKCORE_EXPORT PConsoleMessageSink : public PMessageSink
{
public:
    ~PConsoleMessageSink() override;
    PMsgReply show(const QString &text, PMsgDlgModes mode) override;
    void logToWindow(const QString &text) override;
};

/// Makes a sink the process's own as long as it lives, then brings back the former one.
class VELKCORE_EXPORT PMessageSinkScope
{
public:
    explicit PMessageSinkScope(std::shared_ptr<PMessageSink> sink);
    ~PMessageSinkScope();
    PMessageSinkScope(const PMessageSinkScope &) = delete;
    PMessageSinkScope &operator=(const PMessageSinkScope &) = delete;

private:
    std::shared_ptr<PMessageSink> m_former;
};
