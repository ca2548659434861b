#include "../support/SilentServer.h"
#include "RepositoryFixture.h"

#include <geomcore/search/CatalogIndex.h>
#include <geomcore/search/CatalogSearch.h>

#include <QDateTime>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QLockFile>
#include <QSignalSpy>

#include <atomic>

namespace {

QByteArray contentOf(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// Time of the last change of a file, made one that no copying gives.
QDateTime aged(const QString &name)
{
    const QDateTime time = QDateTime::currentDateTimeUtc().addDays(-3);
    QFile file(name);
    if (!file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) ||
        !file.setFileTime(time, QFileDevice::FileModificationTime))
        return {};
    file.close();
    return QFileInfo(name).lastModified();
}

} // namespace

/// Copies of whole catalogs in repositories, and the search in them.
class tst_CatalogMirror : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_fixture = std::make_unique<RepositoryFixture>();
        m_repository = m_fixture->repository();
    }
    void cleanup()
    {
        m_repository.reset();
        m_fixture.reset();
    }
    void allOfACatalog();
    void onlyWhatDiffers();
    void manyChanges();
    void backToAnEarlierRevision();
    void goesOnAfterABreak();
    void linksAreLeftOut();
    void hostileNames();
    void isBounded();
    void growsOutOfTheBound();
    void othersGo();
    void anotherProgramChangesIt();
    void withoutServer();
    void aServerThatIsSilent();
    void cancelled();
    void loginOfEarlier();
    void readersDoNotWait();
    void search();
    void searchWithoutServer();

private:
    QStringList update() { return m_repository->updateMirror({}); }
    /// What repository() gives, as another run of the program.
    void restart() { m_repository = m_fixture->repository(); }
    void commitChange(const QString &name, const QByteArray &content)
    {
        m_fixture->write(name, content);
        m_fixture->commit();
        m_repository->refresh();
    }
    [[nodiscard]] QString copy(const QString &name) const
    {
        return m_repository->mirrorRoot() + "/cat/" + name;
    }
    [[nodiscard]] QString place(const QString &name) const
    {
        return m_fixture->place.filePath("cache/mirror/" + name);
    }
    [[nodiscard]] CatalogSearchResult found(const QString &words) const;

    std::unique_ptr<RepositoryFixture> m_fixture;
    std::shared_ptr<CatalogRepository> m_repository;
};

CatalogSearchResult tst_CatalogMirror::found(const QString &words) const
{
    CatalogSearchQuery query;
    query.text = words;
    return CatalogSearch(m_fixture->place.filePath("index"), m_repository->mirrorRoot()).run(query);
}

void tst_CatalogMirror::allOfACatalog()
{
    QCOMPARE(update(), QStringList());
    QCOMPARE(contentOf(copy("screws/a.csv")), "D\n1\n2\n");
    QVERIFY(QFile::exists(copy("nuts/deep/c.prj")));
    QVERIFY(QDir(place("work")).isEmpty());
    // The tree needs no server any more, nor does a restart.
    m_fixture->server.stop();
    QString problem;
    const auto listing = m_repository->list("cat", "nuts/deep", problem);
    QVERIFY2(listing.has_value(), qPrintable(problem));
    QCOMPARE(listing->projects, QStringList("c.prj"));
    restart();
    QVERIFY(m_repository->list("cat", "screws", problem).has_value());
}

void tst_CatalogMirror::onlyWhatDiffers()
{
    QCOMPARE(update(), QStringList());
    const QDateTime time = aged(copy("screws/b.csv"));
    commitChange("screws/a.csv", "D\n1\n2\n3\n");
    QCOMPARE(contentOf(copy("screws/a.csv")), "D\n1\n2\n");
    QCOMPARE(update(), QStringList());
    QCOMPARE(contentOf(copy("screws/a.csv")), "D\n1\n2\n3\n");
    QCOMPARE(QFileInfo(copy("screws/b.csv")).lastModified(), time); // lies beside it
    const QDateTime next = aged(copy("screws/a.csv"));
    QCOMPARE(update(), QStringList());
    QCOMPARE(QFileInfo(copy("screws/a.csv")).lastModified(), next);
    // New and gone directories, and a file in the place of a directory.
    m_fixture->write("pins/deep/e.prj", "[PROJECT]\n");
    m_fixture->commit();
    QVERIFY(m_fixture->server.remove("nuts"));
    QDir(m_fixture->files.filePath("nuts")).removeRecursively();
    commitChange("nuts", "a file now");
    QCOMPARE(update(), QStringList());
    QVERIFY(QFile::exists(copy("pins/deep/e.prj")));
    QCOMPARE(contentOf(copy("nuts")), "a file now");
    QVERIFY(m_fixture->server.remove("screws/b.prj"));
    m_repository->refresh();
    QCOMPARE(update(), QStringList());
    QVERIFY(!QFile::exists(copy("screws/b.prj")));
    QVERIFY(QFile::exists(copy("screws/b.csv")));
}

