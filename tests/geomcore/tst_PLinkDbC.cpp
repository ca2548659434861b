#include "../support/PostgresServer.h"
#include <core/message/PMessage.h>
#include <core/text/ProxyPtrT.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/linkdb/LinkDbDeletedRows.h>
#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/linkdb/PLinkDbQueryCacheC.h>
#include <geomcore/linkdb/prxLinkDbIfaceC.h>

#include <QTemporaryDir>
#include <QTest>
#include <QUuid>

#include <thread>

namespace {

constexpr qsizetype longText = 100'000;

class QuietSink : public PMessageSink
{
public:
    PMsgReply show(const QString &text, PMsgDlgModes mode) override
    {
        shown.append(QString::number(mode) + u' ' + text);
        return PMsgReply::Ok;
    }
    void logToWindow(const QString &text) override { logged.append(text); }

    QStringList shown;
    QStringList logged;
};

QString everyPlane()
{
    QString text;
    for (char32_t plane = 0; plane <= 0x10; ++plane) {
        const char32_t sign = plane * 0x10000 + 0x1234;
        text += QString::fromUcs4(&sign, 1);
    }
    return text;
}

} // namespace

/// Everything on a file and on a server.
class tst_PLinkDbC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void makesTables_data() { databases(); }
    void makesTables();
    void writesRecords_data() { databases(); }
    void writesRecords();
    void buildsStatements_data() { databases(); }
    void buildsStatements();
    void keepsHostileTexts_data();
    void keepsHostileTexts();
    void quotesHostileColumns_data() { databases(); }
    void quotesHostileColumns();
    void commitsNothingByItself_data() { databases(); }
    void commitsNothingByItself();
    void failedStatementGoesAlone_data() { databases(); }
    void failedStatementGoesAlone();
    void connectionLostInAStatement();
    void writersDoNotBlockEachOther_data() { databases(); }
    void writersDoNotBlockEachOther();
    void lostChangesAreMadeAgain();
    void closingCommits_data() { databases(); }
    void closingCommits();
    void keepsDeletedRows_data() { databases(); }
    void keepsDeletedRows();
    void readsGroups_data() { databases(); }
    void readsGroups();
    void refusesNullCharacter_data() { databases(); }
    void refusesNullCharacter();
    void showsLastError_data() { databases(); }
    void showsLastError();
    void unconnected();
    void scriptInterface();
    void relativePaths();

private:
    static void databases();
    [[nodiscard]] PRefPtr<PLinkDbC> opened();
    [[nodiscard]] static QStringList column(PLinkDbC &linkDb, const QString &sql);
    [[nodiscard]] static QString insert(PLinkDbC &linkDb, const QVariantMap &values);

    std::unique_ptr<PostgresServer> m_server;
    std::unique_ptr<QTemporaryDir> m_folder;
    std::shared_ptr<QuietSink> m_sink;
    std::unique_ptr<PMessageSinkScope> m_scope;
    LinkDbSettings m_settings;
};

void tst_PLinkDbC::initTestCase()
{
    m_server = std::make_unique<PostgresServer>();
    QVERIFY2(m_server->isRunning(), qPrintable(m_server->problem()));
}

void tst_PLinkDbC::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    m_sink = std::make_shared<QuietSink>();
    m_scope = std::make_unique<PMessageSinkScope>(m_sink);
}

void tst_PLinkDbC::cleanup()
{
    m_scope.reset();
}

void tst_PLinkDbC::databases()
{
    QTest::addColumn<bool>("onServer");
    QTest::newRow("SQLite") << false;
    QTest::newRow("PostgreSQL") << true;
}

PRefPtr<PLinkDbC> tst_PLinkDbC::opened()
{
    QFETCH(bool, onServer);
    m_settings = LinkDbSettings::fromText(onServer ? m_server->newDatabase()
                                                   : m_folder->filePath("new folder/link.db"));
    PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    if (!linkDb->open(m_settings))
        QTest::qFail(qPrintable(linkDb->lastError().text), __FILE__, __LINE__);
    if (!onServer) // the file goes with the test
        (void)linkDb->executeSelectStatement("PRAGMA synchronous = OFF");
    return linkDb;
}

