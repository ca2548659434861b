#include "ProgressDisplay.h"

#include "ProgressWindow.h"

ProgressDisplay::ProgressDisplay() = default;
ProgressDisplay::~ProgressDisplay() = default;

void ProgressDisplay::showProgress(const QList<PProgressInfo> &running)
{
    // Deleted when idle: the display itself may outlive the application.
    if (running.isEmpty()) {
        m_window.reset();
        return;
    }
    if (!m_window)
        m_window = std::make_unique<ProgressWindow>();
    m_window->showProgress(running);
}

bool ProgressDisplay::acceptsInput(const QWidget *widget) const
{
    return m_window && widget && (widget == m_window.get() || m_window->isAncestorOf(widget));
}