void tst_CatalogMirror::manyChanges()
{
    QCOMPARE(update(), QStringList());
    constexpr int more = 201;
    for (int i = 0; i < more; ++i)
        m_fixture->write(QString("many/d%1/p.prj").arg(i), "[PROJECT]\n");
    commitChange("screws/a.csv", "D\n1\n2\n3\n");
    const QDateTime time = aged(copy("screws/b.csv"));
    QCOMPARE(update(), QStringList());
    QCOMPARE(contentOf(copy("screws/a.csv")), "D\n1\n2\n3\n");
    QVERIFY(QFile::exists(copy("many/d200/p.prj")));
    QVERIFY(QFileInfo(copy("screws/b.csv")).lastModified() != time); // all in one call
}

void tst_CatalogMirror::backToAnEarlierRevision()
{
    commitChange("new/x.prj", "[PROJECT]\n");
    QCOMPARE(update(), QStringList());
    QVERIFY(QFile::exists(copy("new/x.prj")));
    CatalogRepository::Options fixed = m_fixture->options();
    fixed.revision = 2;
    m_repository = std::make_shared<CatalogRepository>(fixed);
    QCOMPARE(update(), QStringList());
    QVERIFY(!QFile::exists(copy("new/x.prj")));
    QVERIFY(!QFile::exists(copy("new")));
}

/// A change that came with the update that was broken off and went with the next revision.
void tst_CatalogMirror::goesOnAfterABreak()
{
    QCOMPARE(update(), QStringList());
    const QByteArray before = contentOf(place("state/cat"));
    commitChange("screws/a.csv", "D\n9\n");
    QCOMPARE(update(), QStringList());
    commitChange("screws/a.csv", "D\n1\n2\n");
    // As it is when the program is killed just before it notes the end.
    QFile state(place("state/cat"));
    QVERIFY(state.open(QIODevice::WriteOnly));
    state.write(QByteArray(before).replace("\"revision\"", "\"target\": 3, \"revision\""));
    state.close();
    QCOMPARE(update(), QStringList());
    QCOMPARE(contentOf(copy("screws/a.csv")), "D\n1\n2\n");
    QVERIFY2(contentOf(place("state/cat")).contains("\"revision\": 4"),
             contentOf(place("state/cat")));
    QVERIFY(!contentOf(place("state/cat")).contains("target"));
    QCOMPARE(
        contentOf(place("state/cat")).mid(contentOf(place("state/cat")).indexOf("bytes")).left(12),
        before.mid(before.indexOf("bytes")).left(12));
}

void tst_CatalogMirror::linksAreLeftOut()
{
    const QString outside = m_fixture->place.filePath("outside.txt");
    QFile file(outside);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(m_fixture->server.commitLink("out.prj", outside));
    QCOMPARE(update(), QStringList());
    QVERIFY(!QFileInfo(copy("out.prj")).isSymLink());
    QVERIFY(QFile::exists(copy("screws/a.prj")));
    QVERIFY(m_fixture->server.commitLink("later.prj", outside));
    m_repository->refresh();
    QCOMPARE(update(), QStringList());
    QVERIFY(!QFileInfo(copy("later.prj")).isSymLink());
}

void tst_CatalogMirror::hostileNames()
{
    const QStringList names{"a@2",       "50%20x %1", "<b>&amp;", "'\"`$(touch x)`",
                            "--version", " a ",       "a?b#c;d",  QString::fromUtf8("Größe ∅")};
    for (const QString &name : names)
        m_fixture->write(name + "/" + name + ".prj", "[PROJECT]\nNAME=first\n");
    m_fixture->commit();
    QCOMPARE(update(), QStringList());
    for (const QString &name : names)
        m_fixture->write(name + "/" + name + ".prj", "[PROJECT]\nNAME=second\n");
    commitChange("a@2/more.prj", "[PROJECT]\n");
    QCOMPARE(update(), QStringList());
    for (const QString &name : names)
        QCOMPARE(contentOf(copy(name + "/" + name + ".prj")), "[PROJECT]\nNAME=second\n");
}

