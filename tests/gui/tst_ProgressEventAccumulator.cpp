#include "RecordingDisplay.h"

#include <gui/progress/DefaultObserverDelegate.h>
#include <gui/progress/ProgressEventAccumulator.h>
#include <gui/progress/ThreadLocalProgressEventCollector.h>

#include <core/progress/PProgress.h>
#include <core/progress/PProgressObserverBase.h>

#include <QTest>
#include <QThread>
#include <QThreadPool>

#include <thread>

namespace {

class Recorder : public PProgressObserverBase
{
public:
    Recorder() { Recorder::activate(Thread); }
    ~Recorder() override { deactivate(); }
    void progressStarted(const PProgressInfo &info) override { add("started", info); }
    void progressChanged(const PProgressInfo &info) override { add("changed", info); }
    void progressText(const PProgressInfo &info) override { add("text", info); }
    void progressDone(const PProgressInfo &info) override { add("done", info); }

    QStringList events;
    QThread *thread = nullptr;

private:
    void add(const char *event, const PProgressInfo &info)
    {
        thread = QThread::currentThread();
        events.append(
            QStringLiteral("%1 %2 %3")
                .arg(QString(event), QString::number(info.id), QString::number(info.count)));
    }
};

PProgressInfo info(quint64 id, qint64 count, int depth = 0)
{
    PProgressInfo result;
    result.id = id;
    result.count = count;
    result.depth = depth;
    return result;
}

} // namespace

