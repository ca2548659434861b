#include "../support/SilentServer.h"
#include "../support/SubversionServer.h"

#include <core/progress/PProgress.h>
#include <core/progress/PProgressObserverBase.h>
#include <core/text/PPathName.h>
#include <geomcore/project/PrjClass.h>
#include <geomcore/repository/CatalogRepository.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/readProjectTable.h>

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <atomic>
#include <memory>
#include <thread>

namespace {

/// Cancels what it hears of.
class Canceller : public PProgressObserverBase
{
public:
    Canceller() { activate(Thread); }
    ~Canceller() override { deactivate(); }
    void progressStarted(const PProgressInfo &info) override
    {
        texts.append(info.text);
        info.cancel->request();
    }
    void progressChanged(const PProgressInfo &info) override { info.cancel->request(); }
    void progressDone(const PProgressInfo &) override {}

    QStringList texts;
};

/// Counts what it hears of.
class Listener : public PProgressObserverBase
{
public:
    Listener() { activate(Thread); }
    ~Listener() override { deactivate(); }
    void progressStarted(const PProgressInfo &info) override { allowed = info.cancellable; }
    void progressChanged(const PProgressInfo &) override { ++changes; }
    void progressDone(const PProgressInfo &) override { ++ends; }

    bool allowed = false;
    int changes = 0;
    int ends = 0;
};

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// A repository with the catalog "cat": a project in "a b", its table in "tables", both with lines.
class tst_CatalogRepository : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void projectAndTable();
    void oneRevisionUntilRefresh();
    void aFixedRevision();
    void whatIsNotThere();
    void hostileNames_data();
    void hostileNames();
    void nothingIsReadTwice();
    void aRestartWithoutServer();
    void withoutServerAndCache();
    void aServerThatCameBack();
    void aServerThatIsSilent();
    void cancelled();
    void login();
    void loginThatFails();
    void nobodyToAsk();
    void linksAreLeftOut();
    void otherFilesAreNotItsOwn();
    void theCacheIsBounded();
    void whoWasUsedStays();
    void aTenthMoreGoes();
    void severalThreads();
    void withoutClient();
    void whatTheClientIsTold();

private:
    void write(const QString &name, const QByteArray &content) const;
    [[nodiscard]] CatalogRepository::Options options() const;
    std::shared_ptr<CatalogRepository> install(const CatalogRepository::Options &options);
    [[nodiscard]] QString readLine(const QString &address, QString *error = nullptr) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SubversionServer> m_server;
};

void tst_CatalogRepository::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_server = std::make_unique<SubversionServer>();
    write("a b/p.prj", "[PROJECT]\nSACHM=../tables/t.json\n");
    write("a b/q.prj", "[PROJECT]\nSACHM=cat/tables/t.json\n");
    write("tables/t.json",
          R"({"version": 1, "path": "t.csv", "variables": [{"name": "D", "type": "number"}]})");
    write("tables/t.csv", "D\n1\n2\n");
    QVERIFY2(m_server->problem().isEmpty(), qPrintable(m_server->problem()));
    QVERIFY2(m_server->commit(m_dir->filePath("files")), qPrintable(m_server->problem()));
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
}

void tst_CatalogRepository::cleanup()
{
    AddressedFiles::install(nullptr);
    m_server.reset();
    m_dir.reset();
}

void tst_CatalogRepository::write(const QString &name, const QByteArray &content) const
{
    QFile file(m_dir->filePath("files/" + name));
    QVERIFY(QDir().mkpath(QFileInfo(file).path()));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), content.size());
}

CatalogRepository::Options tst_CatalogRepository::options() const
{
    CatalogRepository::Options options;
    options.cacheDirectory = m_dir->filePath("cache");
    options.servers.insert("cat", m_server->url());
    return options;
}

std::shared_ptr<CatalogRepository>
tst_CatalogRepository::install(const CatalogRepository::Options &options)
{
    auto repository = std::make_shared<CatalogRepository>(options);
    AddressedFiles::install(repository);
    return repository;
}

