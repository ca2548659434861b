#include "../support/EnglishTexts.h"
#include "../support/TestCatalog.h"

#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/TabOptions.h>

#include <boost/make_shared.hpp>

#include <QDir>
#include <QFileInfo>
#include <QTest>

class tst_readProjectTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void reads();
    void fails_data();
    void fails();
    void ownChoiceOfLines_data();
    void ownChoiceOfLines();
    void referenceFromTheRoot();
    void rootFollowsFromTheCatalogPath();
    void takesOptions();
    void tellsOnce();
    void targetsDoNotLeadOutOfTheRoot();
};

void tst_readProjectTable::reads()
{
    const TestCatalog catalog;
    catalog.write("cat/a.prj", "A:n\n1\n2\n");
    VKTab::Content table;
    const VKTab::ProjectTable result =
        VKTab::readProjectTable(catalog.file("cat/a.prj"), table, {.tells = false});
    QVERIFY(result);
    QVERIFY(result.errors.isEmpty());
    QCOMPARE(result.file, catalog.file("cat/a.json"));
    QCOMPARE(table.getLineIdList().size(), 2);
}

void tst_readProjectTable::fails_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("named");
    const QByteArray good = "A\n1\n";
    QTest::newRow("no project") << QByteArray() << good << "a.prj";
    QTest::newRow("no table") << QByteArray("[PROJECT]\nNAME=a\n") << good << "a.prj";
    QTest::newRow("the table is gone")
        << QByteArray("[PROJECT]\nSACHM=b.json\n") << good << "b.json";
    QTest::newRow("lines that are no UTF-8")
        << QByteArray("[PROJECT]\nSACHM=a.json\n") << QByteArray("A\n\xff\n") << "a.csv";
}

void tst_readProjectTable::fails()
{
    QFETCH(QByteArray, project);
    QFETCH(QByteArray, lines);
    QFETCH(QString, named);
    const TestCatalog catalog;
    catalog.write("cat/a.prj", lines);
    QVERIFY(QFile::remove(catalog.file("cat/a.prj")));
    if (!project.isEmpty())
        catalog.writeFile("cat/a.prj", project);
    catalog.write("cat/good.prj", "A\n1\n");
    VKTab::Content table = catalog.read("cat/good.prj");
    QVERIFY(table.isValid());
    const VKTab::ProjectTable result =
        VKTab::readProjectTable(catalog.file("cat/a.prj"), table, {.tells = false});
    QVERIFY(!result);
    QVERIFY(!table.isValid());
    QCOMPARE(result.errors.size(), 1);
    QVERIFY2(result.errors.first().toString().contains(named),
             qPrintable(result.errors.first().toString()));
}

void tst_readProjectTable::ownChoiceOfLines_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("allLines");
    QTest::addColumn<int>("count");
    QTest::newRow("the project's choice") << "PRJLINECOND" << false << 1;
    QTest::newRow("all in place of the project's choice") << "PRJLINECOND" << true << 3;
    QTest::newRow("the other name of it") << "BYPRJ" << true << 3;
    QTest::newRow("another condition stays") << "OTHER" << true << 1;
}

void tst_readProjectTable::ownChoiceOfLines()
{
    QFETCH(QString, name);
    QFETCH(bool, allLines);
    QFETCH(int, count);
    const TestCatalog catalog;
    catalog.write("cat/a.prj", "A:n\n1\n2\n3\n", [&](VKTab::TableDescriptor &descriptor) {
        descriptor.filterConditions.append({name, QStringLiteral("A .EQ. 2"), {}});
    });
    VKTab::Content table;
    QVERIFY(VKTab::readProjectTable(catalog.file("cat/a.prj"), table,
                                    {.allLines = allLines, .tells = false}));
    QCOMPARE(table.getLineMapping().count(), count);
}

void tst_readProjectTable::referenceFromTheRoot()
{
    const TestCatalog catalog;
    catalog.write("cat/tables/a.prj", "A\n1\n");
    catalog.writeFile("cat/projects/a.prj", "[PROJECT]\nSACHM=cat/tables/a.json\n");
    VKTab::Content table;
    QVERIFY(VKTab::readProjectTable(
        catalog.file("cat/projects/a.prj"), table,
        {.catalogPath = QStringLiteral("cat/projects/a.prj"), .tells = false}));
    QCOMPARE(table.getLineIdList().size(), 1);
}

void tst_readProjectTable::rootFollowsFromTheCatalogPath()
{
    // Of a root that nobody made known, and with the catalog's name left out.
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath("base/dir") && QDir(dir.path()).mkpath("base/tables"));
    const auto write = [&dir](const char *name, const QByteArray &bytes) {
        QFile file(dir.filePath(name));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    };
    QVERIFY(write("base/dir/a.prj", "[PROJECT]\nSACHM=../tables/a.json\n"));
    QVERIFY(write("base/tables/a.json", "{\"fields\": []}"));
    QVERIFY(write("base/tables/a.csv", "A\n1\n"));
    const QString project = dir.filePath("base/dir/a.prj");
    VKTab::Content table;
    QVERIFY(!VKTab::readProjectTable(project, table, {.tells = false}));
    QVERIFY(VKTab::readProjectTable(
        project, table, {.catalogPath = QStringLiteral("cat/dir/a.prj"), .tells = false}));
}

void tst_readProjectTable::takesOptions()
{
    const TestCatalog catalog;
    catalog.write("cat/a.prj", "A\n1\n");
    const auto options = boost::make_shared<VKTab::TabOptions>();
    VKTab::Content table;
    QVERIFY(VKTab::readProjectTable(catalog.file("cat/a.prj"), table,
                                    {.options = options, .tells = false}));
    QCOMPARE(table.getOptions(), options);
}

void tst_readProjectTable::tellsOnce()
{
    const auto sink = std::make_shared<PScriptedMessageSink>();
    const auto former = PMessage::setSink(sink);
    const TestCatalog catalog;
    catalog.write("cat/a.prj", "A:r\n1..\n");
    VKTab::Content table;
    const auto read = [&](bool tells) {
        sink->clear();
        (void)VKTab::readProjectTable(catalog.file("cat/a.prj"), table, {.tells = tells});
        return sink->logged().size();
    };
    QCOMPARE(read(false), 0);
    QCOMPARE(read(true), 1);
    QVERIFY(sink->logged().first().startsWith(catalog.file("cat/a.csv") + ": row 2, column 1: "));
    QCOMPARE(read(true), 0);
    catalog.write("cat/a.prj", "A:r\n1..\n2..\n");
    QCOMPARE(read(true), 2);
    catalog.write("cat/a.prj", "A:r\n1\n");
    QCOMPARE(read(true), 0);
    catalog.write("cat/a.prj", "A:r\n1..\n2..\n");
    QCOMPARE(read(true), 2); // it was right in between
    PMessage::setSink(former);
}

void tst_readProjectTable::targetsDoNotLeadOutOfTheRoot()
{
    const TestCatalog outside;
    outside.write("cat/a.prj", "A\n1\n");
    const TestCatalog catalog;
    VKTab::Content table;
    const QString joined =
        catalog.root() + "/../" + QFileInfo(outside.root()).fileName() + "/cat/a.prj";
    QVERIFY(QFile::exists(joined));
    const auto result = VKTab::readProjectTable(joined, table, {.tells = false});
    QVERIFY(!result);
    QVERIFY(result.errors.first().text.contains("lies outside of"));
}

QTEST_GUILESS_MAIN(tst_readProjectTable)
#include "tst_readProjectTable.moc"
