#include "ViewTables.h"

#include <geomcoregui/table/TableRows.h>

#include <QTest>

using VKTab::LineId;

class tst_TableRows : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void none()
    {
        const TableRows rows;
        QCOMPARE(rows.count(), 0);
        QCOMPARE(rows.placeAt(0), -1);
        QVERIFY(!rows.lineId(0).isValid());
        QCOMPARE(rows.rowOf(LineId(1)), -1);
        QVERIFY(rows.sameLines(TableRows()));
    }

    void all()
    {
        const TableRows rows(mapping());
        QCOMPARE(rows.count(), 5);
        QCOMPARE(rows.placeAt(4), 4);
        QCOMPARE(rows.placeAt(5), -1);
        QCOMPARE(rows.placeAt(-1), -1);
        QCOMPARE(rows.lineId(2), LineId(3));
        QCOMPARE(rows.rowOf(LineId(5)), 4);
        QCOMPARE(rows.rowOf(LineId(6)), -1);
        QCOMPARE(rows.rowOf(LineId()), -1);
    }

    void some()
    {
        const TableRows rows(mapping(), {4, 0, 2});
        QCOMPARE(rows.count(), 3);
        QCOMPARE(rows.placeAt(0), 4);
        QCOMPARE(rows.placeAt(3), -1);
        QCOMPARE(rows.lineId(1), LineId(1));
        QCOMPARE(rows.rowOf(LineId(3)), 2);
        QCOMPARE(rows.rowOf(LineId(2)), -1);
        QCOMPARE(rows.mapping().count(), 5);
    }

    void sameLines_data()
    {
        QTest::addColumn<QList<int>>("places");
        QTest::addColumn<bool>("same");
        QTest::newRow("all") << QList<int>{0, 1, 2, 3, 4} << true;
        QTest::newRow("fewer") << QList<int>{0, 1, 2, 3} << false;
        QTest::newRow("other order") << QList<int>{0, 1, 2, 4, 3} << false;
    }
    void sameLines()
    {
        QFETCH(QList<int>, places);
        const TableRows rows(mapping(), std::vector<int>(places.begin(), places.end()));
        QTEST(rows.sameLines(TableRows(mapping())), "same");
        QTEST(TableRows(mapping()).sameLines(rows), "same");
    }

private:
    VKTab::LineMapping mapping() const { return m_table.getLineMapping(); }
    const VKTab::ContentRef m_table = ViewTables::large(5);
};

QTEST_GUILESS_MAIN(tst_TableRows)
#include "tst_TableRows.moc"
