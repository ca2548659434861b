#include "../support/EnglishTexts.h"
#include "../support/TestCatalog.h"

#include <geomcore/records/MappingFile.h>
#include <tools/velkmap/CreateCommand.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using velkmap::ExitStatus;

class tst_CreateCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void writesMappingFile();
    void sameCatalogName();
    void wrongUsage_data();
    void wrongUsage();
    void otherReleasesStay();
    void agreedReplacementsGoOn();
    void sameDateNeedsReplace();
    void brokenMappingFile();
    void unreadableProjectIsNamed();
    void missingCatalogWritesNothing();
    void unwritableFile();
    void datesByOption();
    void help();

private:
    ExitStatus run(QStringList arguments);
    /// --source, --target and --mapping with this file.
    [[nodiscard]] QStringList places(const QString &mapping = "mapping.json") const;
    [[nodiscard]] QByteArray content(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_directory;
    QString m_out;
    QString m_err;
};

void tst_CreateCommand::init()
{
    m_directory = std::make_unique<QTemporaryDir>();
    TestCatalog old(m_directory->filePath("r1/old"));
    old.add("a/bolt", "size,s;M3,5.5;M4,7", {}, "2021-03-01T08:00:00Z");
    TestCatalog now(m_directory->filePath("r2/new"));
    now.add("a/bolt", "size,s;M3,5.5;M4,7", {}, "2022-05-01T10:00:00Z");
    m_out.clear();
    m_err.clear();
}

ExitStatus tst_CreateCommand::run(QStringList arguments)
{
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    return velkmap::runCreate(arguments, out, err);
}

QStringList tst_CreateCommand::places(const QString &mapping) const
{
    return {"--source",  m_directory->filePath("r1"),   "--target", m_directory->filePath("r2"),
            "--mapping", m_directory->filePath(mapping)};
}

QByteArray tst_CreateCommand::content(const QString &name) const
{
    QFile file(m_directory->filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_CreateCommand::writesMappingFile()
{
    QCOMPARE(run(places() + QStringList{"--catalog", "old=new"}), ExitStatus::Done);
    QCOMPARE(m_err, QString());
    QCOMPARE(m_out, "2021-03-01T08:00:00Z to 2022-05-01T10:00:00Z: 1 project, 1 with the same "
                    "path, 0 elsewhere, 0 in several places, 0 without target, 0 unreadable\n");
    MappingFile file;
    QVERIFY(file.read(m_directory->filePath("mapping.json")));
    QCOMPARE(file.sourceDates(), QStringList("2021-03-01T08:00:00Z"));
    const PrjMappingC mapping = file.releases().first().mappingAt(0);
    QCOMPARE(mapping.getSourcePath(), "old/a/bolt.prj");
    QCOMPARE(mapping.findTarget(0).getTargetPath(), "new/a/bolt.prj");
}

void tst_CreateCommand::sameCatalogName()
{
    TestCatalog(m_directory->filePath("r2/old")).add("b/bolt", "size,s;M3,5.5");
    QCOMPARE(run(places() + QStringList{"--catalog", "old"}), ExitStatus::Done);
    MappingFile file;
    QVERIFY(file.read(m_directory->filePath("mapping.json")));
    const PrjMappingC mapping = file.releases().first().mappingAt(0);
    QCOMPARE(mapping.findTarget(0).getTargetPath(), "old/b/bolt.prj");
}

void tst_CreateCommand::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("no catalog") << QStringList() << "--catalog is missing";
    QTest::newRow("no new name") << QStringList{"--catalog", "old="}
                                 << "--catalog needs a name on each side of '='";
    QTest::newRow("no old name") << QStringList{"--catalog", "=new"}
                                 << "--catalog needs a name on each side of '='";
    QTest::newRow("no date") << QStringList{"--catalog", "old=new", "--source-date", "monday"}
                             << "--source-date is no ISO 8601 date: monday";
    QTest::newRow("no target date") << QStringList{"--catalog", "old=new", "--target-date", "1"}
                                    << "--target-date is no ISO 8601 date: 1";
    QTest::newRow("unknown option") << QStringList{"--catalog", "old=new", "--force"} << "force";
}

void tst_CreateCommand::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    QCOMPARE(run(places() + arguments), ExitStatus::WrongUsage);
    QVERIFY2(m_err.contains(message), qPrintable(m_err));
    QVERIFY(!QFile::exists(m_directory->filePath("mapping.json")));
}

void tst_CreateCommand::otherReleasesStay()
{
    const QByteArray other = R"({"foreign" : [1,2 ]})";
    TestCatalog(m_directory->path())
        .writeFile("mapping.json", "{\"2019-01-01T00:00:00Z\":" + other + '}');
    QCOMPARE(run(places() + QStringList{"--catalog", "old=new"}), ExitStatus::Done);
    QVERIFY(content("mapping.json").contains(other));
    QVERIFY(content("mapping.json").contains("\"2021-03-01T08:00:00Z\""));
}

