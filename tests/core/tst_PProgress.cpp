#include <core/progress/PProgress.h>
#include <core/progress/PProgressHandOver.h>
#include <core/progress/PProgressObserverBase.h>
#include <core/progress/PProgressObserverNode.h>

#include <QMutex>
#include <QTest>

#include <cmath>
#include <thread>

namespace {

/// Hears once it is told to.
class Listener : public PProgressObserverBase
{
public:
    ~Listener() override { deactivate(); }

    void progressStarted(const PProgressInfo & /*info*/) override { hears = true; }
    void progressChanged(const PProgressInfo & /*info*/) override {}
    void progressDone(const PProgressInfo & /*info*/) override {}

    bool hears = false;
};

class Recorder : public PProgressObserverBase
{
public:
    explicit Recorder(int scope = Thread) { Recorder::activate(scope); }
    ~Recorder() override { deactivate(); }

    void progressStarted(const PProgressInfo &info) override { add("started", info); }
    void progressChanged(const PProgressInfo &info) override { add("changed", info); }
    void progressText(const PProgressInfo &info) override { add("text", info); }
    void progressDone(const PProgressInfo &info) override { add("done", info); }

    /// "event count/total text" of each event.
    QStringList events() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_events;
    }
    QList<PProgressInfo> infos() const
    {
        const QMutexLocker lock(&m_mutex);
        return m_infos;
    }

private:
    void add(const char *event, const PProgressInfo &info)
    {
        const QMutexLocker lock(&m_mutex);
        m_infos.append(info);
        m_events.append(QStringLiteral("%1 %2/%3 %4")
                            .arg(QString(event), QString::number(info.count),
                                 QString::number(info.total), info.text)
                            .trimmed());
    }

    mutable QMutex m_mutex;
    QStringList m_events;
    QList<PProgressInfo> m_infos;
};

/// What happens when the interval is over, or has not passed for long.
constexpr std::chrono::milliseconds Over{0};
constexpr std::chrono::milliseconds Long{1000000};

void shortSleep()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(11));
}

} // namespace

