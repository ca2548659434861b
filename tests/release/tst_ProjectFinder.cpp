#include "TableText.h"

#include <release/assign/ProjectFinder.h>
#include <release/assign/ProjectName.h>
#include <release/assign/ReleaseIndex.h>

#include <QTest>

using VelkRelease::LineCells;
using VelkRelease::ProjectFinder;
using VelkRelease::ReleaseIndex;
using VelkRelease::VariableNames;

namespace {

/// A new release: pairs of path and table.
using Release = QList<QPair<QString, QByteArray>>;

/// Twelve lines of three variables from \a first on.
QByteArray lines(int first, int count)
{
    QByteArray text;
    for (int i = first; i < first + count; ++i)
        text += ";M" + QByteArray::number(i) + ',' + QByteArray::number(2 * i + 1) + ',' +
                QByteArray::number(i * i);
    return text;
}

QByteArray bolts(int first = 1, int count = 12)
{
    return "size,s,k" + lines(first, count);
}

/// The same lines, each with another value in k.
QByteArray otherBolts(int first, int count)
{
    QByteArray text = "size,s,k";
    for (int i = first; i < first + count; ++i)
        text += ";M" + QByteArray::number(i) + ',' + QByteArray::number(2 * i + 1) + ",0.1";
    return text;
}

} // namespace

class tst_ProjectFinder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void finds_data();
    void finds();
    void findsWithRoom_data();
    void findsWithRoom();
    void manyProjectsWithTheSameLines();
    void longerNames();
    void searchesDoNotDisturbEachOther();
    void foldedNames_data();
    void foldedNames();
    void likeness_data();
    void likeness();
};

