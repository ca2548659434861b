#pragma once

#include "ProgressDisplayI.h"

#include <memory>

class ProgressWindow;

/// The display without a host: a small window with a row for each progress.
class VELKGUI_EXPORT ProgressDisplay : public ProgressDisplayI
{
public:
    ProgressDisplay();
    ~ProgressDisplay() override;
    void showProgress(const QList<PProgressInfo> &running) override;
    [[nodiscard]] bool acceptsInput(const QWidget *widget) const override;

private:
    std::unique_ptr<ProgressWindow> m_window;
};
