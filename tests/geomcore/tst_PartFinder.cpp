#include <geomcore/search/PartFinder.h>

#include <QTest>

class tst_PartFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void limit();
    void stale();
    void nothing();
};

void tst_PartFinder::finds_data()
{
    QTest::addColumn<QString>("words");
    QTest::addColumn<QString>("found");
    QTest::newRow("name") << "din933"
                          << "std/screws/din933.prj std/screws/din933_long.prj";
    QTest::newRow("part of a name") << "933"
                                    << "std/screws/din933.prj std/screws/din933_long.prj";
    QTest::newRow("words in any order") << "933 scr"
                                        << "std/screws/din933.prj std/screws/din933_long.prj";
    QTest::newRow("all words") << "933 nuts"
                               << "";
    QTest::newRow("begin of a name first") << "screw"
                                           << "std/other/screwdriver.prj std/screws/din933.prj "
                                              "std/screws/din933_long.prj";
    QTest::newRow("begin of a word before within")
        << "long"
        << "std/screws/din933_long.prj std/other/prolonged.prj";
    QTest::newRow("case") << "DIN934"
                          << "std/nuts/din934.prj";
    QTest::newRow("accents") << "scheibe gross"
                             << "std/Größe/SCHEIBE.prj";
    QTest::newRow("accents asked") << "größe"
                                   << "std/Größe/SCHEIBE.prj";
    QTest::newRow("slash") << "nuts/din"
                           << "std/nuts/din934.prj";
    QTest::newRow("same word twice") << "934 934"
                                     << "std/nuts/din934.prj";
    QTest::newRow("across texts") << "prj std"
                                  << "*";
    QTest::newRow("not across texts") << "prjstd"
                                      << "";
    QTest::newRow("line feed") << "a\nb"
                               << "x a b";
    QTest::newRow("percent") << "%1"
                             << "50%1";
    QTest::newRow("nothing") << ""
                             << "";
    QTest::newRow("blanks") << "  \t "
                            << "";
}

void tst_PartFinder::finds()
{
    const QStringList texts{"std/screws/din933.prj",
                            "std/screws/din933_long.prj",
                            "std/nuts/din934.prj",
                            QString::fromUtf8("std/Größe/SCHEIBE.prj"),
                            "std/other/screwdriver.prj",
                            "std/other/prolonged.prj",
                            "x a\nb",
                            "50%1",
                            ""};
    PartFinder finder;
    for (const QString &text : texts)
        finder.add(text);
    QCOMPARE(finder.count(), int(texts.size()));
    QFETCH(QString, words);
    QFETCH(QString, found);
    const PartFinder::Hits hits = finder.find(words, 10);
    QCOMPARE(hits.count, int(hits.best.size()));
    QStringList shown;
    for (const PartFinder::Hit &hit : hits.best)
        shown << QString(texts.at(hit.entry)).replace('\n', ' ');
    if (found == "*")
        QCOMPARE(hits.count, 6);
    else
        QCOMPARE(shown.join(' '), found);
}

void tst_PartFinder::limit()
{
    PartFinder finder;
    for (int i = 0; i < 1000; ++i)
        finder.add(QStringLiteral("catalog/part_%1").arg(i));
    const PartFinder::Hits hits = finder.find("part_9", 5);
    QCOMPARE(hits.count, 111);
    QCOMPARE(hits.best.size(), 5);
    QCOMPARE(hits.best.at(0).entry, 9);
    QCOMPARE(hits.best.at(1).entry, 90);
}

void tst_PartFinder::stale()
{
    PartFinder finder;
    for (int i = 0; i < 100000; ++i)
        finder.add(QStringLiteral("part"));
    int asked = 0;
    const PartFinder::Hits hits = finder.find("part", 5, [&] { return ++asked == 2; });
    QCOMPARE(asked, 2);
    QCOMPARE(hits.count, 0);
}

void tst_PartFinder::nothing()
{
    QCOMPARE(PartFinder().find("a", 5).count, 0);
}

QTEST_GUILESS_MAIN(tst_PartFinder)
#include "tst_PartFinder.moc"
