#include <release/pattern/PatternTable.h>

#include <QTest>

using VelkRelease::GoneGroup;
using VelkRelease::PatternTable;
using VelkRelease::ValueChange;

namespace {

/// "A B": one change of each of these variables.
QList<ValueChange> changesOf(const QString &variables)
{
    QList<ValueChange> changes;
    for (const QString &variable : variables.split(' ', Qt::SkipEmptyParts)) {
        ValueChange change;
        change.variable = variable;
        change.kind = ValueChange::Replacement;
        change.before = "x";
        change.after = "y";
        changes.append(change);
    }
    return changes;
}

GoneGroup lostValue(const QString &value)
{
    GoneGroup group;
    group.kind = GoneGroup::Value;
    group.variable = "M";
    group.value = value;
    return group;
}

QString textOf(const std::vector<PatternTable::Place> &places)
{
    QStringList texts;
    for (const PatternTable::Place &place : places)
        texts << QString("%1:%2").arg(place.project).arg(place.line);
    return texts.join(' ');
}

} // namespace

class tst_PatternTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void samePatternForTheSameChanges()
    {
        PatternTable table;
        const int pattern = table.patternFor(changesOf("A B"), true, false);
        QCOMPARE(table.patternFor(changesOf("B A"), true, false), pattern);
        QCOMPARE(table.patternFor(changesOf("A"), true, false), 1);
        QCOMPARE(table.patternFor(changesOf("A B"), true, true), 2);
        QCOMPARE(table.patternFor({}, false, false), 3);
        QCOMPARE(table.patternFor({}, true, false), 4);
        QCOMPARE(table.count(), 5);
        QVERIFY(table.isDoubtful(2));
        QVERIFY(!table.isDoubtful(0));
        QVERIFY(!table.isComparable(3));
        QCOMPARE(table.changes(0).size(), 2);
    }

    // Doubt is about proposals; what cannot be compared has none.
    void whatCannotBeComparedIsNeverInDoubt()
    {
        PatternTable table;
        const int pattern = table.patternFor({}, false, true);
        QVERIFY(!table.isDoubtful(pattern));
        QCOMPARE(table.patternFor({}, false, false), pattern);
    }

    void linesComeAndGo()
    {
        PatternTable table;
        const int pattern = table.patternFor(changesOf("A"), true, false);
        QCOMPARE(table.numbers(pattern), (PatternTable::Numbers{0, 0, 0, 0}));
        table.add(pattern, {1, 7}, 0.75);
        table.add(pattern, {0, 9}, 0.25);
        table.add(pattern, {1, 3}, 0.5);
        QCOMPARE(table.numbers(pattern), (PatternTable::Numbers{3, 2, 0.5, 0}));
        QCOMPARE(textOf(table.places(pattern, -1)), QString("0:9 1:3 1:7"));
        QCOMPARE(textOf(table.places(pattern, 2)), QString("0:9 1:3"));
        QCOMPARE(table.lines(pattern, 1), (std::vector<int>{3, 7}));
        QCOMPARE(table.lines(pattern, 2), std::vector<int>());
        QCOMPARE(textOf(table.leastSure()), QString("0:9 1:3 1:7"));
        table.remove(pattern, {0, 9});
        table.remove(pattern, {1, 3});
        QCOMPARE(table.numbers(pattern), (PatternTable::Numbers{1, 1, 0.75, 0}));
        table.remove(pattern, {1, 7});
        QCOMPARE(table.numbers(pattern), (PatternTable::Numbers{0, 0, 0, 0}));
        QVERIFY(table.ranked(false).empty());
    }

    void exceptionsHaveAllChangesAndMore()
    {
        PatternTable table;
        const int both = table.patternFor(changesOf("A B"), true, false);
        const int one = table.patternFor(changesOf("A"), true, false);
        const int other = table.patternFor(changesOf("C A"), true, false);
        const int strange = table.patternFor(changesOf("C"), true, false);
        table.add(both, {0, 1}, 1);
        table.add(other, {0, 2}, 1);
        table.add(other, {1, 1}, 1);
        table.add(strange, {0, 3}, 1);
        QCOMPARE(table.numbers(one).exceptions, 3);
        QCOMPARE(textOf(table.exceptions(one, -1)), QString("0:1 0:2 1:1"));
        QCOMPARE(textOf(table.exceptions(one, 2)), QString("0:1 0:2"));
        QCOMPARE(table.numbers(strange).exceptions, 2);
        QCOMPARE(table.numbers(both).exceptions, 0);
    }

    void linesOfAPartAreThoseOfItsPattern()
    {
        PatternTable table;
        const QList<ValueChange> shown = changesOf("A B C");
        const int single = table.patternFor(changesOf("A"), true, false);
        const int part = table.partFor(shown, changesOf("A B"));
        const int other = table.partFor(shown, changesOf("C B"));
        QCOMPARE(table.partFor(shown, changesOf("B A")), part);
        const int whole = table.wholeOf(part);
        QCOMPARE(table.wholeOf(other), whole);
        QCOMPARE(table.wholeOf(whole), whole);
        QCOMPARE(table.wholeOf(single), single);
        QVERIFY(whole != part && part != other);
        QCOMPARE(table.changes(whole).size(), 3);
        table.add(part, {0, 1}, 0.5);
        table.add(other, {0, 2}, 0.75);
        table.add(single, {0, 3}, 1);
        QCOMPARE(table.numbers(whole), (PatternTable::Numbers{2, 1, 0.625, 0}));
        QCOMPARE(table.ranked(false), (std::vector<int>{whole, single}));
        QCOMPARE(textOf(table.leastSure()), QString("0:1 0:2 0:3"));
        QCOMPARE(textOf(table.exceptions(single, -1)), QString("0:1"));
        table.remove(part, {0, 1});
        QCOMPARE(textOf(table.places(whole, -1)), QString("0:2"));
        QCOMPARE(table.numbers(single).exceptions, 0);
    }

    void thoseWithoutASuccessorStandApart()
    {
        PatternTable table;
        const int gone = table.goneFor(lostValue("8"), false);
        QCOMPARE(table.goneFor(lostValue("8"), false), gone);
        const int doubtful = table.goneFor(lostValue("8"), true);
        const int other = table.goneFor(lostValue("9"), false);
        const int changed = table.patternFor(changesOf("A"), true, false);
        QCOMPARE(table.count(), 4);
        QVERIFY(table.isDoubtful(doubtful));
        QCOMPARE(table.gone(other)->value, QString("9"));
        QVERIFY(!table.gone(changed));
        table.add(gone, {0, 1}, 1);
        table.add(other, {0, 2}, 1);
        table.add(other, {0, 3}, 0.5);
        table.add(changed, {0, 4}, 1);
        QCOMPARE(table.ranked(true), (std::vector<int>{other, gone}));
        QCOMPARE(table.ranked(false), std::vector<int>{changed});
        QCOMPARE(textOf(table.leastSure()), QString("0:4"));
    }
};

QTEST_GUILESS_MAIN(tst_PatternTable)
#include "tst_PatternTable.moc"
