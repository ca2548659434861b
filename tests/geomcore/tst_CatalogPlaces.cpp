#include <geomcore/index/IndexTreeC.h>
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/project/tableFileOf.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

/// A root with the catalogs "cat" and "other", and a directory outside of it.
class tst_CatalogPlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void namedFiles_data();
    void namedFiles();
    void allowedPlaces();
    void dataDirectory();
    void withoutARoot();
    void theInnermostRootCounts();
    void joinedPaths_data();
    void joinedPaths();
    void targets_data();
    void targets();
    void rootsOfIndexTrees();
    void tableFiles_data();
    void tableFiles();

private:
    QString path(const QString &name) const { return m_dir->filePath(name); }
    void touch(const QString &name) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QVERIFY(QFile(path(name)).open(QIODevice::WriteOnly));
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    CatalogPlaces m_places;
};

void tst_CatalogPlaces::init()
{
    qunsetenv("TORMEVA_DATA");
    m_dir = std::make_unique<QTemporaryDir>();
    for (const char *name : {"root/cat/sub/p.prj", "root/cat/t.json", "root/other/t.json",
                             "outside/t.json", "rootlike/t.json"})
        touch(name);
    QVERIFY(QFile::link(path("outside/t.json"), path("root/cat/link.json")));
    QVERIFY(QFile::link(path("outside"), path("root/cat/linked")));
    QVERIFY(QFile::link(path("root/other/t.json"), path("root/cat/inner.json")));
    m_places.addRoot(PPathName(path("root")));
    CatalogPlaces::instance().addRoot(PPathName(path("root")));
}

void tst_CatalogPlaces::cleanup()
{
    m_places.setAllowed({});
    m_dir.reset();
}

void tst_CatalogPlaces::namedFiles_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("read");
    QTest::newRow("beside") << "root/cat/sub/t.json" << true;
    QTest::newRow("above, in the catalog") << "root/cat/sub/../t.json" << true;
    QTest::newRow("another catalog") << "root/cat/../other/t.json" << true;
    QTest::newRow("link within the root") << "root/cat/inner.json" << true;
    QTest::newRow("not there") << "root/cat/none.json" << true;
    QTest::newRow("outside") << "outside/t.json" << false;
    QTest::newRow("up and out") << "root/cat/../../outside/t.json" << false;
    QTest::newRow("out and not there") << "root/cat/../../outside/none.json" << false;
    QTest::newRow("begins like the root") << "rootlike/t.json" << false;
    QTest::newRow("link") << "root/cat/link.json" << false;
    QTest::newRow("below a link") << "root/cat/linked/t.json" << false;
    QTest::newRow("below a link and not there") << "root/cat/linked/none.json" << false;
}

void tst_CatalogPlaces::namedFiles()
{
    QFETCH(QString, file);
    QFETCH(bool, read);
    const QString refusal = m_places.refusal(path(file), path("root/cat/sub/p.prj"));
    QCOMPARE(refusal.isEmpty(), read);
    if (!read)
        QVERIFY2(refusal.contains(path("root")) && refusal.contains(path(file)),
                 qPrintable(refusal));
    QVERIFY(!m_places.refusal("svn://host/t.json", path("root/cat/sub/p.prj")).isEmpty());
}

void tst_CatalogPlaces::allowedPlaces()
{
    const QString project = path("root/cat/sub/p.prj");
    m_places.setAllowed({path("outside/")});
    QCOMPARE(m_places.refusal(path("outside/t.json"), project), QString());
    QCOMPARE(m_places.refusal(path("root/cat/link.json"), project), QString());
    QVERIFY(!m_places.refusal(path("rootlike/t.json"), project).isEmpty());
    // What names no place allows nothing.
    m_places.setAllowed({"", "$NO_SUCH_VARIABLE", "."});
    QVERIFY(!m_places.refusal(path("outside/t.json"), project).isEmpty());
}

void tst_CatalogPlaces::dataDirectory()
{
    const QString project = path("root/cat/sub/p.prj");
    qputenv("TORMEVA_DATA", path("outside").toUtf8());
    QCOMPARE(m_places.refusal(path("outside/t.json"), project), QString());
    qunsetenv("TORMEVA_DATA");
    QVERIFY(!m_places.refusal(path("outside/t.json"), project).isEmpty());
}

void tst_CatalogPlaces::withoutARoot()
{
    const QString project = path("outside/p.prj");
    QCOMPARE(m_places.rootOf(project), QString());
    QCOMPARE(m_places.catalogPathOf(project), QString());
    QCOMPARE(m_places.refusal(path("outside/t.json"), project), QString());
    QVERIFY(!m_places.refusal(path("rootlike/t.json"), project).isEmpty());
}