/// Last value of the first column of a project's table.
QString tst_CatalogRepository::readLine(const QString &address, QString *error) const
{
    VKTab::Content content;
    const VKTab::ProjectTable table =
        VKTab::readProjectTable(PPathName(address).native(), content, {.tells = false});
    if (!table) {
        if (error)
            *error = table.errors.isEmpty() ? QString() : table.errors.first().text;
        return {};
    }
    return QString::number(content.getLineCount());
}

void tst_CatalogRepository::projectAndTable()
{
    const auto repository = install(options());
    QVERIFY(PPathName("svn://cat/trunk/catalog/a b/p.prj").exists(false));
    QVERIFY(PPathName("svn://cat/trunk/catalog/a b/p.prj").isAddress());
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    // A table by its place in the catalog, as the projects on the disk may have it.
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/q.prj"), "2");
    QCOMPARE(repository->revisionOf("cat"), 2);
    QCOMPARE(repository->revisionOf("dog"), -1);
    AddressedFiles::install(nullptr);
    QVERIFY(!PPathName("svn://cat/trunk/catalog/a b/p.prj").exists(false));
    QCOMPARE(PPathName("svn://cat/trunk/catalog/a b/p.prj").native(),
             "svn://cat/trunk/catalog/a b/p.prj");
}

void tst_CatalogRepository::oneRevisionUntilRefresh()
{
    const auto repository = install(options());
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    write("tables/t.csv", "D\n1\n2\n3\n");
    write("new/p.prj", "[PROJECT]\nSACHM=../tables/t.json\n");
    QVERIFY2(m_server->commit(m_dir->filePath("files")), qPrintable(m_server->problem()));
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    QVERIFY(!PPathName("svn://cat/trunk/catalog/new/p.prj").exists(false));
    repository->refresh();
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "3");
    QVERIFY(PPathName("svn://cat/trunk/catalog/new/p.prj").exists(false));
    QCOMPARE(repository->revisionOf("cat"), 3);
}

void tst_CatalogRepository::aFixedRevision()
{
    write("tables/t.csv", "D\n1\n2\n3\n");
    QVERIFY2(m_server->commit(m_dir->filePath("files")), qPrintable(m_server->problem()));
    CatalogRepository::Options fixed = options();
    fixed.revision = 2;
    install(fixed);
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    fixed.revision = 1;
    install(fixed);
    QString error;
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj", &error), QString());
    QVERIFY2(error.contains(m_server->url() + "/trunk/catalog/a%20b") && error.contains("1"),
             qPrintable(error));
}

void tst_CatalogRepository::whatIsNotThere()
{
    install(options());
    QVERIFY(!PPathName("svn://cat/trunk/catalog/a b/r.prj").exists(false));
    QVERIFY(!PPathName("svn://cat/trunk/catalog/none/p.prj").exists(false));
    QString error;
    QCOMPARE(readLine("svn://cat/trunk/catalog/none/p.prj", &error), QString());
    QVERIFY2(error.contains(m_server->url() + "/trunk/catalog/none"), qPrintable(error));
    // Directories are none of the files that are brought.
    QVERIFY(!PPathName("svn://cat/trunk/catalog/tables").exists(false));
}

void tst_CatalogRepository::hostileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("peg") << "a@2.prj";
    QTest::newRow("percent") << "50%20x %1.prj";
    QTest::newRow("markup") << "<b>&amp;.prj";
    QTest::newRow("quotes") << "'\"`$(touch x)`.prj";
    QTest::newRow("option") << "--version.prj";
    QTest::newRow("umlaut") << QString::fromUtf8("Größe ∅.prj");
    QTest::newRow("question") << "a?b#c;d.prj";
}

void tst_CatalogRepository::hostileNames()
{
    QFETCH(QString, name);
    write(name + "/" + name, "[PROJECT]\nSACHM=../tables/t.json\n");
    QVERIFY2(m_server->commit(m_dir->filePath("files")), qPrintable(m_server->problem()));
    install(options());
    QCOMPARE(readLine("svn://cat/trunk/catalog/" + name + "/" + name), "2");
}

void tst_CatalogRepository::nothingIsReadTwice()
{
    const auto repository = install(options());
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    m_server->stop();
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/q.prj"), "2");
    QVERIFY(!PPathName("svn://cat/trunk/catalog/a b/r.prj").exists(false));
}

