#pragma once

#include <QList>
#include <QPointer>

#include <functional>

QT_BEGIN_NAMESPACE
class QDialog;
QT_END_NAMESPACE

/// The dialogs that a widget and its delegates have open. Such a widget must not go before the
/// event handler that opened a dialog has ended: who wants it to go closes the dialogs and is told
/// when the last one is through.
class OpenDialogs
{
public:
    /// Runs the dialog and deletes it. \a onAccepted is called with the dialog still there; never
    /// if the dialog was cancelled or went by other ways.
    void run(QDialog *dialog, const std::function<void()> &onAccepted);
    [[nodiscard]] bool isEmpty() const { return m_running == 0; }
    /// Deletes all of them; \a then is called when none is running any more.
    void close(const std::function<void()> &then);

private:
    QList<QPointer<QDialog>> m_dialogs;
    int m_running = 0;
    std::function<void()> m_then;
};
