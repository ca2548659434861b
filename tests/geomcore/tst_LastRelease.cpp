#include "../support/EnglishTexts.h"

#include <geomcore/records/MappingFile.h>

#include <QTest>

namespace {

QByteArray release(const QByteArray &date, const QByteArray &path = "cat/a.prj",
                   const QByteArray &targets = "[]")
{
    return "\"" + date + "\": {\"sourceDate\": \"" + date +
           "\", \"targetDate\": \"2030\", \"mappings\": [{\"sourcePath\": \"" + path +
           "\", \"sourceVersion\": \"\", \"tabVersion\": \"\", \"state\": 0, \"targets\": " +
           targets + "}]}";
}

/// A target without path that is not the last one: read with a note.
const QByteArray Moved =
    R"([{"path":"","version":"","tabVersion":"","valid":true,"conditions":[],"modifiers":[],"lines":[[1,-1,0]]},)"
    R"({"path":"b.prj","version":"","tabVersion":"","valid":true,"conditions":[],"modifiers":[],"lines":[[2,1,1]]}])";

} // namespace

/// A mapping file whose last release is wanted, read in one pass.
class tst_LastRelease : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalsNaming_data();
    void equalsNaming();
    void failures_data();
    void failures();
};

void tst_LastRelease::equalsNaming_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("one") << '{' + release("2024") + '}';
    QTest::newRow("three") << '{' + release("2023", "x.prj") + ", " + release("2022", "y.prj") +
                                  " , " + release("2024", "z.prj") + "}\n";
    QTest::newRow("none") << QByteArray("{ }");
    QTest::newRow("twice in a row")
        << '{' + release("2024", "x.prj") + ',' + release("2024", "y.prj") + '}';
    QTest::newRow("note") << '{' + release("2023") + ',' + release("2024", "x.prj", Moved) + '}';
    QTest::newRow("note of another")
        << '{' + release("2023", "x.prj", Moved) + ',' + release("2024") + '}';
}

void tst_LastRelease::equalsNaming()
{
    QFETCH(QByteArray, json);
    MappingFile last;
    QString error;
    QVERIFY2(last.parseLast(json, &error), qPrintable(error));
    const QString date = last.sourceDates().value(last.sourceDates().size() - 1);
    MappingFile named;
    QVERIFY(named.parse(json, date.isEmpty() ? QStringLiteral("-") : date));
    QCOMPARE(last.sourceDates(), named.sourceDates());
    QCOMPARE(last.notes(), named.notes());
    QCOMPARE(last.releases().size(), date.isEmpty() ? 0 : 1);
    QCOMPARE(last.toByteArray(), named.toByteArray());
    if (!date.isEmpty())
        QCOMPARE(last.release(date).mappingAt(0).getSourcePath(),
                 named.release(date).mappingAt(0).getSourcePath());
}

void tst_LastRelease::failures_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("error");
    QTest::newRow("another is no release")
        << "{\"2023\": {\"sourceDate\": 7}, " + release("2024") + '}' << "\"2023\": ";
    QTest::newRow("around another")
        << '{' + release("2023") + ',' + release("2024") + ',' + release("2023") + '}'
        << "2024: It stands between two releases of one date.";
    QTest::newRow("no JSON") << QByteArray("{") << "line 1";
}

void tst_LastRelease::failures()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, error);
    MappingFile file;
    QVERIFY(file.parse('{' + release("2000") + '}'));
    QString told;
    QVERIFY(!file.parseLast(json, &told));
    QVERIFY2(told.contains(error), qPrintable(told));
    QCOMPARE(file.sourceDates(), QStringList{"2000"});
    QVERIFY(!file.parseLast(json));
}

QTEST_GUILESS_MAIN(tst_LastRelease)
#include "tst_LastRelease.moc"