QStringList tst_PLinkDbC::column(PLinkDbC &linkDb, const QString &sql)
{
    PLinkDbQueryCacheC rows(linkDb.executeSelectStatement(sql));
    QStringList values;
    while (rows.next())
        values.append(rows.value(0).toString());
    return values;
}

QString tst_PLinkDbC::insert(PLinkDbC &linkDb, const QVariantMap &values)
{
    const PString table = linkDb.getTableName("PLMTABLE2");
    PLinkDbRecordC record = linkDb.createRecord(table);
    for (auto each = values.cbegin(); each != values.cend(); ++each)
        record.setValue(each.key(), each.value());
    return linkDb.createSqlStatement(table, record, false);
}

void tst_PLinkDbC::makesTables()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    QVERIFY(linkDb->isOpen());
    QCOMPARE(linkDb->getTableName("PLMTABLE2"), PString("plm_document"));
    QCOMPARE(linkDb->getTableName("PLM_HIERARCHY"), PString("plm_hierarchy"));
    QCOMPARE(linkDb->getTableName("other"), PString("other"));
    const PLinkDbRecordC record = linkDb->createRecord("plm_document");
    QStringList names;
    for (const QString &name : record.columns().names())
        names.append(name.toUpper());
    QCOMPARE(names.join(u' '),
             "GEO_ID PRJ_PATH VERSION LINE_ID LINE_SUBID XVARSET CADSYSTEM PDMSYSTEM PDMID1 PDMID2 "
             "PDMID3 PDMID4 PDMID5 GEOFEATURES NBDEFAULTLANG");
    QVERIFY(!record.value(0).isValid());
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM PLM_HIERARCHY WHERE Parent = 'x'"),
             0);
    QVERIFY(linkDb->getIndexTree());
    // Once more: the tables are there.
    PLinkDbC second;
    QVERIFY(second.open(m_settings));
    QVERIFY(m_sink->logged.isEmpty());
}

void tst_PLinkDbC::writesRecords()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    QVERIFY(linkDb->executeInsertStatement(insert(*linkDb, {{"PRJ_PATH", "cat/a.prj"},
                                                            {"LINE_ID", 7},
                                                            {"LINE_SUBID", 0},
                                                            {"CadSystem", "one"},
                                                            {"notThere", "lost"},
                                                            {"geo_id", "of the template"}})));
    QVERIFY(linkDb->commit());
    PLinkDbQueryCacheC rows(linkDb->executeSelectStatement(
        "SELECT * FROM plm_document WHERE PRJ_PATH = 'cat/a.prj' AND LINE_ID = 7"));
    QVERIFY(!rows.record().value(0).isValid());
    QVERIFY(rows.next());
    const PLinkDbRecordC record = rows.record();
    QCOMPARE(record.value(record.indexOf("CADSYSTEM")).toString(), "one");
    QCOMPARE(record.value(record.indexOf("line_id")).toInt(), 7);
    QVERIFY(record.value(record.indexOf("VERSION")).isNull());
    QCOMPARE(record.indexOf("notThere"), -1);
    const QString id = record.value(record.indexOf("GEO_ID")).toString();
    QVERIFY(!QUuid::fromString(id).isNull());
    QVERIFY(!rows.next());
    QVERIFY(!rows.next());
    QVERIFY(!rows.value(0).isValid());

    PLinkDbRecordC change = linkDb->createRecord("plm_document");
    change.setValue("GEO_ID", "x");
    change.setValue("pdmid1", "N1");
    QVERIFY(
        linkDb->executeInsertStatement(linkDb->createSqlStatement("plm_document", change, true) +
                                       " WHERE GEO_ID = " + linkDb->literal(id)));
    QCOMPARE(column(*linkDb, "SELECT PDMID1 FROM plm_document WHERE GEO_ID = '" + id + "'"),
             QStringList{"N1"});
}

