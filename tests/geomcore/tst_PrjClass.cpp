#include "../support/EnglishTexts.h"

#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/project/PrjClass.h>
#include <geomcore/project/PrjFile.h>
#include <geomcore/table/makeSachmRelativeToCatalog.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QByteArray Project = "; a comment\r\n"
                           "[PROJECT]\r\n"
                           "NAME = DIN 931 Sechskantschraube\r\n"
                           "DATE=2026-01-31T12:00:00Z\r\n"
                           "SACHM=tables/din931.json\r\n"
                           "VERSIONPRJ=v24-05\r\n"
                           "[VARIABLES]\r\n"
                           "L = 20\r\n"
                           "Name = \" x \"\r\n";

void writeFile(const QString &name, const QByteArray &bytes)
{
    QVERIFY(QDir().mkpath(QFileInfo(name).path()));
    QFile file(name);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), bytes.size());
}

QByteArray readFile(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_PrjClass : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void relativePathFindsItsTable()
    {
        const QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath("a/b"));
        QFile file(dir.filePath("a/b/p.prj"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("[PROJECT]\nSACHM=p.json\n");
        file.close();
        const QString former = QDir::currentPath();
        QVERIFY(QDir::setCurrent(dir.path()));
        PrjClass project(false, false, false);
        const int result = project.read("a/b/p.prj", 7);
        const QString table = project.tableFile();
        QDir::setCurrent(former);
        QCOMPARE(result, 1);
        QCOMPARE(QDir(QFileInfo(table).absolutePath()).canonicalPath(),
                 QDir(dir.filePath("a/b")).canonicalPath());
        QCOMPARE(QFileInfo(table).fileName(), QString("p.json"));
    }

    void init();
    void cleanup();
    void fileReads();
    void fileWrites();
    void fileFails_data();
    void fileFails();
    void passesOverBadLines();
    void readsParts_data();
    void readsParts();
    void readFails();
    void addressesAndWaysOutAreRefused();
    void keepsWarnings();
    void readsAgain();
    void tableFile_data();
    void tableFile();
    void locks();
    void sachmRelativeToCatalog_data();
    void sachmRelativeToCatalog();
    void sachmOfNothing();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_PrjClass::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    writeFile(path("a.prj"), Project);
}

void tst_PrjClass::cleanup()
{
    m_dir.reset();
}

void tst_PrjClass::fileReads()
{
    PrjFile file;
    QCOMPARE(file.Load(path("a.prj"), false), 1);
    QCOMPARE(file.errorText(), QString());
    QCOMPARE(file.lexemNames(), (QStringList{"NAME", "DATE", "SACHM", "VERSIONPRJ"}));
    QCOMPARE(file.GetLexemValue("NAME"), QStringLiteral("DIN 931 Sechskantschraube"));
    QCOMPARE(file.GetLexemValue("DATE"), QStringLiteral("2026-01-31T12:00:00Z"));
    QCOMPARE(file.GetLexemValue("SACHM"), QStringLiteral("tables/din931.json"));
    QCOMPARE(file.GetLexemValue("VERSIONPRJ"), QStringLiteral("v24-05"));
    QCOMPARE(file.GetLexemValue("name"), QString());
    QCOMPARE(file.GetLexemValue("L"), QString());
    QCOMPARE(file.variables(), (QMap<QString, QString>{{"L", "20"}, {"Name", " x "}}));
}

void tst_PrjClass::fileWrites()
{
    PrjFile file;
    QCOMPARE(file.Load(path("a.prj"), false), 1);
    QCOMPARE(file.Save(path("same.prj")), 1);
    QCOMPARE(readFile(path("same.prj")), Project);
    file.SetLexemValue("DATE", "2027-01-01T00:00:00Z");
    file.setVariable("D", "M8");
    QCOMPARE(file.Save(path("b.prj")), 1);
    QVERIFY(readFile(path("b.prj")).startsWith("; a comment\r\n[PROJECT]\r\nNAME = DIN"));
    PrjFile again;
    QCOMPARE(again.Load(path("b.prj"), false), 1);
    QCOMPARE(again.GetLexemValue("DATE"), QStringLiteral("2027-01-01T00:00:00Z"));
    QCOMPARE(again.GetLexemValue("SACHM"), QStringLiteral("tables/din931.json"));
    QCOMPARE(again.variables().value("D"), QStringLiteral("M8"));
    QCOMPARE(file.Save(path("none/b.prj")), -1);
    QVERIFY(file.errorText().contains(path("none/b.prj")));
}

void tst_PrjClass::fileFails_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<bool>("create");
    QTest::addColumn<int>("result");

    QTest::newRow("missing") << "none.prj" << false << -1;
    QTest::newRow("missing but made") << "none.prj" << true << 1;
    QTest::newRow("missing directory") << "none/a.prj" << false << -1;
    QTest::newRow("directory") << "." << false << -1;
}

