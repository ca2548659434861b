#include "IndexedCatalog.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTest>

#include <atomic>
#include <thread>

namespace {

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

/// The index keeps up with the files of a catalog root, whatever happens to either.
class tst_CatalogIndexUpdate : public QObject
{
    Q_OBJECT

    using Outcome = CatalogIndexOutcome;
    using State = CatalogSearchState;

private Q_SLOTS:
    void followsChanges()
    {
        IndexedCatalog catalog;
        for (const char *name : {"a", "b", "c"}) {
            catalog.write(QString("cat/%1.prj").arg(name), "Name\nvalue" + QByteArray(name) + '\n');
            catalog.age(QString("cat/%1.prj").arg(name));
        }
        QCOMPARE(catalog.update().added, 3);
        Outcome outcome = catalog.update();
        QCOMPARE(outcome.added + outcome.changed + outcome.removed, 0);
        // Written into: the directory's time stays.
        catalog.writeFile("cat/a.csv", "Name\nchanged\n");
        outcome = catalog.update();
        QCOMPARE(outcome.changed, 1);
        QCOMPARE(outcome.projects, 3);
        QCOMPARE(catalog.found("changed"), QString("a.prj"));
        QCOMPARE(catalog.found("valuea"), QString("nothing"));
        // Gone, new, renamed.
        QVERIFY(QFile::remove(catalog.file("cat/b.prj")));
        catalog.write("cat/new/d.prj", "Name\nvalued\n");
        outcome = catalog.update(CatalogIndexUpdate::Directories);
        QCOMPARE(outcome.added, 1);
        QCOMPARE(outcome.removed, 1);
        QCOMPARE(catalog.found("valueb"), QString("nothing"));
        QCOMPARE(catalog.found("valued"), QString("new/d.prj"));
        QVERIFY(QDir(catalog.file("cat/new")).removeRecursively());
        QCOMPARE(catalog.update(CatalogIndexUpdate::Directories).removed, 1);
        QCOMPARE(catalog.found("valued"), QString("nothing"));
        QCOMPARE(catalog.found("new"), QString("nothing"));
    }

    // Written once more within the same tick of the clock: neither time nor size tell it.
    void youngFilesAreReadAgain()
    {
        IndexedCatalog catalog;
        const QDateTime time = QDateTime::currentDateTime();
        const auto setTime = [&] {
            QFile file(catalog.file("cat/a.csv"));
            return file.open(QIODevice::ReadWrite) &&
                   file.setFileTime(time, QFileDevice::FileModificationTime);
        };
        catalog.write("cat/a.prj", "Name\nfirst\n");
        catalog.age("cat/a.prj");
        QVERIFY(setTime());
        QCOMPARE(catalog.update().added, 1);
        catalog.writeFile("cat/a.csv", "Name\nother\n");
        QVERIFY(setTime());
        QCOMPARE(catalog.update().changed, 1);
        QCOMPARE(catalog.found("other"), QString("a.prj"));
    }

    // A project whose table lies in another directory.
    void followsTablesElsewhere()
    {
        IndexedCatalog catalog;
        catalog.write("cat/tables/t.prj", "Name\nbefore\n");
        QVERIFY(QFile::remove(catalog.file("cat/tables/t.prj")));
        catalog.writeFile("cat/a.prj", "[PROJECT]\nSACHM=tables/t.json\n");
        catalog.age("cat/a.prj");
        catalog.age("cat/tables/t.prj");
        QCOMPARE(catalog.update().added, 1);
        QCOMPARE(catalog.found("before"), QString("a.prj"));
        catalog.writeFile("cat/tables/t.csv", "Name\nbehind\n");
        QCOMPARE(catalog.update(CatalogIndexUpdate::Directories).changed, 1);
        QCOMPARE(catalog.found("behind"), QString("a.prj"));
    }

    void readsOnlyWhatChanged()
    {
        IndexedCatalog catalog;
        catalog.write("cat/one/a.prj", "Name\nx\n");
        catalog.write("cat/two/b.prj", "Name\nx\n");
        catalog.age("cat/one/a.prj");
        catalog.age("cat/two/b.prj");
        QCOMPARE(catalog.update().added, 2);
        catalog.writeFile("cat/two/b.prj.new", "[PROJECT]\nNAME=Replaced\nSACHM=b.json\n");
        QVERIFY(QFile::remove(catalog.file("cat/two/b.prj")));
        QVERIFY(QFile::rename(catalog.file("cat/two/b.prj.new"), catalog.file("cat/two/b.prj")));
        int most = -1;
        const Outcome outcome =
            catalog.update(CatalogIndexUpdate::Directories, [&most](int, int total) {
                most = qMax(most, total);
                return true;
            });
        QCOMPARE(most, 1);
        QCOMPARE(outcome.changed, 1);
        QCOMPARE(catalog.found("replaced"), QString("two/b.prj"));
    }