void tst_PLinkDbC::buildsStatements()
{
    QFETCH(bool, onServer);
    const PRefPtr<PLinkDbC> linkDb = opened();
    PLinkDbRecordC record = linkDb->createRecord("plm_document");
    const auto statement = [&](bool update) {
        return linkDb->createSqlStatement("plm_document", record, update);
    };
    QCOMPARE(statement(false), "");
    QCOMPARE(statement(true), "");
    record.setValue("unknown", "x");
    record.setValue("GEO_ID", "x");
    QCOMPARE(statement(false), "");
    QCOMPARE(statement(true), "");
    record.setValue("PDMID1", "it's");
    record.setValue("LINE_ID", 3);
    record.setValue("PdmSystem", QString());
    // The names as the database keeps them.
    QCOMPARE(statement(true), onServer ? "UPDATE plm_document SET \"line_id\" = 3, "
                                         "\"pdmsystem\" = '', \"pdmid1\" = 'it''s'"
                                       : "UPDATE plm_document SET \"LINE_ID\" = 3, "
                                         "\"PDMSYSTEM\" = '', \"PDMID1\" = 'it''s'");
    QVERIFY(statement(false).toLower().startsWith(
        "insert into plm_document (\"geo_id\", \"line_id\", \"pdmsystem\", \"pdmid1\") "
        "values ('"));
    QVERIFY(statement(false) != statement(false));
    QVERIFY(!linkDb->lastError().isSet());
    QCOMPARE(linkDb->createSqlStatement("no_table", record, false), "");
    QCOMPARE(linkDb->lastError().text, "Die Tabelle no_table gibt es in der Linkdatenbank nicht");
}

void tst_PLinkDbC::keepsHostileTexts_data()
{
    QTest::addColumn<bool>("onServer");
    QTest::addColumn<QString>("text");
    const QList<QPair<const char *, QString>> texts{
        {"quotes", "it's \"quoted\" `so` ''"},
        {"backslashes", "\\ \\\\ \\' \\n C:\\x\\"},
        {"SQL", "'); DROP TABLE plm_document; --"},
        {"places", "%1 %2 %3 :name ? @x $1"},
        {"long", QString(longText, u'\'')},
        {"every plane", everyPlane()},
        {"lines", "a\r\nb\tc\u0001\u007f\u0085\u2028"},
        {"marks", "\ufeffa\u0301\u202e\ufffd"},
        {"empty", ""},
    };
    for (const bool onServer : {false, true}) {
        for (const auto &[name, text] : texts)
            QTest::addRow("%s %s", onServer ? "PostgreSQL" : "SQLite", name) << onServer << text;
    }
}

void tst_PLinkDbC::keepsHostileTexts()
{
    QFETCH(QString, text);
    const PRefPtr<PLinkDbC> linkDb = opened();
    QVariantMap values;
    const PLinkDbRecordC columns = linkDb->createRecord("plm_document");
    for (const QString &column : columns.columns().names()) {
        if (!column.startsWith("line", Qt::CaseInsensitive))
            values.insert(column, text);
    }
    QVERIFY2(linkDb->executeInsertStatement(insert(*linkDb, values)),
             qPrintable(linkDb->lastError().text.left(300)));
    const ProxyPtrT<prxLinkDbIfaceC> face(new prxLinkDbIfaceC(linkDb));
    PLinkDbQueryCacheC rows(linkDb->executeSelectStatement(
        "SELECT * FROM plm_document WHERE PRJ_PATH = " + face->codeV(text, true) +
        " AND VERSION = " + face->codeV(text, true)));
    QVERIFY(rows.next());
    for (auto each = values.cbegin(); each != values.cend(); ++each) {
        const int index = rows.record().indexOf(each.key());
        if (each.key().compare("GEO_ID", Qt::CaseInsensitive) != 0)
            QCOMPARE(rows.value(index).toString(), text);
    }
    QVERIFY(!rows.next());
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 1);
    QVERIFY(linkDb->setGroupInformation("standard", text, text));
    QVERIFY(linkDb->changeGroup("standard"));
    QCOMPARE(linkDb->groupInformation(text), text);
    // Also on the way through the journal of deleted rows.
    QVERIFY(linkDb->executeInsertStatement("DELETE FROM plm_document WHERE PDMID1 = " +
                                           face->codeV(text, true)));
    const QList<LinkDbDeletedRow> deleted = LinkDbDeletedRows::list(*linkDb);
    QCOMPARE(deleted.size(), 1);
    QVERIFY(LinkDbDeletedRows::restore(*linkDb, deleted));
    QCOMPARE(column(*linkDb, "SELECT XVARSET FROM plm_document"), QStringList{text});
}

