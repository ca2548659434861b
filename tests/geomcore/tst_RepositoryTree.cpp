#include "../support/SilentServer.h"
#include "IndexTreeFolder.h"
#include "RepositoryFixture.h"

#include <core/access/AddressedFiles.h>
#include <core/text/PPathName.h>

#include <QAbstractItemModelTester>
#include <QDirIterator>
#include <QSignalSpy>

/// The index tree over catalogs in repositories.
class tst_RepositoryTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_fixture = std::make_unique<RepositoryFixture>(); }
    void cleanup()
    {
        AddressedFiles::install(nullptr);
        m_fixture.reset();
    }
    void rowsUnderATester();
    void opensLazily();
    void nodesByTreePath();
    void aDirectoryThatCannotBeRead();
    void aRestartWithoutServer();
    void aListThatIsDamaged();
    void anotherRevision();
    void hostileNames_data();
    void hostileNames();
    void catalogsAreThoseThatAreKnown();
    void withoutAServersName();
    void silentServer();
    void listsOfOthers_data();
    void listsOfOthers();

private:
    std::unique_ptr<RepositoryFixture> m_fixture;
};

void tst_RepositoryTree::rowsUnderATester()
{
    const RepositoryTree tree(m_fixture->repository());
    const QAbstractItemModelTester tester(tree.model.get(),
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    QCOMPARE(rowsOf(*tree.model), "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
    QVERIFY(!tree.model->hasChildren(tree.model->index(PString("cat/cat/screws/a.prj"), 0)));
}

void tst_RepositoryTree::opensLazily()
{
    const auto repository = m_fixture->repository();
    const RepositoryTree tree(repository);
    // The catalogs are known without a server, and that there may be something in them.
    m_fixture->server.stop();
    QCOMPARE(tree.model->rowCount(), 1);
    QVERIFY(tree.model->hasChildren(tree.model->index(0, 0)));
    QCOMPARE(repository->revisionOf("cat"), -1);
    QVERIFY(!repository->known("cat", PString()));
    QVERIFY2(m_fixture->server.start(), qPrintable(m_fixture->server.problem()));
    const QModelIndex screws = tree.model->index(PString("cat/cat/screws"), 0);
    QVERIFY(screws.isValid());
    QVERIFY(tree.model->canFetchMore(screws)); // was not asked for
    QVERIFY(repository->known("cat", PString()));
    QVERIFY(!repository->known("cat", "screws"));
}

void tst_RepositoryTree::nodesByTreePath()
{
    const auto repository = m_fixture->repository();
    AddressedFiles::install(repository);
    const RepositoryTree tree(repository);
    const auto node = tree.tree->findNodeByTreePath("cat/cat/screws", "a.prj");
    QVERIFY(node && node->isProject() && node->isRemote());
    QCOMPARE(node->catalogPath(), "cat/screws/a.prj");
    QCOMPARE(node->file(), PPathName("svn://cat/trunk/catalog/screws/a.prj").native());
    QCOMPARE(node->description(), "Hexagon");
    QCOMPARE(node->parent()->catalogPath(), "cat/screws");
    QVERIFY(node->parent()->isRemote() && node->parent()->parent()->isRemote());
    QVERIFY(!tree.tree->findNodeByTreePath("cat/cat/screws/z.prj", PString()));
    QVERIFY(!tree.tree->findNodeByTreePath("cat/dog", PString()));
    QVERIFY(!tree.tree->findNodeByTreePath("cat/cat/screws/a.prj/x", PString()));
    tree.tree->setRepository(nullptr);
    QVERIFY(!tree.tree->getRoot()->isRemote());
    QVERIFY(!tree.tree->findNodeByTreePath("cat/cat", PString()));
}

void tst_RepositoryTree::aDirectoryThatCannotBeRead()
{
    const auto repository = m_fixture->repository();
    const RepositoryTree tree(repository);
    QSignalSpy failures(tree.model.get(), &IndexTreeModelC::readingFailed);
    const QModelIndex screws = tree.model->index(PString("cat/cat/screws"), 0);
    m_fixture->server.stop();
    tree.model->fetchMore(screws);
    QCOMPARE(failures.size(), 1);
    const QString told = failures.first().first().toString();
    QVERIFY2(told.startsWith("Das Repository " + m_fixture->server.url() +
                             "/trunk/catalog/screws antwortet nicht: "),
             qPrintable(told));
    QCOMPARE(tree.model->rowCount(screws), 0);
    QVERIFY(tree.model->hasChildren(screws));
    QVERIFY(!tree.model->canFetchMore(screws)); // until the user wants it
    tree.model->fetchMore(screws);
    tree.model->readAgain(screws.parent()); // that is known: the others stay
    QCOMPARE(failures.size(), 1);
    QCOMPARE(tree.model->index(PString("cat/cat"), 0), screws.parent());
    QVERIFY2(m_fixture->server.start(), qPrintable(m_fixture->server.problem()));
    repository->refresh(); // a server that gave nothing is left alone for a while
    tree.model->tryAgain(screws);
    tree.model->fetchMore(screws);
    QCOMPARE(tree.model->rowCount(screws), 2);
    QCOMPARE(failures.size(), 1);
}

void tst_RepositoryTree::aRestartWithoutServer()
{
    QCOMPARE(rowsOf(*RepositoryTree(m_fixture->repository()).model),
             "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
    m_fixture->server.stop();
    QStringList told;
    CatalogRepository::Options options = m_fixture->options();
    options.tell = [&told](const QString &text) {
        told.append(text);
    };
    const RepositoryTree tree(std::make_shared<CatalogRepository>(options));
    QCOMPARE(rowsOf(*tree.model), "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
    QCOMPARE(told.size(), 1);
    QVERIFY2(told.first().contains("Gelesen wird Revision 2"), qPrintable(told.first()));
}

void tst_RepositoryTree::aListThatIsDamaged()
{
    QCOMPARE(rowsOf(*RepositoryTree(m_fixture->repository()).model),
             "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
    QDirIterator lists(m_fixture->place.filePath("cache"), {".entries"}, QDir::Files | QDir::Hidden,
                       QDirIterator::Subdirectories);
    int count = 0;
    while (lists.hasNext()) {
        QFile file(lists.next());
        QVERIFY(file.resize(file.size() - 3));
        ++count;
    }
    QCOMPARE(count, 4);
    QCOMPARE(rowsOf(*RepositoryTree(m_fixture->repository()).model),
             "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
}

void tst_RepositoryTree::anotherRevision()
{
    const auto repository = m_fixture->repository();
    QCOMPARE(rowsOf(*RepositoryTree(repository).model),
             "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
    m_fixture->write("pins/e.prj", "[PROJECT]\n");
    m_fixture->commit();
    QVERIFY2(m_fixture->server.remove("nuts"), qPrintable(m_fixture->server.problem()));
    QCOMPARE(rowsOf(*RepositoryTree(repository).model),
             "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
    repository->refresh();
    QCOMPARE(rowsOf(*RepositoryTree(repository).model), "cat(pins(e.prj) screws(a.prj b.prj))");
    CatalogRepository::Options fixed = m_fixture->options();
    fixed.revision = 2;
    QCOMPARE(rowsOf(*RepositoryTree(std::make_shared<CatalogRepository>(fixed)).model),
             "cat(nuts(deep(c.prj)) screws(a.prj b.prj))");
}

void tst_RepositoryTree::hostileNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("peg") << "a@2";
    QTest::newRow("percent") << "50%20x %1";
    QTest::newRow("markup") << "<b>&amp;";
    QTest::newRow("quotes") << "'\"`$(touch x)`";
    QTest::newRow("option") << "--version";
    QTest::newRow("umlaut") << QString::fromUtf8("Größe ∅");
    QTest::newRow("question") << "a?b#c;d";
    QTest::newRow("blanks") << " a ";
    QTest::newRow("long") << QString(200, 'x');
}

void tst_RepositoryTree::hostileNames()
{
    QFETCH(QString, name);
    m_fixture->write(name + "/" + name + ".prj", "[PROJECT]\nNAME=Found\n");
    m_fixture->commit();
    const auto repository = m_fixture->repository();
    AddressedFiles::install(repository);
    const RepositoryTree tree(repository);
    const auto node = tree.tree->findNodeByTreePath("cat/cat", name + "/" + name + ".prj");
    QVERIFY(node);
    QCOMPARE(node->catalogPath(), "cat/" + name + "/" + name + ".prj");
    QCOMPARE(node->description(), "Found");
}

void tst_RepositoryTree::catalogsAreThoseThatAreKnown()
{
    CatalogRepository::Options options = m_fixture->options();
    options.servers.insert("a b %1", m_fixture->server.url());
    const auto repository = std::make_shared<CatalogRepository>(options);
    QCOMPARE(repository->catalogs(), QStringList({"a b %1", "cat"}));
    QVERIFY(!repository->fileOf("svn://127.0.0.1:1/trunk/catalog/x.prj").isEmpty());
    QCOMPARE(repository->catalogs(), QStringList({"127.0.0.1:1", "a b %1", "cat"}));
    const RepositoryTree tree(repository);
    const auto node = tree.tree->findNodeByTreePath("cat/a b %1/screws", "a.prj");
    QVERIFY(node);
    QCOMPARE(node->catalogPath(), "a b %1/screws/a.prj");
    QCOMPARE(CatalogRepository::catalogOf(CatalogRepository::folderOf("..a/b%2F")), "..a/b%2F");
    QVERIFY(!CatalogRepository::folderOf("..").startsWith('.'));
}

void tst_RepositoryTree::withoutAServersName()
{
    CatalogRepository::Options options = m_fixture->options();
    options.servers = {{"x y", ""}};
    const RepositoryTree tree(std::make_shared<CatalogRepository>(options));
    QSignalSpy failures(tree.model.get(), &IndexTreeModelC::readingFailed);
    tree.model->fetchMore(tree.model->index(0, 0));
    QCOMPARE(failures.size(), 1);
    QCOMPARE(failures.first().first().toString(),
             "Für den Katalog \"x y\" ist kein Repository eingestellt; aus seinem Namen wird keine "
             "Adresse");
}

void tst_RepositoryTree::silentServer()
{
    const SilentServer silent;
    CatalogRepository::Options options = m_fixture->options();
    options.servers.insert("cat", silent.url());
    options.silence = std::chrono::milliseconds(300);
    options.revision = 2;
    const RepositoryTree tree(std::make_shared<CatalogRepository>(options));
    QSignalSpy failures(tree.model.get(), &IndexTreeModelC::readingFailed);
    tree.model->fetchMore(tree.model->index(0, 0));
    QCOMPARE(failures.size(), 1);
    const QString told = failures.first().first().toString();
    QVERIFY2(told.contains("Keine Antwort von " + silent.url() + "/trunk/catalog in 0.3 s"),
             qPrintable(told));
}

void tst_RepositoryTree::listsOfOthers_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<bool>("isList");
    const QByteArray list = "<lists><list path=\"u\">%1</list></lists>";
    const auto row = [&](const char *name, const QByteArray &entries) {
        QTest::newRow(name) << QByteArray(list).replace("%1", entries) << true;
    };
    QTest::newRow("nothing") << QByteArray() << false;
    QTest::newRow("no list") << QByteArray("<a/>") << false;
    QTest::newRow("broken off") << QByteArray("<lists><list path=\"u\">") << false;
    row("empty", QByteArray());
    row("climbs", "<entry kind=\"dir\"><name>..</name></entry>");
    row("climbs on", "<entry kind=\"file\"><name>../x.prj</name></entry>");
    row("here", "<entry kind=\"dir\"><name>.</name></entry>");
    row("line feed", "<entry kind=\"file\"><name>a&#10;b.prj</name></entry>");
    row("no name", "<entry kind=\"dir\"><name></name></entry>");
    row("no kind", "<entry><name>a.prj</name></entry>");
    row("only the ending", "<entry kind=\"file\"><name>.prj</name></entry>");
}

/// What a server may say without having such entries.
void tst_RepositoryTree::listsOfOthers()
{
    QFETCH(QByteArray, xml);
    QFETCH(bool, isList);
    const auto listing = RepositoryListing::ofClientXml(xml);
    QCOMPARE(listing.has_value(), isList);
    if (listing) {
        QCOMPARE(*listing, RepositoryListing());
        QCOMPARE(RepositoryListing::ofBytes(listing->bytes()), listing);
    }
    QVERIFY(!RepositoryListing::ofBytes(xml));
}

QTEST_MAIN(tst_RepositoryTree)
#include "tst_RepositoryTree.moc"
