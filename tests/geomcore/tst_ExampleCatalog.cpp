#include "../support/EnglishTexts.h"

#include <geomcore/table/TableData.h>
#include <TestPaths.h>

#include <QDir>
#include <QDirIterator>
#include <QTest>

using namespace VKTab;

namespace {

const QString Examples = QStringLiteral(VELK_SOURCE_DIR "/examples");
const QString BrokenTable = QStringLiteral("standardparts/plugs/din908.json");

QStringList descriptors(const QString &release)
{
    QStringList found;
    const QDir root(Examples + '/' + release);
    QDirIterator files(root.path(), {QStringLiteral("*.json")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(root.relativeFilePath(files.next()));
    found.sort();
    return found;
}

} // namespace

/// The example catalog is what its README says.
class tst_ExampleCatalog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTableReads_data();
    void everyTableReads();
    void brokenTableNamesTheOpenQuote();
    void truthNamesLinesThatExist();
    void rangesAreRanges();
};

void tst_ExampleCatalog::everyTableReads_data()
{
    QTest::addColumn<QString>("file");
    for (const QString &release : {QStringLiteral("release-1"), QStringLiteral("release-2")}) {
        for (const QString &path : descriptors(release)) {
            if (release == QLatin1String("release-2") || path != BrokenTable)
                QTest::newRow(qUtf8Printable(release + '/' + path)) << release + '/' + path;
        }
    }
}

void tst_ExampleCatalog::everyTableReads()
{
    QFETCH(QString, file);
    const TableReadResult result = TableData::read(Examples + '/' + file);
    QVERIFY2(result, result.errors.isEmpty() ? "" : qPrintable(result.errors.first().toString()));
    QVERIFY(result.data->warnings().isEmpty());
    QVERIFY(result.data->rowCount() > 0);
    QVERIFY(!result.data->descriptor().primaryKey.isEmpty());
}

void tst_ExampleCatalog::brokenTableNamesTheOpenQuote()
{
    const TableReadResult result = TableData::read(Examples + "/release-1/" + BrokenTable);
    QVERIFY(!result);
    QCOMPARE(result.errors.size(), 1);
    QCOMPARE(result.errors.first().row, 17);
    QVERIFY(result.errors.first().file.endsWith(QLatin1String("din908.csv")));
    QVERIFY2(result.errors.first().text.contains(QLatin1String("quote")),
             qPrintable(result.errors.first().text));
}

void tst_ExampleCatalog::truthNamesLinesThatExist()
{
    TableDescriptor head;
    const TableReadResult truth = TableData::read(head, Examples + "/truth.csv");
    QVERIFY(truth);
    QHash<QString, std::shared_ptr<const TableData>> tables;
    const auto table = [&](const QString &release, QString project) {
        std::shared_ptr<const TableData> &known = tables[release + project];
        if (!known) {
            project.replace(QLatin1String(".prj"), QLatin1String(".json"));
            known = TableData::read(Examples + '/' + release + '/' + project).data;
        }
        return known;
    };
    for (int row = 0; row < truth.data->rowCount(); ++row) {
        const QString source = truth.data->text(row, 0);
        if (!source.contains(QLatin1String("din908")))
            QVERIFY(table("release-1", source)->rowOf(truth.data->text(row, 1).toInt()) >= 0);
        if (const QString target = truth.data->text(row, 2); !target.isEmpty())
            QVERIFY(table("release-2", target)->rowOf(truth.data->text(row, 3).toInt()) >= 0);
    }
}

void tst_ExampleCatalog::rangesAreRanges()
{
    const TableReadResult result =
        TableData::read(Examples + "/release-1/standardparts/pins/iso2338.json");
    QVERIFY(result);
    const int column = result.data->columnOf(u"L");
    QCOMPARE(result.data->descriptor().fields.at(column).kind, FieldKind::Range);
    QCOMPARE(result.data->text(0, column), QStringLiteral("6;8..20/2"));
}

QTEST_GUILESS_MAIN(tst_ExampleCatalog)
#include "tst_ExampleCatalog.moc"