class tst_PProgress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { PProgress::setInterval(Long); }

    void total_data()
    {
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<double>("step");
        QTest::addColumn<bool>("indeterminate");
        QTest::addColumn<qint64>("total");
        QTest::newRow("lines") << 0.0 << 12.0 << 1.0 << false << qint64(12);
        QTest::newRow("none") << 0.0 << 0.0 << 1.0 << false << qint64(0);
        QTest::newRow("part of a step") << 0.0 << 10.0 << 3.0 << false << qint64(4);
        QTest::newRow("fractions") << 0.0 << 0.3 << 0.1 << false << qint64(3);
        QTest::newRow("downwards") << 5.0 << 0.0 << -1.0 << false << qint64(5);
        QTest::newRow("wrong way") << 5.0 << 0.0 << 1.0 << false << qint64(0);
        QTest::newRow("no step") << 0.0 << 5.0 << 0.0 << false << qint64(-1);
        QTest::newRow("nothing and no step") << 0.0 << 0.0 << 0.0 << false << qint64(-1);
        QTest::newRow("no number") << 0.0 << std::nan("") << 1.0 << false << qint64(-1);
        QTest::newRow("indeterminate") << 0.0 << 12.0 << 1.0 << true << qint64(-1);
    }
    void total()
    {
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(double, step);
        QFETCH(bool, indeterminate);
        const PProgress progress(from, to, step, false, indeterminate);
        QTEST(progress.total(), "total");
        QCOMPARE(progress.isIndeterminate(), progress.total() < 0);
    }
    void waitsHaveAnObserverIfThereIsNone()
    {
        QVERIFY(!PProgressObserverBase::ofWait());
        PProgressObserverBase::setMakerForWaits([]() -> std::unique_ptr<PProgressObserverBase> {
            return std::make_unique<Listener>();
        });
        {
            const auto observer = PProgressObserverBase::ofWait();
            QVERIFY(observer && observer->isActive());
            QVERIFY(!PProgressObserverBase::ofWait());
            PProgress progress(0, 2);
            progress.nextStep();
            QVERIFY(static_cast<Listener *>(observer.get())->hears);
            bool isAlone = false;
            std::jthread([&] { isAlone = PProgressObserverBase::ofWait() != nullptr; }).join();
            QVERIFY(isAlone);
        }
        {
            const Recorder recorder;
            QVERIFY(!PProgressObserverBase::ofWait());
        }
        PProgressObserverBase::setMakerForWaits(nullptr);
        QVERIFY(!PProgressObserverBase::ofWait());
    }
    void countsWithoutAnObserver()
    {
        PProgress progress(10, 20, 2);
        progress.setText("text");
        progress.nextStep();
        progress.nextStep();
        QCOMPARE(progress.count(), 2);
        QCOMPARE(progress.position(), 14.0);
        QCOMPARE(progress.text(), QString("text"));
        QVERIFY(!progress.isCanceled());
        progress.done();
        QVERIFY(progress.isDone());
    }

    void tellsBeginFirstLastAndEnd()
    {
        const Recorder recorder;
        {
            PProgress progress(0, 1000);
            progress.setText("work");
            for (int i = 0; i < 1000; ++i)
                progress.nextStep();
        }
        const QStringList events = recorder.events();
        QCOMPARE(events.mid(0, 3),
                 QStringList({"started 0/1000", "text 0/1000 work", "changed 1/1000 work"}));
        QCOMPARE(events.mid(events.size() - 2),
                 QStringList({"changed 1000/1000 work", "done 1000/1000 work"}));
        QCOMPARE(events.size(), 5);
    }
    void emptyWorkIsToldToo()
    {
        const Recorder recorder;
        PProgress(0, 0).done();
        QCOMPARE(recorder.events(), QStringList({"started 0/0", "done 0/0"}));
    }
    void slowStepsAreAllTold()
    {
        PProgress::setInterval(Over);
        const Recorder recorder;
        PProgress progress(0, 5);
        for (int i = 0; i < 5; ++i) {
            shortSleep();
            progress.nextStep();
        }
        progress.done();
        QCOMPARE(recorder.events().filter("changed").size(), 5);
    }
    void quickStepsThatTurnSlowAreToldSoon()
    {
        const Recorder recorder;
        PProgress progress(0, 1e6);
        for (int i = 0; i < 100000; ++i)
            progress.nextStep();
        PProgress::setInterval(Over);
        for (int i = 0; i < 18; ++i) {
            shortSleep();
            progress.nextStep();
        }
        QVERIFY(recorder.events().size() >= 2 + 2);
    }
    void textsAreToldAtMostAtIntervalsAndNoneIsLost()
    {
        const Recorder recorder;
        PProgress progress(0, 100);
        progress.setText("first");
        progress.setText("second");
        progress.setText("second");
        QCOMPARE(recorder.events(), QStringList({"started 0/100", "text 0/100 first"}));
        PProgress::setInterval(Over);
        progress.setText("third");
        QCOMPARE(recorder.events().constLast(), QString("text 0/100 third"));
        PProgress::setInterval(Long);
        progress.setText("fourth");
        QCOMPARE(recorder.events().constLast(), QString("text 0/100 third"));
        progress.nextStep();
        QCOMPARE(recorder.events().constLast(), QString("text 1/100 fourth"));
        progress.setText("fifth");
        progress.done();
        QCOMPARE(recorder.events().constLast(), QString("done 1/100 fifth"));
        QCOMPARE(recorder.events().size(), 5);
    }
    void doneIsToldOnceAndNothingAfterIt()
    {
        const Recorder recorder;
        PProgress progress(0, 3);
        progress.done();
        progress.done();
        progress.nextStep();
        progress.setText("late");
        QCOMPARE(recorder.events(), QStringList({"started 0/3", "done 0/3"}));
    }
    void rateAndRest()
    {
        const Recorder recorder;
        PProgress progress(0, 4);
        shortSleep();
        progress.nextStep();
        const PProgressInfo info = recorder.infos().constLast();
        QVERIFY(info.elapsed >= 11);
        QCOMPARE(info.rate, 1000.0 / double(info.elapsed));
        QVERIFY(std::abs(double(info.remaining) - 3.0 * double(info.elapsed)) <= 1);
        for (int i = 0; i < 3; ++i)
            progress.nextStep();
        QCOMPARE(recorder.infos().constLast().remaining, 0);
    }
    void restOfUnknownWorkIsUnknown()
    {
        const Recorder recorder;
        PProgress progress(0, 0, 1, true, true);
        shortSleep();
        progress.nextStep();
        QCOMPARE(recorder.infos().constLast().total, -1);
        QCOMPARE(recorder.infos().constLast().remaining, -1);
    }

    void observerCancels()
    {
        const Recorder recorder;
        PProgress progress(0, 3, 1, true);
        QVERIFY(!progress.isCanceled());
        QVERIFY(recorder.infos().constLast().cancellable);
        recorder.infos().constLast().cancel->request();
        QVERIFY(progress.isCanceled());
    }
    void oneThatMayNotBeCancelledIsNot()
    {
        const Recorder recorder;
        PProgress progress(0, 3, 1, false);
        PProgress inner(0, 3, 1, true);
        recorder.infos().constFirst().cancel->request();
        progress.requestCancel();
        QVERIFY(!progress.isCanceled());
        QVERIFY(!inner.isCanceled());
    }
    void cancelReachesInnerOnesOnly()
    {
        PProgress outer(0, 3, 1, true);
        PProgress middle(0, 3, 1, false);
        PProgress inner(0, 3, 1, true);
        inner.requestCancel();
        QVERIFY(inner.isCanceled());
        QVERIFY(!outer.isCanceled());
        PProgress second(0, 3, 1, true);
        QVERIFY(second.isCanceled());
        inner.done();
        second.done();
        PProgress third(0, 3, 1, true);
        QVERIFY(!third.isCanceled());
        outer.requestCancel();
        QVERIFY(third.isCanceled());
        QVERIFY(!middle.isCanceled());
    }

    void nestedOnesKnowTheirOuterOne()
    {
        const Recorder recorder;
        PProgress outer(0, 2);
        {
            const PProgress inner(0, 3);
        }
        const PProgress next(0, 4);
        const QList<PProgressInfo> infos = recorder.infos();
        QCOMPARE(infos.size(), 4);
        QCOMPARE(infos.at(0).depth, 0);
        QCOMPARE(infos.at(0).outer, 0u);
        QCOMPARE(infos.at(1).depth, 1);
        QCOMPARE(infos.at(1).outer, infos.at(0).id);
        QCOMPARE(infos.at(2).id, infos.at(1).id);
        QCOMPARE(infos.at(3).outer, infos.at(0).id);
        QVERIFY(infos.at(3).id != infos.at(1).id);
    }
    void outerOneMayEndFirst()
    {
        const Recorder recorder;
        auto outer = std::make_unique<PProgress>(0, 2);
        PProgress inner(0, 3);
        outer.reset();
        inner.done();
        const PProgress next(0, 1);
        QCOMPARE(recorder.infos().constLast().depth, 0);
    }

    void innermostObserverHears()
    {
        const Recorder outer;
        {
            const Recorder inner;
            PProgress(0, 1).done();
            QCOMPARE(inner.events().size(), 2);
        }
        QVERIFY(outer.events().isEmpty());
        PProgress(0, 1).done();
        QCOMPARE(outer.events().size(), 2);
    }
    void outerObserverMayEndFirst()
    {
        auto outer = std::make_unique<Recorder>();
        auto inner = std::make_unique<Recorder>();
        outer.reset();
        PProgress(0, 1).done();
        QCOMPARE(inner->events().size(), 2);
        inner.reset();
        PProgress(0, 1).done();
        QVERIFY(!PProgressObserverNode::current());
    }
    void progressOutlivesItsObserver()
    {
        auto recorder = std::make_unique<Recorder>();
        PProgress progress(0, 1000);
        recorder.reset();
        for (int i = 0; i < 1000; ++i)
            progress.nextStep();
        progress.setText("x");
        progress.done();
        QCOMPARE(progress.count(), 1000);
    }
    void activatingTwiceIsOnce()
    {
        Recorder recorder;
        recorder.activate(PProgressObserverBase::Thread);
        PProgress(0, 1).done();
        QCOMPARE(recorder.events().size(), 2);
        recorder.deactivate();
        QVERIFY(!recorder.isActive());
        recorder.deactivate();
        PProgress(0, 1).done();
        QCOMPARE(recorder.events().size(), 2);
    }

    void threadScopeIsOfItsThread()
    {
        const Recorder recorder;
        std::thread([] { PProgress(0, 1).done(); }).join();
        QVERIFY(recorder.events().isEmpty());
    }
    void processScopeHearsOfAllThreadsWithoutTheirOwn()
    {
        const Recorder recorder(PProgressObserverBase::Process);
        std::thread([] { PProgress(0, 1).done(); }).join();
        QCOMPARE(recorder.events().size(), 2);
        std::thread([] {
            const Recorder own;
            PProgress(0, 1).done();
        }).join();
        QCOMPARE(recorder.events().size(), 2);
        PProgress(0, 1).done();
        QCOMPARE(recorder.events().size(), 4);
    }
    void handOverTakesObserverAndCancelAlong()
    {
        const Recorder recorder;
        PProgress outer(0, 1, 1, true);
        const PProgressHandOver handOver;
        bool before = true;
        bool after = false;
        std::thread([&] {
            const PProgressHandOver::Receiver receiver(handOver);
            PProgress inner(0, 1, 1, true);
            before = inner.isCanceled();
            outer.requestCancel();
            after = inner.isCanceled();
        }).join();
        QVERIFY(!before);
        QVERIFY(after);
        QCOMPARE(recorder.infos().at(1).outer, recorder.infos().at(0).id);
        QCOMPARE(recorder.infos().at(1).depth, 1);
        QCOMPARE(recorder.events().size(), 3);
    }
    void handOverEndsWithItsReceiver()
    {
        const Recorder recorder;
        const PProgressHandOver handOver;
        std::thread([&] {
            {
                const PProgressHandOver::Receiver receiver(handOver);
            }
            PProgress(0, 1).done();
        }).join();
        QVERIFY(recorder.events().isEmpty());
    }
    void handOverOutlivesObserverAndProgress()
    {
        auto recorder = std::make_unique<Recorder>();
        auto outer = std::make_unique<PProgress>(0, 1, 1, true);
        const PProgressHandOver handOver;
        outer->requestCancel();
        outer.reset();
        recorder.reset();
        bool cancelled = false;
        std::thread([&] {
            const PProgressHandOver::Receiver receiver(handOver);
            PProgress inner(0, 1, 1, true);
            inner.nextStep();
            cancelled = inner.isCanceled();
        }).join();
        QVERIFY(cancelled);
    }
    void observerMayEndWhileThreadsWork()
    {
        for (int round = 0; round < 20; ++round) {
            auto recorder = std::make_unique<Recorder>(PProgressObserverBase::Process);
            std::vector<std::thread> threads;
            std::atomic<int> begun = 0;
            for (int t = 0; t < 3; ++t) {
                threads.emplace_back([&begun] {
                    ++begun;
                    for (int i = 0; i < 300; ++i) {
                        PProgress progress(0, 5, 1, true);
                        for (int step = 0; step < 5 && !progress.isCanceled(); ++step)
                            progress.nextStep();
                    }
                });
            }
            while (begun < 3)
                std::this_thread::yield();
            recorder.reset();
            for (std::thread &thread : threads)
                thread.join();
        }
        QVERIFY(!PProgressObserverNode::current());
    }
    void manyThreadsLoseNoEvent()
    {
        const Recorder recorder(PProgressObserverBase::Process);
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([] {
                for (int i = 0; i < 100; ++i)
                    PProgress(0, 1).done();
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(recorder.events().size(), 800);
    }
};

QTEST_GUILESS_MAIN(tst_PProgress)
#include "tst_PProgress.moc"
