#include <tools/velkmap/counted.h>

#include <QTest>

class tst_counted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wordFitsTheCount_data()
    {
        QTest::addColumn<qint64>("count");
        QTest::addColumn<QString>("text");
        QTest::newRow("none") << qint64(0) << "0 lines";
        QTest::newRow("one") << qint64(1) << "1 line";
        QTest::newRow("two") << qint64(2) << "2 lines";
        QTest::newRow("ends in one") << qint64(21) << "21 lines";
        QTest::newRow("for scripts") << qint64(12345) << "12345 lines";
    }
    void wordFitsTheCount()
    {
        QFETCH(qint64, count);
        QTEST(velkmap::counted(count, "line"), "text");
    }
};

QTEST_GUILESS_MAIN(tst_counted)
#include "tst_counted.moc"
