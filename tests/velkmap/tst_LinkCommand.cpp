#include "../support/EnglishTexts.h"
#include "../support/PostgresServer.h"
#include "../support/TestCatalog.h"

#include <core/json/PJsonValue.h>
#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>
#include <geomcore/records/MappingFile.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using velkmap::ExitStatus;

namespace {

constexpr int projectsOfLargeRun = 50;
constexpr int linesOfProject = 2000;

/// VELK_KILLS says how often programs and servers are killed.
int killsWanted(int otherwise)
{
    bool isSet = false;
    const int wanted = qEnvironmentVariableIntValue("VELK_KILLS", &isSet);
    return isSet ? wanted : otherwise;
}

/// Of a run of 100 000 lines, in ms; reading the mapping file comes first.
int randomMoment()
{
    return 30 + QRandomGenerator::global()->bounded(600);
}

} // namespace

/// The commands that take mappings to a link database.
class tst_LinkCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void linkWritesOnce();
    void dryRunWritesNothing();
    void wrongUsage_data();
    void wrongUsage();
    void unreachableDatabase_data();
    void unreachableDatabase();
    void proofFinds();
    void proofWithoutCatalogs();
    void proofAsJson();
    void proofOfAnotherColumn();
    void proofWritesNothing();
    void killedPrograms_data();
    void killedPrograms();
    void killedServer();

private:
    struct Result
    {
        ExitStatus status;
        QString out;
        QString err;
    };
    static Result run(const QStringList &arguments);
    Result proof(const QStringList &more = {}) const;
    [[nodiscard]] QString path(const QString &name) const { return m_folder->filePath(name); }
    void writeMapping(const ReleaseMappingC &release) const;
    void writeLargeMapping() const;
    void addDocuments(const QStringList &rows) const;
    static QString value(const QString &address, const QString &sql);
    static void checkLargeRun(const QString &address);
    static int writtenLinks(const QString &address);
    static int beginAnewIfAllIsThere(const QString &address, int written);

    std::unique_ptr<PostgresServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    const PMessageSinkScope m_silence{std::make_shared<PScriptedMessageSink>()};
};

void tst_LinkCommand::initTestCase()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
}

void tst_LinkCommand::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    qunsetenv("TORMEVA_DATA");
    const TestCatalog old(path("old"));
    const TestCatalog next(path("new"));
    old.add("cat/screw", "KEY,D,MAT;k1,8,St37-2;k2,10,St37-2;k3,12,St52;k4,16,St52;k5,20,St52",
            {"KEY"});
    next.add("cat/bolt", "KEY,D,MAT;k1,8,S235;k2,10.1,S235;k3,14,St52;k4,16,St52", {"KEY"});
    PrjMappingC mapping = mappingOf("cat/screw.prj", {"cat/bolt.prj", ""});
    mapping.changeTarget(0, [](PrjMappingTargetC &target) {
        target.addLineId(1, 1, PRJMAPPING::Verified, {});
        target.addLineId(2, 2, PRJMAPPING::Verified, {});
        target.addLineId(3, 3, PRJMAPPING::Mapped, {});
        target.addLineId(4, 4, PRJMAPPING::ToCheck, {});
    });
    mapping.changeTarget(
        1, [](PrjMappingTargetC &target) { target.addLineId(5, -1, PRJMAPPING::Verified, {}); });
    ReleaseMappingC release;
    release.setSourceDate("20220101");
    release.setTargetDate("20230101");
    AgreedReplacement agreed;
    agreed.variable = "MAT";
    agreed.before = "St37-2";
    agreed.after = "S235";
    release.setReplacements({agreed});
    release.addMapping(mapping);
    writeMapping(release);
}

