#include <core/text/ProxyPtrT.h>

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

namespace {

class Counted
{
public:
    Counted() { ++alive; }
    Counted(const Counted &) = delete;
    Counted &operator=(const Counted &) = delete;
    void addRef() { ++m_count; }
    void release()
    {
        if (--m_count == 0)
            delete this;
    }
    int count() const { return m_count; }

    static std::atomic<int> alive;

private:
    ~Counted() { --alive; }
    std::atomic<int> m_count = 0;
};
std::atomic<int> Counted::alive = 0;

} // namespace

class tst_ProxyPtrT : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { QCOMPARE(Counted::alive.load(), 0); }

    void exchange()
    {
        int a = 0;
        int b = 0;
        void *slot = &a;
        QVERIFY(!mzThreadSafeExchangePtr(&slot, &b, nullptr));
        QCOMPARE(slot, static_cast<void *>(&a));
        QVERIFY(mzThreadSafeExchangePtr(&slot, &a, &b));
        QCOMPARE(slot, static_cast<void *>(&b));
        QCOMPARE(mzThreadSafeReadPtr(&slot), static_cast<void *>(&b));
    }
    void null()
    {
        ProxyPtrT<Counted> pointer;
        QVERIFY(pointer.isNull());
        QVERIFY(!pointer);
        pointer = nullptr;
        pointer = ProxyPtrT<Counted>(nullptr);
        QVERIFY(pointer == ProxyPtrT<Counted>());
    }
    void countsReferences()
    {
        auto *object = new Counted;
        ProxyPtrT<Counted> first(object);
        QCOMPARE(object->count(), 1);
        {
            ProxyPtrT<Counted> second = first;
            QCOMPARE(object->count(), 2);
            QVERIFY(second == first);
            second = first;
            QCOMPARE(object->count(), 2);
        }
        QCOMPARE(object->count(), 1);
        QCOMPARE(first->count(), 1);
        QCOMPARE((*first).count(), 1);
        first = new Counted;
        QCOMPARE(Counted::alive.load(), 1);
        first = nullptr;
        QCOMPARE(Counted::alive.load(), 0);
    }
    void assignedToItself()
    {
        ProxyPtrT<Counted> pointer(new Counted);
        const ProxyPtrT<Counted> &same = pointer;
        pointer = same;
        QCOMPARE(pointer->count(), 1);
    }
    /// Each object is held once at the end, or gone: nothing is lost or released twice.
    void manyThreadsAssign()
    {
        ProxyPtrT<Counted> shared;
        std::vector<std::thread> threads;
        for (int t = 0; t < 4; ++t) {
            threads.emplace_back([&shared] {
                for (int i = 0; i < 5000; ++i)
                    shared = new Counted;
            });
        }
        for (std::thread &thread : threads)
            thread.join();
        QCOMPARE(Counted::alive.load(), shared ? 1 : 0);
        if (shared)
            QCOMPARE(shared->count(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_ProxyPtrT)
#include "tst_ProxyPtrT.moc"
