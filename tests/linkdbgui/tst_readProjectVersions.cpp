#include <mapping/project/readProjectVersions.h>

#include "../support/TestCatalog.h"

#include <QTest>

using Versions = QPair<QString, QString>;

class tst_readProjectVersions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IndexTreeC::instance()->setCatalogRoot(PPathName(m_catalog.root())); }
    void versions_data();
    void versions();
    void absoluteTable();

private:
    const TestCatalog m_catalog;
};

void tst_readProjectVersions::versions_data()
{
    QTest::addColumn<QByteArray>("project");
    QTest::addColumn<Versions>("expected");

    const QByteArray head = "[PROJECT]\n";
    const QByteArray date = "DATE=2024-05-31T11:45:00Z\n";
    QTest::newRow("project and table") << head + date + "SACHM=dated.json\n"
                                       << Versions("v240531114500", "v231112131415");
    QTest::newRow("no table") << head + date << Versions("v240531114500", "");
    QTest::newRow("no date") << head + "SACHM=dated.json\n" << Versions("", "v231112131415");
    QTest::newRow("date that is none") << head + "DATE=yesterday\nSACHM=dated.json\n"
                                       << Versions("", "v231112131415");
    QTest::newRow("date with an offset") << head + "DATE=2024-05-31T13:45:00+02:00\n"
                                         << Versions("v240531114500", "");
    QTest::newRow("table without a final date") << head + date + "SACHM=undated.json\n"
                                                << Versions("v240531114500", "");
    QTest::newRow("table that is gone") << head + date + "SACHM=gone.json\n"
                                        << Versions("v240531114500", "");
    QTest::newRow("descriptor that is none") << head + date + "SACHM=broken.json\n"
                                             << Versions("v240531114500", "");
    QTest::newRow("table elsewhere") << head + date + "SACHM=../other/dated.json\n"
                                     << Versions("v240531114500", "v200102030405");
    QTest::newRow("table from the catalog root") << head + date + "SACHM=cat/other/dated.json\n"
                                                 << Versions("v240531114500", "v200102030405");
    QTest::newRow("table outside of the root") << head + date + "SACHM=../../../dated.json\n"
                                               << Versions("v240531114500", "");
    QTest::newRow("table with a backslash") << head + date + "SACHM=..\\other\\dated.json\n"
                                            << Versions("v240531114500", "v200102030405");
    QTest::newRow("nothing told") << head << Versions();
    QTest::newRow("no project") << QByteArray() << Versions();
}

void tst_readProjectVersions::versions()
{
    QFETCH(QByteArray, project);
    m_catalog.writeFile("cat/dir/dated.json",
                        "{\"finalDate\":\"2023-11-12T13:14:15Z\",\"fields\":[{\"name\":\"D\"}]}");
    m_catalog.writeFile("cat/other/dated.json",
                        "{\"finalDate\":\"2020-01-02T03:04:05Z\",\"fields\":[{\"name\":\"D\"}]}");
    m_catalog.writeFile("cat/dir/undated.json", "{\"fields\":[{\"name\":\"D\"}]}");
    m_catalog.writeFile("cat/dir/broken.json", "{");
    if (project.isEmpty())
        QFile::remove(m_catalog.file("cat/dir/a.prj"));
    else
        m_catalog.writeFile("cat/dir/a.prj", project);
    QTEST(readProjectVersions("cat/dir/a.prj"), "expected");
}

void tst_readProjectVersions::absoluteTable()
{
    m_catalog.writeFile("cat/other/dated.json",
                        "{\"finalDate\":\"2020-01-02T03:04:05Z\",\"fields\":[{\"name\":\"D\"}]}");
    m_catalog.writeFile(
        "cat/b.prj", "[PROJECT]\nSACHM=" + m_catalog.file("cat/other/dated.json").toUtf8() + "\n");
    QCOMPARE(readProjectVersions("cat/b.prj"), Versions("", "v200102030405"));
}

QTEST_GUILESS_MAIN(tst_readProjectVersions)
#include "tst_readProjectVersions.moc"
