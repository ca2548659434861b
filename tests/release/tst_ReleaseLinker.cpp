#include "../support/PostgresServer.h"
#include "../support/TestCatalog.h"

#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>
#include <release/link/ReleaseLinker.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

using namespace VelkRelease;
using Outcome = LinkWriter::Outcome;

namespace {

/// Of a project whose lines 1 to \a lines are confirmed, line n to n + 1000.
PrjMappingC mappingOfLines(const QString &path, int lines)
{
    PrjMappingC mapping = mappingOf(path, {"new/" + path});
    mapping.changeTarget(0, [&](PrjMappingTargetC &target) {
        for (int line = 1; line <= lines; ++line)
            target.addLineId(line, line + 1000, PRJMAPPING::Verified, QString());
    });
    return mapping;
}

ReleaseMappingC releaseOf(const QList<PrjMappingC> &mappings)
{
    ReleaseMappingC release;
    release.setSourceDate("20220101");
    release.setTargetDate("20230101");
    for (const PrjMappingC &mapping : mappings)
        release.addMapping(mapping);
    return release;
}

} // namespace

class tst_ReleaseLinker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void linksOfMapping();
    void writes_data() { databases(); }
    void writes();
    void writesOnlyWhatChanged_data() { databases(); }
    void writesOnlyWhatChanged();
    void dryRun_data() { databases(); }
    void dryRun();
    void hostileTexts_data() { databases(); }
    void hostileTexts();
    void interrupted();
    void failedProjectGoesAlone_data() { databases(); }
    void failedProjectGoesAlone();
    void severalPrograms();
    void serverGoesAway();
    void noDatabase();

private:
    static void databases()
    {
        QTest::addColumn<bool>("onServer");
        QTest::newRow("SQLite") << false;
        QTest::newRow("PostgreSQL") << true;
    }
    [[nodiscard]] LinkDbSettings newDatabase()
    {
        QFETCH(bool, onServer);
        return LinkDbSettings::fromText(onServer ? m_server->newDatabase()
                                                 : m_folder->filePath("link.db"));
    }
    [[nodiscard]] static QStringList rows(const LinkDbSettings &settings, const QString &sql);
    static void execute(const LinkDbSettings &settings, const QString &sql);

    std::unique_ptr<PostgresServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    const PMessageSinkScope m_silence{std::make_shared<PScriptedMessageSink>()};
    const std::atomic<bool> m_no = false;
};

void tst_ReleaseLinker::initTestCase()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
}

void tst_ReleaseLinker::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
}

/// Each row's values with a "|" between.
QStringList tst_ReleaseLinker::rows(const LinkDbSettings &settings, const QString &sql)
{
    PLinkDbC linkDb;
    if (!linkDb.open(settings))
        return {linkDb.lastError().text};
    const PRefPtr<PLinkDbQueryI> found = linkDb.executeSelectStatement(sql);
    QStringList result;
    for (qsizetype i = 0; i < found->rowCount(); ++i) {
        QStringList values;
        for (const QVariant &value : found->row(i))
            values.append(value.isNull() ? "-" : value.toString());
        result.append(values.join('|'));
    }
    return result;
}

void tst_ReleaseLinker::execute(const LinkDbSettings &settings, const QString &sql)
{
    PLinkDbC linkDb;
    QVERIFY(linkDb.open(settings));
    QVERIFY2(linkDb.executeInsertStatement(sql), qPrintable(linkDb.lastError().text));
}

