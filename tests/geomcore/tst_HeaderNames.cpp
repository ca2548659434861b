#include <geomcore/csv/HeaderNames.h>

#include <QSet>
#include <QTest>

class tst_HeaderNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void names_data();
    void names();
    void manyEqualNames();
};

void tst_HeaderNames::names_data()
{
    QTest::addColumn<QStringList>("header");
    QTest::addColumn<QStringList>("expected");
    QTest::newRow("different") << QStringList{"a", "b", "A"} << QStringList{"a", "b", "A"};
    QTest::newRow("twice") << QStringList{"a", "a", "a"} << QStringList{"a", "a_2", "a_3"};
    QTest::newRow("the suffix is written already")
        << QStringList{"a", "a", "a_2", "a"} << QStringList{"a", "a_3", "a_2", "a_4"};
    QTest::newRow("without names")
        << QStringList{"", "x", ""} << QStringList{"Column1", "x", "Column3"};
    QTest::newRow("the place's name is written already")
        << QStringList{"", "Column1"} << QStringList{"Column1_2", "Column1"};
    QTest::newRow("placeholders") << QStringList{"%1", "%1", "%2%1", "%2%1"}
                                  << QStringList{"%1", "%1_2", "%2%1", "%2%1_2"};
}

void tst_HeaderNames::names()
{
    QFETCH(QStringList, header);
    QTEST(VKTab::uniqueColumnNames(header), "expected");
}

void tst_HeaderNames::manyEqualNames()
{
    const QStringList names = VKTab::uniqueColumnNames(QStringList(50000, "a"));
    QCOMPARE(QSet<QString>(names.begin(), names.end()).size(), 50000);
    QCOMPARE(names.last(), "a_50000");
}

QTEST_GUILESS_MAIN(tst_HeaderNames)
#include "tst_HeaderNames.moc"