void tst_ProjectFinder::finds_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<QStringList>("key");
    QTest::addColumn<Release>("release");
    QTest::addColumn<QStringList>("found");
    const QStringList none;
    const QStringList key{"size"};

    QTest::newRow("same path") << bolts() << none
                               << Release{{"new/a/bolt.prj", bolts()}, {"new/b/x.prj", bolts()}}
                               << QStringList{"new/a/bolt.prj"};
    QTest::newRow("same path with other lines")
        << bolts() << none << Release{{"new/a/bolt.prj", "t;1"}} << QStringList{"new/a/bolt.prj"};
    QTest::newRow("moved, name in another form")
        << bolts() << none << Release{{"new/b/BO-LT.prj", bolts()}, {"new/b/other.prj", bolts()}}
        << QStringList{"new/b/BO-LT.prj"};
    QTest::newRow("two of that name, the one with the lines first")
        << bolts() << none << Release{{"new/b/bolt.prj", bolts(1, 6)}, {"new/c/Bolt.prj", bolts()}}
        << QStringList{"new/c/Bolt.prj", "new/b/bolt.prj"};
    QTest::newRow("two of that name, one without any line")
        << bolts() << none << Release{{"new/b/bolt.prj", "x;1"}, {"new/c/bolt.prj", bolts()}}
        << QStringList{"new/c/bolt.prj"};
    QTest::newRow("of that name, none with any line")
        << bolts() << none << Release{{"new/b/bolt.prj", "x;1"}, {"new/c/bolt.prj", "y;1"}}
        << QStringList{"new/b/bolt.prj"};
    QTest::newRow("renamed") << bolts() << none
                             << Release{{"new/a/nut.prj", bolts(50)}, {"new/a/screw.prj", bolts()}}
                             << QStringList{"new/a/screw.prj"};
    QTest::newRow("renamed, lines in between and in another order")
        << bolts(1, 6) << none
        << Release{{"new/a/screw.prj", "size,s,k;M0,1,1" + lines(4, 3) + lines(1, 3)}}
        << QStringList{"new/a/screw.prj"};
    QTest::newRow("renamed and one value of each line changed")
        << QByteArray("size,s,k,e;M1,2,3,4;M2,3,4,5;M3,4,5,6") << none
        << Release{{"new/a/screw.prj", "size,s,k,e;M1,2,3,9;M2,3,9,5;M-3,4,5,6"}}
        << QStringList{"new/a/screw.prj"};
    QTest::newRow("renamed, with a variable less and one more")
        << QByteArray("size,s,k,e;M1,2,3,4;M2,3,4,5") << none
        << Release{{"new/a/screw.prj", "size,s,k,t;M1,2,3,7;M2,3,4,7"}}
        << QStringList{"new/a/screw.prj"};
    QTest::newRow("split") << bolts() << none
                           << Release{{"new/a/long.prj", bolts(1, 5)},
                                      {"new/a/short.prj", bolts(6, 7)}}
                           << QStringList{"new/a/short.prj", "new/a/long.prj"};
    QTest::newRow("split in three, none with half of the lines")
        << bolts() << none
        << Release{{"new/a/p.prj", bolts(1, 3)},
                   {"new/a/q.prj", bolts(4, 4)},
                   {"new/a/r.prj", bolts(8, 5)}}
        << QStringList{"new/a/r.prj", "new/a/q.prj", "new/a/p.prj"};
    QTest::newRow("split in three, one value of each line changed")
        << bolts() << none
        << Release{{"new/a/p.prj", otherBolts(1, 3)},
                   {"new/a/q.prj", otherBolts(4, 4)},
                   {"new/a/r.prj", otherBolts(8, 5)}}
        << QStringList{"new/a/r.prj", "new/a/q.prj", "new/a/p.prj"};
    QTest::newRow("one changed line is no part")
        << bolts() << none
        << Release{{"new/a/p.prj", otherBolts(1, 1)}, {"new/a/r.prj", otherBolts(2, 11)}}
        << QStringList{"new/a/r.prj"};
    QTest::newRow("one changed line of few is no part")
        << bolts(1, 6) << none
        << Release{{"new/a/p.prj", otherBolts(1, 1)}, {"new/a/r.prj", otherBolts(2, 5)}}
        << QStringList{"new/a/r.prj"};
    QTest::newRow("merged") << bolts(1, 6) << none << Release{{"new/a/all.prj", bolts()}}
                            << QStringList{"new/a/all.prj"};
    QTest::newRow("copied, the one of the likelier name first")
        << bolts() << none << Release{{"new/a/boat.prj", bolts()}, {"new/a/abolt.prj", bolts()}}
        << QStringList{"new/a/abolt.prj", "new/a/boat.prj"};
    QTest::newRow("copied, one with a longer name")
        << bolts() << none << Release{{"new/a/boat.prj", bolts()}, {"new/a/bolt2.prj", bolts()}}
        << QStringList{"new/a/bolt2.prj"};
    QTest::newRow("split, the parts have longer names")
        << bolts() << none
        << Release{{"new/b/bolt-long.prj", bolts(1, 5)},
                   {"new/b/bolt-short.prj", bolts(6, 7)},
                   {"new/b/all.prj", bolts()}}
        << QStringList{"new/b/bolt-short.prj", "new/b/bolt-long.prj"};
    QTest::newRow("longer names in the same folder, all lines changed")
        << bolts() << none
        << Release{{"new/a/bolt-x.prj", "size,s,k;N1,0.1,0.2"},
                   {"new/b/bolt-y.prj", "size,s,k;N2,0.1,0.2"},
                   {"new/a/bolt-z.prj", "size;N3"}}
        << QStringList{"new/a/bolt-x.prj"};
    QTest::newRow("longer names in the same folder, the only variable")
        << QByteArray("size;M1;M2") << none
        << Release{{"new/a/bolt-x.prj", "size;M1"}, {"new/a/bolt-y.prj", "size;M2"}}
        << QStringList{"new/a/bolt-x.prj", "new/a/bolt-y.prj"};
    QTest::newRow("parts elsewhere, all lines changed")
        << bolts() << none
        << Release{{"new/b/bolt-x.prj", "size,s,h;N1,0.1,0.2"},
                   {"new/b/bolt-y.prj", "size,s,h;N2,0.1,0.2"}}
        << QStringList{"new/b/bolt-x.prj", "new/b/bolt-y.prj"};
    QTest::newRow("parts of different variables are none")
        << bolts() << none
        << Release{{"new/b/bolt-x.prj", "size,s,h;N1,0.1,0.2"},
                   {"new/b/bolt-y.prj", "size,h;N2,0.1"}}
        << none;
    QTest::newRow("longer names elsewhere, without the lines")
        << bolts() << none << Release{{"new/b/bolt-x.prj", bolts(50)}, {"new/b/screw.prj", bolts()}}
        << QStringList{"new/b/screw.prj"};
    QTest::newRow("renamed, and one of two variables too")
        << QByteArray("size,p;M1,3;M2,4;M3,5;M4,7") << none
        << Release{{"new/a/pitch.prj", "size,coarse,fine;M1,3,1;M2,4,1;M3,5,2;M4,7,;M5,8,"}}
        << QStringList{"new/a/pitch.prj"};
    QTest::newRow("found by its name, others under no other variables")
        << QByteArray("size,p;M1,3;M2,4;M3,5;M4,7") << none
        << Release{{"new/a/bolt.prj", "size,p;N1,3"},
                   {"new/a/pitch.prj", "size,coarse;M1,3;M2,4;M3,5;M4,7"}}
        << QStringList{"new/a/bolt.prj"};
    QTest::newRow("half as good as the best")
        << bolts() << none << Release{{"new/a/p.prj", bolts(1, 8)}, {"new/a/q.prj", bolts()}}
        << QStringList{"new/a/q.prj"};
    QTest::newRow("rest moved to another project")
        << bolts() << key
        << Release{{"new/a/bolt.prj", bolts(1, 10)}, {"new/a/big.prj", bolts(11, 2)}}
        << QStringList{"new/a/bolt.prj", "new/a/big.prj"};
    QTest::newRow("one of many lines of the rest is elsewhere by chance")
        << bolts() << key
        << Release{{"new/a/bolt.prj", bolts(1, 6)}, {"new/a/big.prj", bolts(11, 1)}}
        << QStringList{"new/a/bolt.prj"};
    QTest::newRow("a project that has the others as well has the rest by itself")
        << bolts() << key
        << Release{{"new/a/bolt.prj", bolts(1, 10)}, {"new/a/big.prj", bolts(4, 9)}}
        << QStringList{"new/a/bolt.prj"};
    QTest::newRow("also if it has the others but for one value")
        << bolts() << key
        << Release{{"new/a/bolt.prj", bolts(1, 10)},
                   {"new/a/big.prj", otherBolts(1, 10) + lines(11, 2)}}
        << QStringList{"new/a/bolt.prj"};
    QTest::newRow("one equal line, and no other project")
        << bolts() << key << Release{{"new/a/big.prj", "size,s,k;M1,3,1;X,1,1;Y,2,2"}}
        << QStringList{"new/a/big.prj"};
    QTest::newRow("alike but for chance, the likelier name first")
        << bolts() << none
        << Release{{"new/a/rivet.prj", bolts(1, 11)},
                   {"new/a/abolt.prj", bolts(2, 10) + lines(20, 2)}}
        << QStringList{"new/a/abolt.prj", "new/a/rivet.prj"};
    QTest::newRow("alike but for chance in both, the likelier name first")
        << bolts() << none
        << Release{{"new/a/rivet.prj", bolts(1, 11)},
                   {"new/a/abolt.prj", bolts(2, 9) + lines(20, 3)}}
        << QStringList{"new/a/abolt.prj", "new/a/rivet.prj"};
    QTest::newRow("more than chance lets them differ")
        << bolts() << none
        << Release{{"new/a/rivet.prj", bolts(1, 11)},
                   {"new/a/abolt.prj", bolts(2, 8) + lines(20, 4)}}
        << QStringList{"new/a/rivet.prj", "new/a/abolt.prj"};
    QTest::newRow("rest in two projects alike is not looked for")
        << bolts() << key
        << Release{{"new/a/bolt.prj", bolts(1, 10)},
                   {"new/a/p.prj", bolts(11, 2)},
                   {"new/a/q.prj", bolts(11, 2)}}
        << QStringList{"new/a/bolt.prj"};
    QTest::newRow("changed lines are not looked for elsewhere")
        << bolts(1, 2) << key
        << Release{{"new/a/bolt.prj", "size,s,k;M1,3,1;M2,7,7"}, {"new/a/p.prj", bolts(2, 2)}}
        << QStringList{"new/a/bolt.prj"};
    QTest::newRow("gone") << bolts() << key << Release{{"new/a/nut.prj", bolts(50)}} << none;
    QTest::newRow("only one variable in common")
        << bolts() << key << Release{{"new/a/nut.prj", "size,m;M1,1;M2,1;M3,1"}} << none;
    QTest::newRow("old table without lines")
        << QByteArray("size,s,k") << key
        << Release{{"new/a/bolt.prj", bolts()}, {"new/a/p.prj", "size,s,k"}}
        << QStringList{"new/a/bolt.prj"};
    QTest::newRow("no table at all, moved")
        << QByteArray("x") << none << Release{{"new/b/bolt.prj", "x"}}
        << QStringList{"new/b/bolt.prj"};
    QTest::newRow("new table without lines")
        << bolts() << none << Release{{"new/a/p.prj", "size,s,k"}} << none;
    QTest::newRow("empty release") << bolts() << none << Release() << none;
}

