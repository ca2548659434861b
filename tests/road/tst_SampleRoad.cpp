#include "CsvFolder.h"

#include "RoadScore.h"
#include "SampleRoad.h"
#include "TruthFile.h"
#include <TestPaths.h>

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace {

/// Sample tables: the folder that VELK_SAMPLE_DATA names, or data/fasteners in a folder "shared"
/// beside the checkout or above it. Empty if there are none.
QString sampleTables()
{
    QStringList places{qEnvironmentVariable("VELK_SAMPLE_DATA")};
    for (QString above : {"/..", "/../.."})
        places << VELK_SOURCE_DIR + above + "/shared/data/fasteners";
    for (const QString &place : places) {
        if (!place.isEmpty() && QFile::exists(place + "/truth-2022-to-2026.csv"))
            return QDir::cleanPath(place);
    }
    return {};
}

} // namespace

/// Goals of the whole road, on real tables where they are present.
class tst_SampleRoad : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goals_data();
    void goals();
    void exampleCatalog();
    void firstColumns_data();
    void firstColumns();
};

void tst_SampleRoad::goals_data()
{
    QTest::addColumn<QString>("tables");
    QTest::addColumn<QString>("year");
    QTest::addColumn<SampleRoad::Columns>("columns");
    QTest::addColumn<double>("found");
    const QString tables = sampleTables();
    // Without sample tables the example catalog stands in for them, see exampleCatalog().
    if (tables.isEmpty()) {
        QTest::newRow("example catalog")
            << QString() << QString() << SampleRoad::Columns::All << 95.0;
        return;
    }
    using Columns = SampleRoad::Columns;
    QTest::newRow("2022") << tables << "2022" << Columns::All << 99.0;
    QTest::newRow("2021") << tables << "2021" << Columns::All << 98.5;
    QTest::newRow("2022 without first column") << tables << "2022" << Columns::WithoutFirst << 99.0;
    QTest::newRow("2021 without first column") << tables << "2021" << Columns::WithoutFirst << 98.0;
    QTest::newRow("value ranges") << tables + "-ranges"
                                  << "2022" << Columns::All << 99.5;
}

void tst_SampleRoad::goals()
{
    QFETCH(QString, tables);
    QFETCH(QString, year);
    QFETCH(SampleRoad::Columns, columns);
    QFETCH(double, found);
    if (tables.isEmpty())
        return exampleCatalog();
    const QTemporaryDir work(SampleRoad::workTemplate());
    const SampleRoad road = SampleRoad::run(tables + "/release-" + year, tables + "/release-2026",
                                            columns, work.path());
    QVERIFY2(road.error.isEmpty(), qPrintable(road.error));
    TruthFile truth;
    QVERIFY(truth.read(tables + "/truth-" + year + "-to-2026.csv"));
    const RoadScore score = scoreRoad(road.release, truth);
    QCOMPARE(score.wrong, QStringList());
    QVERIFY2(score.found() >= found, qPrintable(QString::number(score.found())));
    QCOMPARE(score.goneProposed, 0);
}

void tst_SampleRoad::exampleCatalog()
{
    const QTemporaryDir work(SampleRoad::workTemplate());
    const QString examples = VELK_SOURCE_DIR "/examples";
    const SampleRoad road = SampleRoad::run(examples + "/release-1", examples + "/release-2",
                                            "standardparts", work.filePath("mapping.json"));
    QVERIFY2(road.error.isEmpty(), qPrintable(road.error));
    TruthFile truth;
    QVERIFY(truth.read(examples + "/truth.csv", TruthFile::Paths::WithCatalog));
    const RoadScore score = scoreRoad(road.release, truth);
    QCOMPARE(score.wrong, QStringList());
    QVERIFY2(score.found() >= 95, qPrintable(QString::number(score.found())));
}

void tst_SampleRoad::firstColumns_data()
{
    QTest::addColumn<QByteArray>("csv");
    QTest::addColumn<QByteArray>("rest");
    QTest::newRow("plain") << QByteArray("a,b,c\n1,2,3\n") << QByteArray("b,c\n2,3\n");
    QTest::newRow("no line end") << QByteArray("a,b\n1,2") << QByteArray("b\n2\n");
    QTest::newRow("quoted comma") << QByteArray("a,b\n\"1,5\",2\n") << QByteArray("b\n2\n");
    QTest::newRow("quoted line end")
        << QByteArray("a,b\n\"1\n\",\"2\n\"\n") << QByteArray("b\n\"2\n\"\n");
    QTest::newRow("doubled quote") << QByteArray("a,b\n\"1\"\",\",2\n") << QByteArray("b\n2\n");
    QTest::newRow("one column") << QByteArray("a\n1\n") << QByteArray();
}

void tst_SampleRoad::firstColumns()
{
    QFETCH(QByteArray, csv);
    QTEST(withoutFirstColumn(csv), "rest");
}

QTEST_GUILESS_MAIN(tst_SampleRoad)
#include "tst_SampleRoad.moc"