void tst_PLinkDbC::quotesHostileColumns()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    const QStringList names{"with \"quotes\"", "\"x\"", "a.b", "Mixed Case", "%1", "x'y"};
    for (const QString &name : names) {
        QVERIFY(linkDb->executeInsertStatement("ALTER TABLE plm_document ADD COLUMN " +
                                               linkDb->identifier(name) + " TEXT"));
    }
    QVariantMap values;
    for (const QString &name : names)
        values.insert(name, "value of " + name);
    QVERIFY(linkDb->executeInsertStatement(insert(*linkDb, values)));
    PLinkDbQueryCacheC rows(linkDb->executeSelectStatement("SELECT * FROM plm_document"));
    QVERIFY(rows.next());
    for (const QString &name : names)
        QCOMPARE(rows.value(rows.record().indexOf(name)).toString(), "value of " + name);
}

void tst_PLinkDbC::commitsNothingByItself()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    PLinkDbC other;
    QVERIFY(other.open(m_settings));
    const auto seen = [&] {
        return other.executeCountStatement("SELECT COUNT(*) FROM plm_document");
    };
    QVERIFY(!linkDb->isPending());
    QVERIFY(linkDb->commit()); // of nothing
    QVERIFY(linkDb->executeInsertStatement(insert(*linkDb, {{"PDMID1", "a"}})));
    QVERIFY(linkDb->isPending());
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 1);
    QCOMPARE(seen(), 0);
    QVERIFY(linkDb->commit());
    QVERIFY(!linkDb->isPending());
    QCOMPARE(seen(), 1);
    QVERIFY(linkDb->executeInsertStatement("DELETE FROM plm_document WHERE PDMID1 = 'a'"));
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 0);
    QCOMPARE(seen(), 1);
    QVERIFY(linkDb->rollback());
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 1);
}

void tst_PLinkDbC::failedStatementGoesAlone()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    QVERIFY(linkDb->executeInsertStatement(insert(*linkDb, {{"PDMID1", "a"}})));
    QVERIFY(!linkDb->executeInsertStatement("UPDATE no_table SET x = 1"));
    QCOMPARE(linkDb->lastError().statement, "UPDATE no_table SET x = 1");
    QVERIFY(!linkDb->executeSelectStatement("SELECT * FROM no_table")->isValid());
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM no_table"), -1);
    QCOMPARE(m_sink->logged.size(), 3);
    QVERIFY(linkDb->executeInsertStatement(insert(*linkDb, {{"PDMID1", "b"}})));
    QVERIFY(linkDb->commit());
    QCOMPARE(column(*linkDb, "SELECT PDMID1 FROM plm_document ORDER BY 1"),
             QStringList({"a", "b"}));
    // One that fails as the first leaves no transaction behind.
    QVERIFY(!linkDb->executeInsertStatement("DELETE FROM no_table"));
    QVERIFY(!linkDb->isPending());
}

void tst_PLinkDbC::connectionLostInAStatement()
{
    const PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    QVERIFY(linkDb->open(LinkDbSettings::fromText(m_server->newDatabase())));
    QVERIFY(linkDb->executeInsertStatement("INSERT INTO plm_document(GEO_ID) VALUES('a')"));
    // Between the savepoint and its release.
    QVERIFY(!linkDb->executeInsertStatement(
        "DO $$ BEGIN PERFORM pg_terminate_backend(pg_backend_pid()); PERFORM pg_sleep(20); END "
        "$$"));
    QVERIFY(linkDb->lastError().lost);
    QVERIFY(!linkDb->isPending());
    QVERIFY(!linkDb->commit());
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 0);
    // No number is none.
    QCOMPARE(linkDb->executeCountStatement("SELECT 'x'"), -1);
}

