#include "../support/PostgresServer.h"

#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <core/progress/PProgress.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

Q_DECLARE_METATYPE(LinkDbSettings)

namespace {

/// The tables as versions 1 and 2 made them.
const QStringList &tablesOfVersion1()
{
    static const QStringList statements{
        "CREATE TABLE linkdb_meta(name TEXT PRIMARY KEY, content TEXT NOT NULL)",
        "INSERT INTO linkdb_meta VALUES('version', '1')",
        "CREATE TABLE plm_document(GEO_ID TEXT PRIMARY KEY, PRJ_PATH TEXT, VERSION TEXT, "
        "LINE_ID INTEGER, LINE_SUBID INTEGER, XVARSET TEXT, CADSYSTEM TEXT, PDMSYSTEM TEXT, "
        "PDMID1 TEXT, PDMID2 TEXT, PDMID3 TEXT, PDMID4 TEXT, PDMID5 TEXT, GEOFEATURES TEXT, "
        "NBDEFAULTLANG TEXT)",
        "CREATE TABLE plm_hierarchy(PARENT TEXT, CHILD TEXT)",
        "CREATE TABLE linkdb_group(group_name TEXT PRIMARY KEY)",
        "CREATE TABLE linkdb_group_key(group_name TEXT, key_name TEXT, key_value TEXT, "
        "PRIMARY KEY(group_name, key_name))",
        "CREATE TABLE linkdb_group_member(group_name TEXT, user_name TEXT, "
        "PRIMARY KEY(group_name, user_name))",
        "INSERT INTO linkdb_group VALUES('mine')",
        "INSERT INTO plm_document(GEO_ID, PDMID1) VALUES('g1', 'N1')",
        "INSERT INTO plm_hierarchy VALUES('g1', 'g2')",
    };
    return statements;
}

QStringList tablesOfVersion2(bool onServer)
{
    return tablesOfVersion1() +
           QStringList{"UPDATE linkdb_meta SET content = '2'",
                       QString("CREATE TABLE linkdb_deleted(id %1, deleted_at TEXT, user_name "
                               "TEXT, batch TEXT, table_name TEXT, row_values TEXT)")
                           .arg(onServer ? "BIGINT GENERATED ALWAYS AS IDENTITY PRIMARY KEY"
                                         : "INTEGER PRIMARY KEY AUTOINCREMENT"),
                       "INSERT INTO linkdb_deleted(table_name) VALUES('plm_document')"};
}

const QStringList &everyTable()
{
    static const QStringList names{
        "linkdb_meta",      "plm_document",        "plm_hierarchy",  "linkdb_group",
        "linkdb_group_key", "linkdb_group_member", "linkdb_deleted", "linkdb_link_target",
        "linkdb_line_link", "linkdb_link_project"};
    return names;
}

} // namespace

/// Addresses, older forms of the tables, and what a server does to its clients.
class tst_LinkDbServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void addresses_data();
    void addresses();
    void wrongAddresses_data();
    void wrongAddresses();
    void bringsUpToDate_data();
    void bringsUpToDate();
    void refusesNewerForm_data();
    void refusesNewerForm();
    void refusesForeignFile();
    void manyMakeTheTables_data();
    void manyMakeTheTables();
    void lostWhileIdle();
    void lostWithChanges();
    void lostBeforeCommit();
    void serverIsDown();
    void passwords();
    void encryption();
    void logsInAsAnother();
    void otherUsersMayNotWriteGroups();
    void cancelsStatement_data();
    void cancelsStatement();
    void waitsForTheLockOfAFile();
    void unansweredConnectingIsGivenUp_data();
    void unansweredConnectingIsGivenUp();
    void unansweredStatementIsGivenUp();
    void unansweredCommitIsUncertain();
    void stopsWhatRuns();

private:
    [[nodiscard]] PRefPtr<PLinkDbC> opened(const QString &address);
    [[nodiscard]] static int documents(PLinkDbC &linkDb)
    {
        return linkDb.executeCountStatement("SELECT COUNT(*) FROM plm_document");
    }
    static bool insert(PLinkDbC &linkDb, const QString &id)
    {
        return linkDb.executeInsertStatement("INSERT INTO plm_document(GEO_ID) VALUES('" + id +
                                             "')");
    }
    [[nodiscard]] QString newAddress(bool onServer)
    {
        return onServer ? m_server->newDatabase() : m_folder->filePath("link.db");
    }

    std::unique_ptr<PostgresServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<PScriptedMessageSink> m_sink;
    std::unique_ptr<PMessageSinkScope> m_scope;
};

