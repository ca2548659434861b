#include "DefaultObserverDelegate.h"

#include "ProgressDelivery.h"
#include "ProgressDisplay.h"
#include "ProgressEventAccumulator.h"
#include "ProgressInputFilter.h"

#include <core/progress/PProgressObserverNode.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>

#include <algorithm>
#include <atomic>

namespace {

constexpr int ThreadInterval = 100; // milliseconds between deliveries from other threads
int s_delay = 500;
int s_interval = 100;
std::shared_ptr<ProgressDisplayI> s_display;
/// The one that shows progress now; known to the GUI thread alone.
const DefaultObserverDelegate *s_active = nullptr;

bool isGuiThread()
{
    QCoreApplication *const application = QCoreApplication::instance();
    return application && QThread::currentThread() == application->thread() &&
           qobject_cast<QApplication *>(application);
}

std::shared_ptr<ProgressDisplayI> currentDisplay()
{
    if (!s_display)
        s_display = std::make_shared<ProgressDisplay>();
    return s_display;
}

} // namespace

/// What there is only while progress is shown.
class DefaultObserverDelegatePrivate
{
public:
    DefaultObserverDelegatePrivate()
        : display(currentDisplay())
        , inputFilter(display)
    {
        QObject::connect(&inputFilter, &ProgressInputFilter::cancelRequested,
                         [this] { requestCancel(); });
    }

    void set(const PProgressInfo &info);
    void remove(quint64 id);
    void takeAway();

    std::unique_ptr<ProgressEventAccumulator> ownedAccumulator;
    /// The same for other threads, which may come before it is there.
    std::atomic<ProgressEventAccumulator *> fromThreads{nullptr};

private:
    [[nodiscard]] bool isDue() const;
    void update();
    void show();
    void requestCancel();
    void showAfterDelivery();

    const std::shared_ptr<ProgressDisplayI> display;
    ProgressInputFilter inputFilter;
    QList<PProgressInfo> running;
    QElapsedTimer sinceBegin;
    QElapsedTimer sinceShow;
    bool shown = false;
    bool showWaits = false;
    bool processing = false;
};

void DefaultObserverDelegatePrivate::set(const PProgressInfo &info)
{
    if (!sinceBegin.isValid())
        sinceBegin.start();
    const auto known = std::find_if(running.begin(), running.end(),
                                    [&info](const auto &other) { return other.id == info.id; });
    if (known == running.end())
        running.append(info);
    else
        *known = info;
    update();
}

void DefaultObserverDelegatePrivate::remove(quint64 id)
{
    running.removeIf([id](const PProgressInfo &info) { return info.id == id; });
    // The last one stays to be seen until the delegate ends, since others may follow.
    if (!running.isEmpty())
        update();
}

bool DefaultObserverDelegatePrivate::isDue() const
{
    return shown ? sinceShow.elapsed() >= s_interval : sinceBegin.elapsed() >= s_delay;
}

void DefaultObserverDelegatePrivate::update()
{
    if (ProgressDelivery::isUnderWay())
        return showAfterDelivery();
    if (processing || !isDue())
        return;
    show();
    processing = true;
    QCoreApplication::processEvents();
    processing = false;
}

/// One delivery brings the states of several progresses, to be shown together.
void DefaultObserverDelegatePrivate::showAfterDelivery()
{
    if (showWaits || (!shown && !isDue()))
        return;
    showWaits = true;
    const auto showNow = [this] {
        showWaits = false;
        if (!running.isEmpty())
            show();
    };
    QMetaObject::invokeMethod(&inputFilter, showNow, Qt::QueuedConnection);
}

void DefaultObserverDelegatePrivate::show()
{
    shown = true;
    sinceShow.start();
    display->showProgress(running);
}

/// Of work that the user sees.
void DefaultObserverDelegatePrivate::requestCancel()
{
    if (!shown || running.isEmpty())
        return;
    for (const PProgressInfo &info : std::as_const(running)) {
        if (info.cancellable && info.cancel)
            info.cancel->request();
    }
    show();
}

void DefaultObserverDelegatePrivate::takeAway()
{
    if (shown)
        display->showProgress({});
    shown = false;
}

DefaultObserverDelegate::DefaultObserverDelegate() = default;

DefaultObserverDelegate::~DefaultObserverDelegate()
{
    DefaultObserverDelegate::deactivate();
}

void DefaultObserverDelegate::activate(int scope)
{
    if (isActive() || !isGuiThread() || s_active)
        return;
    s_active = this;
    d = std::make_unique<DefaultObserverDelegatePrivate>();
    PProgressObserverBase::activate(scope);
    d->ownedAccumulator = std::make_unique<ProgressEventAccumulator>(ThreadInterval, -1);
    d->fromThreads = d->ownedAccumulator.get();
}

void DefaultObserverDelegate::deactivate()
{
    if (!isActive())
        return;
    PProgressObserverBase::deactivate();
    d->takeAway();
    d.reset();
    s_active = nullptr;
}

bool DefaultObserverDelegate::take(PProgressEvent event, const PProgressInfo &info)
{
    if (!isGuiThread()) {
        if (ProgressEventAccumulator *const accumulator = d->fromThreads)
            accumulator->post(event, info);
        return false;
    }
    if (const auto next = outer())
        next->tell(event, info);
    return true;
}

void DefaultObserverDelegate::progressStarted(const PProgressInfo &info)
{
    if (take(PProgressEvent::Started, info))
        d->set(info);
}

void DefaultObserverDelegate::progressChanged(const PProgressInfo &info)
{
    if (take(PProgressEvent::Changed, info))
        d->set(info);
}

void DefaultObserverDelegate::progressText(const PProgressInfo &info)
{
    if (take(PProgressEvent::Text, info))
        d->set(info);
}

void DefaultObserverDelegate::progressDone(const PProgressInfo &info)
{
    if (take(PProgressEvent::Done, info))
        d->remove(info.id);
}

void DefaultObserverDelegate::setDisplay(std::shared_ptr<ProgressDisplayI> display)
{
    s_display = std::move(display);
}

void DefaultObserverDelegate::setTimes(int delay, int interval)
{
    s_delay = delay;
    s_interval = interval;
}