void tst_PLinkDbC::writersDoNotBlockEachOther()
{
    // A deletion reads first, so each would wait for the other if it did not lock at once.
    const PRefPtr<PLinkDbC> first = opened();
    std::atomic<int> good = 0;
    {
        std::vector<std::jthread> threads;
        threads.reserve(2);
        for (const char *name : {"a", "b"})
            threads.emplace_back([&, name] {
                PLinkDbC linkDb;
                if (!linkDb.open(m_settings))
                    return;
                (void)linkDb.executeSelectStatement("PRAGMA synchronous = OFF");
                for (int i = 0; i < 30; ++i)
                    good +=
                        linkDb.executeInsertStatement(
                            QString("INSERT INTO plm_document(GEO_ID) VALUES('%1')").arg(name)) &&
                        linkDb.commit() &&
                        linkDb.executeInsertStatement(
                            QString("DELETE FROM plm_document WHERE GEO_ID = '%1'").arg(name)) &&
                        linkDb.commit();
            });
    }
    QCOMPARE(good, 60);
    QCOMPARE(first->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 0);
    QCOMPARE(first->executeCountStatement("SELECT COUNT(*) FROM linkdb_deleted"), 60);
}

void tst_PLinkDbC::lostChangesAreMadeAgain()
{
    PLinkDbC linkDb;
    QVERIFY(linkDb.open(LinkDbSettings::fromText(m_server->newDatabase())));
    const auto insertBoth = [&] {
        return linkDb.executeInsertStatement("INSERT INTO plm_document(GEO_ID) VALUES('a')") &&
               linkDb.executeInsertStatement("INSERT INTO plm_document(GEO_ID) VALUES('b')");
    };
    QVERIFY(insertBoth());
    m_server->endConnections();
    QVERIFY(!linkDb.executeInsertStatement("INSERT INTO plm_document(GEO_ID) VALUES('c')"));
    // Who begins anew is not told again.
    QVERIFY(insertBoth());
    QVERIFY(linkDb.commit());
    QCOMPARE(linkDb.executeCountStatement("SELECT COUNT(*) FROM plm_document"), 2);
}

void tst_PLinkDbC::closingCommits()
{
    PRefPtr<PLinkDbC> linkDb = opened();
    QVERIFY(linkDb->executeInsertStatement(insert(*linkDb, {{"PDMID1", "a"}})));
    linkDb = nullptr;
    PLinkDbC again;
    QVERIFY(again.open(m_settings));
    QCOMPARE(column(again, "SELECT PDMID1 FROM plm_document"), QStringList{"a"});
    QVERIFY(again.close());
    QVERIFY(!again.isOpen());
    QVERIFY(!again.executeInsertStatement("DELETE FROM plm_document"));
}

void tst_PLinkDbC::keepsDeletedRows()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    for (const char *number : {"a", "b", "c"})
        QVERIFY(linkDb->executeInsertStatement(
            insert(*linkDb, {{"PDMID1", number}, {"LINE_ID", 5}, {"XVARSET", "{'x'}"}})));
    QVERIFY(linkDb->executeInsertStatement("INSERT INTO plm_hierarchy VALUES('p', 'c')"));
    const QStringList before =
        column(*linkDb, "SELECT GEO_ID FROM plm_document WHERE PDMID1 <> 'c' ORDER BY 1");
    QVERIFY(linkDb->executeInsertStatement(
        "delete from PLM_DOCUMENT where PDMID1 = 'a' OR PDMID1 = 'b'"));
    QVERIFY(linkDb->executeInsertStatement("DELETE FROM plm_hierarchy WHERE CHILD = 'c'"));
    QVERIFY(linkDb->executeInsertStatement("DELETE FROM plm_document WHERE PDMID1 = 'none'"));
    QList<LinkDbDeletedRow> deleted = LinkDbDeletedRows::list(*linkDb);
    QCOMPARE(deleted.size(), 3);
    QCOMPARE(deleted.at(0).table, "plm_hierarchy");
    QCOMPARE(deleted.at(1).table.toLower(), "plm_document");
    QCOMPARE(deleted.at(1).batch, deleted.at(2).batch);
    QVERIFY(deleted.at(0).batch != deleted.at(1).batch);
    QCOMPARE(deleted.at(0).user, linkDb->userName());
    QVERIFY(deleted.at(0).time.isValid());
    QVERIFY(LinkDbDeletedRows::restore(*linkDb, deleted));
    QCOMPARE(column(*linkDb, "SELECT GEO_ID FROM plm_document WHERE PDMID1 <> 'c' ORDER BY 1"),
             before);
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document WHERE LINE_ID = 5"),
             3);
    QCOMPARE(column(*linkDb, "SELECT PARENT FROM plm_hierarchy"), QStringList{"p"});
    QVERIFY(LinkDbDeletedRows::list(*linkDb).isEmpty());
    // A second time: none of them.
    QVERIFY(!LinkDbDeletedRows::restore(*linkDb, deleted));
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 3);
    // A statement that fails leaves nothing in the journal.
    QVERIFY(!linkDb->executeInsertStatement("DELETE FROM plm_document WHERE no_column = 1"));
    QVERIFY(LinkDbDeletedRows::list(*linkDb).isEmpty());
}

