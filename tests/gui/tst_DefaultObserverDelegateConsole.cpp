#include "RecordingDisplay.h"

#include <gui/progress/DefaultObserverDelegate.h>

#include <core/progress/PProgress.h>

#include <QTest>

#include <atomic>
#include <thread>

namespace {

class Counter : public PProgressObserverBase
{
public:
    Counter() { Counter::activate(Process); }
    ~Counter() override { deactivate(); }
    void progressStarted(const PProgressInfo &) override { ++started; }
    void progressChanged(const PProgressInfo &) override {}
    void progressDone(const PProgressInfo &) override { ++done; }

    std::atomic<int> started = 0;
    std::atomic<int> done = 0;
};

} // namespace

/// In a program without windows.
class tst_DefaultObserverDelegateConsole : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void activeObserverHearsThroughTheDelegate()
    {
        const auto display = std::make_shared<RecordingDisplay>();
        DefaultObserverDelegate::setDisplay(display);
        DefaultObserverDelegate::setTimes(0, 0);
        const Counter counter;
        DefaultObserverDelegate delegate;
        delegate.activate(PProgressObserverBase::Thread);
        QVERIFY(!delegate.isActive());
        PProgress(0, 1).done();
        QCOMPARE(counter.started.load(), 1);
        QCOMPARE(counter.done.load(), 1);
        QVERIFY(display->shown.isEmpty());
    }
    void severalThreadsAtOnce()
    {
        const Counter counter;
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([] {
                for (int i = 0; i < 200; ++i) {
                    DefaultObserverDelegate delegate;
                    delegate.activate(PProgressObserverBase::Thread);
                    PProgress progress(0, 10);
                    for (int step = 0; step < 10; ++step)
                        progress.nextStep();
                }
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(counter.started.load(), 800);
        QCOMPARE(counter.done.load(), 800);
    }
};

QTEST_GUILESS_MAIN(tst_DefaultObserverDelegateConsole)
#include "tst_DefaultObserverDelegateConsole.moc"