void tst_LinkDbServer::initTestCase()
{
    qunsetenv("PGPASSWORD");
    qputenv("PGPASSFILE", "/nonexistent");
    m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
}

void tst_LinkDbServer::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_sink = std::make_shared<PScriptedMessageSink>();
    m_scope = std::make_unique<PMessageSinkScope>(m_sink);
}

void tst_LinkDbServer::cleanup()
{
    m_scope.reset();
}

PRefPtr<PLinkDbC> tst_LinkDbServer::opened(const QString &address)
{
    PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    if (!linkDb->open(LinkDbSettings::fromText(address)))
        QTest::qFail(qPrintable(linkDb->lastError().text), __FILE__, __LINE__);
    return linkDb;
}

void tst_LinkDbServer::addresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<LinkDbSettings>("settings");
    QTest::addColumn<QString>("written");
    const auto file = [](const QString &name) {
        LinkDbSettings settings;
        settings.kind = LinkDbSettings::Kind::SQLite;
        settings.file = name;
        return settings;
    };
    const auto server = [](const QString &host, int port, const QString &database,
                           const QString &user, const QString &mode = {}) {
        LinkDbSettings settings;
        settings.kind = LinkDbSettings::Kind::PostgreSQL;
        settings.host = host;
        settings.port = port;
        settings.database = database;
        settings.user = user;
        settings.sslMode = mode;
        return settings;
    };
    QTest::newRow("file") << "sqlite:/a b/c.db" << file("/a b/c.db") << "sqlite:/a b/c.db";
    QTest::newRow("path") << "$HOME/%1.db" << file("$HOME/%1.db") << "sqlite:$HOME/%1.db";
    QTest::newRow("drive") << "C:\\x.db" << file("C:\\x.db") << "sqlite:C:\\x.db";
    QTest::newRow("database") << "postgresql:///links" << server("", 0, "links", "")
                              << "postgresql:///links";
    QTest::newRow("nothing but empty texts")
        << "postgresql:///links" << server(QString(""), 0, "links", QString(""), QString(""))
        << "postgresql:///links";
    QTest::newRow("all") << "postgresql://anna@db.example:5433/links?sslmode=verify-full"
                         << server("db.example", 5433, "links", "anna", "verify-full")
                         << "postgresql://anna@db.example:5433/links?sslmode=verify-full";
    LinkDbSettings impatient = server("db", 0, "links", "", "require");
    impatient.connectSeconds = 1;
    QTest::newRow("patience") << "postgresql://db/links?connect_timeout=1&sslmode=require"
                              << impatient
                              << "postgresql://db/links?sslmode=require&connect_timeout=1";
    QTest::newRow("short scheme") << "postgres://db/links" << server("db", 0, "links", "")
                                  << "postgresql://db/links";
    QTest::newRow("socket") << "postgresql:///links?host=/run/pg&port=5433&user=anna"
                            << server("/run/pg", 5433, "links", "anna")
                            << "postgresql:///links?host=/run/pg&port=5433&user=anna";
    QTest::newRow("signs") << "postgresql://a%40b@db/my%20links"
                           << server("db", 0, "my links", "a@b")
                           << "postgresql://a%40b@db/my%20links";
}

void tst_LinkDbServer::addresses()
{
    QFETCH(QString, text);
    QFETCH(LinkDbSettings, settings);
    const LinkDbSettings read = LinkDbSettings::fromText(text);
    QVERIFY(read == settings);
    QTEST(read.toText(), "written");
    QTEST(settings.toText(), "written");
    QVERIFY(LinkDbSettings::fromText(read.toText()) == settings);
}