void tst_PLinkDbC::readsGroups()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    QCOMPARE(linkDb->groups(), QStringList{"standard"});
    QCOMPARE(linkDb->currentGroup(), "standard");
    QCOMPARE(linkDb->groupInformation("PDM_EDIT"), "1");
    QCOMPARE(linkDb->groupInformation("PDM_COLUMNS"), "");
    QVERIFY(linkDb->setGroupInformation("design", "PDM_COLUMNS", "PDMID1,XVARSET"));
    QVERIFY(linkDb->setGroupInformation("standard", "PDM_EDIT", "0"));
    QVERIFY(linkDb->setGroupInformation("standard", "PDM_EDIT", "2"));
    QCOMPARE(linkDb->groupInformation("PDM_EDIT"), "2");
    QCOMPARE(linkDb->groups(), QStringList({"design", "standard"}));
    QVERIFY(linkDb->changeGroup("design"));
    QCOMPARE(linkDb->groupInformation("PDM_COLUMNS"), "PDMID1,XVARSET");
    QCOMPARE(linkDb->groupInformation("PDM_EDIT"), "");
    QVERIFY(linkDb->executeInsertStatement(
        "INSERT INTO linkdb_group_member VALUES('design', 'somebody else')"));
    QCOMPARE(linkDb->groups(), QStringList{"standard"});
    QVERIFY(!linkDb->changeGroup("design"));
    QVERIFY(linkDb->lastError().text.contains("design"));
    QCOMPARE(linkDb->currentGroup(), "design");
    QVERIFY(linkDb->executeInsertStatement("INSERT INTO linkdb_group_member VALUES('design', " +
                                           linkDb->literal(linkDb->userName()) + ")"));
    QVERIFY(linkDb->changeGroup("design"));
}

void tst_PLinkDbC::refusesNullCharacter()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    QVERIFY(linkDb->executeInsertStatement(insert(*linkDb, {{"PDMID1", "a"}})));
    const QString cut = QString("DELETE FROM plm_document") + QChar(0) + " WHERE PDMID1 = 'x'";
    QVERIFY(!linkDb->executeInsertStatement(cut));
    QCOMPARE(linkDb->executeCountStatement("SELECT COUNT(*) FROM plm_document"), 1);
    QCOMPARE(linkDb->literal(QString("a") + QChar(0) + "b'"), "'ab'''");
}

void tst_PLinkDbC::showsLastError()
{
    const PRefPtr<PLinkDbC> linkDb = opened();
    linkDb->showLastError();
    QVERIFY(m_sink->shown.isEmpty());
    QVERIFY(!linkDb->executeInsertStatement("INSERT INTO plm_document(nothing) VALUES('x')"));
    QVERIFY(linkDb->executeInsertStatement("DELETE FROM plm_document"));
    linkDb->showLastError();
    QCOMPARE(m_sink->shown.size(), 1);
    QVERIFY(m_sink->shown.first().startsWith("16 Fehler der Linkdatenbank: "));
    QVERIFY(m_sink->shown.first().endsWith("\n\nINSERT INTO plm_document(nothing) VALUES('x')"));
    QCOMPARE(m_sink->logged.size(), 1);
}