void tst_ReleaseLinker::linksOfMapping()
{
    PrjMappingC mapping = mappingOf("cat/a.prj", {"new/b.prj", "new/a.prj", ""});
    mapping.changeTarget(0, [](PrjMappingTargetC &target) {
        target.addLineId(5, 50, PRJMAPPING::Verified, "{A=1} -> 51");
        target.addLineId(3, 30, PRJMAPPING::ToCheck, {});
        target.addLineId(4, 40, PRJMAPPING::Mapped, {});
        target.addLineId(8, -1, PRJMAPPING::Verified, {});
    });
    mapping.changeTarget(1, [](PrjMappingTargetC &target) {
        target.addLineId(5, 500, PRJMAPPING::Verified, {}); // the first target counts
        target.addLineId(2, 20, PRJMAPPING::Verified, {});
        target.addLineId(8, 80, PRJMAPPING::Verified, {}); // a line with a successor before none
    });
    mapping.changeTarget(2, [](PrjMappingTargetC &target) {
        target.addLineId(7, -1, PRJMAPPING::Verified, {});
        target.addLineId(9, -1, PRJMAPPING::ToCheck, {});
    });
    const LineLinks links = LineLinks::of(releaseOf({mapping}), mapping);
    QStringList found;
    for (const LineLinks::Link &link : links.links)
        found.append(QString("%1>%2:%3 %4")
                         .arg(QString::number(link.sourceLine),
                              link.target < 0 ? "-" : links.targets.at(size_t(link.target)).path,
                              QString::number(link.targetLine), link.extended)
                         .trimmed());
    QCOMPARE(found, QStringList({"2>new/a.prj:20", "5>new/b.prj:50 {A=1} -> 51", "7>-:-1",
                                 "8>new/a.prj:80"}));
    QVERIFY(links.targets.at(0).id < links.targets.at(1).id);
    QVERIFY(links.id > 0);

    PrjMappingC other = mapping;
    QCOMPARE(LineLinks::of(releaseOf({other}), other).fingerprint, links.fingerprint);
    other.changeTarget(
        1, [](PrjMappingTargetC &target) { target.addLineId(2, 21, PRJMAPPING::Verified, {}); });
    QVERIFY(LineLinks::of(releaseOf({other}), other).fingerprint != links.fingerprint);
    other.setTabVersion("t2");
    QVERIFY(LineLinks::of(releaseOf({other}), other).id != links.id);
}

void tst_ReleaseLinker::writes()
{
    const LinkDbSettings settings = newDatabase();
    PrjMappingC mapping = mappingOf("cat/a.prj", {"new/b.prj", ""});
    mapping.changeTarget(0, [](PrjMappingTargetC &target) {
        target.addLineId(1, 10, PRJMAPPING::Verified, "it's {A=1} -> 51");
        target.addLineId(2, 20, PRJMAPPING::ToCheck, {});
    });
    mapping.changeTarget(
        1, [](PrjMappingTargetC &target) { target.addLineId(3, -1, PRJMAPPING::Verified, {}); });
    ReleaseLinker linker(settings);
    int told = 0;
    linker.setObserver([&](const ReleaseLinker::Progress &progress) { told = progress.projects; });
    QVERIFY2(linker.run(releaseOf({mapping, mappingOf("cat/open.prj", {"new/x.prj"})}), m_no),
             qPrintable(linker.problem()));
    QCOMPARE(told, 2);
    QCOMPARE(linker.projects().at(0).links, 2);
    QCOMPARE(linker.count(Outcome::Written), 1);
    QCOMPARE(linker.links(Outcome::Written), 2);
    QCOMPARE(linker.count(Outcome::Unchanged), 1); // nothing is confirmed there
    QCOMPARE(rows(settings, "SELECT * FROM linkdb_links ORDER BY source_line"),
             QStringList({"20220101|cat/a.prj|v1||1|20230101|new/b.prj|" +
                              mapping.targetAt(0).getTargetVersion() + "||10|it's {A=1} -> 51",
                          "20220101|cat/a.prj|v1||3|-|-|-|-|-|-"}));
    QCOMPARE(rows(settings, "SELECT links FROM linkdb_link_project"), QStringList{"2"});
}