    void brokenTableIsReadWhenMended()
    {
        IndexedCatalog catalog;
        catalog.write("cat/a.prj", "Name,B\nx,y\n");
        catalog.writeFile("cat/a.csv", "Name,B\nx\n");
        catalog.age("cat/a.prj");
        QCOMPARE(catalog.update().added, 1);
        QCOMPARE(catalog.search("a.prj").hits.first().lineCount, -1);
        catalog.writeFile("cat/a.csv", "Name,B\nx,mended\n");
        QCOMPARE(catalog.update().changed, 1);
        QCOMPARE(catalog.search("mended").hits.first().lineCount, 1);
    }

    void tableOutsideOfTheCatalogsIsNotRead()
    {
        IndexedCatalog catalog;
        const QTemporaryDir elsewhere;
        for (const char *name : {"t.json", "t.csv"}) {
            QFile file(elsewhere.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(name) == "t.json" ? "{}" : "Name\nsecret\n");
        }
        catalog.writeFile("cat/a.prj",
                          "[PROJECT]\nSACHM=" + elsewhere.filePath("t.json").toUtf8() + "\n");
        // By a link beside the project, and by a link beside the descriptor.
        QVERIFY(QFile::link(elsewhere.filePath("t.json"), catalog.file("cat/b.json")));
        catalog.writeFile("cat/b.prj", "[PROJECT]\nSACHM=b.json\n");
        catalog.writeFile("cat/c.prj", "[PROJECT]\nSACHM=c.json\n");
        catalog.writeFile("cat/c.json", "{}");
        QVERIFY(QFile::link(elsewhere.filePath("t.csv"), catalog.file("cat/c.csv")));
        QCOMPARE(catalog.update().added, 3);
        QCOMPARE(catalog.found("secret"), QString("nothing"));
    }

    void linksAreNotFollowedTwice()
    {
        IndexedCatalog catalog;
        catalog.write("cat/deep/a.prj", "Name\nx\n");
        QVERIFY(QFile::link(catalog.file("cat"), catalog.file("cat/deep/up")));
        QCOMPARE(catalog.update().projects, 1);
    }

    void cancelKeepsWhatWasRead()
    {
        IndexedCatalog catalog;
        for (int i = 0; i < 600; ++i)
            catalog.writeFile(QString("cat/p%1.prj").arg(i), "[PROJECT]\nNAME=Numbered\n");
        const Outcome cancelled =
            catalog.update(CatalogIndexUpdate::Files, [](int done, int) { return done < 256; });
        QCOMPARE(cancelled.state, Outcome::Cancelled);
        QCOMPARE(cancelled.added, 256);
        CatalogSearchQuery query;
        query.text = "numbered";
        query.limit = 0;
        CatalogSearchResult result = catalog.search(query);
        QCOMPARE(result.state, State::IndexBuilding);
        QCOMPARE(result.hits.size(), 256);
        QCOMPARE(catalog.found("absent"), QString("building"));
        const Outcome rest = catalog.update();
        QCOMPARE(rest.state, Outcome::Done);
        QVERIFY(rest.added == 344);
        QCOMPARE(catalog.search(query).hits.size(), 600);
        QCOMPARE(catalog.search(query).state, State::Found);
        QCOMPARE(catalog.update(CatalogIndexUpdate::Files, [](int, int) { return false; }).state,
                 Outcome::Cancelled);
        QCOMPARE(catalog.search(query).state, State::Found);
    }

    void brokenIndexIsMadeAnew_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("text") << QByteArray("no database at all");
        QTest::newRow("cut off") << QByteArray("cut");
        QTest::newRow("overwritten") << QByteArray("overwrite");
    }
    void brokenIndexIsMadeAnew()
    {
        QFETCH(QByteArray, content);
        IndexedCatalog catalog;
        for (int i = 0; i < 50; ++i)
            catalog.write(QString("cat/p%1.prj").arg(i), "Name\nneedle\n");
        QCOMPARE(catalog.update().state, Outcome::Done);
        QByteArray bytes = bytesOf(catalog.index);
        if (content == "cut")
            bytes.truncate(bytes.size() / 2);
        else if (content == "overwrite")
            bytes.replace(200, bytes.size() - 200, QByteArray(bytes.size() - 200, 'z'));
        else
            bytes = content;
        QFile file(catalog.index);
        QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        file.close();
        const CatalogSearchResult broken = catalog.search("needle");
        QVERIFY(broken.hits.isEmpty());
        QCOMPARE(broken.state, State::IndexMissing);
        QCOMPARE(catalog.update().state, Outcome::Done);
        QCOMPARE(catalog.search("needle").hits.size(), 50);
        QCOMPARE(catalog.search("needle").state, State::Found);
        // What was no index of ours is still there.
        const QStringList aside = QFileInfo(catalog.index).dir().entryList({"*.broken-*"});
        QCOMPARE(aside.size(), content.startsWith("no database") ? 1 : 0);
    }