void tst_PrjClass::fileFails()
{
    QFETCH(QString, name);
    QFETCH(bool, create);
    QFETCH(int, result);
    PrjFile file;
    QCOMPARE(file.Load(path("a.prj"), false), 1);
    QCOMPARE(file.Load(path(name), create), result);
    QCOMPARE(file.GetLexemValue("DATE"), QString());
    QCOMPARE(file.errorText().isEmpty(), result == 1);
    QVERIFY(!QFile::exists(path("none.prj")));
}

void tst_PrjClass::passesOverBadLines()
{
    writeFile(path("bad.prj"), "[PROJECT]\nNAME = x\nwhat is this\n\x01\x02\nDATE = 2026-01-31\n");
    PrjFile file;
    QCOMPARE(file.Load(path("bad.prj"), false), 1);
    QCOMPARE(file.GetLexemValue("NAME"), QStringLiteral("x"));
    QCOMPARE(file.GetLexemValue("DATE"), QStringLiteral("2026-01-31"));
    QVERIFY(!file.warnings().isEmpty());
    QVERIFY(file.warnings().first().startsWith(path("bad.prj") + ":3: "));
}

void tst_PrjClass::readsParts_data()
{
    QTest::addColumn<int>("parts");
    QTest::addColumn<int>("lexems");
    QTest::addColumn<int>("variables");
    QTest::addColumn<bool>("table");

    QTest::newRow("all") << 7 << 4 << 2 << true;
    QTest::newRow("lexemes") << 1 << 4 << 0 << false;
    QTest::newRow("variables") << 2 << 0 << 2 << false;
    QTest::newRow("table") << 4 << 0 << 0 << true;
    QTest::newRow("nothing") << 0 << 0 << 0 << false;
}

void tst_PrjClass::readsParts()
{
    QFETCH(int, parts);
    QFETCH(int, lexems);
    QFETCH(int, variables);
    QFETCH(bool, table);
    const refHandle<PrjClass> project(new PrjClass(false, false, false));
    QVERIFY(!project->isValid());
    QCOMPARE(project->read(path("a.prj"), parts), 1);
    QVERIFY(project->isValid());
    QCOMPARE(project->path(), path("a.prj"));
    QCOMPARE(project->lexems().size(), lexems);
    QCOMPARE(project->variables().size(), variables);
    QCOMPARE(project->tableFile(), table ? path("tables/din931.json") : QString());
}

void tst_PrjClass::readFails()
{
    const refHandle<PrjClass> project(new PrjClass(false, false, false));
    QCOMPARE(project->read(path("none.prj"), 7), -1);
    QVERIFY(!project->isValid());
    QCOMPARE(project->path(), path("none.prj"));
    QVERIFY(project->errorText().contains(path("none.prj")));
    QCOMPARE(project->tableFile(), QString());
    const refHandle<PrjClass> made(new PrjClass(false, true, false));
    QCOMPARE(made->read(path("none.prj"), 7), 1);
    QCOMPARE(made->lexems().size(), 0);
}

void tst_PrjClass::addressesAndWaysOutAreRefused()
{
    const QString former = QDir::currentPath();
    writeFile(path("svn:/host/a.prj"), Project);
    QVERIFY(QDir::setCurrent(m_dir->path()));
    PrjClass project(false, false, false);
    const int result = project.read("svn://host/a.prj", 7);
    QDir::setCurrent(former);
    QCOMPARE(result, -1);
    QCOMPARE(project.errorText(), "svn://host/a.prj: is an address; only files are read");

    QVERIFY(QDir().mkpath(path("root")));
    CatalogPlaces::instance().addRoot(PPathName(path("root")));
    QCOMPARE(project.read(path("a.prj"), 7), 1);
    QCOMPARE(project.read(path("root/../a.prj"), 7), -1);
    QVERIFY2(project.errorText().contains("lies outside of"), qPrintable(project.errorText()));
}

void tst_PrjClass::keepsWarnings()
{
    writeFile(path("bad.prj"), "[PROJECT]\nNAME = x\nwhat is this\n");
    PrjClass project(false, false, false);
    QCOMPARE(project.read(path("bad.prj"), 7), 1);
    QCOMPARE(project.warnings().size(), 1);
    QCOMPARE(project.warnings().first().line, 3);
    QCOMPARE(project.read(path("a.prj"), 7), 1);
    QVERIFY(project.warnings().isEmpty());
}

void tst_PrjClass::readsAgain()
{
    writeFile(path("b.prj"), "[PROJECT]\nNAME=b\n");
    PrjClass project(false, false, false);
    QCOMPARE(project.read(path("a.prj"), 7), 1);
    QCOMPARE(project.read(path("b.prj"), 7), 1);
    QCOMPARE(project.lexems().size(), 1);
    QCOMPARE(project.variables().size(), 0);
    QCOMPARE(project.tableFile(), QString());
    QCOMPARE(project.read(path("none.prj"), 7), -1);
    QVERIFY(!project.isValid());
    QCOMPARE(project.lexem("NAME"), QString());
}

