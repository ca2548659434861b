#include "../support/TestTables.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/ValueRangeIterator.h>

#include <QTest>

using namespace VKTab;

class tst_ValueRangeIterator : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void walks_data();
    void walks();
    void withoutNamesThereIsNothing();
    void afterTheLastTheLineShowsWhatIsStored();
    void anIteratorThatEndsEarlyLeavesItsCombination();
    void otherPutInValuesStay();
    void namingAnewStartsAnew();
    void chosenValuesDoNotNarrowTheWalk();
    void optionsMayLeaveVariablesOut();
    void oneSetOfOptionsServesSeveralWalks();
    void walksRangesOfAddedLayers();
    void walksNothingOnAnInvalidLine();
    void varsetsFollowTheWalk();
    void theFormOfTheEditor();
    void largeRangesBeginAtOnce();
    void walksABoundedNumber();

private:
    [[nodiscard]] QStringList walk(const LineId &id, const QStringList &names, bool detached)
    {
        Line line = m_table.getLine(id, detached);
        const ResolveRangeOptionsC options;
        ValueRangeIterator iterator(m_table, line, options);
        iterator.setVariablesToResolve(names);
        QStringList result;
        while (iterator.next())
            result.append(shown(line));
        if (iterator.next())
            result.append("more");
        return result;
    }
    [[nodiscard]] QString shown(const Line &line) const
    {
        QStringList texts;
        for (const char *name : {"A", "B", "C"}) {
            texts.append(
                line.getValue(m_table.getVar(QString(name)), FormatFlags::fromInt(0x11), {})
                    .toString());
        }
        return texts.join('|');
    }

    ContentRef m_table;
};

void tst_ValueRangeIterator::init()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A", FieldType::Number, FieldKind::Range),
                         TestTables::field("B", FieldType::Number, FieldKind::Range),
                         TestTables::field("C")};
    descriptor.fields[1].decimalChar = ',';
    m_table = TestTables::table(descriptor, "A,B,C\n"
                                            "1;2,\"0,5;1,5\",1;2\n"
                                            "1..3/1,7,x\n"
                                            "5,,x\n"
                                            "2;2,8..8/1,x\n"
                                            "1;;2,oops..,x\n"
                                            "M8;M10,1,x\n");
}

void tst_ValueRangeIterator::walks_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("combinations");

    const QString stored("0.5;1.5");
    QTest::newRow("the last named runs fastest")
        << 1 << QStringList{"A", "B"}
        << QStringList{"1|0.5|1;2", "1|1.5|1;2", "2|0.5|1;2", "2|1.5|1;2"};
    QTest::newRow("named the other way round")
        << 1 << QStringList{"B", "A"}
        << QStringList{"1|0.5|1;2", "2|0.5|1;2", "1|1.5|1;2", "2|1.5|1;2"};
    QTest::newRow("one of them") << 1 << QStringList{"A"}
                                 << QStringList{"1|0,5;1,5|1;2", "2|0,5;1,5|1;2"};
    QTest::newRow("a name twice") << 1 << QStringList{"A", "A"}
                                  << QStringList{"1|0,5;1,5|1;2", "2|0,5;1,5|1;2"};
    QTest::newRow("unknown names count for nothing")
        << 1 << QStringList{"X", "A", "a"} << QStringList{"1|0,5;1,5|1;2", "2|0,5;1,5|1;2"};
    QTest::newRow("plain variable whose text looks like a range")
        << 1 << QStringList{"C"} << QStringList();
    QTest::newRow("steps") << 2 << QStringList{"A"} << QStringList{"1|7|x", "2|7|x", "3|7|x"};
    QTest::newRow("a single value is no range") << 2 << QStringList{"B"} << QStringList();
    QTest::newRow("range beside a single value")
        << 2 << QStringList{"B", "A"} << QStringList{"1|7|x", "2|7|x", "3|7|x"};
    QTest::newRow("single and empty") << 3 << QStringList{"A", "B"} << QStringList();
    QTest::newRow("a value twice in the list and steps of one")
        << 4 << QStringList{"A", "B"} << QStringList{"2|8|x", "2|8|x"};
    QTest::newRow("texts that are no range") << 5 << QStringList{"A", "B"} << QStringList();
    QTest::newRow("texts in a list") << 6 << QStringList{"A"} << QStringList{"M8|1|x", "M10|1|x"};
    QTest::newRow("no names") << 1 << QStringList() << QStringList();
}

