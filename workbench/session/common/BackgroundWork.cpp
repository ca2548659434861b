#include "BackgroundWork.h"

#include <core/progress/PProgress.h>

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <chrono>
#include <future>

namespace {

constexpr std::chrono::milliseconds Moment{10}; // not to be felt
constexpr std::chrono::milliseconds BetweenSteps{50};
constexpr std::chrono::milliseconds Patience{50};

/// Ends the loop when it goes, however the work ended.
class LoopEnd
{
public:
    explicit LoopEnd(QEventLoop &loop)
        : m_loop(loop)
    {
    }
    ~LoopEnd() { QMetaObject::invokeMethod(&m_loop, &QEventLoop::quit, Qt::QueuedConnection); }
    LoopEnd(const LoopEnd &) = delete;
    LoopEnd &operator=(const LoopEnd &) = delete;

private:
    QEventLoop &m_loop;
};

} // namespace

void BackgroundWork::run(const QString &text, const std::function<void()> &work)
{
    if (!QCoreApplication::instance())
        return work();
    QEventLoop loop;
    std::future<void> done = std::async(std::launch::async, [&] {
        const LoopEnd end(loop);
        work();
    });
    if (done.wait_for(Moment) != std::future_status::ready) {
        PProgress progress(0, 0, 1, false, true);
        progress.setText(text);
        QTimer tick;
        QObject::connect(&tick, &QTimer::timeout, &loop, [&progress] { progress.nextStep(); });
        tick.start(BetweenSteps);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    done.get();
}

void BackgroundWork::letShow()
{
    if (!QCoreApplication::instance())
        return;
    QEventLoop loop;
    QTimer end;
    end.setSingleShot(true);
    QTimer limit; // whoever always has something to do never waits
    for (const QTimer *const timer : {&end, &limit})
        QObject::connect(timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    limit.start(Patience);
    // When all that follows from each other is done, the loop waits. Some dispatchers tell so
    // before each of their steps.
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock,
                     &end, [&end] { end.start(1); });
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}
