#include <core/progress/PProgress.h>
#include <release/assign/ParallelSteps.h>

#include <QTest>

#include <atomic>
#include <memory>

using VelkRelease::runParallelSteps;

class tst_ParallelSteps : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepOnce_data();
    void everyStepOnce();
    void cancelledBefore();
    void cancelledInBetween();
};

void tst_ParallelSteps::everyStepOnce_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("none") << 0;
    QTest::newRow("one") << 1;
    QTest::newRow("many") << 10000;
}

void tst_ParallelSteps::everyStepOnce()
{
    QFETCH(int, count);
    const auto made = std::make_unique<std::atomic<int>[]>(size_t(count) + 1);
    PProgress progress(0, count, 1.0, true);
    QVERIFY(runParallelSteps(
        count, [&made](int i) { ++made[size_t(i)]; }, progress));
    for (int i = 0; i < count; ++i)
        QCOMPARE(made[size_t(i)].load(), 1);
    QCOMPARE(progress.count(), count);
}

void tst_ParallelSteps::cancelledBefore()
{
    std::atomic<int> made = 0;
    PProgress progress(0, 10000, 1.0, true);
    progress.requestCancel();
    QVERIFY(!runParallelSteps(
        10000, [&made](int) { ++made; }, progress));
    QVERIFY(made < 10000);
}

void tst_ParallelSteps::cancelledInBetween()
{
    constexpr int count = 1000000;
    std::atomic<int> made = 0;
    PProgress progress(0, count, 1.0, true);
    const auto step = [&](int i) {
        ++made;
        if (i == 100)
            progress.requestCancel();
    };
    QVERIFY(!runParallelSteps(count, step, progress));
    QVERIFY(made > 100);
    QVERIFY(made < count);
}

QTEST_GUILESS_MAIN(tst_ParallelSteps)
#include "tst_ParallelSteps.moc"