void tst_CreateCommand::agreedReplacementsGoOn()
{
    MappingFile file;
    ReleaseMappingC release;
    release.setSourceDate("2019-01-01T00:00:00Z");
    const QList<AgreedReplacement> agreed{{"", "size", "M3", "M3,5", "", ""}};
    release.setReplacements(agreed);
    file.setRelease(release);
    QVERIFY(file.write(m_directory->filePath("mapping.json")));
    QCOMPARE(run(places() + QStringList{"--catalog", "old=new"}), ExitStatus::Done);
    QVERIFY(file.read(m_directory->filePath("mapping.json")));
    QCOMPARE(file.releases().size(), 2);
    QCOMPARE(file.releases().last().getReplacements(), agreed);
    // Made anew it keeps its own.
    release = file.releases().last();
    const QList<AgreedReplacement> own{{"", "s", "", "", "2", "0"}};
    release.setReplacements(own);
    file.setRelease(release);
    QVERIFY(file.write(m_directory->filePath("mapping.json")));
    QCOMPARE(run(places() + QStringList{"--catalog", "old=new", "--replace"}), ExitStatus::Done);
    QVERIFY(file.read(m_directory->filePath("mapping.json")));
    QCOMPARE(file.releases().last().getReplacements(), own);
}

void tst_CreateCommand::sameDateNeedsReplace()
{
    const QByteArray former = R"({"2021-03-01T08:00:00Z":{"mappings":[]}})";
    TestCatalog(m_directory->path()).writeFile("mapping.json", former);
    const QStringList arguments = places() + QStringList{"--catalog", "old=new"};
    QCOMPARE(run(arguments), ExitStatus::WrongUsage);
    QVERIFY2(m_err.contains("2021-03-01T08:00:00Z") && m_err.contains("--replace"),
             qPrintable(m_err));
    QCOMPARE(content("mapping.json"), former);
    QCOMPARE(run(arguments + QStringList{"--replace"}), ExitStatus::Done);
    QVERIFY(content("mapping.json").contains("new/a/bolt.prj"));
}

void tst_CreateCommand::brokenMappingFile()
{
    TestCatalog(m_directory->path()).writeFile("mapping.json", "{ no json");
    QCOMPARE(run(places() + QStringList{"--catalog", "old=new"}), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("mapping.json"), qPrintable(m_err));
    QCOMPARE(content("mapping.json"), "{ no json");
}

void tst_CreateCommand::unreadableProjectIsNamed()
{
    TestCatalog(m_directory->filePath("r1/old")).add("a/nut", "size,s;\"M3,5");
    QCOMPARE(run(places() + QStringList{"--catalog", "old=new"}), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("nut.csv"), qPrintable(m_err));
    QVERIFY2(m_out.contains("2 projects") && m_out.contains("1 unreadable"), qPrintable(m_out));
    QVERIFY(content("mapping.json").contains("old/a/nut.prj"));
}

void tst_CreateCommand::missingCatalogWritesNothing()
{
    QCOMPARE(run(places() + QStringList{"--catalog", "old"}), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains("r2/old: there is no such catalog"), qPrintable(m_err));
    QVERIFY(!QFile::exists(m_directory->filePath("mapping.json")));
}

void tst_CreateCommand::unwritableFile()
{
    QCOMPARE(run(places("no/such/folder/mapping.json") + QStringList{"--catalog", "old=new"}),
             ExitStatus::ResultUnwritable);
    QVERIFY2(m_err.contains("mapping.json"), qPrintable(m_err));
}

void tst_CreateCommand::datesByOption()
{
    QCOMPARE(
        run(places() + QStringList{"--catalog", "old=new", "--source-date",
                                   "2020-01-01T01:00:00+01:00", "--target-date", "2023-01-01"}),
        ExitStatus::Done);
    MappingFile file;
    QVERIFY(file.read(m_directory->filePath("mapping.json")));
    QCOMPARE(file.releases().first().getSourceDate(), "2020-01-01T00:00:00Z");
    QCOMPARE(file.releases().first().getTargetDate(), "2023-01-01T00:00:00Z");
}

void tst_CreateCommand::help()
{
    QCOMPARE(run({"--help"}), ExitStatus::Done);
    for (const char *option : {"--source", "--target", "--catalog", "--mapping", "--replace",
                               "--source-date", "--target-date"})
        QVERIFY2(m_out.contains(option), option);
}

QTEST_GUILESS_MAIN(tst_CreateCommand)
#include "tst_CreateCommand.moc"
