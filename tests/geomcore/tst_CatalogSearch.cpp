#include "IndexedCatalog.h"

#include <geomcore/search/CatalogIndexUpdate.h>
#include <geomcore/search/CatalogSearch.h>

#include <QFile>
#include <QTest>

class tst_CatalogSearch : public QObject
{
    Q_OBJECT

    using Outcome = CatalogIndexOutcome;
    using State = CatalogSearchState;

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
};

QTEST_GUILESS_MAIN(tst_CatalogSearch)
#include "tst_CatalogSearch.moc"