void tst_ProjectFinder::finds()
{
    QFETCH(QByteArray, old);
    QFETCH(QStringList, key);
    QFETCH(Release, release);
    VariableNames names;
    ReleaseIndex index;
    for (const auto &[path, table] : release)
        index.add(path, cellsOf(table, names));
    index.finish();
    QStringList found;
    for (const int table : ProjectFinder(index).find("old/a/bolt.prj", cellsOf(old, names, key)))
        found << index.path(table);
    QTEST(found, "found");
}

void tst_ProjectFinder::findsWithRoom_data()
{
    QTest::addColumn<QByteArray>("old");
    QTest::addColumn<Release>("release");
    QTest::addColumn<std::vector<int>>("taken"); // lines that other projects became
    QTest::addColumn<QStringList>("found");
    // Of three columns one is in another unit and one reworded, so that no line is held.
    const QByteArray reworded = "size,s,k;N1,3,10;N2,5,40;N3,7,90;N4,9,160;N5,11,250";
    const QByteArray half = "size,s;N1,3;N2,5;N3,7;N4,9;N5,11";
    const QByteArray two = "size,s;M1,3;M2,5;M3,7;M4,9;M5,11";
    const std::vector<int> none;

    QTest::newRow("one of two columns as it was")
        << two << Release{{"new/b/x.prj", half}} << none << QStringList{"new/b/x.prj"};
    QTest::newRow("also in other lines")
        << two << Release{{"new/b/x.prj", "size,s;N1,11;N2,9;N3,7;N4,5;N5,3"}} << none
        << QStringList{"new/b/x.prj"};
    QTest::newRow("one of three is too few")
        << bolts(1, 5) << Release{{"new/b/x.prj", reworded}} << none << QStringList();
    QTest::newRow("a column of two values")
        << QByteArray("size,s;M1,3;M2,3;M3,3;M4,5")
        << Release{{"new/b/x.prj", "size,s;N1,3;N2,3;N3,3;N4,5"}} << none << QStringList();
    QTest::newRow("the half of a column")
        << two << Release{{"new/b/x.prj", "size,s;M1,3;M2,5;M3,1;N4,1;N5,1"}} << none
        << QStringList();
    QTest::newRow("a third of a column gone with the lines")
        << QByteArray("size,s;M1,3;M2,5;M3,7;M4,9;M5,11;M6,13")
        << Release{{"new/b/x.prj", "size,s;N1,3;N2,5;N4,9;N5,11"}} << none
        << QStringList{"new/b/x.prj"};
    QTest::newRow("one with half of the values, before one with nearly half of them")
        << QByteArray("size,s;M1,3;M2,5;M3,7;M4,9;M5,11;M6,13;M7,15;M8,17;M9,19;M10,21")
        << Release{{"new/b/x.prj", "size,s;N1,3;N2,5;N3,7;N4,9;N5,11;N6,13;N7,15;N8,17;N9,19"},
                   {"new/c/y.prj", "size,s;,3;,5;,7;,9;,11;,13;,15;,17;,19;,21"}}
        << none << QStringList{"new/c/y.prj"};
    QTest::newRow("the best ones first")
        << two
        << Release{{"new/b/x.prj", "size,s;N1,3;N2,5;N3,7;N4,9;N5,1"},
                   {"new/b/y.prj", half},
                   {"new/b/z.prj", half}}
        << none << QStringList{"new/b/y.prj", "new/b/z.prj"};
    QTest::newRow("of two as good, the one in the same folder")
        << two << Release{{"new/b/bolts.prj", half}, {"new/a/y.prj", half}} << none
        << QStringList{"new/a/y.prj"};
    QTest::newRow("a better one in another folder")
        << two << Release{{"new/b/x.prj", half}, {"new/a/y.prj", "size,s;N1,3;N2,5;N3,7;N4,9;N5,1"}}
        << none << QStringList{"new/b/x.prj"};
    QTest::newRow("one that has lines, before one that has the columns")
        << two
        << Release{{"new/a/x.prj", half},
                   {"new/b/y.prj", "size,s;M1,3;M2,5;M3,7"},
                   {"new/b/z.prj", two}}
        << std::vector<int>{0, 0, 5} << QStringList{"new/b/y.prj"};
    QTest::newRow("one that has lines, and one as good in the same folder")
        << two
        << Release{{"new/b/y.prj", "size,s;M1,3;M2,5;M3,7"},
                   {"new/a/x.prj", "size,s;N1,3;N2,5;M3,9;N4,7;N5,11"}}
        << none << QStringList{"new/a/x.prj"};
    QTest::newRow("became another project")
        << two << Release{{"new/b/x.prj", half}} << std::vector<int>{5} << QStringList();
    QTest::newRow("room for half of the lines")
        << two << Release{{"new/b/x.prj", half + ";N6,13;N7,15;N8,17"}} << std::vector<int>{5}
        << QStringList{"new/b/x.prj"};
    QTest::newRow("the only column with another name, in the same folder")
        << QByteArray("p;1;1;2;3")
        << Release{{"new/a/x.prj", "t,q;7,1;8,1;9,2;7,3;8,4"}, {"new/b/y.prj", "q;1;1;2;3"}} << none
        << QStringList{"new/a/x.prj"};
    QTest::newRow("a column with another name beside a reworded one, in the same folder")
        << two << Release{{"new/a/x.prj", "size,w;N1,3;N2,5;N3,7;N4,9;N5,11;N6,13"}} << none
        << QStringList{"new/a/x.prj"};
}

