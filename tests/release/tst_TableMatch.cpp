#include "TableText.h"

#include <release/assign/TableMatch.h>

#include <QTest>

using VelkRelease::LineCells;
using VelkRelease::TableMatch;
using VelkRelease::VariableNames;

class tst_TableMatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void equalLines_data();
    void equalLines();
    void related_data();
    void related();
    void nearLinesCountOnRequest();
    void nearPairs_data();
    void nearPairs();
    void heldNeedsTwoValuesAndTwoThirds_data();
    void heldNeedsTwoValuesAndTwoThirds();
    void keys_data();
    void keys();
    void score_data();
    void score();
};

void tst_TableMatch::equalLines_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("equal");
    QTest::newRow("same") << QByteArray("a,b;1,x") << QByteArray("a,b;1,x") << true;
    QTest::newRow("other order of columns")
        << QByteArray("a,b;1,x") << QByteArray("b,a;x,1") << true;
    QTest::newRow("numbers by value") << QByteArray("a,b;9.0,x") << QByteArray("a,b;9,x") << true;
    QTest::newRow("swapped values") << QByteArray("a,b;1,2") << QByteArray("a,b;2,1") << false;
    QTest::newRow("texts by case") << QByteArray("a,b;1,x") << QByteArray("a,b;1,X") << false;
    QTest::newRow("only common variables")
        << QByteArray("a,b;1,x") << QByteArray("a,c;1,y") << true;
    QTest::newRow("no common variable") << QByteArray("a;1") << QByteArray("b;1") << false;
    QTest::newRow("names by case") << QByteArray("a;1") << QByteArray("A;1") << false;
    QTest::newRow("no value equals no value")
        << QByteArray("a,b;1,") << QByteArray("a,b;1,") << true;
    QTest::newRow("value against none") << QByteArray("a,b;1,2") << QByteArray("a,b;1,") << false;
    QTest::newRow("nothing but no values") << QByteArray("a,b;,2") << QByteArray("a,c;,2") << false;
    QTest::newRow("empty target") << QByteArray("a,b;1,2") << QByteArray("a,b") << false;
}

void tst_TableMatch::equalLines()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    VariableNames names;
    const LineCells mine = cellsOf(source, names);
    const LineCells theirs = cellsOf(target, names);
    QTEST(TableMatch(mine, theirs).isEqual(0), "equal");
}

void tst_TableMatch::related_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("related");
    QTest::newRow("all") << QByteArray("a,b") << QByteArray("a,b,c") << true;
    QTest::newRow("half") << QByteArray("a,b,c,d") << QByteArray("a,b") << true;
    QTest::newRow("less than half") << QByteArray("a,b,c,d,e") << QByteArray("a,b") << false;
    QTest::newRow("one only") << QByteArray("a") << QByteArray("a") << false;
}

void tst_TableMatch::related()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    VariableNames names;
    const LineCells mine = cellsOf(source, names);
    const LineCells theirs = cellsOf(target, names);
    QTEST(TableMatch(mine, theirs).isRelated(), "related");
}

void tst_TableMatch::nearLinesCountOnRequest()
{
    VariableNames names;
    const LineCells mine = cellsOf("a,b,c;1,2,3;1,2,;7,8,9", names);
    const LineCells theirs = cellsOf("a,b,c;1,2,4;7,0,0", names);
    TableMatch match(mine, theirs);
    QCOMPARE(match.heldCount({0, 1, 2}), 0);
    match.findNearLines();
    QVERIFY(match.isHeld(0));
    QVERIFY(!match.isEqual(0));
    QVERIFY2(match.isHeld(1), "a value instead of none is one difference");
    QVERIFY2(!match.isHeld(2), "two differences");
}

void tst_TableMatch::nearPairs_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<QString>("pairs");
    const auto row = [](const char *name, const char *source, const char *target,
                        const char *pairs) {
        QTest::newRow(name) << QByteArray(source) << QByteArray(target) << QString(pairs);
    };
    row("one variable differs", "a,b,c;1,2,3;4,5,6", "a,b,c;4,5,7;1,9,3", "0-1:1 1-0:2");
    row("equal", "a,b,c;1,2,3", "a,b,c;1,2,3", "");
    row("two differ", "a,b,c;1,2,3", "a,b,c;1,8,9", "");
    row("two variables", "a,b;1,2", "a,b;1,3", "");
    row("a value came", "a,b,c,d;1,2,,3", "a,b,c,d;1,2,4,3", "");
    row("a value is gone", "a,b,c,d;1,2,4,3", "a,b,c,d;1,2,,3", "");
    row("only one value is the same", "a,b,c;1,,3", "a,b,c;1,,4", "");
    row("two new lines like it", "a,b,c;1,2,3", "a,b,c;1,2,4;1,2,5", "");
    row("two old lines like it", "a,b,c;1,2,3;1,2,4", "a,b,c;1,2,5", "");
    row("one of two old lines stays", "a,b,c;1,2,3;1,2,4", "a,b,c;1,2,4;1,2,5", "");
    row("the new line is that of another", "a,b,c;1,2,3;1,2,4", "a,b,c;1,2,4", "");
    row("like one in another variable too", "a,b,c;1,2,3", "a,b,c;1,2,4;1,5,3", "");
    row("only common variables", "a,b,c,x;1,2,3,7", "a,b,c,y;1,2,4,8", "0-0:2");
}