void tst_LinkCommand::writeMapping(const ReleaseMappingC &release) const
{
    PJsonValue json;
    release.toJson(json, false);
    QFile file(path("map.json"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"" + release.getSourceDate().toUtf8() + "\":" + json.toByteArray(true) + "}");
}

/// 100 000 confirmed lines.
void tst_LinkCommand::writeLargeMapping() const
{
    ReleaseMappingC release;
    release.setSourceDate("20220101");
    release.setTargetDate("20230101");
    for (int i = 0; i < projectsOfLargeRun; ++i) {
        PrjMappingC mapping = mappingOf(QString("cat/%1.prj").arg(i), {QString("n/%1.prj").arg(i)});
        mapping.changeTarget(0, [](PrjMappingTargetC &target) {
            for (int line = 0; line < linesOfProject; ++line)
                target.addLineId(line, line, PRJMAPPING::Verified, {});
        });
        release.appendMapping(mapping);
    }
    writeMapping(release);
}

tst_LinkCommand::Result tst_LinkCommand::run(const QStringList &arguments)
{
    Result result;
    QTextStream out(&result.out);
    QTextStream err(&result.err);
    result.status = velkmap::run(arguments, out, err);
    return result;
}

tst_LinkCommand::Result tst_LinkCommand::proof(const QStringList &more) const
{
    return run(QStringList{"proof", "--mapping", path("map.json"), "--linkdb", path("link.db"),
                           "--source", path("old"), "--target", path("new")} +
               more);
}

/// Each row: number, path, line.
void tst_LinkCommand::addDocuments(const QStringList &rows) const
{
    PLinkDbC linkDb;
    QVERIFY(linkDb.open(LinkDbSettings::fromText(path("link.db"))));
    int id = 0;
    for (const QString &row : rows) {
        const QStringList parts = row.split(' ');
        QVERIFY(linkDb.executeInsertStatement(
            QString("INSERT INTO plm_document(GEO_ID, PDMID1, PDMID2, PRJ_PATH, LINE_ID) "
                    "VALUES('%1', '%2', '%2', '%3', %4)")
                .arg(QString::number(++id), parts.at(0), parts.at(1), parts.at(2))));
    }
}

QString tst_LinkCommand::value(const QString &address, const QString &sql)
{
    PLinkDbC linkDb;
    if (!linkDb.open(LinkDbSettings::fromText(address)))
        return linkDb.lastError().text;
    PLinkDbQueryCacheC rows(linkDb.executeSelectStatement(sql));
    return rows.next() ? rows.value(0).toString() : linkDb.lastError().text;
}

void tst_LinkCommand::linkWritesOnce()
{
    const QStringList arguments{"link", "--mapping", path("map.json"), "--linkdb",
                                "sqlite:" + path("link.db")};
    Result result = run(arguments);
    QCOMPARE(result.status, ExitStatus::Done);
    QCOMPARE(result.out, "cat/screw.prj v1: 3 links\n3 links of 1 project written, 0 links of 0 "
                         "projects are there already\n");
    QCOMPARE(result.err, "");
    result = run(arguments);
    QCOMPARE(result.out, "0 links of 0 projects written, 3 links of 1 project are there already\n");
    QCOMPARE(value(path("link.db"), "SELECT COUNT(*) FROM linkdb_links"), "3");
    QCOMPARE(
        value(path("link.db"),
              "SELECT target_path FROM linkdb_links WHERE source_line = 2 AND target_line = 2"),
        "cat/bolt.prj");
    const QString server = m_server->newDatabase();
    result = run({"link", "--mapping", path("map.json"), "--linkdb", server, "--writers", "3"});
    QCOMPARE(result.status, ExitStatus::Done);
    QCOMPARE(value(server, "SELECT COUNT(*) FROM linkdb_links"), "3");
}

void tst_LinkCommand::dryRunWritesNothing()
{
    const QStringList arguments{"link",     "--mapping",     path("map.json"),
                                "--linkdb", path("link.db"), "--dry-run"};
    Result result = run(arguments);
    QCOMPARE(result.status, ExitStatus::InputUnreadable);
    QVERIFY(!QFile::exists(path("link.db")));
    addDocuments({});
    result = run(arguments);
    QCOMPARE(result.status, ExitStatus::Done);
    QCOMPARE(result.out, "cat/screw.prj v1: 3 links to write\n3 links of 1 project would be "
                         "written, 0 links of 0 projects are there already\n");
    QCOMPARE(value(path("link.db"), "SELECT COUNT(*) FROM linkdb_links"), "0");
}

void tst_LinkCommand::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");
    QTest::newRow("no database") << QStringList{"link", "--mapping", "m"} << "--linkdb";
    QTest::newRow("scheme") << QStringList{"link", "--mapping", "m", "--linkdb", "mysql://x/y"}
                            << "mysql://x/y";
    QTest::newRow("password") << QStringList{"proof", "--mapping", "m", "--linkdb",
                                             "postgresql://a:hidden@x/y"}
                              << "PGPASSWORD";
    QTest::newRow("writers") << QStringList{"link",     "--mapping", "m",   "--linkdb",
                                            "sqlite:x", "--writers", "none"}
                             << "--writers";
    QTest::newRow("difference") << QStringList{"proof",    "--mapping",    "m", "--linkdb",
                                               "sqlite:x", "--difference", "-1"}
                                << "--difference";
}

