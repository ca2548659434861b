#include "../support/TestCatalog.h"

#include <geomcore/search/CatalogIndex.h>
#include <geomcore/search/CatalogSearch.h>

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QTest>
#include <QThread>

using State = CatalogSearchState;
using Outcome = CatalogIndexOutcome;

namespace {

CatalogSearchQuery wordsOf(const QString &text)
{
    CatalogSearchQuery query;
    query.text = text;
    return query;
}

/// A catalog of projects with a title, and its index.
class Fixture : public TestCatalog
{
public:
    explicit Fixture(int projects)
        : index(m_place.filePath("catalog.index"), root())
        , updated(&index, &CatalogIndex::updateFinished)
        , progress(&index, &CatalogIndex::updateProgress)
        , found(&index, &CatalogIndex::searchFinished)
    {
        for (int i = 0; i < projects; ++i)
            writeFile(QString("cat/p%1.prj").arg(i), "[PROJECT]\nNAME=Numbered\n");
    }
    Outcome waitForUpdate()
    {
        if (updated.isEmpty() && !updated.wait(20000))
            return {Outcome::Failed, 0, 0, 0, 0, {}, "no signal", {}};
        return updated.takeFirst().at(0).value<Outcome>();
    }
    CatalogSearchResult waitForSearch(int number)
    {
        while (!found.isEmpty() || found.wait(20000)) {
            const QVariantList arguments = found.takeFirst();
            if (arguments.at(0).toInt() == number)
                return arguments.at(1).value<CatalogSearchResult>();
        }
        return {State::Failed, {}, false, false, "no signal"};
    }

    QTemporaryDir m_place;
    CatalogIndex index;
    QSignalSpy updated;
    QSignalSpy progress;
    QSignalSpy found;
};

} // namespace

class tst_CatalogIndex : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void updatesAndSearches()
    {
        Fixture fixture(3);
        QVERIFY(!fixture.index.isUpdating());
        fixture.index.update();
        QVERIFY(fixture.index.isUpdating());
        const Outcome outcome = fixture.waitForUpdate();
        QCOMPARE(outcome.state, Outcome::Done);
        QCOMPARE(outcome.added, 3);
        QVERIFY(!fixture.index.isUpdating());
        QVERIFY(!fixture.progress.isEmpty());
        const CatalogSearchResult result =
            fixture.waitForSearch(fixture.index.search(wordsOf("numb")));
        QCOMPARE(result.state, State::Found);
        QCOMPARE(result.hits.size(), 3);
        const int none = fixture.index.search(wordsOf("absent"));
        QCOMPARE(fixture.waitForSearch(none).state, State::NothingFound);
    }

    void anotherUpdateAfterwards()
    {
        Fixture fixture(2);
        fixture.index.update();
        fixture.index.update();
        QCOMPARE(fixture.waitForUpdate().state, Outcome::Done);
        QCOMPARE(fixture.updated.size(), 0); // one signal for both
        QVERIFY(!fixture.index.isUpdating());
    }

    void onlyTheLastSearchAnswers()
    {
        Fixture fixture(3);
        fixture.index.update();
        QCOMPARE(fixture.waitForUpdate().state, Outcome::Done);
        int last = 0;
        for (const char *text : {"n", "nu", "num", "numb", "absent"}) {
            last = fixture.index.search(wordsOf(text));
            QThread::msleep(20); // it may have ended, but its signal has not come yet
        }
        QVERIFY(fixture.found.wait(20000));
        QCOMPARE(fixture.found.size(), 1);
        QCOMPARE(fixture.waitForSearch(last).state, State::NothingFound);
        (void)fixture.index.search(wordsOf("numb"));
        QThread::msleep(50);
        fixture.index.cancelSearch();
        QTest::qWait(50);
        QCOMPARE(fixture.found.size(), 0);
    }

    void missingIndexIsMadeByTheWay()
    {
        Fixture fixture(3);
        const int number = fixture.index.search(wordsOf("numb"));
        QCOMPARE(fixture.waitForSearch(number).state, State::IndexBuilding);
        QCOMPARE(fixture.waitForUpdate().added, 3);
        QCOMPARE(fixture.waitForSearch(fixture.index.search(wordsOf("numb"))).hits.size(), 3);
    }

    void damagedIndexIsMadeByTheWay()
    {
        Fixture fixture(300);
        fixture.index.update();
        QCOMPARE(fixture.waitForUpdate().state, Outcome::Done);
        QFile file(fixture.index.indexFile());
        QVERIFY(file.open(QIODevice::ReadWrite));
        // All pages but the first one; those of the tables' structure stay in it.
        file.seek(4096);
        file.write(QByteArray(int(file.size()) - 4096, 'z'));
        file.close();
        const int number = fixture.index.search(wordsOf("numb"));
        const CatalogSearchResult broken = fixture.waitForSearch(number);
        QCOMPARE(broken.state, State::IndexBuilding);
        QCOMPARE(fixture.waitForUpdate().added, 300);
        QCOMPARE(fixture.waitForSearch(fixture.index.search(wordsOf("numb"))).state, State::Found);
    }

    void cancels()
    {
        Fixture fixture(2000);
        fixture.index.update();
        QVERIFY(fixture.progress.wait(20000));
        fixture.index.cancelUpdate();
        QCOMPARE(fixture.waitForUpdate().state, Outcome::Cancelled);
        QVERIFY(!fixture.index.isUpdating());
        fixture.index.update();
        QCOMPARE(fixture.waitForUpdate().projects, 2000);
    }

    void endsWhileItWorks()
    {
        auto fixture = std::make_unique<Fixture>(2000);
        fixture->index.update();
        (void)fixture->index.search(wordsOf("numb"));
        QVERIFY(fixture->progress.wait(20000));
        fixture.reset();
    }

    void waitsForAnotherProgram()
    {
        Fixture fixture(1);
        CatalogIndexUpdate other(fixture.index.indexFile(), fixture.root());
        bool started = false;
        const Outcome outcome = other.run(CatalogIndexUpdate::Files, [&](int, int) {
            if (!std::exchange(started, true)) {
                fixture.index.update();
                QTest::qWait(100);
            }
            return true;
        });
        QCOMPARE(outcome.added, 1);
        QCOMPARE(fixture.updated.size(), 0);
        const Outcome second = fixture.waitForUpdate();
        QCOMPARE(second.state, Outcome::Done);
        QCOMPARE(second.added, 0);
    }

    void standardFileIsTheRootsOwn()
    {
        const QTemporaryDir cache;
        qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
        const QString file = CatalogIndex::standardFile(cache.path());
        QVERIFY2(file.startsWith(cache.path() + "/velkworkbench/catalog-"), qPrintable(file));
        QVERIFY(file != CatalogIndex::standardFile("/elsewhere"));
        QCOMPARE(file, CatalogIndex::standardFile(cache.path() + "/."));
        qunsetenv("XDG_CACHE_HOME");
    }
};

QTEST_GUILESS_MAIN(tst_CatalogIndex)
#include "tst_CatalogIndex.moc"
