#include "OpenDialogs.h"

#include <QDialog>

#include <utility>

void OpenDialogs::run(QDialog *dialog, const std::function<void()> &onAccepted)
{
    const QPointer<QDialog> running(dialog);
    m_dialogs.append(running);
    ++m_running;
    const bool accepted = running->exec() == QDialog::Accepted;
    if (accepted && running && !m_then)
        onAccepted();
    delete running;
    m_dialogs.removeAll(QPointer<QDialog>());
    if (--m_running == 0 && m_then)
        std::exchange(m_then, {})();
}

void OpenDialogs::close(const std::function<void()> &then)
{
    m_then = then;
    const QList<QPointer<QDialog>> dialogs = std::exchange(m_dialogs, {});
    for (const QPointer<QDialog> &dialog : dialogs)
        delete dialog;
    if (m_running == 0)
        std::exchange(m_then, {})();
}
