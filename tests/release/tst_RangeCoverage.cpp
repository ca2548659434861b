#include "../support/TestCatalog.h"

#include <release/decide/RangeCoverage.h>

#include <geomcore/table/Content.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/readProjectTable.h>

#include <QTest>

using VelkRelease::RangeCoverage;

/// Which values of a range line the texts of its entries give to new lines.
class tst_RangeCoverage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void covered_data();
    void covered();
    void severalTargets();
    void noText();
};

namespace {

VKTab::ContentRef tableOf(const TestCatalog &catalog)
{
    catalog.write("old/a.prj", "D,L:r,T:r\nM8,10;20;30,1;2\nM9,30,1\n");
    VKTab::ContentRef table{VKTab::Content()};
    (void)VKTab::readProjectTable(catalog.file("old/a.prj"), table, {.tells = false});
    return table;
}

PrjMappingC mappingWith(const QStringList &texts)
{
    PrjMappingC mapping;
    mapping.setSourcePath("old/a.prj");
    int number = 0;
    for (const QString &text : texts) {
        PrjMappingTargetC target;
        target.setTargetPath(QString("new/%1.prj").arg(number++));
        target.setValid(true);
        target.addLineId(1, 1, PRJMAPPING::ToCheck, text);
        mapping.addTarget(target);
    }
    return mapping;
}

QString shown(const RangeCoverage &coverage)
{
    QStringList values;
    for (const RangeCoverage::Value &value : coverage.values)
        values << value.text + "*" + QString::number(value.times);
    return values.join(' ');
}

} // namespace

void tst_RangeCoverage::covered_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QStringList>("missing");
    QTest::addColumn<QStringList>("twice");
    QTest::addColumn<QStringList>("strange");
    const QStringList none;
    QTest::newRow("all") << "{L=10} -> 1\n{L=20} -> 2\n{L=30} -> 2"
                         << "10*1 20*1 30*1" << none << none << none;
    QTest::newRow("gap") << "{L=10} -> 1\n{L=30} -> 2"
                         << "10*1 20*0 30*1" << QStringList{"20"} << none << none;
    QTest::newRow("twice") << "{L=10} -> 1\n{L=10} -> 2\n{L=20} -> 2"
                           << "10*2 20*1 30*0" << QStringList{"30"} << QStringList{"10"} << none;
    QTest::newRow("strange") << "{L=10} -> 1\n{L=99} -> 2"
                             << "10*1 20*0 30*0" << QStringList({"20", "30"}) << none
                             << QStringList{"{L=99}"};
    QTest::newRow("two variables") << "{L=10}{T=1} -> 1\n{T=2}{L=10} -> 1\n{L=20} -> 3"
                                   << "10; 1*1 10; 2*1 20; 1*1 20; 2*1 30; 1*0 30; 2*0"
                                   << QStringList({"30; 1", "30; 2"}) << none << none;
    QTest::newRow("no rows") << "anything"
                             << "" << none << none << none;
}

void tst_RangeCoverage::covered()
{
    QFETCH(QString, text);
    const TestCatalog catalog;
    const RangeCoverage coverage =
        VelkRelease::rangeCoverage(tableOf(catalog), mappingWith({text}), 1);
    QTEST(shown(coverage), "values");
    QTEST(coverage.missing(), "missing");
    QTEST(coverage.twice(), "twice");
    QTEST(coverage.strange, "strange");
}

void tst_RangeCoverage::severalTargets()
{
    const TestCatalog catalog;
    const RangeCoverage coverage = VelkRelease::rangeCoverage(
        tableOf(catalog), mappingWith({"{L=10} -> 1", "{L=10} -> 1\n{L=30} -> 4"}), 1);
    QCOMPARE(shown(coverage), "10*2 20*0 30*1");
}

void tst_RangeCoverage::noText()
{
    const TestCatalog catalog;
    const VKTab::ContentRef table = tableOf(catalog);
    QVERIFY(VelkRelease::rangeCoverage(table, mappingWith({""}), 1).isEmpty());
    QVERIFY(VelkRelease::rangeCoverage(table, mappingWith({"{L=10} -> 1"}), 2).isEmpty());
    QVERIFY(VelkRelease::rangeCoverage(table, mappingWith({"{L=10} -> 1"}), 9).isEmpty());
}

QTEST_GUILESS_MAIN(tst_RangeCoverage)
#include "tst_RangeCoverage.moc"