void tst_LinkDbServer::wrongAddresses_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("problem");
    QTest::newRow("nothing") << ""
                             << "keine Adresse";
    QTest::newRow("scheme alone") << "sqlite:"
                                  << "keine Adresse";
    QTest::newRow("other scheme") << "mysql://db/links"
                                  << "keine Adresse";
    QTest::newRow("no patience") << "postgresql://db/links?connect_timeout=0"
                                 << "keine Adresse";
    QTest::newRow("no database") << "postgresql://db"
                                 << "keine Adresse";
    QTest::newRow("password") << "postgresql://anna:secret@db/links"
                              << "Kennwortdatei";
    QTest::newRow("mode") << "postgresql://db/links?sslmode=none"
                          << "verify-full";
}

void tst_LinkDbServer::wrongAddresses()
{
    QFETCH(QString, text);
    QFETCH(QString, problem);
    QString told;
    QVERIFY(LinkDbSettings::fromText(text, &told) == LinkDbSettings());
    QVERIFY2(told.contains(problem), qPrintable(told));
    QVERIFY(!told.contains("secret"));
}

void tst_LinkDbServer::bringsUpToDate_data()
{
    QTest::addColumn<bool>("onServer");
    QTest::addColumn<int>("version");
    for (const bool onServer : {false, true}) {
        for (const int version : {0, 1, 2})
            QTest::addRow("%s from %d", onServer ? "PostgreSQL" : "SQLite", version)
                << onServer << version;
    }
}

void tst_LinkDbServer::bringsUpToDate()
{
    QFETCH(bool, onServer);
    QFETCH(int, version);
    const QString address = newAddress(onServer);
    {
        const PRefPtr<PLinkDbC> linkDb = opened(address);
        QVERIFY(linkDb->executeInsertStatement("DROP VIEW linkdb_links"));
        for (const QString &table : everyTable())
            QVERIFY(linkDb->executeInsertStatement("DROP TABLE " + table));
        QStringList statements = version == 1 ? tablesOfVersion1() : tablesOfVersion2(onServer);
        if (version == 0) // documents that were there before the program
            statements = tablesOfVersion1().filter("plm_");
        for (const QString &statement : std::as_const(statements))
            QVERIFY(linkDb->executeInsertStatement(statement));
        QVERIFY(linkDb->close());
    }
    const PRefPtr<PLinkDbC> linkDb = opened(address);
    QCOMPARE(linkDb->executeCountStatement("SELECT content FROM linkdb_meta"), 3);
    QCOMPARE(documents(*linkDb), 1);
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_hierarchy"), 1);
    QCOMPARE(linkDb->groups(), QStringList{version == 0 ? "standard" : "mine"});
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM linkdb_deleted"),
             version == 2 ? 1 : 0);
    for (const QString &table : everyTable())
        QVERIFY2(linkDb->createRecord(table).columns().count() > 0, qPrintable(table));
    QVERIFY(linkDb->executeInsertStatement("DELETE FROM plm_document WHERE GEO_ID = 'g1'"));
    QVERIFY(linkDb->commit());
}

void tst_LinkDbServer::refusesNewerForm_data()
{
    QTest::addColumn<bool>("onServer");
    QTest::newRow("SQLite") << false;
    QTest::newRow("PostgreSQL") << true;
}

void tst_LinkDbServer::refusesNewerForm()
{
    QFETCH(bool, onServer);
    const QString address = newAddress(onServer);
    {
        const PRefPtr<PLinkDbC> linkDb = opened(address);
        QVERIFY(linkDb->executeInsertStatement("UPDATE linkdb_meta SET content = '99'"));
    }
    PLinkDbC linkDb;
    QVERIFY(!linkDb.open(LinkDbSettings::fromText(address)));
    QVERIFY(linkDb.lastError().text.contains("99"));
    QVERIFY(!linkDb.isOpen());
    QVERIFY(!insert(linkDb, "x"));
}

void tst_LinkDbServer::refusesForeignFile()
{
    const QString name = m_folder->filePath("link.db");
    {
        const PRefPtr<PLinkDbC> linkDb = opened(name);
        QVERIFY(linkDb->executeInsertStatement("DROP VIEW linkdb_links"));
        for (const QString &table : everyTable())
            QVERIFY(linkDb->executeInsertStatement("DROP TABLE " + table));
        QVERIFY(linkDb->executeInsertStatement("CREATE TABLE something(x TEXT)"));
    }
    PLinkDbC linkDb;
    QVERIFY(!linkDb.open(LinkDbSettings::fromText(name)));
    QVERIFY(linkDb.lastError().text.contains("eines anderen Programms"));
    QFile text(m_folder->filePath("text.db"));
    QVERIFY(text.open(QIODevice::WriteOnly));
    QVERIFY(text.write(QByteArray(5000, 'x')) == 5000);
    text.close();
    QVERIFY(!linkDb.open(LinkDbSettings::fromText(text.fileName())));
    QVERIFY(linkDb.lastError().isSet());
    QVERIFY(text.open(QIODevice::ReadOnly));
    QCOMPARE(text.readAll(), QByteArray(5000, 'x'));
}