void tst_CatalogPlaces::theInnermostRootCounts()
{
    m_places.addRoot(PPathName(path("root/cat")));
    m_places.addRoot(PPathName(m_dir->path())); // whatever was added last
    const QString project = path("root/cat/sub/p.prj");
    QCOMPARE(m_places.rootOf(project), path("root/cat"));
    QCOMPARE(m_places.catalogPathOf(project), "sub/p.prj");
    QVERIFY(!m_places.refusal(path("root/other/t.json"), project).isEmpty());
    QCOMPARE(m_places.catalogPathOf(path("root/other/p.prj")), "other/p.prj");
}

void tst_CatalogPlaces::joinedPaths_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("read");
    QTest::newRow("in the root") << "root/cat/sub/p.prj" << true;
    QTest::newRow("of no root") << "outside/p.prj" << true;
    QTest::newRow("within and back") << "root/cat/../other/p.prj" << true;
    QTest::newRow("out") << "root/../outside/t.json" << false;
    QTest::newRow("out by a link") << "root/cat/linked/t.json" << false;
}

void tst_CatalogPlaces::joinedPaths()
{
    QFETCH(QString, file);
    QFETCH(bool, read);
    QCOMPARE(m_places.refusal(m_dir->path() + u'/' + file).isEmpty(), read);
}

void tst_CatalogPlaces::targets_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<bool>("read");
    QTest::newRow("in the root") << "%1/root/cat/sub/p.prj" << true;
    QTest::newRow("in the root, not there") << "%1/root/cat/none.prj" << true;
    QTest::newRow("in another root") << "%1/rootlike/p.prj" << true;
    QTest::newRow("of no root") << "%1/outside/p.prj" << false;
    QTest::newRow("allowed") << "%1/allowed/p.prj" << true;
    QTest::newRow("begins like an allowed place") << "%1/allowed2/p.prj" << false;
    QTest::newRow("out by a link") << "%1/root/cat/linked/t.json" << false;
    QTest::newRow("out by ..") << "%1/root/../outside/t.json" << false;
    QTest::newRow("variable that is not there") << "$NO_SUCH_VARIABLE/p.prj" << false;
    QTest::newRow("address") << "svn://host/p.prj" << false;
}

void tst_CatalogPlaces::targets()
{
    QFETCH(QString, file);
    m_places.addRoot(PPathName(path("rootlike")));
    m_places.setAllowed({path("allowed")});
    file.replace("%1", m_dir->path());
    QTEST(m_places.refusalOfTarget(file).isEmpty(), "read");
}

void tst_CatalogPlaces::rootsOfIndexTrees()
{
    const QTemporaryDir other;
    const PRefPtr<IndexTreeC> tree(new IndexTreeC(PPathName(other.path())));
    QCOMPARE(CatalogPlaces::instance().rootOf(other.filePath("c/p.prj")), other.path());
    const QTemporaryDir later;
    tree->setCatalogRoot(PPathName(later.path()));
    QCOMPARE(CatalogPlaces::instance().rootOf(later.filePath("c/p.prj")), later.path());
}

void tst_CatalogPlaces::tableFiles_data()
{
    QTest::addColumn<QString>("reference");
    QTest::addColumn<QString>("file");
    QTest::newRow("beside") << "t.json"
                            << "root/cat/sub/t.json";
    QTest::newRow("above") << "../t.json"
                           << "root/cat/t.json";
    QTest::newRow("from the catalog root") << "cat/t.json"
                                           << "root/cat/t.json";
    QTest::newRow("from the catalog root, backslash") << "cat\\t.json"
                                                      << "root/cat/t.json";
    QTest::newRow("of another catalog") << "other/t.json"
                                        << "root/cat/sub/other/t.json";
    QTest::newRow("absolute") << "/abs/t.json"
                              << "/abs/t.json";
    QTest::newRow("none") << ""
                          << "";
}

void tst_CatalogPlaces::tableFiles()
{
    QFETCH(QString, reference);
    QFETCH(QString, file);
    const QString expected = file.isEmpty() || file.startsWith(u'/') ? file : path(file);
    QCOMPARE(tableFileOf(path("root/cat/sub/p.prj"), reference), expected);
    QCOMPARE(tableFileOf(path("root/cat/sub/p.prj"), reference, "cat/sub/p.prj"), expected);
}

QTEST_GUILESS_MAIN(tst_CatalogPlaces)
#include "tst_CatalogPlaces.moc"