void tst_CatalogRepository::aRestartWithoutServer()
{
    install(options());
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    m_server->stop();
    CatalogRepository::Options next = options();
    QStringList told;
    next.tell = [&told](const QString &text) {
        told.append(text);
    };
    const auto repository = install(next);
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    QCOMPARE(repository->revisionOf("cat"), 2);
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().contains(m_server->url()) && told.first().contains("2"),
             qPrintable(told.first()));
    QString problem;
    QVERIFY(!repository->provide(repository->fileOf("svn://cat/trunk/catalog/x/p.prj"), problem));
    QVERIFY2(problem.startsWith("Das Repository " + m_server->url() + "/trunk/catalog/x antwortet"),
             qPrintable(problem));
}

void tst_CatalogRepository::withoutServerAndCache()
{
    m_server->stop();
    CatalogRepository::Options alone = options();
    bool told = false;
    alone.tell = [&told](const QString &) {
        told = true;
    };
    install(alone);
    QString error;
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj", &error), QString());
    QVERIFY2(error.contains("Das Repository " + m_server->url()), qPrintable(error));
    QVERIFY(!told);
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    std::static_pointer_cast<CatalogRepository>(AddressedFiles::installed())->refresh();
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
}

void tst_CatalogRepository::aServerThatCameBack()
{
    CatalogRepository::Options fixed = options();
    fixed.revision = 2;
    const auto repository = install(fixed);
    m_server->stop();
    QVERIFY(!PPathName("svn://cat/trunk/catalog/a b/p.prj").exists(false));
    QVERIFY2(m_server->start(), qPrintable(m_server->problem()));
    // It is left alone for a while, unless the user wants to see what is new.
    QVERIFY(!PPathName("svn://cat/trunk/catalog/a b/p.prj").exists(false));
    repository->refresh();
    QVERIFY(PPathName("svn://cat/trunk/catalog/a b/p.prj").exists(false));
}

void tst_CatalogRepository::aServerThatIsSilent()
{
    const SilentServer silent;
    CatalogRepository::Options quick = options();
    quick.servers.insert("cat", silent.url());
    quick.silence = std::chrono::milliseconds(300);
    install(quick);
    QString error;
    Listener listener;
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj", &error), QString());
    QVERIFY(listener.allowed);
    QVERIFY(listener.changes > 1);
    QCOMPARE(listener.ends, 1);
    QVERIFY2(error.contains("Keine Antwort von " + silent.url() + "/trunk/catalog in 0.3 s"),
             qPrintable(error));
}

void tst_CatalogRepository::cancelled()
{
    const SilentServer silent;
    CatalogRepository::Options patient = options();
    patient.servers.insert("cat", silent.url());
    install(patient);
    QString error;
    {
        Canceller canceller;
        QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj", &error), QString());
        QVERIFY(!canceller.texts.isEmpty());
    }
    QVERIFY2(error.contains("Abgebrochen: " + silent.url()), qPrintable(error));
}

