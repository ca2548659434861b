#pragma once

#include <core/message/PMessageSink.h>

#include <QPointer>

class LogWindow;
class QWidget;

/// Brings messages to the windows: questions are asked in a dialog, all else stands in the log
/// window, which comes to the front for errors and warnings. May be called on any thread.
class WindowMessageSink : public PMessageSink
{
public:
    /// \a window becomes the parent of dialogs. Made on the GUI thread.
    WindowMessageSink(QWidget *window, LogWindow *log);
    ~WindowMessageSink() override;

    PMsgReply show(const QString &text, PMsgDlgModes mode) override;
    void logToWindow(const QString &text) override;

private:
    [[nodiscard]] PMsgReply ask(const QString &text, PMsgDlgModes mode) const;

    const QPointer<QWidget> m_window;
    const QPointer<LogWindow> m_log;
};