void tst_ProjectFinder::findsWithRoom()
{
    QFETCH(QByteArray, old);
    QFETCH(Release, release);
    QFETCH(std::vector<int>, taken);
    VariableNames names;
    ReleaseIndex index;
    std::vector<int> room;
    for (const auto &[path, table] : release) {
        const int number = index.add(path, cellsOf(table, names));
        const int became = size_t(number) < taken.size() ? taken[size_t(number)] : 0;
        room.push_back(index.table(number).rowCount() - became);
    }
    index.finish();
    QStringList found;
    const LineCells cells = cellsOf(old, names);
    const auto hasRoom = [&](int table) {
        return 2 * room[size_t(table)] >= cells.rowCount();
    };
    for (const int table :
         ProjectFinder(index).findWithRoom("old/a/bolt.prj", cells, hasRoom, true))
        found << index.path(table);
    QTEST(found, "found");
}

void tst_ProjectFinder::manyProjectsWithTheSameLines()
{
    VariableNames names;
    ReleaseIndex index;
    for (int i = 0; i <= ReleaseIndex::CommonLimit; ++i)
        index.add(QString("new/a/copy%1.prj").arg(i), cellsOf(bolts(), names));
    index.finish();
    const LineCells old = cellsOf(bolts(), names);
    QVERIFY2(ProjectFinder(index).find("old/a/bolt.prj", old).empty(), "common lines say nothing");
    QCOMPARE(ProjectFinder(index).find("old/b/copy7.prj", old), std::vector<int>{7});
}