class tst_ProgressEventAccumulator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PProgress::setInterval(std::chrono::milliseconds(0)); }

    void tellsOnItsOwnThread()
    {
        Recorder recorder;
        ProgressEventAccumulator accumulator(0, -1);
        std::thread([&] { accumulator.post(PProgressEvent::Started, info(1, 0)); }).join();
        QVERIFY(recorder.events.isEmpty());
        QTRY_COMPARE(recorder.events, QStringList{"started 1 0"});
        QCOMPARE(recorder.thread, QThread::currentThread());
    }
    void laterStateReplacesTheEarlierOne()
    {
        Recorder recorder;
        {
            ProgressEventAccumulator accumulator(0, -1);
            accumulator.post(PProgressEvent::Started, info(1, 0));
            accumulator.post(PProgressEvent::Changed, info(1, 1));
            accumulator.post(PProgressEvent::Started, info(2, 0));
            accumulator.post(PProgressEvent::Text, info(1, 2));
            accumulator.post(PProgressEvent::Changed, info(1, 3));
            accumulator.post(PProgressEvent::Changed, info(2, 1));
            accumulator.post(PProgressEvent::Done, info(2, 2));
        }
        QCOMPARE(recorder.events,
                 QStringList({"started 1 0", "text 1 3", "started 2 0", "done 2 2"}));
    }
    void nestedOneThatCameAndWentIsNotTold()
    {
        Recorder recorder;
        {
            ProgressEventAccumulator accumulator(0, -1);
            accumulator.post(PProgressEvent::Started, info(1, 0));
            accumulator.post(PProgressEvent::Started, info(2, 0, 1));
            accumulator.post(PProgressEvent::Changed, info(2, 1, 1));
            accumulator.post(PProgressEvent::Done, info(2, 2, 1));
            accumulator.post(PProgressEvent::Started, info(3, 0, 1));
            QTRY_VERIFY(recorder.events.contains("started 3 0"));
            accumulator.post(PProgressEvent::Done, info(3, 1, 1));
        }
        QCOMPARE(recorder.events, QStringList({"started 1 0", "started 3 0", "done 3 1"}));
    }
    void limit_data()
    {
        QTest::addColumn<int>("limit");
        QTest::addColumn<QStringList>("expected");
        const QStringList begins = {"started 1 0", "started 2 0", "started 3 0"};
        QTest::newRow("none") << -1
                              << begins + QStringList{"changed 1 1", "changed 2 1", "changed 3 1"};
        QTest::newRow("oldest states go") << 4 << begins + QStringList{"changed 3 1"};
        QTest::newRow("begins never go") << 0 << begins;
    }
    void limit()
    {
        QFETCH(int, limit);
        Recorder recorder;
        {
            ProgressEventAccumulator accumulator(0, limit);
            for (quint64 id = 1; id <= 3; ++id)
                accumulator.post(PProgressEvent::Started, info(id, 0));
            for (quint64 id = 1; id <= 3; ++id)
                accumulator.post(PProgressEvent::Changed, info(id, 1));
        }
        QTEST(recorder.events, "expected");
    }
    void tellsAtIntervals()
    {
        Recorder recorder;
        ProgressEventAccumulator accumulator(1000000, -1);
        accumulator.post(PProgressEvent::Started, info(1, 0));
        QTRY_COMPARE(recorder.events, QStringList{"started 1 0"});
        accumulator.post(PProgressEvent::Changed, info(1, 1));
        QCoreApplication::processEvents();
        QCOMPARE(recorder.events, QStringList{"started 1 0"});
    }
    void tellsWhenTheIntervalIsOver()
    {
        Recorder recorder;
        ProgressEventAccumulator accumulator(5, -1);
        accumulator.post(PProgressEvent::Started, info(1, 0));
        QTRY_COMPARE(recorder.events, QStringList{"started 1 0"});
        accumulator.post(PProgressEvent::Changed, info(1, 1));
        QTRY_COMPARE(recorder.events, QStringList({"started 1 0", "changed 1 1"}));
    }
    void withoutAnObserverNothingIsKept()
    {
        ProgressEventAccumulator accumulator(0, -1);
        accumulator.post(PProgressEvent::Started, info(1, 0));
        Recorder late;
        QCoreApplication::processEvents();
        QVERIFY(late.events.isEmpty());
    }
    void observerMayEndFirst()
    {
        const Recorder outer;
        auto recorder = std::make_unique<Recorder>();
        ProgressEventAccumulator accumulator(0, -1);
        recorder.reset();
        accumulator.post(PProgressEvent::Started, info(1, 0));
        QCoreApplication::processEvents();
        QVERIFY(outer.events.isEmpty()); // it was meant for the one that went
    }

    void collectorTakesNestedOnesAlongOrNot_data()
    {
        QTest::addColumn<bool>("nested");
        QTest::addColumn<int>("begins");
        QTest::newRow("nested") << true << 2;
        QTest::newRow("outermost only") << false << 1;
    }
    void collectorTakesNestedOnesAlongOrNot()
    {
        QFETCH(bool, nested);
        class Posts : public ProgressEventAccumulatorBase
        {
        public:
            void post(PProgressEvent event, const PProgressInfo &) override
            {
                begins += event == PProgressEvent::Started;
            }
            int begins = 0;
        } posts;
        ThreadLocalProgressEventCollector collector(&posts, nested);
        collector.activate(PProgressObserverBase::Thread);
        PProgress outer(0, 1);
        PProgress inner(0, 1);
        QTEST(posts.begins, "begins");
    }
    void collectorWithoutAccumulatorIsSilent()
    {
        const Recorder outer;
        ThreadLocalProgressEventCollector collector(nullptr, true);
        collector.activate(PProgressObserverBase::Thread);
        PProgress progress(0, 1);
        progress.nextStep();
        QVERIFY(outer.events.isEmpty());
    }

    /// A worker of a pool, watched by the thread of the windows.
    void workerProgressReachesTheDisplay()
    {
        const auto display = std::make_shared<RecordingDisplay>();
        DefaultObserverDelegate::setDisplay(display);
        DefaultObserverDelegate::setTimes(0, 0);
        std::atomic<bool> seen = false;
        {
            DefaultObserverDelegate delegate;
            delegate.activate(PProgressObserverBase::Thread);
            ProgressEventAccumulator accumulator(0, -1);
            QThreadPool pool;
            display->onShow = [&seen](const QList<PProgressInfo> &) {
                seen = true;
            };
            pool.start([&] {
                ThreadLocalProgressEventCollector collector(&accumulator, true);
                collector.activate(PProgressObserverBase::Thread);
                PProgress progress(0, 3);
                progress.setText("Zeile 7");
                progress.nextStep();
                while (!seen)
                    std::this_thread::yield();
                progress.nextStep();
                progress.nextStep();
            });
            while (!pool.waitForDone(0))
                QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 10);
        }
        DefaultObserverDelegate::setDisplay(nullptr);
        DefaultObserverDelegate::setTimes(500, 100);
        QVERIFY(display->shown.size() >= 2);
        QVERIFY2(display->shown.constFirst().endsWith("/3 Zeile 7") ||
                     display->shown.constFirst() == "0/3",
                 qPrintable(display->shown.constFirst()));
        QCOMPARE(display->shown.constLast(), QString("-"));
    }
};

QTEST_MAIN(tst_ProgressEventAccumulator)
#include "tst_ProgressEventAccumulator.moc"