void tst_PrjClass::tableFile_data()
{
    QTest::addColumn<QString>("sachm");
    QTest::addColumn<QString>("file");

    QTest::newRow("beside") << "x.json"
                            << "x.json";
    QTest::newRow("below") << "t/x.json"
                           << "t/x.json";
    QTest::newRow("backslash") << "t\\x.json"
                               << "t/x.json";
    QTest::newRow("above") << "../c/x.json"
                           << "c/x.json";
    QTest::newRow("none") << ""
                          << "";
}

void tst_PrjClass::tableFile()
{
    QFETCH(QString, sachm);
    QFETCH(QString, file);
    const QString directory = file.startsWith(u"c/") ? path("d") : m_dir->path();
    writeFile(directory + "/t.prj", "[PROJECT]\nSACHM=" + sachm.toUtf8() + "\n");
    for (const bool keepRelative : {false, true}) {
        PrjClass project(keepRelative, false, false);
        QCOMPARE(project.read(directory + "/t.prj", 7), 1);
        const QString expected = file.isEmpty() ? QString() : path(file);
        QCOMPARE(project.tableFile(), expected);
        QCOMPARE(project.tableReference(), keepRelative ? sachm : expected);
    }
    writeFile(path("abs.prj"), "[PROJECT]\nSACHM=/abs/x.json\n");
    PrjClass absolute(true, false, false);
    QCOMPARE(absolute.read(path("abs.prj"), 7), 1);
    QCOMPARE(absolute.tableFile(), QStringLiteral("/abs/x.json"));
}

void tst_PrjClass::locks()
{
    PrjClass unlocked(false, false, false);
    {
        PrjClass first(false, false, true);
        QCOMPARE(first.read(path("a.prj"), 7), 1);
        QVERIFY(QFile::exists(path("a.prj.lock")));
        PrjClass second(false, false, true);
        QCOMPARE(second.read(path("a.prj"), 7), -1);
        QVERIFY(second.errorText().startsWith(path("a.prj") + ": is locked by "));
        QVERIFY(second.lexems().isEmpty());
        QCOMPARE(unlocked.read(path("a.prj"), 7), 1);
    }
    QVERIFY(!QFile::exists(path("a.prj.lock")));
    PrjClass third(false, false, true);
    QCOMPARE(third.read(path("a.prj"), 7), 1);
    QCOMPARE(third.read(path("a.prj"), 7), 1);
    PrjClass nowhere(false, true, true);
    QCOMPARE(nowhere.read(path("none/a.prj"), 7), -1);
    QCOMPARE(nowhere.errorText(),
             path("none/a.prj") + ": the lock file beside it cannot be written");
}

void tst_PrjClass::sachmRelativeToCatalog_data()
{
    QTest::addColumn<QString>("sachm");
    QTest::addColumn<QString>("catalogPath");
    QTest::addColumn<QString>("reference");

    QTest::newRow("beside the project") << "x.json"
                                        << "std/nuts/p.prj"
                                        << "x.json";
    QTest::newRow("above the project") << "../t/x.json"
                                       << "std/nuts/p.prj"
                                       << "../t/x.json";
    QTest::newRow("from the catalog root") << "std/t/x.json"
                                           << "std/nuts/p.prj"
                                           << "../t/x.json";
    QTest::newRow("from the root, project in the catalog itself") << "std/t/x.json"
                                                                  << "std/p.prj"
                                                                  << "t/x.json";
    QTest::newRow("backslashes") << "std\\t\\x.json"
                                 << "\\std\\nuts\\p.prj"
                                 << "../t/x.json";
    QTest::newRow("of another catalog") << "other/t/x.json"
                                        << "std/nuts/p.prj"
                                        << "other/t/x.json";
    QTest::newRow("only the name begins alike") << "standard/x.json"
                                                << "std/nuts/p.prj"
                                                << "standard/x.json";
    QTest::newRow("what is there comes first") << "std/here.json"
                                               << "std/nuts/p.prj"
                                               << "std/here.json";
    QTest::newRow("absolute") << "/std/x.json"
                              << "std/nuts/p.prj"
                              << "/std/x.json";
    QTest::newRow("none") << ""
                          << "std/nuts/p.prj"
                          << "";
}

void tst_PrjClass::sachmRelativeToCatalog()
{
    QFETCH(QString, sachm);
    QFETCH(QString, catalogPath);
    QFETCH(QString, reference);
    writeFile(path("export/nuts/p.prj"), "[PROJECT]\nSACHM=" + sachm.toUtf8() + "\n");
    writeFile(path("export/nuts/std/here.json"), "{}");
    const refHandle<PrjClass> project(new PrjClass(true, false, false));
    QCOMPARE(project->read(path("export/nuts/p.prj"), 7), 1);
    VKTab::makeSachmRelativeToCatalog(project, catalogPath);
    QCOMPARE(project->tableReference(), reference);
}

void tst_PrjClass::sachmOfNothing()
{
    VKTab::makeSachmRelativeToCatalog({}, "std/p.prj");
    const refHandle<PrjClass> project(new PrjClass(true, false, false));
    VKTab::makeSachmRelativeToCatalog(project, {});
    QCOMPARE(project->tableFile(), QString());
}

QTEST_GUILESS_MAIN(tst_PrjClass)
#include "tst_PrjClass.moc"