void tst_ReleaseLinker::writesOnlyWhatChanged()
{
    const LinkDbSettings settings = newDatabase();
    const PrjMappingC small = mappingOfLines("cat/a.prj", 3);
    const PrjMappingC large = mappingOfLines("cat/b.prj", 2500);
    ReleaseLinker linker(settings);
    QVERIFY(linker.run(releaseOf({small, large}), m_no));
    QCOMPARE(linker.links(Outcome::Written), 2503);
    const QStringList before = rows(settings, "SELECT * FROM linkdb_links ORDER BY 2, 5");
    QCOMPARE(before.size(), 2503);
    QVERIFY(linker.run(releaseOf({small, large}), m_no));
    QCOMPARE(linker.count(Outcome::Unchanged), 2);
    QCOMPARE(rows(settings, "SELECT * FROM linkdb_links ORDER BY 2, 5"), before);

    PrjMappingC changed = small;
    changed.changeTarget(0, [](PrjMappingTargetC &target) {
        target.removeLineId(1);
        target.addLineId(2, 77, PRJMAPPING::Verified, {});
    });
    QVERIFY(linker.run(releaseOf({changed, large}), m_no));
    QCOMPARE(linker.count(Outcome::Written), 1);
    QCOMPARE(rows(settings, "SELECT source_line, target_line FROM linkdb_links WHERE source_path = "
                            "'cat/a.prj' ORDER BY 1"),
             QStringList({"2|77", "3|1003"}));
    // Taken out by hand, and a project that has no confirmed lines any more.
    execute(settings, "DELETE FROM linkdb_line_link WHERE target_line = 1500");
    QVERIFY(linker.run(releaseOf({mappingOfLines("cat/a.prj", 0), large}), m_no));
    QCOMPARE(linker.count(Outcome::Written), 2);
    QCOMPARE(rows(settings, "SELECT COUNT(*) FROM linkdb_links"), QStringList{"2500"});
    QCOMPARE(rows(settings, "SELECT COUNT(*) FROM linkdb_link_project"), QStringList{"1"});
}

void tst_ReleaseLinker::dryRun()
{
    const LinkDbSettings settings = newDatabase();
    ReleaseLinker linker(settings);
    linker.setDryRun(true);
    const ReleaseMappingC release = releaseOf({mappingOfLines("cat/a.prj", 3)});
    QVERIFY(!linker.run(release, m_no));
    QVERIFY(!linker.problem().isEmpty());
    QVERIFY(!QFile::exists(m_folder->filePath("link.db")));
    QCOMPARE(rows(settings, "SELECT COUNT(*) FROM linkdb_links"), QStringList{"0"}); // makes tables
    QVERIFY2(linker.run(release, m_no), qPrintable(linker.problem()));
    QCOMPARE(linker.links(Outcome::Written), 3);
    QCOMPARE(rows(settings, "SELECT COUNT(*) FROM linkdb_links"), QStringList{"0"});
    LinkDbSettings readOnly = settings;
    readOnly.readOnly = true;
    PLinkDbC linkDb;
    QVERIFY(linkDb.open(readOnly));
    QVERIFY(!linkDb.executeInsertStatement("INSERT INTO linkdb_group VALUES('x')"));
}

void tst_ReleaseLinker::hostileTexts()
{
    const LinkDbSettings settings = newDatabase();
    const QString hostile = "'); DROP TABLE linkdb_line_link; -- \\ \"%1\" \U0001F600";
    PrjMappingC mapping = mappingOf(hostile, {hostile + "new"});
    mapping.changeTarget(0, [&](PrjMappingTargetC &target) {
        target.addLineId(-5, 1, PRJMAPPING::Verified, hostile);
        target.addLineId(2147483647, 2147483647, PRJMAPPING::Verified, QString(100'000, u'\''));
    });
    ReleaseLinker linker(settings);
    QVERIFY(linker.run(releaseOf({mapping}), m_no));
    QCOMPARE(rows(settings, "SELECT source_path, source_line, target_path, extended_text FROM "
                            "linkdb_links ORDER BY source_line LIMIT 1"),
             QStringList{hostile + "|-5|" + hostile + "new|" + hostile});
    QCOMPARE(rows(settings, "SELECT length(extended_text) FROM linkdb_links WHERE source_line > 0"),
             QStringList{"100000"});
}

void tst_ReleaseLinker::interrupted()
{
    const LinkDbSettings settings = LinkDbSettings::fromText(m_folder->filePath("link.db"));
    const std::atomic<bool> yes = true;
    ReleaseLinker linker(settings);
    linker.run(releaseOf({mappingOfLines("cat/a.prj", 3)}), yes);
    QCOMPARE(linker.count(Outcome::Interrupted), 1);
    QCOMPARE(rows(settings, "SELECT COUNT(*) FROM linkdb_links"), QStringList{"0"});
    // In the middle of a project: nothing of it stays.
    const PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    QVERIFY(linkDb->open(settings));
    LinkWriter writer(linkDb, yes);
    const PrjMappingC mapping = mappingOfLines("cat/a.prj", 3);
    QCOMPARE(writer.write(LineLinks::of(releaseOf({mapping}), mapping)), Outcome::Interrupted);
    QVERIFY(!linkDb->isPending());
    QCOMPARE(rows(settings, "SELECT COUNT(*) FROM linkdb_link_project"), QStringList{"0"});
}