    /// It is in order, but not as this program makes it: what is in it is not said to be all.
    void indexWithoutATable()
    {
        const IndexedCatalog catalog;
        catalog.write("cat/a.prj", "Name\nneedle\n");
        QCOMPARE(catalog.update().state, Outcome::Done);
        {
            QSqlDatabase database = QSqlDatabase::addDatabase("QSQLITE", "other program");
            database.setDatabaseName(catalog.index);
            QVERIFY(database.open());
            QSqlQuery query(database);
            QVERIFY2(query.exec("DROP TABLE dirs"), qPrintable(query.lastError().text()));
        }
        QSqlDatabase::removeDatabase("other program");
        const Outcome outcome = catalog.update();
        QCOMPARE(outcome.state, Outcome::Failed);
        QVERIFY2(outcome.errorText.contains("dirs"), qPrintable(outcome.errorText));
    }

    void indexOfAnotherRootIsMadeAnew()
    {
        IndexedCatalog catalog;
        catalog.write("cat/a.prj", "Name\nneedle\n");
        QCOMPARE(catalog.update().state, Outcome::Done);
        IndexedCatalog other;
        other.write("cat/b.prj", "Name\nneedle\n");
        const CatalogSearch search(catalog.index, other.root());
        CatalogSearchQuery query;
        query.text = "needle";
        QCOMPARE(search.run(query).state, State::IndexMissing);
        QCOMPARE(
            CatalogIndexUpdate(catalog.index, other.root()).run(CatalogIndexUpdate::Files).state,
            Outcome::Done);
        QCOMPARE(IndexedCatalog::shown(search.run(query)), QString("b.prj"));
    }

    void directoryInPlaceOfTheIndex()
    {
        IndexedCatalog catalog;
        catalog.write("cat/a.prj", "Name\nx\n");
        QVERIFY(QDir().mkpath(catalog.index));
        const CatalogSearchResult result = catalog.search("x");
        QCOMPARE(result.state, State::Failed);
        QVERIFY2(result.errorText.contains("keine gewöhnliche Datei"),
                 qPrintable(result.errorText));
        const Outcome outcome = catalog.update();
        QCOMPARE(outcome.state, Outcome::Failed);
        QVERIFY(!outcome.errorText.isEmpty());
    }

    void rootThatIsNotThere()
    {
        IndexedCatalog catalog;
        catalog.write("cat/a.prj", "Name\nx\n");
        QCOMPARE(catalog.update().state, Outcome::Done);
        const QString elsewhere = catalog.root() + "-away";
        QVERIFY(QDir().rename(catalog.root(), elsewhere));
        const Outcome outcome = catalog.update();
        QCOMPARE(outcome.state, Outcome::RootUnreadable);
        QCOMPARE(outcome.errorText, "„" + catalog.root() + "“ ist kein lesbares Verzeichnis");
        QVERIFY(QDir().rename(elsewhere, catalog.root()));
        QCOMPARE(catalog.found("x"), QString("a.prj"));
    }

    void searchesWhileItIsWritten()
    {
        IndexedCatalog catalog;
        for (int i = 0; i < 300; ++i)
            catalog.write(QString("cat/p%1.prj").arg(i), "Name\nneedle\n");
        QCOMPARE(catalog.update().state, Outcome::Done);
        std::atomic<bool> ends = false;
        std::atomic<int> updates = 0;
        std::thread writer([&] {
            for (int round = 0; !ends; ++round) {
                for (int i = 0; i < 300; i += 3)
                    catalog.setTitle(QString("cat/p%1.prj").arg(i),
                                     "Round" + QByteArray::number(round));
                updates += catalog.update().state == Outcome::Done ? 1 : -1000;
            }
        });
        int wrong = 0;
        CatalogSearchQuery query;
        query.text = "needle";
        query.limit = 0;
        for (int i = 0; i < 20 || updates < 3; ++i) {
            const CatalogSearchResult result = catalog.search(query);
            wrong += result.state != State::Found || result.hits.size() != 300 ? 1 : 0;
        }
        ends = true;
        writer.join();
        QCOMPARE(wrong, 0);
        QVERIFY(updates >= 3);
    }

    void oneWritesAtATime()
    {
        IndexedCatalog catalog;
        catalog.write("cat/a.prj", "Name\nx\n");
        CatalogIndexOutcome second;
        QString meanwhile;
        bool running = false;
        const Outcome first = catalog.update(CatalogIndexUpdate::Files, [&](int done, int total) {
            if (done == 0 && total == 1) {
                second = catalog.update();
                meanwhile = catalog.found("x");
                running = CatalogIndexUpdate::isRunning(catalog.index);
            }
            return true;
        });
        QCOMPARE(first.state, Outcome::Done);
        QCOMPARE(second.state, Outcome::Busy);
        QCOMPARE(meanwhile, QString("building"));
        QVERIFY(running);
        QVERIFY(!CatalogIndexUpdate::isRunning(catalog.index));
        QCOMPARE(catalog.found("x"), QString("a.prj"));
    }
};

QTEST_GUILESS_MAIN(tst_CatalogIndexUpdate)
#include "tst_CatalogIndexUpdate.moc"