void tst_ProjectFinder::longerNames()
{
    VariableNames names;
    ReleaseIndex index;
    for (const char *path : {"new/a/din931.prj", "new/a/DIN 931-b.prj", "new/a/din9311.prj",
                             "new/a/din93.prj", "new/b/din931a.prj", "new/a/din932.prj"})
        index.add(path, LineCells());
    index.finish();
    QCOMPARE(index.withNameBegin("din931"), (std::vector<int>{1, 4}));
    QCOMPARE(index.withNameBegin("din"), (std::vector<int>{0, 1, 2, 3, 4, 5}));
    QCOMPARE(index.withNameBegin("din931b"), std::vector<int>());
    QCOMPARE(index.withNameBegin(""), std::vector<int>());
}

void tst_ProjectFinder::searchesDoNotDisturbEachOther()
{
    VariableNames names;
    ReleaseIndex index;
    index.add("new/a/p.prj", cellsOf(bolts(1, 12), names));
    index.add("new/a/q.prj", cellsOf(bolts(21, 12), names));
    index.finish();
    const LineCells first = cellsOf(bolts(1, 12), names);
    const LineCells second = cellsOf(bolts(21, 12), names);
    const ProjectFinder finder(index);
    QCOMPARE(finder.find("old/a/x.prj", first), std::vector<int>{0});
    QCOMPARE(finder.find("old/a/x.prj", second), std::vector<int>{1});
    QCOMPARE(finder.find("old/a/x.prj", first), std::vector<int>{0});
}