void tst_PLinkDbC::unconnected()
{
    const PRefPtr<PLinkDbC> linkDb = PLinkDbC::instance();
    QVERIFY(linkDb);
    QVERIFY(!linkDb->isOpen());
    QVERIFY(!linkDb->executeSelectStatement("SELECT 1")->isValid());
    QCOMPARE(linkDb->executeCountStatement("SELECT 1"), -1);
    QVERIFY(!linkDb->executeInsertStatement("DELETE FROM plm_document"));
    QVERIFY(!linkDb->commit());
    QCOMPARE(linkDb->literal("a'b"), "'a''b'");
    QCOMPARE(linkDb->createRecord("plm_document").columns().count(), 0);
    QVERIFY(!linkDb->open(LinkDbSettings()));
    QVERIFY(!linkDb->isOpen());
    QVERIFY(!linkDb->open(LinkDbSettings::fromText(m_folder->path())));
    QVERIFY(
        !linkDb->open(LinkDbSettings::fromText("postgresql:///nowhere?host=" + m_folder->path())));
    QVERIFY(!linkDb->executeInsertStatement("DELETE FROM plm_document"));
    PLinkDbQueryCacheC none{PRefPtr<PLinkDbQueryI>()};
    QVERIFY(!none.next());
}

void tst_PLinkDbC::scriptInterface()
{
    const PRefPtr<PLinkDbC> linkDb(new PLinkDbC);
    QVERIFY(linkDb->open(LinkDbSettings::fromText(m_folder->filePath("x.db"))));
    const ProxyPtrT<prxLinkDbIfaceC> face(new prxLinkDbIfaceC);
    QVERIFY(face->getMainModule() == PLinkDbC::instance());
    PLinkDbC::setInstance(linkDb);
    QVERIFY(face->getMainModule() == linkDb);
    QCOMPARE(face->codeV("12", true), PString("'12'"));
    QCOMPARE(face->codeV("12", false), PString("12"));
    QCOMPARE(face->codeV("12a", false), PString("'12a'"));
    QCOMPARE(face->codeV("", true), PString("''"));
    QCOMPARE(face->codeV(PString(), true), PString("''"));
    QCOMPARE(face->getPlmCondition(), PString());
    QVERIFY(linkDb->setGroupInformation("standard", "PDM_CONDITION", "PDMID1 <> ''"));
    QCOMPARE(face->getPlmCondition(), PString("PDMID1 <> ''"));
    QVERIFY(linkDb->isPending());
    QVERIFY(face->commit());
    QVERIFY(!linkDb->isPending());
    PLinkDbC::setInstance(nullptr);
    QVERIFY(face->getMainModule() != linkDb);
    QVERIFY(!face->getMainModule().isNull());
}

void tst_PLinkDbC::relativePaths()
{
    const PRefPtr<IndexTreeC> tree = IndexTreeC::instance();
    tree->setCatalogRoot(m_folder->path());
    PLinkDbC linkDb;
    QCOMPARE(linkDb.makeRelativePath(m_folder->filePath("cat/sub/a.prj")),
             PString("cat/sub/a.prj"));
    QCOMPARE(linkDb.makeRelativePath("cat\\sub\\a.prj"), PString("cat/sub/a.prj"));
    QCOMPARE(linkDb.makeRelativePath("$TORMEVA_DATA/23d-libs/cat/a.prj"), PString("cat/a.prj"));
    const QTemporaryDir elsewhere;
    QFile file(elsewhere.filePath("a.prj"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(linkDb.makeRelativePath(elsewhere.filePath("./a.prj")), PString(file.fileName()));
    QCOMPARE(linkDb.makeRelativePath(""), PString());
    linkDb.setMoreCatalogRoots({QString(), elsewhere.path()});
    QCOMPARE(linkDb.makeRelativePath(file.fileName()), PString("a.prj"));
    QCOMPARE(linkDb.makeRelativePath(m_folder->filePath("cat/a.prj")), PString("cat/a.prj"));
}

QTEST_GUILESS_MAIN(tst_PLinkDbC)
#include "tst_PLinkDbC.moc"
