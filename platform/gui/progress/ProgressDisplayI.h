#pragma once

#include <gui/VelkGuiGlobal.h>

#include <core/progress/PProgressInfo.h>

#include <QList>

class QWidget;

/// Shows running progresses; the host may have its own, see DefaultObserverDelegate::setDisplay.
/// GUI thread.
class VELKGUI_EXPORT ProgressDisplayI
{
public:
    virtual ~ProgressDisplayI();
    /// All that run, in the order of their beginning; an empty list takes the display away.
    virtual void showProgress(const QList<PProgressInfo> &running) = 0;
    /// True for widgets whose input passes while work goes on: those with which it is cancelled.
    [[nodiscard]] virtual bool acceptsInput(const QWidget *widget) const = 0;
};