void tst_LinkDbServer::manyMakeTheTables_data()
{
    refusesNewerForm_data();
}

void tst_LinkDbServer::manyMakeTheTables()
{
    QFETCH(bool, onServer);
    const LinkDbSettings settings = LinkDbSettings::fromText(newAddress(onServer));
    std::atomic<int> good = 0;
    {
        std::vector<std::jthread> threads;
        threads.reserve(4);
        for (int i = 0; i < 4; ++i)
            threads.emplace_back([&] {
                PLinkDbC linkDb;
                good += linkDb.open(settings) && insert(linkDb, QString::number(qHash(&linkDb)));
            });
    }
    QCOMPARE(good, 4);
    QCOMPARE(documents(*opened(settings.toText())), 4);
}

void tst_LinkDbServer::lostWhileIdle()
{
    const PRefPtr<PLinkDbC> linkDb = opened(m_server->newDatabase());
    m_server->endConnections();
    QCOMPARE(documents(*linkDb), 0);
    QCOMPARE(m_sink->logged().size(), 2);
    QVERIFY(m_sink->logged().at(0).contains("ist abgebrochen"));
    QVERIFY(m_sink->logged().at(1).endsWith("besteht wieder"));
    m_server->endConnections();
    QVERIFY(insert(*linkDb, "a"));
    QVERIFY(linkDb->commit());
    QCOMPARE(documents(*linkDb), 1);
    // What was settled before is not lost with it.
    QVERIFY(insert(*linkDb, "b"));
    QVERIFY(linkDb->rollback());
    for (const int expected : {1, 2}) {
        m_server->endConnections();
        m_sink->clear();
        QCOMPARE(documents(*linkDb), expected);
        QVERIFY(!m_sink->logged().at(0).contains("Anweisungen"));
        QVERIFY(linkDb->commit());
        QVERIFY(insert(*linkDb, QString::number(expected)) && linkDb->commit());
    }
}

void tst_LinkDbServer::lostWithChanges()
{
    const PRefPtr<PLinkDbC> linkDb = opened(m_server->newDatabase());
    QVERIFY(insert(*linkDb, "a"));
    QVERIFY(insert(*linkDb, "b"));
    m_server->endConnections();
    // What is pending went along: nothing is read as if it were there.
    QVERIFY(!linkDb->executeSelectStatement("SELECT * FROM plm_document")->isValid());
    QVERIFY(linkDb->lastError().lost);
    QVERIFY(m_sink->logged().at(0).contains("(Anweisungen: 2)"));
    QCOMPARE(documents(*linkDb), 0);
    QVERIFY(!linkDb->commit());
    QVERIFY(linkDb->lastError().text.contains("verloren"));
    QVERIFY(linkDb->commit()); // told once
    QVERIFY(insert(*linkDb, "a"));
    QVERIFY(linkDb->commit());
    QCOMPARE(documents(*linkDb), 1);
    // A changing statement finds it out: it fails and is not done by itself.
    QVERIFY(insert(*linkDb, "c"));
    m_server->endConnections();
    QVERIFY(!insert(*linkDb, "d"));
    QCOMPARE(documents(*linkDb), 1);
}

void tst_LinkDbServer::lostBeforeCommit()
{
    const PRefPtr<PLinkDbC> linkDb = opened(m_server->newDatabase());
    QVERIFY(insert(*linkDb, "a"));
    m_server->endConnections();
    QVERIFY(!linkDb->commit());
    QVERIFY(linkDb->lastError().lost);
    QVERIFY(!linkDb->isPending());
    QCOMPARE(documents(*linkDb), 0);
    QVERIFY(insert(*linkDb, "a"));
    QVERIFY(linkDb->commit());
    QCOMPARE(documents(*linkDb), 1);
}