void tst_TableMatch::nearPairs()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    VariableNames names;
    const LineCells mine = cellsOf(source, names);
    const LineCells theirs = cellsOf(target, names);
    QStringList found;
    for (const TableMatch::NearPair &pair : TableMatch(mine, theirs).nearPairs())
        found << QStringLiteral("%1-%2:%3")
                     .arg(pair.sourceRow)
                     .arg(pair.targetRow)
                     .arg(pair.differing);
    QTEST(found.join(' '), "pairs");
}

void tst_TableMatch::heldNeedsTwoValuesAndTwoThirds_data()
{
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("held");
    QTest::newRow("two of three") << QByteArray("a,b,c;1,2,3") << QByteArray("a,b;1,2") << true;
    QTest::newRow("two of four") << QByteArray("a,b,c,d;1,2,3,4") << QByteArray("a,b;1,2") << false;
    QTest::newRow("two of four, two empty")
        << QByteArray("a,b,c,d;1,2,,") << QByteArray("a,b;1,2") << true;
    QTest::newRow("one of one") << QByteArray("a;1") << QByteArray("a;1") << false;
    QTest::newRow("other value") << QByteArray("a,b;1,2") << QByteArray("a,b;1,3") << false;
}

void tst_TableMatch::heldNeedsTwoValuesAndTwoThirds()
{
    QFETCH(QByteArray, source);
    QFETCH(QByteArray, target);
    VariableNames names;
    const LineCells mine = cellsOf(source, names);
    const LineCells theirs = cellsOf(target, names);
    QTEST(TableMatch(mine, theirs).isHeld(0), "held");
}

void tst_TableMatch::keys_data()
{
    QTest::addColumn<QStringList>("key");
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<bool>("found");
    QTest::newRow("there") << QStringList{"a"} << QByteArray("a,b;1,3") << true;
    QTest::newRow("not there") << QStringList{"a"} << QByteArray("a,b;2,2") << false;
    QTest::newRow("no key") << QStringList() << QByteArray("a,b;1,3") << false;
    QTest::newRow("column not there") << QStringList{"a"} << QByteArray("b,c;2,3") << false;
    QTest::newRow("both columns") << QStringList{"b", "a"} << QByteArray("a,b;1,2") << true;
    QTest::newRow("one of two columns") << QStringList{"a", "b"} << QByteArray("a,b;1,3") << false;
}

void tst_TableMatch::keys()
{
    QFETCH(QStringList, key);
    QFETCH(QByteArray, target);
    VariableNames names;
    const LineCells mine = cellsOf("a,b;1,2", names, key);
    const LineCells theirs = cellsOf(target, names);
    QTEST(TableMatch(mine, theirs).hasKey(0), "found");
}

void tst_TableMatch::score_data()
{
    QTest::addColumn<QByteArray>("target");
    QTest::addColumn<double>("score");
    QTest::newRow("the same") << QByteArray("a,b;1,2;3,4") << 1.0;
    QTest::newRow("half of the lines") << QByteArray("a,b;1,2;3,5") << 0.5;
    QTest::newRow("twice as many lines") << QByteArray("a,b;1,2;3,4;5,6;7,8") << 0.5;
    QTest::newRow("twice as many variables") << QByteArray("a,b,c,d;1,2,,;3,4,,") << 0.5;
    QTest::newRow("nothing") << QByteArray("a,b;5,6;7,8") << 0.0;
}

void tst_TableMatch::score()
{
    QFETCH(QByteArray, target);
    VariableNames names;
    const LineCells mine = cellsOf("a,b;1,2;3,4", names);
    const LineCells theirs = cellsOf(target, names);
    QTEST(TableMatch(mine, theirs).score({0, 1}), "score");
}

QTEST_GUILESS_MAIN(tst_TableMatch)
#include "tst_TableMatch.moc"
