#include "../support/TestCatalog.h"

#include <geomcore/search/CatalogIndexUpdate.h>
#include <geomcore/search/CatalogSearch.h>
#include <geomcore/search/SearchText.h>

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTest>

#include <thread>

using State = CatalogSearchState;
using Outcome = CatalogIndexOutcome;

namespace {

/// A catalog root with an index in a folder beside it.
class IndexedCatalog : public TestCatalog
{
public:
    IndexedCatalog()
        : index(m_place.filePath("settings/catalog.index"))
    {
    }

    Outcome update(CatalogIndexUpdate::Check check = CatalogIndexUpdate::Files,
                   const CatalogIndexUpdate::Tell &tell = {}) const
    {
        return CatalogIndexUpdate(index, root()).run(check, tell);
    }
    CatalogSearchResult search(const CatalogSearchQuery &query) const
    {
        return CatalogSearch(index, root()).run(query);
    }
    CatalogSearchResult search(const QString &text, const QStringList &conditions = {}) const
    {
        CatalogSearchQuery query;
        query.text = text;
        for (const QString &condition : conditions)
            query.conditions.append(*CatalogSearchCondition::parse(condition));
        return search(query);
    }
    /// Paths of the hits without the catalog, "a.prj b.prj", or the state if there are none.
    QString found(const QString &text, const QStringList &conditions = {}) const
    {
        return shown(search(text, conditions));
    }
    static QString shown(const CatalogSearchResult &result)
    {
        QStringList paths;
        for (const CatalogSearchHit &hit : result.hits)
            paths.append(hit.path.section('/', 1));
        const char *const states[] = {"found",   "nothing", "building",
                                      "missing", "failed",  "cancelled"};
        if (paths.isEmpty() || result.state != State::Found)
            paths.prepend(states[int(result.state)]);
        return paths.join(' ');
    }
    /// Lets the files of a project look as if nobody had touched them for long.
    void age(const QString &project, int seconds = 100) const
    {
        const QString base = project.left(project.lastIndexOf('.'));
        for (const char *ending : {".prj", ".json", ".csv"}) {
            QFile file(this->file(base + ending));
            if (file.exists() && file.open(QIODevice::ReadWrite))
                file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds),
                                 QFileDevice::FileModificationTime);
        }
    }
    void setTitle(const QString &project, const QByteArray &title) const
    {
        const QString base = QFileInfo(project).completeBaseName();
        writeFile(project, "[PROJECT]\nNAME=" + title + "\nSACHM=" + base.toUtf8() + ".json\n");
    }

    QTemporaryDir m_place;
    const QString index;
};