void tst_LinkDbServer::serverIsDown()
{
    const PRefPtr<PLinkDbC> linkDb = opened(m_server->newDatabase());
    QVERIFY(insert(*linkDb, "a"));
    QVERIFY(linkDb->commit());
    QVERIFY(insert(*linkDb, "b"));
    m_server->kill();
    QVERIFY(!linkDb->commit());
    QVERIFY(linkDb->lastError().text.contains("ungewiss"));
    QVERIFY(!linkDb->isOpen());
    QVERIFY(!insert(*linkDb, "c"));
    QVERIFY(linkDb->lastError().lost);
    QVERIFY(!linkDb->createRecord("plm_document").columns().count());
    QCOMPARE(linkDb->literal("a'"), "'a'''");
    QVERIFY(m_server->start());
    QCOMPARE(documents(*linkDb), 1);
    QVERIFY(insert(*linkDb, "c"));
    QVERIFY(linkDb->commit());
    QCOMPARE(documents(*linkDb), 2);
}

void tst_LinkDbServer::passwords()
{
    QVERIFY(!m_server->newDatabase().isEmpty());
    const LinkDbSettings settings = LinkDbSettings::fromText(m_server->loopbackAddress("postgres"));
    PLinkDbC linkDb;
    QVERIFY(!linkDb.open(settings));
    QVERIFY(!linkDb.open(settings, "wrong"));
    QVERIFY(linkDb.open(settings, "secret"));
    QVERIFY(linkDb.close());
    qputenv("PGPASSWORD", "secret");
    QVERIFY(linkDb.open(settings));
    QVERIFY(linkDb.close());
    qunsetenv("PGPASSWORD");
    QFile file(m_folder->filePath("passwords"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("127.0.0.1:*:*:keeper:secret\n") > 0);
    file.close();
    QVERIFY(file.setPermissions(QFile::ReadOwner | QFile::WriteOwner));
    qputenv("PGPASSFILE", file.fileName().toUtf8());
    QVERIFY(linkDb.open(settings));
    qputenv("PGPASSFILE", "/nonexistent");
    // The desktop's secret store, by the program that asks it.
    QFile tool(m_folder->filePath("secret-tool"));
    QVERIFY(tool.open(QIODevice::WriteOnly));
    QVERIFY(tool.write("#!/bin/sh\n[ \"$*\" = 'lookup protocol postgresql server 127.0.0.1 user "
                       "keeper' ] && echo secret\n") > 0);
    tool.close();
    QVERIFY(tool.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(!linkDb.open(settings));
    const QByteArray paths = qgetenv("PATH");
    qputenv("PATH", m_folder->path().toUtf8() + ':' + paths);
    QVERIFY2(linkDb.open(settings), qPrintable(linkDb.lastError().text));
    m_server->endConnections();
    QCOMPARE(documents(linkDb), 0); // asked again
    QVERIFY(!linkDb.open(settings, "wrong"));
    LinkDbSettings other = settings;
    other.user = "nobody";
    QVERIFY(!linkDb.open(other));
    qputenv("PATH", paths);
    // The password is still known when the connection has to be made anew.
    QVERIFY(linkDb.open(settings, "secret"));
    m_server->endConnections();
    QCOMPARE(documents(linkDb), 0);
    const QStringList logged = m_sink->logged();
    for (const QString &text : logged)
        QVERIFY(!text.contains("secret"));
}

void tst_LinkDbServer::encryption()
{
    LinkDbSettings settings = LinkDbSettings::fromText(m_server->loopbackAddress("postgres"));
    settings.sslMode = "require";
    PLinkDbC linkDb;
    QVERIFY(!linkDb.open(settings, "secret")); // this server has none
    QVERIFY(linkDb.lastError().text.contains("SSL"));
    settings.sslMode = "disable";
    QVERIFY(linkDb.open(settings, "secret"));
}

void tst_LinkDbServer::logsInAsAnother()
{
    const QString address = m_server->newDatabase();
    const PRefPtr<PLinkDbC> linkDb = opened(address);
    QCOMPARE(linkDb->userName(), "keeper");
    m_server->sql("postgres", "CREATE ROLE anna LOGIN");
    QVERIFY(linkDb->setGroupInformation("annas", "K", "v"));
    QVERIFY(linkDb->executeInsertStatement("INSERT INTO linkdb_group_member VALUES"
                                           "('annas', 'anna'), ('standard', 'keeper')"));
    QVERIFY(linkDb->login("anna", ""));
    QCOMPARE(linkDb->userName(), "anna");
    QCOMPARE(linkDb->currentGroup(), "annas");
    QCOMPARE(linkDb->groupInformation("K"), "v");
    QVERIFY(insert(*linkDb, "a"));
    QVERIFY(linkDb->executeInsertStatement("DELETE FROM plm_document"));
    QVERIFY(!linkDb->login("nobody at all", ""));
    QVERIFY(linkDb->lastError().text.contains("nobody at all"));
    QCOMPARE(linkDb->userName(), "anna");
    QVERIFY(linkDb->isOpen());

    const PRefPtr<PLinkDbC> onFile = opened(m_folder->filePath("x.db"));
    QVERIFY(onFile->login("anna", ""));
    QCOMPARE(onFile->userName(), "anna");
    QVERIFY(insert(*onFile, "a"));
    QVERIFY(onFile->executeInsertStatement("DELETE FROM plm_document"));
    PLinkDbQueryCacheC rows(onFile->executeSelectStatement("SELECT user_name FROM linkdb_deleted"));
    QVERIFY(rows.next());
    QCOMPARE(rows.value(0).toString(), "anna");
}

void tst_LinkDbServer::otherUsersMayNotWriteGroups()
{
    const QString address = m_server->newDatabase();
    const PRefPtr<PLinkDbC> keeper = opened(address);
    m_server->sql("postgres", "CREATE ROLE berta LOGIN");
    const PRefPtr<PLinkDbC> berta =
        opened(m_server->address(LinkDbSettings::fromText(address).database, "berta"));
    QCOMPARE(berta->groupInformation("PDM_EDIT"), "1");
    QVERIFY(!berta->setGroupInformation("standard", "PDM_EDIT", "0"));
    QVERIFY(!berta->executeInsertStatement("DROP TABLE plm_document"));
    QVERIFY(insert(*berta, "a"));
    QVERIFY(berta->commit());
    QCOMPARE(documents(*keeper), 1);
}

void tst_LinkDbServer::cancelsStatement_data()
{
    refusesNewerForm_data();
}

void tst_LinkDbServer::cancelsStatement()
{
    QFETCH(bool, onServer);
    const PRefPtr<PLinkDbC> linkDb = opened(newAddress(onServer));
    QVERIFY(insert(*linkDb, "a"));
    PProgress progress(0, 0, 1, true, true);
    progress.requestCancel();
    QElapsedTimer time;
    time.start();
    const QString endless =
        onServer ? "SELECT pg_sleep(60)"
                 : "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < "
                   "100000000) SELECT x FROM n";
    QVERIFY(!linkDb->executeSelectStatement(endless)->isValid());
    QVERIFY(linkDb->lastError().cancelled);
    QVERIFY(time.elapsed() < 30'000);
    QVERIFY(m_sink->logged().isEmpty());
    progress.done();
    // What was pending is still there, and other statements run.
    QVERIFY(linkDb->isPending());
    QVERIFY(linkDb->commit());
    QCOMPARE(documents(*linkDb), 1);
}

void tst_LinkDbServer::waitsForTheLockOfAFile()
{
    const QString name = m_folder->filePath("link.db");
    const PRefPtr<PLinkDbC> first = opened(name);
    const PRefPtr<PLinkDbC> second = opened(name);
    QVERIFY(insert(*first, "a"));
    std::jthread ends([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
        first->commit();
    });
    QVERIFY(insert(*second, "b"));
    QVERIFY(second->commit());
    QCOMPARE(documents(*second), 2);
    // Cancelled instead.
    QVERIFY(insert(*first, "c"));
    PProgress progress(0, 0, 1, true, true);
    progress.requestCancel();
    QElapsedTimer time;
    time.start();
    QVERIFY(!insert(*second, "d"));
    QVERIFY(time.elapsed() < 9000); // it would wait longer else
    progress.done();
    QVERIFY(first->commit());
    QCOMPARE(documents(*second), 3);
}

void tst_LinkDbServer::unansweredConnectingIsGivenUp_data()
{
    QTest::addColumn<bool>("byStop");
    QTest::newRow("the user cancels") << false;
    QTest::newRow("stop()") << true;
}

void tst_LinkDbServer::unansweredConnectingIsGivenUp()
{
    QFETCH(bool, byStop);
    LinkDbSettings settings = LinkDbSettings::fromText(m_server->newDatabase());
    settings.connectSeconds = 120;
    m_server->halt();
    QElapsedTimer time;
    time.start();
    PLinkDbC linkDb;
    {
        PProgress progress(0, 0, 1, true, true);
        if (!byStop)
            progress.requestCancel();
        std::jthread stops([&] {
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
            if (byStop)
                linkDb.stop();
        });
        QVERIFY(!linkDb.open(settings));
        progress.done();
    }
    QVERIFY(linkDb.lastError().cancelled);
    QVERIFY(linkDb.close());
    QVERIFY(time.elapsed() < 60'000);
    QVERIFY(PLinkDbC::isThreadLeft());
    m_server->resume();
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
    QCOMPARE(linkDb.open(settings), !byStop); // what is stopped stays so
}

void tst_LinkDbServer::unansweredStatementIsGivenUp()
{
    LinkDbSettings settings = LinkDbSettings::fromText(m_server->newDatabase());
    settings.connectSeconds = 1;
    PLinkDbC linkDb;
    QVERIFY(linkDb.open(settings));
    QVERIFY(insert(linkDb, "a"));
    m_server->halt();
    PProgress progress(0, 0, 1, true, true);
    progress.requestCancel();
    QVERIFY(!insert(linkDb, "b"));
    progress.done();
    // It counts as lost, with what was pending.
    QVERIFY(linkDb.lastError().lost && linkDb.lastError().cancelled);
    QVERIFY2(linkDb.lastError().text.contains("antwortet nicht"),
             qPrintable(linkDb.lastError().text));
    QVERIFY(m_sink->logged().last().contains("antwortet nicht"));
    QVERIFY(m_sink->logged().last().endsWith("(Anweisungen: 1)."));
    QVERIFY(!linkDb.isOpen());
    QVERIFY(!linkDb.isPending());
    QVERIFY(PLinkDbC::isThreadLeft());
    m_server->resume();
    QVERIFY(!linkDb.commit());
    QVERIFY(linkDb.lastError().text.contains("verloren"));
    QCOMPARE(documents(linkDb), 0);
    QVERIFY(linkDb.isOpen());
    QVERIFY(insert(linkDb, "a"));
    QVERIFY(linkDb.commit());
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
    QCOMPARE(documents(linkDb), 1);
}

void tst_LinkDbServer::unansweredCommitIsUncertain()
{
    LinkDbSettings settings = LinkDbSettings::fromText(m_server->newDatabase());
    settings.connectSeconds = 1;
    PLinkDbC linkDb;
    QVERIFY(linkDb.open(settings));
    QVERIFY(insert(linkDb, "a"));
    m_server->halt();
    PProgress progress(0, 0, 1, true, true);
    progress.requestCancel();
    QVERIFY(!linkDb.commit());
    progress.done();
    QVERIFY2(linkDb.lastError().text.contains("ungewiss"), qPrintable(linkDb.lastError().text));
    QVERIFY(!m_sink->logged().last().contains("Anweisungen"));
    m_server->resume();
    QVERIFY(linkDb.commit()); // of nothing
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
    QCOMPARE(documents(linkDb), 1);
}

void tst_LinkDbServer::stopsWhatRuns()
{
    PLinkDbC linkDb;
    QVERIFY(linkDb.open(LinkDbSettings::fromText(m_server->newDatabase())));
    std::atomic<bool> answered = true;
    {
        std::jthread reads(
            [&] { answered = linkDb.executeSelectStatement("SELECT pg_sleep(60)")->isValid(); });
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
        linkDb.stop();
    }
    QVERIFY(!answered);
    QVERIFY(!linkDb.executeSelectStatement("SELECT 1")->isValid());
    QVERIFY(linkDb.close());
    QTRY_VERIFY_WITH_TIMEOUT(!PLinkDbC::isThreadLeft(), 20'000);
}

QTEST_GUILESS_MAIN(tst_LinkDbServer)
#include "tst_LinkDbServer.moc"