void tst_CatalogRepository::login()
{
    QVERIFY(m_server->demandLogin("eva", "geh eim"));
    CatalogRepository::Options asking = options();
    QStringList asked;
    asking.askForLogin = [&asked](const QString &url, const QString &) {
        asked.append(url);
        return RepositoryLogin{"eva", asked.size() == 1 ? "falsch" : "geh eim"};
    };
    install(asking);
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj"), "2");
    QCOMPARE(asked,
             QStringList({m_server->url() + "/trunk/catalog", m_server->url() + "/trunk/catalog"}));
    // Nothing of it is on the disk.
    QDirIterator files(m_dir->filePath("cache"), QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    int seen = 0;
    while (files.hasNext()) {
        const QString name = files.next();
        ++seen;
        QVERIFY2(!contentOf(name).contains("geh eim"), qPrintable(name));
    }
    QVERIFY(seen > 3);
}

void tst_CatalogRepository::loginThatFails()
{
    QVERIFY(m_server->demandLogin("eva", "geheim"));
    CatalogRepository::Options asking = options();
    int asked = 0;
    asking.askForLogin = [&asked](const QString &, const QString &) {
        ++asked;
        return RepositoryLogin{"eva", "falsch"};
    };
    install(asking);
    QString error;
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj", &error), QString());
    QCOMPARE(asked, 3);
    QVERIFY2(error.contains(m_server->url()) && !error.contains("falsch"), qPrintable(error));
}

void tst_CatalogRepository::nobodyToAsk()
{
    QVERIFY(m_server->demandLogin("eva", "geheim"));
    install(options());
    QString error;
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj", &error), QString());
    QVERIFY2(error.contains(m_server->url()), qPrintable(error));
}

void tst_CatalogRepository::linksAreLeftOut()
{
    write("secret", "mine");
    QVERIFY2(m_server->commitLink("link.prj", m_dir->filePath("files/secret")),
             qPrintable(m_server->problem()));
    const auto repository = install(options());
    QVERIFY(!PPathName("svn://cat/trunk/catalog/link.prj").exists(false));
    QVERIFY(!QFileInfo(repository->fileOf("svn://cat/trunk/catalog/link.prj")).isSymLink());
}

void tst_CatalogRepository::otherFilesAreNotItsOwn()
{
    const auto repository = install(options());
    QString problem;
    QVERIFY(repository->fileOf("svn://cat/branches/a").isEmpty());
    QVERIFY(repository->provide("/somewhere/p.prj", problem));
    QVERIFY(repository->provide("relative/p.prj", problem));
    QVERIFY(repository->provide(m_dir->filePath("cache/x/2/cat/p.prj"), problem));
    QVERIFY(repository->provide(m_dir->filePath("cache2/p.prj"), problem));
    // A path that leaves the catalog asks for nothing.
    const QString file = repository->fileOf("svn://cat/trunk/catalog/a b/p.prj");
    QVERIFY(repository->provide(QFileInfo(file).path() + "/../../dog/p.prj", problem));
    QVERIFY(!QFileInfo::exists(QDir::cleanPath(QFileInfo(file).path() + "/../../dog")));
    QVERIFY(repository->provide(QFileInfo(file).path() + "/../../../../p.prj", problem));
    QVERIFY(problem.isEmpty());
}

void tst_CatalogRepository::theCacheIsBounded()
{
    for (const char *name : {"1", "2", "3", "4"})
        write(QString(name) + "/p.prj", QByteArray(1000, 'x'));
    QVERIFY2(m_server->commit(m_dir->filePath("files")), qPrintable(m_server->problem()));
    CatalogRepository::Options small = options();
    small.cacheBytes = 2500;
    const auto repository = install(small);
    for (const char *name : {"1", "2", "3", "4"})
        QVERIFY(PPathName(QString("svn://cat/trunk/catalog/%1/p.prj").arg(name)).exists(false));
    QStringList there;
    for (const char *name : {"1", "2", "3", "4"}) {
        const QString file =
            repository->fileOf(QString("svn://cat/trunk/catalog/%1/p.prj").arg(name));
        if (QFileInfo::exists(file))
            there.append(name);
    }
    QCOMPARE(there.size(), 2);
    QVERIFY(there.contains("4"));
    // What went is fetched again.
    QVERIFY(PPathName("svn://cat/trunk/catalog/1/p.prj").exists(false));
}

void tst_CatalogRepository::whoWasUsedStays()
{
    RepositoryCache cache(m_dir->filePath("bounded"), 250);
    const auto put = [&](const QString &path) {
        const QString work = cache.workDirectory("key");
        QVERIFY(QDir().mkpath(work));
        QFile file(work + "/f");
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(QByteArray(100, 'x')), 100);
        file.close();
        QString problem;
        QVERIFY2(cache.take("key", 7, path, work, problem), qPrintable(problem));
        QVERIFY(!QFileInfo::exists(work));
    };
    put("cat/a");
    put("cat/b");
    // As if both were of yesterday, a a little younger than b.
    for (const QFileInfo &info :
         QDir(m_dir->filePath("bounded/key/done")).entryInfoList(QDir::Files)) {
        QFile file(info.filePath());
        QVERIFY(file.open(QIODevice::ReadWrite));
        const bool isA = file.readAll().endsWith("cat/a");
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(isA ? -2 : -1),
                                 QFileDevice::FileModificationTime));
    }
    RepositoryCache next(m_dir->filePath("bounded"), 250);
    QVERIFY(next.has("key", 7, "cat/a")); // used now
    const QString work = next.workDirectory("key");
    QVERIFY(QDir().mkpath(work));
    QFile file(work + "/f");
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(QByteArray(100, 'x')), 100);
    file.close();
    QString problem;
    QVERIFY(next.take("key", 7, "cat/c", work, problem));
    QVERIFY(next.has("key", 7, "cat/a"));
    QVERIFY(!next.has("key", 7, "cat/b"));
    QVERIFY(next.has("key", 7, "cat/c"));
    QVERIFY(!QFileInfo::exists(m_dir->filePath("bounded/key/7/cat/b")));
    QVERIFY(!next.has("key", 8, "cat/a"));
}