void tst_ValueRangeIterator::walks()
{
    QFETCH(int, line);
    QFETCH(QStringList, names);
    QTEST(walk(line, names, true), "combinations");
    QTEST(walk(line, names, false), "combinations");
    QVERIFY(m_table.isPlain());
}

void tst_ValueRangeIterator::withoutNamesThereIsNothing()
{
    Line line = m_table.getLine(1, true);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    QVERIFY(!iterator.next());
}

void tst_ValueRangeIterator::afterTheLastTheLineShowsWhatIsStored()
{
    Line line = m_table.getLine(1, false);
    const QString stored = shown(line);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A", "B"});
    QCOMPARE(shown(line), stored);
    while (iterator.next())
        QVERIFY(shown(line) != stored);
    QCOMPARE(shown(line), stored);
    QVERIFY(!iterator.next());
    QCOMPARE(shown(line), stored);
}

void tst_ValueRangeIterator::anIteratorThatEndsEarlyLeavesItsCombination()
{
    Line line = m_table.getLine(1, false);
    {
        const ResolveRangeOptionsC options;
        ValueRangeIterator iterator(m_table, line, options);
        iterator.setVariablesToResolve({"A"});
        QVERIFY(iterator.next());
        QVERIFY(iterator.next());
    }
    QCOMPARE(shown(line), "2|0,5;1,5|1;2");
}

void tst_ValueRangeIterator::otherPutInValuesStay()
{
    Line line = m_table.getLine(1, false);
    line.putValue(m_table.getVar(u"C").getVarId(), Value("put"));
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A"});
    QVERIFY(iterator.next());
    QCOMPARE(shown(line), "1|0,5;1,5|put");
    while (iterator.next()) {
    }
    QCOMPARE(shown(line), "1;2|0,5;1,5|put");
}

void tst_ValueRangeIterator::namingAnewStartsAnew()
{
    Line line = m_table.getLine(1, false);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A"});
    while (iterator.next()) {
    }
    iterator.setVariablesToResolve({"B"});
    QVERIFY(iterator.next());
    QCOMPARE(shown(line), "1;2|0.5|1;2");
}

void tst_ValueRangeIterator::chosenValuesDoNotNarrowTheWalk()
{
    Line line = m_table.getLine(1, false);
    line.putValue(m_table.getVar(u"A").getVarId(), Value("2"));
    QVERIFY(line.apply());
    QCOMPARE(walk(1, {"A"}, false), (QStringList{"1|0,5;1,5|1;2", "2|0,5;1,5|1;2"}));
    // Afterwards the chosen value shows again.
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A"});
    while (iterator.next()) {
    }
    QCOMPARE(shown(line), "2|0,5;1,5|1;2");
}

namespace {

class AllButA : public ResolveRangeOptionsI
{
public:
    bool resolves(const Var &var) const override { return var.getName() != "A"; }
};

} // namespace

void tst_ValueRangeIterator::optionsMayLeaveVariablesOut()
{
    Line line = m_table.getLine(1, false);
    const AllButA options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A", "B"});
    QVERIFY(iterator.next());
    QCOMPARE(shown(line), "1;2|0.5|1;2");
    QVERIFY(iterator.next());
    QVERIFY(!iterator.next());
}

void tst_ValueRangeIterator::oneSetOfOptionsServesSeveralWalks()
{
    const ResolveRangeOptionsC options;
    Line one = m_table.getLine(1, true);
    Line two = m_table.getLine(2, true);
    ValueRangeIterator first(m_table, one, options);
    ValueRangeIterator second(m_table, two, options);
    first.setVariablesToResolve({"A"});
    second.setVariablesToResolve({"A"});
    QVERIFY(first.next() && second.next() && second.next());
    QCOMPARE(shown(one), "1|0,5;1,5|1;2");
    QCOMPARE(shown(two), "2|7|x");
}