void tst_ProjectFinder::foldedNames_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "cat/a/bolt.prj"
                           << "bolt";
    QTest::newRow("case and separators") << "cat/a/ISO_7380-2 def.prj"
                                         << "iso73802def";
    QTest::newRow("dots") << "cat/ASMEB18.2.1.prj"
                          << "asmeb1821";
    QTest::newRow("no directory") << "bolt.prj"
                                  << "bolt";
    QTest::newRow("no extension") << "cat/bolt"
                                  << "bolt";
    QTest::newRow("dot first") << "cat/.bolt"
                               << "bolt";
    QTest::newRow("letters of other scripts")
        << QString::fromUtf8("cat/Größe Ж.prj") << QString::fromUtf8("größeж");
}

void tst_ProjectFinder::foldedNames()
{
    QFETCH(QString, path);
    QTEST(VelkRelease::foldedName(path), "name");
}

void tst_ProjectFinder::likeness_data()
{
    QTest::addColumn<QString>("a");
    QTest::addColumn<QString>("b");
    QTest::addColumn<double>("likeness");
    QTest::newRow("equal") << "bolt"
                           << "bolt" << 1.0;
    QTest::newRow("nothing") << "bolt"
                             << "nux" << 0.0;
    QTest::newRow("in order") << "bolt"
                              << "belts" << 2.0 * 3 / 9;
    QTest::newRow("out of order") << "ab"
                                  << "ba" << 0.5;
    QTest::newRow("empty") << ""
                           << "bolt" << 0.0;
    QTest::newRow("both empty") << ""
                                << "" << 0.0;
}

void tst_ProjectFinder::likeness()
{
    QFETCH(QString, a);
    QFETCH(QString, b);
    QTEST(VelkRelease::nameLikeness(a, b), "likeness");
}

QTEST_GUILESS_MAIN(tst_ProjectFinder)
#include "tst_ProjectFinder.moc"