QByteArray bytesOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class tst_CatalogSearch : public QObject
{
    Q_OBJECT

    std::unique_ptr<IndexedCatalog> m_standard;

private Q_SLOTS:
    void initTestCase()
    {
        m_standard = std::make_unique<IndexedCatalog>();
        const IndexedCatalog &catalog = *m_standard;
        catalog.write("std/bolts/din931.prj",
                      "Dia,L:r,d:n,Material\nM8,20;30,7.5,St37-2\nM10,10..50/5,9.5,S235JR\n",
                      [](VKTab::TableDescriptor &table) {
                          table.title = "Sechskantschraube";
                          table.normNumber = "DIN 931";
                          table.lineDesignation = "DIN 931 - {Dia}x{L}";
                          table.fields[1].unit = "mm";
                          table.fields[2].decimalChar = ',';
                          table.translations["en"]["Sechskantschraube"] = "Hexagon bolt";
                      });
        catalog.setTitle("std/bolts/din931.prj", "DIN 931 Größe");
        catalog.write("std/nuts/iso4032.prj",
                      "Dia,m:n,Id:i\nM8,6.8,4711\nM10,8.4,4712\nM10,,4713\n");
        catalog.setTitle("std/nuts/iso4032.prj", "Sechskantmutter");
        catalog.write("other/plain.prj", "Name,m:n\nquarter 1/4,100\n\"two\nlines\",-3\n");
        catalog.writeFile("other/empty.prj", "[PROJECT]\nNAME=Without table\n");
        const Outcome outcome = catalog.update();
        QCOMPARE(outcome.state, Outcome::Done);
        QCOMPARE(outcome.added, 4);
        QCOMPARE(outcome.projects, 4);
    }

    void findsWords_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("found");
        const QString bolt = "bolts/din931.prj";
        const QString nut = "nuts/iso4032.prj";
        QTest::newRow("title") << "Sechskantmutter" << nut;
        QTest::newRow("title of the table") << "Sechskantschraube" << bolt;
        QTest::newRow("begin of a word") << "sechs" << bolt + ' ' + nut;
        QTest::newRow("one character") << "s" << bolt + ' ' + nut;
        QTest::newRow("inside of a word") << "kantmutter"
                                          << "nothing";
        QTest::newRow("case") << "SECHSKANTMUTTER" << nut;
        QTest::newRow("accent and sharp s") << "grosse" << bolt;
        QTest::newRow("accent typed") << "GRÖSSE" << bolt;
        QTest::newRow("path") << "nuts" << nut;
        QTest::newRow("path with separator") << "std/nu" << nut;
        QTest::newRow("file name") << "iso4032.prj" << nut;
        QTest::newRow("ending") << ".prj"
                                << "empty.prj plain.prj bolts/din931.prj nuts/iso4032.prj";
        QTest::newRow("norm number") << "DIN 931" << bolt;
        QTest::newRow("designation of a line") << "M10x10..50/5" << bolt;
        QTest::newRow("part of a designation") << "x20;30"
                                               << "nothing"; // begins inside of a word
        QTest::newRow("value") << "S235" << bolt;
        QTest::newRow("value with mark") << "St37-2" << bolt;
        QTest::newRow("behind the mark") << "-2" << bolt;
        QTest::newRow("value of two tables") << "m8" << bolt + ' ' + nut;
        QTest::newRow("fraction in a cell") << "1/4"
                                            << "plain.prj";
        QTest::newRow("decimal") << "8.4" << nut;
        QTest::newRow("other decimal") << "8.5"
                                       << "nothing";
        QTest::newRow("all words") << "sechskant m8 st37" << bolt;
        QTest::newRow("words of different lines") << "st37 s235" << bolt;
        QTest::newRow("one word too many") << "sechskant m8 brass"
                                           << "nothing";
        QTest::newRow("line ids are no values") << "4711"
                                                << "nothing";
        QTest::newRow("translation") << "hexagon" << bolt;
        QTest::newRow("cell with a line feed") << "two lines"
                                               << "plain.prj";
        QTest::newRow("without a table") << "without"
                                         << "empty.prj";
        QString many = QStringLiteral("sechskantmutter");
        QString parts = QStringLiteral("nuts");
        for (int i = 0; i < 5000; ++i) {
            many += QStringLiteral(" m%1").arg(i % 2 == 0 ? 8 : 8000 + i);
            parts += QStringLiteral("/p%1").arg(i);
        }
        QTest::newRow("thousands of words") << many << "nothing";
        QTest::newRow("thousands of parts") << parts << "nothing";
        QTest::newRow("a word many times") << QStringLiteral("m8 ").repeated(1000) + "mutter"
                                           << "nothing";
        QTest::newRow("nothing typed") << "  "
                                       << "nothing";
    }
    void findsWords()
    {
        QFETCH(QString, text);
        QTEST(m_standard->found(text), "found");
    }

    void findsValues_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("conditions");
        QTest::addColumn<QString>("found");
        const QString bolt = "bolts/din931.prj";
        const QString nut = "nuts/iso4032.prj";
        const auto row = [](const char *name, const char *text, const QStringList &conditions,
                            const QString &found) {
            QTest::newRow(name) << text << conditions << found;
        };
        row("equal text", "", {"Dia = M8"}, bolt + ' ' + nut);
        row("case of name and value", "", {"dia = m8"}, bolt + ' ' + nut);
        row("begins", "", {"Dia ^ m1"}, bolt + ' ' + nut);
        row("contains", "", {"Material ~ 37"}, bolt);
        row("not equal", "", {"Material != St37-2"}, bolt);
        row("number in another notation", "", {"m = 6,80"}, nut);
        row("decimal comma of the column", "", {"d = 7.5"}, bolt);
        row("less", "", {"m < -2"}, "plain.prj");
        row("less or equal", "", {"m <= -3"}, "plain.prj");
        row("not less", "", {"m < -3"}, "nothing");
        row("greater", "", {"m > 8.4"}, "plain.prj");
        row("greater or equal", "", {"m >= 8.4"}, "plain.prj " + nut);
        row("range of numbers", "", {"m = 7..9"}, nut);
        row("not in the range", "", {"m = 9..99"}, "nothing");
        row("value of a list", "", {"L = 30"}, bolt);
        row("value of steps", "", {"L = 45"}, bolt);
        row("between the steps", "", {"L = 46"}, "nothing");
        row("steps and range", "", {"L = 46..50"}, bolt);
        row("beyond the steps", "", {"L > 50"}, "nothing");
        row("no such variable", "", {"Q = 1"}, "nothing");
        row("variable of another table", "", {"Material = M8"}, "nothing");
        row("both in one line", "", {"Dia = M10", "L = 45"}, bolt);
        row("both, but in two lines", "", {"Dia = M8", "L = 45"}, "nothing");
        row("missing value fulfils nothing", "", {"Dia = M10", "m != 8.4"}, "nothing");
        row("word and value", "mutter sechskantmutter", {"Dia = M8"}, "nothing");
        row("word of the title and value", "sechskantmutter", {"Dia = M8"}, nut);
        row("word of the line and value", "S235", {"Dia = M10"}, bolt);
        row("word of another line", "S235", {"Dia = M8"}, "nothing");
        row("quotes in the value", "", {"Dia = '; DROP TABLE words; --"}, "nothing");
    }
    void findsValues()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, conditions);
        QTEST(m_standard->found(text, conditions), "found");
    }

    void unitOfTheColumn()
    {
        CatalogSearchQuery query;
        query.conditions = {{"L", CatalogSearchCondition::Equal, "30", "", "mm"}};
        QCOMPARE(IndexedCatalog::shown(m_standard->search(query)), QString("bolts/din931.prj"));
        query.conditions.first().unit = "inch";
        QCOMPARE(IndexedCatalog::shown(m_standard->search(query)), QString("nothing"));
    }

    void onlyBelow_data()
    {
        QTest::addColumn<QStringList>("below");
        QTest::addColumn<QString>("found");
        QTest::newRow("catalog") << QStringList{"std"} << "bolts/din931.prj nuts/iso4032.prj";
        QTest::newRow("folder") << QStringList{"std/nuts"} << "nuts/iso4032.prj";
        QTest::newRow("separator") << QStringList{"std/nuts/"} << "nuts/iso4032.prj";
        QTest::newRow("project") << QStringList{"std/nuts/iso4032.prj"} << "nuts/iso4032.prj";
        QTest::newRow("begin of a name") << QStringList{"std/nut"} << "nothing";
        QTest::newRow("two") << QStringList{"std/nuts", "other"} << "nuts/iso4032.prj";
        QTest::newRow("folder and project") << QStringList{"std/nuts", "std/bolts/din931.prj"}
                                            << "bolts/din931.prj nuts/iso4032.prj";
        QTest::newRow("no such catalog") << QStringList{"x' OR 1"} << "nothing";
    }
    void onlyBelow()
    {
        QFETCH(QStringList, below);
        CatalogSearchQuery query;
        query.below = below;
        query.text = "m8";
        QTEST(IndexedCatalog::shown(m_standard->search(query)), "found");
        query.text.clear();
        query.conditions = {{"Dia", CatalogSearchCondition::Equal, "M8", "", ""}};
        QTEST(IndexedCatalog::shown(m_standard->search(query)), "found");
        query.limit = 1;
        query.text = "m8";
        QCOMPARE(m_standard->search(query).hits.size(),
                 qMin(1, IndexedCatalog::shown(m_standard->search(query)) == "nothing" ? 0 : 1));
    }

    void hitsTellTheirLines()
    {
        CatalogSearchQuery query;
        query.text = "m10";
        query.linesPerHit = 1;
        const auto hits = m_standard->search(query).hits;
        QCOMPARE(hits.size(), 2);
        CatalogSearchHit bolt;
        bolt.path = "std/bolts/din931.prj";
        bolt.title = QString::fromUtf8("DIN 931 Größe");
        bolt.normNumber = "DIN 931";
        bolt.lineCount = 2;
        bolt.matchingLines = 1;
        bolt.lines = {{2, "DIN 931 - M10x10..50/5"}};
        QCOMPARE(hits.at(0), bolt);
        QCOMPARE(hits.at(1).matchingLines, 2);
        const QList<CatalogSearchLine> lines{{2, "Dia = M10, m = 8.4"}};
        QCOMPARE(hits.at(1).lines, lines);
        query.linesPerHit = -1;
        QCOMPARE(m_standard->search(query).hits.at(1).matchingLines, -1);
        query.text = "without";
        query.linesPerHit = 3;
        QCOMPARE(m_standard->search(query).hits.first().lineCount, -1);
        query.text = "sechskantmutter"; // stands in no line
        QCOMPARE(m_standard->search(query).hits.first().matchingLines, 0);
        query.text = "sechskantmutter m8"; // one in the head, one in the line
        QCOMPARE(m_standard->search(query).hits.first().matchingLines, 1);
    }

    void limit()
    {
        CatalogSearchQuery query;
        query.text = "prj";
        query.limit = 3;
        CatalogSearchResult result = m_standard->search(query);
        QCOMPARE(result.hits.size(), 3);
        QVERIFY(result.hasMore);
        query.limit = 4;
        result = m_standard->search(query);
        QCOMPARE(result.hits.size(), 4);
        QVERIFY(!result.hasMore);
        query.limit = 0;
        QCOMPARE(m_standard->search(query).hits.size(), 4);
        query.text.clear();
        query.conditions = {{"Dia", CatalogSearchCondition::Equal, "M8", "", ""}};
        query.limit = 1;
        QVERIFY(m_standard->search(query).hasMore);
    }

    void hostileNames_data()
    {
        QTest::addColumn<QString>("name");
        for (const char *name : {"'",
                                 "%1",
                                 "<b>",
                                 "\"",
                                 "*",
                                 "NEAR",
                                 "-",
                                 "a AND b",
                                 "OR",
                                 "NOT",
                                 "head:x",
                                 "{head} : y",
                                 "^z",
                                 "(",
                                 "\"a\" NEAR/2 \"b\"",
                                 "+",
                                 "%",
                                 "_",
                                 "; DROP TABLE words",
                                 "?1",
                                 ":a",
                                 "\\",
                                 "\xc3\xa4\xf0\x9f\x94\xa9",
                                 "\xee\x80\x80",
                                 "\xef\xa3\xbe"
                                 "1",
                                 "a\tb",
                                 "--"})
            QTest::newRow(name) << QString::fromUtf8(name);
        QTest::newRow("10 000 characters") << QString(10000, u'x') + "y";
        QTest::newRow("10 000 marks") << QString(10000, u'<');
        QTest::newRow("line feeds") << QString("first\nsecond");
    }
    void hostileNames()
    {
        QFETCH(QString, name);
        IndexedCatalog catalog;
        QString quoted = name;
        quoted.replace('"', "\"\"");
        catalog.write("cat/hostile.prj", "Name\n\"" + quoted.toUtf8() + "\"\n");
        catalog.write("cat/tame.prj", "Name\nplain\n");
        QString title = name;
        title.replace('\n', ' ');
        catalog.write("cat/title.prj", "Name\nother\n",
                      [&title](VKTab::TableDescriptor &table) { table.title = title; });
        QCOMPARE(catalog.update().state, Outcome::Done);
        QCOMPARE(catalog.found(name), QString("title.prj hostile.prj"));
        QCOMPARE(catalog.search(name).hits.at(1).matchingLines, 1);
        CatalogSearchQuery query;
        query.conditions = {{"Name", CatalogSearchCondition::Equal, name, "", ""}};
        QCOMPARE(IndexedCatalog::shown(catalog.search(query)), QString("hostile.prj"));
        query.conditions.first().variable = name;
        QCOMPARE(IndexedCatalog::shown(catalog.search(query)), QString("nothing"));
    }

    void longNamesDifferAtTheirEnd()
    {
        IndexedCatalog catalog;
        const QByteArray same(200, 'x');
        catalog.write("cat/a.prj", "Name\n" + same + "a\n");
        catalog.write("cat/b.prj", "Name\n" + same + "b\n");
        QCOMPARE(catalog.update().state, Outcome::Done);
        QCOMPARE(catalog.found(same + "b"), QString("b.prj"));
        QCOMPARE(catalog.found(same), QString("a.prj b.prj"));
    }

    void hostileFileNames()
    {
        IndexedCatalog catalog;
        const QString name = QString::fromUtf8("'%1<b>\"*\nä.prj");
        catalog.write("cat/" + name, "Name\nx\n");
        QCOMPARE(catalog.update().state, Outcome::Done);
        QCOMPARE(catalog.found("'%1<b>\"*"), name);
        QVERIFY(QFile::remove(catalog.file("cat/" + name)));
        QCOMPARE(catalog.update().removed, 1);
        QCOMPARE(catalog.found("'%1<b>\"*"), QString("nothing"));
    }

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

    void searchIsCancelled()
    {
        const std::atomic<bool> cancelled = true;
        CatalogSearchQuery query;
        query.text = "m8";
        const CatalogSearch search(m_standard->index, m_standard->root());
        QCOMPARE(search.run(query, &cancelled).state, State::Cancelled);
    }

    void withoutAnIndex()
    {
        IndexedCatalog catalog;
        catalog.write("cat/a.prj", "Name\nx\n");
        QCOMPARE(catalog.found("x"), QString("missing"));
        QVERIFY(!QFile::exists(catalog.index));
        QVERIFY(!CatalogIndexUpdate::isRunning(catalog.index));
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
        QVERIFY2(result.errorText.contains("is no regular file"), qPrintable(result.errorText));
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
        QVERIFY(outcome.errorText.contains(catalog.root()));
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

QTEST_GUILESS_MAIN(tst_CatalogSearch)
#include "tst_CatalogSearch.moc"