void tst_LinkCommand::wrongUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);
    const Result result = run(arguments);
    QCOMPARE(result.status, ExitStatus::WrongUsage);
    QVERIFY2(result.err.contains(message), qPrintable(result.err));
    QVERIFY(!result.err.contains("hidden"));
}

void tst_LinkCommand::unreachableDatabase_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<int>("status");
    QTest::newRow("link") << "link" << int(ExitStatus::ResultUnwritable);
    QTest::newRow("proof") << "proof" << int(ExitStatus::InputUnreadable);
}

void tst_LinkCommand::unreachableDatabase()
{
    QFETCH(QString, command);
    QFETCH(int, status);
    const Result result = run({command, "--mapping", path("map.json"), "--linkdb",
                               "postgresql:///none?host=" + m_folder->path()});
    QCOMPARE(int(result.status), status);
    QVERIFY2(result.err.contains("none (" + m_folder->path() + ")"), qPrintable(result.err));
    QCOMPARE(result.out, "");
}

void tst_LinkCommand::proofFinds()
{
    addDocuments({"N1 cat/screw.prj 1", "N2 cat/screw.prj 2", "N3 cat/screw.prj 3",
                  "N4 cat/screw.prj 4", "N4b cat/screw.prj 4", "N5 cat/screw.prj 5",
                  "N6 cat/screw.prj 99", "N7 cat/screw.prj 1", "N7 cat/screw.prj 2",
                  "N8 other/x.prj 1", "N3 cat/bolt.prj 3"});
    Result result = proof();
    QCOMPARE(result.err, "");
    QCOMPARE(result.out,
             "gone: N5 of cat/screw.prj:5, which has no successor\n"
             "gone: N6 of cat/screw.prj:99, a line that the project does not have\n"
             "claimed twice: N7 by cat/bolt.prj:1, cat/bolt.prj:2\n"
             "differs: N2 of cat/screw.prj:2, now cat/bolt.prj:2: D: near number\n"
             "differs: N3 of cat/screw.prj:3, now cat/bolt.prj:3: D: near number\n"
             "differs: N7 of cat/screw.prj:2, now cat/bolt.prj:2: D: near number\n"
             "open: cat/screw.prj:4 with N4, N4b\n"
             "8 numbers: 2 gone, 1 claimed twice, 3 differ, 1 open line with numbers; 2 numbers "
             "hang on projects that are not in the mapping\n");
    QCOMPARE(result.status, ExitStatus::Done);
    // Line 2 differs by one percent.
    result = proof({"--difference", "1.5"});
    QVERIFY2(result.out.contains(" 1 differ,"), qPrintable(result.out));
    QVERIFY(result.out.contains("differs: N3"));
}

void tst_LinkCommand::proofWithoutCatalogs()
{
    addDocuments({"N2 cat/screw.prj 2"});
    const Result result =
        run({"proof", "--mapping", path("map.json"), "--linkdb", path("link.db")});
    QCOMPARE(result.status, ExitStatus::Done);
    QVERIFY(result.err.contains("--source"));
    QVERIFY2(result.out.contains("parts not compared"), qPrintable(result.out));
}

void tst_LinkCommand::proofAsJson()
{
    addDocuments(
        {"N2 cat/screw.prj 2", "N2 cat/screw.prj 1", "N4 cat/screw.prj 4", "N5 cat/screw.prj 5"});
    const Result result = proof({"--json"});
    const QJsonObject json = QJsonDocument::fromJson(result.out.toUtf8()).object();
    QCOMPARE(json.keys(), QStringList({"claimed", "compared", "differing", "elsewhere", "gone",
                                       "numbers", "open"}));
    QCOMPARE(json["numbers"].toInt(), 3);
    QCOMPARE(json["compared"].toBool(), true);
    QCOMPARE(json["claimed"][0]["places"].toArray(),
             QJsonArray({"cat/bolt.prj:1", "cat/bolt.prj:2"}));
    QCOMPARE(json["differing"][0]["after"]["line"].toInt(), 2);
    QCOMPARE(json["differing"][0]["changes"].toArray(), QJsonArray({"D: near number"}));
    QCOMPARE(json["gone"][0]["confirmed"].toBool(), true);
    QCOMPARE(json["open"][0]["numbers"].toArray(), QJsonArray({"N4"}));
}

