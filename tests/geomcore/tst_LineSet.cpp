#include <geomcore/table/LineSet.h>

#include <QTest>

using namespace VKTab;

class tst_LineSet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsExactlyItsRows_data();
    void holdsExactlyItsRows();
    void insertsAndRemoves();
    void intersects();
};

namespace {

QList<int> rows(const LineSet &set)
{
    QList<int> result;
    set.forEach([&](int row) { result.append(row); });
    return result;
}

} // namespace

void tst_LineSet::holdsExactlyItsRows_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 63, 64, 65, 128, 1000})
        QTest::addRow("%d rows", count) << count;
}

void tst_LineSet::holdsExactlyItsRows()
{
    QFETCH(int, count);
    const LineSet all(count, true);
    QCOMPARE(all.count(), count);
    QCOMPARE(all.capacity(), count);
    QCOMPARE(rows(all).size(), count);
    const LineSet none(count, false);
    QCOMPARE(none.count(), 0);
    QVERIFY(rows(none).isEmpty());
    for (int row = 0; row < count; ++row)
        QVERIFY(all.contains(row) && !none.contains(row));
}

void tst_LineSet::insertsAndRemoves()
{
    LineSet set(200, false);
    for (const int row : {199, 0, 64, 63, 64})
        set.insert(row);
    QCOMPARE(rows(set), (QList<int>{0, 63, 64, 199}));
    set.remove(64);
    set.remove(65);
    QCOMPARE(rows(set), (QList<int>{0, 63, 199}));
}

void tst_LineSet::intersects()
{
    LineSet a(100, true);
    LineSet b(100, false);
    b.insert(3);
    b.insert(99);
    a.remove(3);
    a.intersect(b);
    QCOMPARE(rows(a), QList<int>{99});
}

QTEST_GUILESS_MAIN(tst_LineSet)
#include "tst_LineSet.moc"