void tst_CatalogMirror::isBounded()
{
    CatalogRepository::Options small = m_fixture->options();
    m_fixture->write("big.txt", QByteArray(100'000, 'x'));
    m_fixture->commit();
    small.cacheBytes = 50'000;
    m_repository = std::make_shared<CatalogRepository>(small);
    const QStringList problems = update();
    QCOMPARE(problems, QStringList("Der Katalog " + m_fixture->server.url() +
                                   "/trunk/catalog passt nicht in den Zwischenspeicher von 0 MB; "
                                   "die Suche kennt ihn nicht"));
    QVERIFY(QDir(m_repository->mirrorRoot()).isEmpty());
    QVERIFY(QDir(place("work")).isEmpty());
}

void tst_CatalogMirror::growsOutOfTheBound()
{
    CatalogRepository::Options small = m_fixture->options();
    small.cacheBytes = 50'000;
    m_repository = std::make_shared<CatalogRepository>(small);
    QCOMPARE(update(), QStringList());
    commitChange("big.txt", QByteArray(49'900, 'x'));
    QCOMPARE(update().size(), 1);
    QVERIFY(QDir(m_repository->mirrorRoot()).isEmpty());
    commitChange("big.txt", "x");
    QCOMPARE(update(), QStringList());
    QVERIFY(QFile::exists(copy("big.txt")));
}

void tst_CatalogMirror::othersGo()
{
    CatalogRepository::Options two = m_fixture->options();
    two.servers.insert("second one", m_fixture->server.url());
    m_repository = std::make_shared<CatalogRepository>(two);
    QCOMPARE(update(), QStringList());
    QCOMPARE(QDir(m_repository->mirrorRoot()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList({"cat", "second%20one"}));
    restart(); // without the second one's server
    QCOMPARE(m_repository->catalogs(), QStringList("cat"));
    QCOMPARE(update(), QStringList());
    QCOMPARE(QDir(m_repository->mirrorRoot()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList("cat"));
}

void tst_CatalogMirror::anotherProgramChangesIt()
{
    QCOMPARE(update(), QStringList());
    commitChange("screws/a.csv", "D\n5\n");
    {
        QLockFile lock(place("lock"));
        QVERIFY(lock.tryLock(0));
        QCOMPARE(update(), QStringList());
        QCOMPARE(contentOf(copy("screws/a.csv")), "D\n1\n2\n");
    }
    QCOMPARE(update(), QStringList());
    QCOMPARE(contentOf(copy("screws/a.csv")), "D\n5\n");
}

void tst_CatalogMirror::withoutServer()
{
    m_fixture->server.stop();
    const QStringList problems = update();
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().startsWith("Das Repository " + m_fixture->server.url() +
                                         "/trunk/catalog antwortet nicht: "),
             qPrintable(problems.first()));
    QVERIFY(m_fixture->server.start());
    QCOMPARE(update(), QStringList()); // it is asked again each time
    m_fixture->server.stop();
    QCOMPARE(update(), QStringList()); // the revision is known and there
    m_repository->refresh();
    QCOMPARE(update().size(), 1);
    QVERIFY(QFile::exists(copy("screws/a.csv")));
}

void tst_CatalogMirror::aServerThatIsSilent()
{
    const SilentServer silent;
    CatalogRepository::Options options = m_fixture->options();
    options.servers.insert("cat", silent.url());
    options.silence = std::chrono::milliseconds(300);
    for (const qint64 revision : {-1, 2}) {
        options.revision = revision;
        m_repository = std::make_shared<CatalogRepository>(options);
        const QStringList problems = update();
        QCOMPARE(problems.size(), 1);
        QVERIFY2(problems.first().contains("in 0.3 s"), qPrintable(problems.first()));
    }
}

void tst_CatalogMirror::cancelled()
{
    const SilentServer silent;
    CatalogRepository::Options options = m_fixture->options();
    options.servers.insert("cat", silent.url());
    options.revision = 2; // the export is what waits
    m_repository = std::make_shared<CatalogRepository>(options);
    int asked = 0;
    const QStringList problems = m_repository->updateMirror([&asked] { return ++asked < 5; });
    QCOMPARE(problems, QStringList());
    QVERIFY(asked >= 5);
    QVERIFY(QDir(m_repository->mirrorRoot()).isEmpty());
    QVERIFY(QDir(place("work")).isEmpty());
}

void tst_CatalogMirror::loginOfEarlier()
{
    QVERIFY(m_fixture->server.demandLogin("eva", "geheim"));
    CatalogRepository::Options options = m_fixture->options();
    int asked = 0;
    options.askForLogin = [&asked](const QString &, const QString &) {
        ++asked;
        return RepositoryLogin{"eva", "geheim"};
    };
    m_repository = std::make_shared<CatalogRepository>(options);
    const QStringList problems = update();
    QCOMPARE(asked, 0);
    QCOMPARE(problems.size(), 1);
    QVERIFY2(problems.first().startsWith("Das Repository " + m_fixture->server.url() +
                                         "/trunk/catalog verlangt eine Anmeldung: "),
             qPrintable(problems.first()));
    QString problem;
    QVERIFY(m_repository->list("cat", "", problem).has_value());
    QCOMPARE(asked, 1);
    QCOMPARE(update(), QStringList());
    QVERIFY(QFile::exists(copy("screws/a.csv")));
}

/// While a server keeps the update waiting, files and lists that are here are read at once.
void tst_CatalogMirror::readersDoNotWait()
{
    QString problem;
    QVERIFY(m_repository->list("cat", "screws", problem).has_value());
    const SilentServer silent;
    CatalogRepository::Options options = m_fixture->options();
    options.servers.insert("slow", silent.url());
    m_repository = std::make_shared<CatalogRepository>(options);
    QVERIFY(m_repository->list("cat", "screws", problem).has_value());
    QVERIFY(m_repository->catalogs().contains("slow"));
    std::atomic<bool> ends = false;
    std::atomic<int> asked = 0;
    std::thread updating([&] {
        (void)m_repository->updateMirror([&] {
            ++asked;
            return !ends;
        });
    });
    while (!QFileInfo::exists(copy("screws/a.csv")) || asked < 5)
        QThread::msleep(5);
    const int before = asked;
    QVERIFY(m_repository->list("cat", "screws", problem).has_value());
    QVERIFY(!m_repository->fileOf("svn://cat/trunk/catalog/screws/a.prj").isEmpty());
    QVERIFY(asked < before + 100); // it still waits: far from the 30 s of silence
    ends = true;
    updating.join();
}

void tst_CatalogMirror::search()
{
    CatalogIndex index(m_fixture->place.filePath("index"), m_repository->mirrorRoot());
    index.setBring([this](const auto &goOn) { return m_repository->updateMirror(goOn); });
    QSignalSpy updated(&index, &CatalogIndex::updateFinished);
    const auto outcome = [&]() -> CatalogIndexOutcome {
        index.update();
        if (!updated.wait(20000))
            return {};
        return updated.takeLast().at(0).value<CatalogIndexOutcome>();
    };
    QCOMPARE(outcome().added, 3);
    CatalogSearchResult result = found("hexagon");
    QCOMPARE(result.hits.size(), 1);
    QCOMPARE(result.hits.first().path, "cat/screws/a.prj");
    QCOMPARE(result.hits.first().lineCount, 2);
    CatalogSearchQuery query;
    query.conditions = {*CatalogSearchCondition::parse("D = 7")};
    QCOMPARE(CatalogSearch(index.indexFile(), m_repository->mirrorRoot()).run(query).hits.size(),
             1);
    // Another revision: what changed in it is read, and nothing else.
    m_fixture->write("screws/b.prj", "[PROJECT]\nNAME=Countersunk\nSACHM=b.json\n");
    m_fixture->write("pins/e.prj", "[PROJECT]\nNAME=Dowel\n");
    m_fixture->commit();
    QVERIFY(m_fixture->server.remove("nuts"));
    CatalogIndexOutcome next = outcome();
    QCOMPARE(next.added + next.removed, 0); // the revision is that of before
    m_repository->refresh();
    next = outcome();
    QCOMPARE(next.added, 1);
    QCOMPARE(next.removed, 1);
    QCOMPARE(next.projects, 3);
    QCOMPARE(next.outdated, QStringList());
    QCOMPARE(found("countersunk").hits.size(), 1);
    QCOMPARE(found("cylinder").hits.size(), 0);
    QCOMPARE(found("wing").hits.size(), 0);
    QCOMPARE(found("dowel").hits.size(), 1);
}

void tst_CatalogMirror::searchWithoutServer()
{
    const auto outcome = [this] {
        CatalogIndex index(m_fixture->place.filePath("index"), m_repository->mirrorRoot());
        index.setBring([this](const auto &goOn) { return m_repository->updateMirror(goOn); });
        QSignalSpy updated(&index, &CatalogIndex::updateFinished);
        index.update();
        return updated.wait(20000) ? updated.takeLast().at(0).value<CatalogIndexOutcome>()
                                   : CatalogIndexOutcome();
    };
    QCOMPARE(outcome().projects, 3);
    m_fixture->server.stop();
    restart();
    const CatalogIndexOutcome alone = outcome();
    QCOMPARE(alone.state, CatalogIndexOutcome::Done);
    QCOMPARE(alone.projects, 3);
    QCOMPARE(alone.outdated.size(), 1);
    QVERIFY2(alone.outdated.first().contains("antwortet nicht"),
             qPrintable(alone.outdated.first()));
    QCOMPARE(found("hexagon").hits.size(), 1);
}

QTEST_MAIN(tst_CatalogMirror)
#include "tst_CatalogMirror.moc"
