#include <core/parallel/WorkerPool.h>

#include <QTest>

#include <atomic>
#include <condition_variable>
#include <mutex>
#include <set>
#include <thread>
#include <vector>

/// The threads that share work.
class tst_WorkerPool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepOnce_data();
    void everyStepOnce();
    void oneThreadIsTheCaller();
    void threadsWorkAtOnce();
    void nested();
    void toldOnTheCallingThread();
    void endsWhenToldSo();
    void severalCallers();
    void numberOfThreads();
};

void tst_WorkerPool::everyStepOnce_data()
{
    QTest::addColumn<int>("threads");
    QTest::addColumn<int>("count");
    for (int threads : {1, 2, 7}) {
        for (int count : {0, 1, 2, 1000})
            QTest::addRow("%d threads, %d steps", threads, count) << threads << count;
    }
}

void tst_WorkerPool::everyStepOnce()
{
    QFETCH(int, threads);
    QFETCH(int, count);
    WorkerPool pool;
    pool.setThreads(threads);
    std::vector<std::atomic<int>> made(static_cast<std::size_t>(count));
    pool.run(count, [&](int i) { ++made[std::size_t(i)]; });
    for (const std::atomic<int> &times : made)
        QCOMPARE(times.load(), 1);
}

void tst_WorkerPool::oneThreadIsTheCaller()
{
    WorkerPool pool;
    pool.setThreads(1);
    std::set<std::thread::id> ids;
    std::vector<int> order;
    pool.run(5, [&](int i) {
        ids.insert(std::this_thread::get_id());
        order.push_back(i);
    });
    QCOMPARE(ids, std::set<std::thread::id>{std::this_thread::get_id()});
    QCOMPARE(order, (std::vector<int>{0, 1, 2, 3, 4}));
}

// Each of two steps waits for the other one to begin.
void tst_WorkerPool::threadsWorkAtOnce()
{
    WorkerPool pool;
    pool.setThreads(2);
    std::mutex mutex;
    std::condition_variable changed;
    int begun = 0;
    pool.run(2, [&](int) {
        std::unique_lock lock(mutex);
        ++begun;
        changed.notify_all();
        changed.wait(lock, [&] { return begun == 2; });
    });
    QCOMPARE(begun, 2);
}

void tst_WorkerPool::nested()
{
    WorkerPool pool;
    pool.setThreads(3);
    std::atomic<int> made{0};
    pool.run(20, [&](int) { pool.run(20, [&](int) { pool.run(3, [&](int) { ++made; }); }); });
    QCOMPARE(made.load(), 1200);
}

void tst_WorkerPool::toldOnTheCallingThread()
{
    WorkerPool pool;
    pool.setThreads(3);
    const std::thread::id caller = std::this_thread::get_id();
    bool here = true;
    int last = 0;
    bool rises = true;
    QVERIFY(pool.run(
        500, [](int) {},
        [&](int done) {
            here = here && std::this_thread::get_id() == caller;
            rises = rises && done >= last;
            last = done;
            return true;
        }));
    QVERIFY(here);
    QVERIFY(rises);
    QCOMPARE(last, 500);
}

void tst_WorkerPool::endsWhenToldSo()
{
    WorkerPool pool;
    pool.setThreads(1);
    int made = 0;
    QVERIFY(!pool.run(
        100, [&](int) { ++made; }, [](int done) { return done < 10; }));
    QCOMPARE(made, 10);
}

void tst_WorkerPool::severalCallers()
{
    WorkerPool pool;
    pool.setThreads(3);
    std::atomic<int> made{0};
    std::vector<std::thread> callers;
    for (int i = 0; i < 4; ++i)
        callers.emplace_back([&] {
            for (int k = 0; k < 50; ++k)
                pool.run(10, [&](int) { ++made; });
        });
    for (std::thread &caller : callers)
        caller.join();
    QCOMPARE(made.load(), 2000);
}

void tst_WorkerPool::numberOfThreads()
{
    WorkerPool pool;
    QCOMPARE(pool.threads(), std::max(1, int(std::thread::hardware_concurrency())));
    pool.setThreads(5);
    QCOMPARE(pool.threads(), 5);
    pool.setThreads(0);
    QCOMPARE(pool.threads(), std::max(1, int(std::thread::hardware_concurrency())));
}

QTEST_GUILESS_MAIN(tst_WorkerPool)

#include "tst_WorkerPool.moc"