void tst_LinkCommand::proofOfAnotherColumn()
{
    addDocuments({"N5 cat/screw.prj 5"});
    QVERIFY(proof({"--column", "pdmid2"}).out.contains("of cat/screw.prj:5"));
    const Result none = proof({"--column", "\"; DROP TABLE plm_document; --"});
    QCOMPARE(none.status, ExitStatus::InputUnreadable);
    QVERIFY(none.err.contains("has no column"));
    QCOMPARE(value(path("link.db"), "SELECT COUNT(*) FROM plm_document"), "1");
}

void tst_LinkCommand::proofWritesNothing()
{
    QCOMPARE(proof().status, ExitStatus::InputUnreadable);
    QVERIFY(!QFile::exists(path("link.db")));
    addDocuments({"N5 cat/screw.prj 5"});
    QFile file(path("link.db"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();
    QCOMPARE(proof().status, ExitStatus::Done);
    QVERIFY(file.seek(0));
    QCOMPARE(file.readAll(), before);
}

void tst_LinkCommand::checkLargeRun(const QString &address)
{
    QCOMPARE(value(address, "SELECT COUNT(*) FROM linkdb_links"),
             QString::number(projectsOfLargeRun * linesOfProject));
    QCOMPARE(value(address, "SELECT COUNT(*) FROM (SELECT DISTINCT source_path, source_line FROM "
                            "linkdb_links WHERE source_line = target_line) AS d"),
             QString::number(projectsOfLargeRun * linesOfProject));
}

void tst_LinkCommand::killedPrograms_data()
{
    QTest::addColumn<bool>("onServer");
    QTest::newRow("SQLite") << false;
    QTest::newRow("PostgreSQL") << true;
}

int tst_LinkCommand::writtenLinks(const QString &address)
{
    bool isNumber = false;
    const int links = value(address, "SELECT COUNT(*) FROM linkdb_links").toInt(&isNumber);
    return isNumber ? links : -1;
}

/// Else later kills would find nothing to disturb. Gives the links that are left.
int tst_LinkCommand::beginAnewIfAllIsThere(const QString &address, int written)
{
    PLinkDbC linkDb;
    if (written < projectsOfLargeRun * linesOfProject ||
        !linkDb.open(LinkDbSettings::fromText(address)))
        return written;
    for (const char *table : {"linkdb_line_link", "linkdb_link_project"})
        static_cast<void>(linkDb.executeInsertStatement(QString("DELETE FROM %1").arg(table)));
    return linkDb.commit() ? 0 : written;
}

void tst_LinkCommand::killedPrograms()
{
    QFETCH(bool, onServer);
    writeLargeMapping();
    const QString address = onServer ? m_server->newDatabase() : path("link.db");
    const QStringList arguments{"link", "--mapping", path("map.json"), "--linkdb", address};
    int last = 0;
    for (int i = 0; i < killsWanted(2); ++i) {
        QProcess program;
        program.start(VELK_BINARY_DIR "/bin/velkmap", arguments);
        QVERIFY(program.waitForStarted());
        if (!program.waitForFinished(randomMoment()))
            program.kill();
        program.waitForFinished();
        const int written = writtenLinks(address);
        QCOMPARE(written % linesOfProject, 0); // whole projects
        QVERIFY(written >= last);
        last = beginAnewIfAllIsThere(address, written);
    }
    QCOMPARE(run(arguments).status, ExitStatus::Done);
    checkLargeRun(address);
}

void tst_LinkCommand::killedServer()
{
    writeLargeMapping();
    const QString address = m_server->newDatabase();
    const QStringList arguments{"link", "--mapping", path("map.json"), "--linkdb", address};
    int last = 0;
    for (int i = 0; i < killsWanted(1); ++i) {
        QProcess program;
        program.start(VELK_BINARY_DIR "/bin/velkmap", arguments);
        QVERIFY(program.waitForStarted());
        const bool ended = program.waitForFinished(randomMoment());
        m_server->kill();
        QVERIFY(ended || program.waitForFinished());
        QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
        const int written = writtenLinks(address);
        QCOMPARE(written % linesOfProject, 0);
        QVERIFY(written >= last);
        last = beginAnewIfAllIsThere(address, written);
    }
    QCOMPARE(run(arguments).status, ExitStatus::Done);
    checkLargeRun(address);
}

QTEST_GUILESS_MAIN(tst_LinkCommand)
#include "tst_LinkCommand.moc"