void tst_ValueRangeIterator::walksRangesOfAddedLayers()
{
    const int type = registerLayerType("tst_ValueRangeIterator");
    BaseLayer layer(type);
    Var var(VarTypeForeign);
    var.setVarSource(type);
    var.setName("D");
    var.setFW(true);
    layer.addVar(var);
    layer.setValue(layer.getVarId(u"D"), 1, Value("x;y"));
    m_table.addLayer(layer);
    Line line = m_table.getLine(1, false);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"D"});
    QStringList values;
    while (iterator.next())
        values.append(line.getValue(m_table.getVar(u"D"), FormatPlain, {}).toString());
    QCOMPARE(values, (QStringList{"x", "y"}));
}

void tst_ValueRangeIterator::walksNothingOnAnInvalidLine()
{
    Line line = m_table.getLine(99, true);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A"});
    QVERIFY(!iterator.next());
    Line none;
    const ContentRef nothing;
    ValueRangeIterator empty(nothing, none, options);
    empty.setVariablesToResolve({"A"});
    QVERIFY(!empty.next());
}

void tst_ValueRangeIterator::varsetsFollowTheWalk()
{
    Line line = m_table.getLine(1, false);
    const auto stored = createVarsetFromVKTable(m_table, 1, {});
    QCOMPARE(stored.value("A").getValue().toString(), "1;2");
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A", "B"});
    QVERIFY(iterator.next());
    const auto first = createVarsetFromVKTable(line, {});
    QCOMPARE(first.value("A").getValue().toString(), "1");
    QCOMPARE(first.value("B").getValue().toString(), "0.5");
    QCOMPARE(first.value("C").getValue().toString(), "1;2");
    QCOMPARE(createVarsetFromVKTable(m_table, 1, {}).value("A").getValue().toString(), "1;2");
}

void tst_ValueRangeIterator::theFormOfTheEditor()
{
    const auto bodies = [&](const LineId &id) {
        Line line = m_table.getLine(id, false);
        const ResolveRangeOptionsC options;
        ValueRangeIterator iterator(m_table, line, options);
        iterator.setVariablesToResolve({"A"});
        const bool hasRanges = iterator.next();
        QStringList values;
        do {
            const auto varset = hasRanges ? createVarsetFromVKTable(line, {})
                                          : createVarsetFromVKTable(m_table, id, {});
            values.append(varset.value("A").getValue().toString());
        } while (iterator.next());
        return values;
    };
    QCOMPARE(bodies(1), (QStringList{"1", "2"}));
    QCOMPARE(bodies(3), QStringList{"5"});
    // A combination equals the stored line once it was chosen there.
    Line line = m_table.getLine(1, false);
    line.putValue(m_table.getVar(u"A").getVarId(), Value("2"));
    QVERIFY(line.apply());
    QCOMPARE(createVarsetFromVKTable(m_table, 1, {}).value("A").getValue().toString(), "2");
}

void tst_ValueRangeIterator::largeRangesBeginAtOnce()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A", FieldType::Number, FieldKind::Range),
                         TestTables::field("B"), TestTables::field("C")};
    m_table = TestTables::table(descriptor, "A,B,C\n0..1000000000/1,b,c\n");
    Line line = m_table.getLine(1, true);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    iterator.setVariablesToResolve({"A"});
    QVERIFY(iterator.next() && iterator.next());
    QCOMPARE(shown(line), "1|b|c");
}

void tst_ValueRangeIterator::walksABoundedNumber()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A", FieldType::Number, FieldKind::Range),
                         TestTables::field("B", FieldType::Number, FieldKind::Range),
                         TestTables::field("C")};
    m_table = TestTables::table(descriptor, "A,B,C\n0..999/1,0..999/1,c\n");
    Line line = m_table.getLine(1, true);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(m_table, line, options);
    for (int round = 0; round < 2; ++round) {
        iterator.setVariablesToResolve({"A", "B"});
        int walked = 0;
        while (iterator.next())
            ++walked;
        QCOMPARE(walked, RangeText::MaxValues);
        QVERIFY(!iterator.next());
        QCOMPARE(shown(line), "0..999/1|0..999/1|c"); // taken out as after the last one
    }
}

QTEST_GUILESS_MAIN(tst_ValueRangeIterator)
#include "tst_ValueRangeIterator.moc"