void tst_ReleaseLinker::failedProjectGoesAlone()
{
    QFETCH(bool, onServer);
    const LinkDbSettings settings = newDatabase();
    execute(settings, onServer ? "ALTER TABLE linkdb_line_link ADD CHECK (source_line <> 2)"
                               : "CREATE TRIGGER refuse BEFORE INSERT ON linkdb_line_link WHEN "
                                 "NEW.source_line = 2 BEGIN SELECT RAISE(FAIL, 'no two'); END");
    ReleaseLinker linker(settings);
    QVERIFY(!linker.run(releaseOf({mappingOfLines("cat/a.prj", 3), mappingOfLines("cat/b.prj", 1)}),
                        m_no));
    QCOMPARE(linker.projects().at(0).outcome, Outcome::Failed);
    QVERIFY(!linker.projects().at(0).problem.isEmpty());
    QCOMPARE(linker.projects().at(1).outcome, Outcome::Written);
    QCOMPARE(rows(settings, "SELECT source_path FROM linkdb_links"), QStringList{"cat/b.prj"});
}

void tst_ReleaseLinker::severalPrograms()
{
    const LinkDbSettings settings = LinkDbSettings::fromText(m_server->newDatabase());
    QList<PrjMappingC> mappings;
    for (int i = 0; i < 40; ++i)
        mappings.append(mappingOfLines(QString("cat/%1.prj").arg(i), 50));
    const ReleaseMappingC release = releaseOf(mappings);
    {
        std::vector<std::jthread> programs;
        programs.reserve(3);
        for (int i = 0; i < 3; ++i)
            programs.emplace_back([&] {
                ReleaseLinker linker(settings);
                linker.setWriters(3);
                QVERIFY2(linker.run(release, m_no), qPrintable(linker.problem()));
                QCOMPARE(linker.links(Outcome::Written) + linker.links(Outcome::Unchanged), 2000);
            });
    }
    QCOMPARE(rows(settings, "SELECT COUNT(*), COUNT(DISTINCT (source_path, source_line)) FROM "
                            "linkdb_links"),
             QStringList{"2000|2000"});
}

void tst_ReleaseLinker::serverGoesAway()
{
    const LinkDbSettings settings = LinkDbSettings::fromText(m_server->newDatabase());
    QList<PrjMappingC> mappings;
    for (int i = 0; i < 60; ++i)
        mappings.append(mappingOfLines(QString("cat/%1.prj").arg(i), 200));
    const ReleaseMappingC release = releaseOf(mappings);
    // Connections end in the middle: each writer takes its project up again.
    std::atomic<bool> written = false;
    {
        const std::jthread ender([&] {
            for (int i = 0; i < 4 && !written; ++i)
                m_server->endConnections();
        });
        ReleaseLinker linker(settings);
        linker.setWriters(2);
        linker.run(release, m_no);
        written = true;
    }
    ReleaseLinker linker(settings);
    QVERIFY2(linker.run(release, m_no), qPrintable(linker.problem()));
    QCOMPARE(rows(settings, "SELECT COUNT(*), COUNT(DISTINCT (source_path, source_line)) FROM "
                            "linkdb_links"),
             QStringList{"12000|12000"});
    m_server->kill();
    QVERIFY(!linker.run(release, m_no));
    QVERIFY(!linker.problem().isEmpty());
    QVERIFY(m_server->start());
    QVERIFY(linker.run(release, m_no));
    QCOMPARE(linker.links(Outcome::Unchanged), 12000);
}

void tst_ReleaseLinker::noDatabase()
{
    ReleaseLinker linker(LinkDbSettings::fromText(m_folder->path()));
    QVERIFY(!linker.run(releaseOf({}), m_no));
    QVERIFY(linker.problem().contains(m_folder->path()));
    ReleaseLinker good(LinkDbSettings::fromText(m_folder->filePath("x.db")));
    QVERIFY(good.run(releaseOf({}), m_no));
}

QTEST_GUILESS_MAIN(tst_ReleaseLinker)
#include "tst_ReleaseLinker.moc"
