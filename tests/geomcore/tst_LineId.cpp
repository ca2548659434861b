#include <geomcore/table/LineInfo.h>
#include <geomcore/value/LineId.h>
#include <geomcore/value/VarId.h>

#include <QHash>
#include <QSet>
#include <QTest>

using namespace VKTab;

class tst_LineId : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhetherItNamesALine_data();
    void tellsWhetherItNamesALine();
    void idsWithoutSecondNumberAreOneAndTheSame();
    void differsInEitherNumber();
    void livesInContainers();
    void aDefaultInfoNamesNoLine();
    void varIdsAreKeys();
};

void tst_LineId::tellsWhetherItNamesALine_data()
{
    QTest::addColumn<LineId>("id");
    QTest::addColumn<bool>("valid");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("sub");

    QTest::newRow("default") << LineId() << false << -1 << 0;
    QTest::newRow("no line") << LineId(-1) << false << -1 << 0;
    QTest::newRow("line") << LineId(7) << true << 7 << 0;
    QTest::newRow("line 0") << LineId(0) << true << 0 << 0;
    QTest::newRow("with second number") << LineId(7, 3) << true << 7 << 3;
}

void tst_LineId::tellsWhetherItNamesALine()
{
    QFETCH(LineId, id);
    QTEST(id.isValid(), "valid");
    QTEST(id.value(0), "line");
    QTEST(id.value(1), "sub");
    QCOMPARE(id.value(2), 0);
    QCOMPARE(id.value(-1), 0);
}

void tst_LineId::idsWithoutSecondNumberAreOneAndTheSame()
{
    QCOMPARE(LineId(7), LineId(7, 0));
    QCOMPARE(qHash(LineId(7), 5), qHash(LineId(7, 0), 5));
    QCOMPARE(LineId(), LineId(-1));
    QCOMPARE(qHash(LineId()), qHash(LineId(-1)));
}

void tst_LineId::differsInEitherNumber()
{
    QVERIFY(LineId(7) != LineId(8));
    QVERIFY(LineId(7, 1) != LineId(7, 0));
    QVERIFY(LineId(7, 1) < LineId(7, 2));
    QVERIFY(LineId(7, 9) < LineId(8));
}

void tst_LineId::livesInContainers()
{
    QHash<LineId, int> hash{{LineId(1), 10}, {LineId(1, 2), 12}};
    QCOMPARE(hash.value(LineId(1, 0)), 10);
    QCOMPARE(hash.value(LineId(1, 2)), 12);
    QVERIFY(!hash.contains(LineId(2)));
    QVector<LineId> ids{1, 2, LineId(3, 1)};
    QVERIFY(ids.contains(LineId(2, 0)));
    QCOMPARE(sizeof(LineId), 2 * sizeof(int));
}

void tst_LineId::aDefaultInfoNamesNoLine()
{
    QVERIFY(!LineInfo().isValid());
    QVERIFY(!LineInfo().getLineId().isValid());
    QCOMPARE(LineInfo().getRow(), -1);
    QCOMPARE(LineInfo(LineId(4), 3).getLineId(), LineId(4));
}

void tst_LineId::varIdsAreKeys()
{
    QVERIFY(!VarId().isValid());
    QVERIFY(VarId(0).isValid());
    QCOMPARE(VarId(5).value(), 5);
    QSet<VarId> ids{VarId(5), VarId(6), VarId(5)};
    QCOMPARE(ids.size(), 2);
    QVERIFY(ids.contains(VarId(6)) && !ids.contains(VarId()));
}

QTEST_GUILESS_MAIN(tst_LineId)
#include "tst_LineId.moc"