void tst_CatalogRepository::aTenthMoreGoes()
{
    RepositoryCache cache(m_dir->filePath("bounded"), 1000);
    const auto put = [&](const QString &path) {
        const QString work = cache.workDirectory("key");
        QVERIFY(QDir().mkpath(work));
        QFile file(work + "/f");
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(QByteArray(50, 'x')), 50);
        file.close();
        QString problem;
        QVERIFY2(cache.take("key", 7, path, work, problem), qPrintable(problem));
    };
    const QDir done(m_dir->filePath("bounded/key/done"));
    for (int i = 0; i < 20; ++i)
        put(QString("cat/%1").arg(i));
    QCOMPARE(done.entryList(QDir::Files).size(), 20);
    put("cat/20");
    QCOMPARE(done.entryList(QDir::Files).size(), 18); // 900 of 1000 bytes
    QVERIFY(cache.has("key", 7, "cat/20"));
    put("cat/21");
    QCOMPARE(done.entryList(QDir::Files).size(), 19);
}

void tst_CatalogRepository::severalThreads()
{
    const auto repository = install(options());
    std::atomic_int good = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&, i] {
            const char *name = i % 2 ? "p" : "q";
            if (readLine(QString("svn://cat/trunk/catalog/a b/%1.prj").arg(name)) == "2")
                ++good;
        });
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(good.load(), 4);
}

void tst_CatalogRepository::withoutClient()
{
    CatalogRepository::Options without = options();
    without.client = m_dir->filePath("no-such-client");
    install(without);
    QString error;
    QCOMPARE(readLine("svn://cat/trunk/catalog/a b/p.prj", &error), QString());
    QVERIFY2(error.contains("no-such-client"), qPrintable(error));
}

/// Neither asks nor keeps anything, and a password is no argument, which others could see.
void tst_CatalogRepository::whatTheClientIsTold()
{
    const QString client = m_dir->filePath("client.sh");
    QFile script(client);
    QVERIFY(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n[ \"$1\" = info ] || cat > \"$0.in\"\nprintf '%s\\n' \"$@\" >> "
                 "\"$0.arguments\"\necho 7\n");
    script.close();
    QVERIFY(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
    RepositoryClient told(client, m_dir->filePath("settings"), std::chrono::seconds(30));
    QCOMPARE(told.lastRevision("svn://h/c").text, "7");
    told.setLogin({"eva", "geheim"});
    QVERIFY(told.exportFiles("svn://h/c/a%20b", 7, m_dir->filePath("out")).isDone());
    const QByteArrayList always{"--non-interactive", "--no-auth-cache", "--config-dir",
                                m_dir->filePath("settings").toUtf8()};
    const QByteArrayList expected =
        QByteArrayList{"info", "--show-item", "last-changed-revision", "--no-newline",
                       "svn://h/c@HEAD"} +
        always +
        QByteArrayList{"export",
                       "--ignore-externals",
                       "--depth",
                       "files",
                       "-r",
                       "7",
                       "svn://h/c/a%20b@7",
                       m_dir->filePath("out").toUtf8()} +
        always + QByteArrayList{"--username", "eva", "--password-from-stdin", ""};
    QCOMPARE(contentOf(client + ".arguments").split('\n'), expected);
    QCOMPARE(contentOf(client + ".in"), "geheim\n");
}

QTEST_GUILESS_MAIN(tst_CatalogRepository)
#include "tst_CatalogRepository.moc"
