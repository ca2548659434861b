#include "../support/TestTables.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/Finder.h>
#include <geomcore/table/LayerType.h>

#include <QTest>

using namespace VKTab;

namespace {

TabVarValue value(const QString &name, const QString &text)
{
    return {name, text, QString(), 0, 1};
}

/// 400 lines: A counts 0 to 9, B is "b0" to "b3", R a range in every fifth line, N missing in every
/// seventh.
ContentRef manyLines()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A", FieldType::Number), TestTables::field("B"),
                         TestTables::field("R", FieldType::Number, FieldKind::Range),
                         TestTables::field("N", FieldType::Number),
                         TestTables::field("C", FieldType::Number, FieldKind::Computed)};
    descriptor.fields[4].formula = "A + 1";
    QString csv("A,B,R,N\n");
    for (int i = 0; i < 400; ++i) {
        const QString range =
            i % 5 == 0 ? QString("%1..%2/5").arg(i).arg(i + 50) : QString::number(i);
        csv += QString("%1,b%2,%3,%4\n")
                   .arg(i % 2 ? QString::number(i % 10) : QString("%1.0").arg(i % 10))
                   .arg(i % 4)
                   .arg(range, i % 7 ? QString::number(i % 3) : QString());
    }
    return TestTables::table(descriptor, csv);
}

QList<int> numbers(const QList<FindResult> &results)
{
    QList<int> list;
    for (const FindResult &result : results)
        list.append(result.getLineId().value(0));
    return list;
}

} // namespace

class tst_Finder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table = TestTables::screws(); }
    void takesKindsOfVariables_data();
    void takesKindsOfVariables();
    void dropsUnknownNamesAndKeepsOrder();
    void comparesALine_data();
    void comparesALine();
    void putsValuesIntoTheLine();
    void appliedValuesAreThoseOfRanges();
    void findsLines_data();
    void findsLines();
    void fewAndManyLinesAgree_data();
    void fewAndManyLinesAgree();
    void unselectiveColumns();
    void keepsTheOrderOfTheIds();
    void findsVisibleLinesOnDemand();
    void seesChangedCells();
    void aChosenValueDoesNotHideARange();
    void searchesAddedColumns();
    void withoutValuesNothingIsFound();
    void findsNothingInAnInvalidTable();
    void largeRangesAreNotSpreadOut();

private:
    [[nodiscard]] QList<FindValue> all(const ContentRef &table,
                                       const QList<TabVarValue> &values) const
    {
        return m_finder.toValueList(table, values, VarTypeFilterFlags::fromInt(63));
    }

    Finder m_finder;
    ContentRef m_table;
};

void tst_Finder::takesKindsOfVariables_data()
{
    QTest::addColumn<int>("filter");
    QTest::addColumn<QStringList>("names");
    const QStringList everything{"plain", "hidden", "shownFW", "hiddenFW",
                                 "calc",  "intern", "topo",    "foreign"};
    QTest::newRow("default") << 10 << QStringList{"plain", "hidden", "shownFW"};
    QTest::newRow("ranges that the default missed") << 4 << QStringList{"hiddenFW"};
    QTest::newRow("all") << 63 << everything;
    QTest::newRow("internal") << 1 << QStringList{"intern", "topo"};
    QTest::newRow("plain") << 2 << QStringList{"plain", "hidden"};
    QTest::newRow("shown ranges") << 8 << QStringList{"shownFW"};
    QTest::newRow("computed") << 16 << QStringList{"calc"};
    QTest::newRow("foreign") << 32 << QStringList{"foreign"};
    QTest::newRow("none") << 0 << QStringList();
}

void tst_Finder::takesKindsOfVariables()
{
    QFETCH(int, filter);
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("plain"),
                         TestTables::field("hidden"),
                         TestTables::field("shownFW", FieldType::Number, FieldKind::Range),
                         TestTables::field("hiddenFW", FieldType::Number, FieldKind::Range),
                         TestTables::field("calc", FieldType::Number, FieldKind::Computed),
                         TestTables::field("intern", FieldType::String, FieldKind::Internal),
                         TestTables::field("topo", FieldType::String, FieldKind::Topology)};
    descriptor.fields[1].hidden = true;
    descriptor.fields[3].hidden = true;
    descriptor.fields[4].formula = "1";
    ContentRef table = TestTables::table(descriptor, "plain,hidden,shownFW,hiddenFW,intern,topo\n");
    BaseLayer layer(registerLayerType("tst_Finder"));
    Var var(VarTypePlain);
    var.setVarSource(registerLayerType("tst_Finder"));
    var.setName("foreign");
    layer.addVar(var);
    table.addLayer(layer);

    QList<TabVarValue> values;
    const QStringList everything{"plain", "hidden", "shownFW", "hiddenFW",
                                 "calc",  "intern", "topo",    "foreign"};
    for (const QString &name : everything)
        values.append(value(name, "1"));
    QStringList found;
    for (const FindValue &entry :
         m_finder.toValueList(table, values, VarTypeFilterFlags::fromInt(filter)))
        found.append(entry.getVar().getName());
    QTEST(found, "names");
}

void tst_Finder::dropsUnknownNamesAndKeepsOrder()
{
    const auto values = all(m_table, {value("Note", "blank"), value("Nix", "1"), value("dia", "1"),
                                      value("Dia", "8"), value("", "1")});
    QCOMPARE(values.size(), 2);
    QCOMPARE(values[0].getVar().getName(), "Note");
    QCOMPARE(values[0].getValue().toString(), "blank");
    QCOMPARE(values[1].getVar(), m_table.getVar(u"Dia"));
}

void tst_Finder::comparesALine_data()
{
    QTest::addColumn<int>("line");
    QTest::addColumn<QList<TabVarValue>>("values");
    QTest::addColumn<bool>("equal");
    QTest::newRow("all equal") << 1 << QList{value("Dia", "8.0"), value("Note", "blank")} << true;
    QTest::newRow("one differs") << 1 << QList{value("Dia", "8"), value("Note", "x")} << false;
    QTest::newRow("value in the range") << 1 << QList{value("L", "16")} << true;
    QTest::newRow("value not in the range") << 1 << QList{value("L", "17")} << false;
    QTest::newRow("value on a step") << 3 << QList{value("L", "45")} << true;
    QTest::newRow("single value of a range") << 2 << QList{value("L", "20")} << true;
    QTest::newRow("missing is empty") << 3 << QList{value("Weight", "")} << true;
    QTest::newRow("no values") << 1 << QList<TabVarValue>() << false;
}

void tst_Finder::comparesALine()
{
    QFETCH(int, line);
    QFETCH(QList<TabVarValue>, values);
    Line compared = m_table.getLine(line, false);
    const FindResult result = m_finder.cmpLineWithValues(compared, all(m_table, values));
    QTEST(result.getLineId().isValid(), "equal");
    if (result.getLineId().isValid())
        QCOMPARE(result.getLineId(), LineId(line));
    Line none;
    QVERIFY(!m_finder.cmpLineWithValues(none, all(m_table, values)).getLineId().isValid());
}

void tst_Finder::putsValuesIntoTheLine()
{
    Line line = m_table.getLine(1, false);
    const auto values = all(m_table, {value("Dia", "9"), value("L", "17")});
    QVERIFY(!m_finder.cmpLineWithValues(line, values).getLineId().isValid());
    QCOMPARE(line.getValue(m_table.getVar(u"Dia"), FormatPlain, {}).toString(), "9");
    QCOMPARE(line.getValue(m_table.getVar(u"L"), FormatPlain, {}).toString(), "17");
    QVERIFY(m_table.isPlain());
}

void tst_Finder::appliedValuesAreThoseOfRanges()
{
    Line line = m_table.getLine(1, false);
    m_finder.cmpLineWithValues(line, all(m_table, {value("Dia", "9"), value("L", "12")}));
    QVERIFY(line.apply());
    const Line stored = m_table.getLine(1, false);
    QCOMPARE(stored.getValue(m_table.getVar(u"Dia"), FormatPlain, {}).toString(), "8");
    QCOMPARE(stored.getValue(m_table.getVar(u"L"), FormatPlain, {}).toString(), "12");
}

void tst_Finder::findsLines_data()
{
    QTest::addColumn<QList<TabVarValue>>("values");
    QTest::addColumn<int>("flags");
    QTest::addColumn<QList<int>>("lines");

    QTest::newRow("number") << QList{value("Dia", "8")} << 2 << QList<int>{1};
    QTest::newRow("number written otherwise") << QList{value("Dia", "8.00")} << 2 << QList<int>{1};
    QTest::newRow("several") << QList{value("Note", "blank")} << 2 << QList<int>{1, 3};
    QTest::newRow("all values count")
        << QList{value("Note", "blank"), value("Dia", "12")} << 2 << QList<int>{3};
    QTest::newRow("range contains") << QList{value("L", "10")} << 2 << QList<int>{1, 3};
    QTest::newRow("range and single") << QList{value("L", "20")} << 2 << QList<int>{2, 3};
    QTest::newRow("range as text") << QList{value("L", "10")} << 0 << QList<int>{};
    QTest::newRow("range as its text") << QList{value("L", "10;12;16")} << 0 << QList<int>{1};
    QTest::newRow("its text is not in the range")
        << QList{value("L", "10;12;16")} << 2 << QList<int>{};
    QTest::newRow("missing") << QList{value("Weight", "")} << 2 << QList<int>{3};
    QTest::newRow("empty range") << QList{value("L", "")} << 2 << QList<int>{4};
    QTest::newRow("decimal comma") << QList{value("Weight", "1.25")} << 2 << QList<int>{2};
    QTest::newRow("computed") << QList{value("Volume", "24")} << 2 << QList<int>{3};
    QTest::newRow("computed and stored")
        << QList{value("Volume", "24"), value("Dia", "12")} << 2 << QList<int>{3};
    QTest::newRow("same variable twice")
        << QList{value("L", "10"), value("L", "12")} << 2 << QList<int>{1};
    QTest::newRow("none") << QList{value("Dia", "9")} << 2 << QList<int>{};
}

void tst_Finder::findsLines()
{
    QFETCH(QList<TabVarValue>, values);
    QFETCH(int, flags);
    const auto results =
        m_finder.findLines(m_table, m_table.getLineMapping().getOrdered(), all(m_table, values),
                           Finder::FindFlags::fromInt(flags));
    QTEST(numbers(results), "lines");
}

void tst_Finder::fewAndManyLinesAgree_data()
{
    QTest::addColumn<QList<TabVarValue>>("values");
    QTest::addColumn<int>("flags");
    QTest::addColumn<int>("count");
    QTest::newRow("number") << QList{value("A", "3")} << 2 << 40;
    QTest::newRow("number and text") << QList{value("A", "4"), value("B", "b0")} << 2 << 20;
    QTest::newRow("text alone") << QList{value("B", "b2")} << 2 << 100;
    QTest::newRow("range contains") << QList{value("R", "100")} << 2 << 11;
    QTest::newRow("range or text") << QList{value("R", "101")} << 2 << 1;
    QTest::newRow("range as text") << QList{value("R", "100..150/5")} << 0 << 1;
    QTest::newRow("range and number") << QList{value("R", "100"), value("A", "5")} << 2 << 5;
    QTest::newRow("missing") << QList{value("N", "")} << 2 << 58;
    QTest::newRow("computed") << QList{value("C", "4")} << 2 << 40;
    QTest::newRow("nothing") << QList{value("A", "3"), value("B", "b0")} << 2 << 0;
}

void tst_Finder::fewAndManyLinesAgree()
{
    QFETCH(QList<TabVarValue>, values);
    QFETCH(int, flags);
    const ContentRef table = manyLines();
    const auto wanted = all(table, values);
    const auto options = Finder::FindFlags::fromInt(flags);
    QList<int> oneByOne;
    QVector<LineId> copied;
    for (const LineId &id : table.getLineIdList()) {
        oneByOne += numbers(m_finder.findLines(table, {id}, wanted, options));
        copied.append(id);
    }
    QTEST(int(oneByOne.size()), "count");
    QCOMPARE(numbers(m_finder.findLines(table, table.getLineIdList(), wanted, options)), oneByOne);
    QCOMPARE(
        numbers(m_finder.findLines(table, table.getLineMapping().getOrdered(), wanted, options)),
        oneByOne);
    QCOMPARE(numbers(m_finder.findLines(table, copied, wanted, options)), oneByOne);
}

/// Columns that each have few values and tell the lines apart only together: after some searches
/// they are looked up together. All searches agree with looking at the lines one by one.
void tst_Finder::unselectiveColumns()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A", FieldType::Number),
                         TestTables::field("B", FieldType::Number),
                         TestTables::field("R", FieldType::Number, FieldKind::Range)};
    QString csv("A,B,R\n");
    for (int i = 0; i < 1600; ++i) {
        csv += QString("%1,%2,%3\n")
                   .arg(i / 40)
                   .arg(i % 3 ? QString::number(i % 40) : QString("%1.0").arg(i % 40))
                   .arg(i % 2 ? QString("0;1;5..9/2") : QString::number(i % 8));
    }
    const ContentRef table = TestTables::table(descriptor, csv);
    const QVector<LineId> all = table.getLineIdList();
    const Finder finder;
    int found = 0;
    for (int i = 0; i < 1600; i += 7) {
        const QString range = QString::number(i % 9);
        const QList<FindValue> values =
            finder.toValueList(table,
                               {value("A", QString::number(i / 40)),
                                value("B", QString::number(i % 40)), value("R", range)},
                               FilterAll);
        const QList<int> together =
            numbers(finder.findLines(table, all, values, Finder::FindRangeContains));
        const QVector<LineId> near = all.mid(qMax(0, i - 15), 31);
        QCOMPARE(together,
                 numbers(finder.findLines(table, near, values, Finder::FindRangeContains)));
        found += int(together.size());
        QCOMPARE(numbers(finder.findLines(table, all, values.mid(0, 2), {})), QList<int>({i + 1}));
    }
    QVERIFY(found > 50 && found < 229);
}

void tst_Finder::keepsTheOrderOfTheIds()
{
    const auto wanted = all(m_table, {value("Note", "blank")});
    QCOMPARE(numbers(m_finder.findLines(m_table, {3, 99, 2, -1, 1, LineId(3, 0)}, wanted,
                                        Finder::FindRangeContains)),
             (QList<int>{3, 1, 3}));

    const ContentRef table = manyLines();
    QVector<LineId> backwards = table.getLineIdList();
    std::reverse(backwards.begin(), backwards.end());
    backwards.append(LineId(1000));
    backwards.append(LineId());
    const auto results = numbers(m_finder.findLines(table, backwards, all(table, {value("A", "3")}),
                                                    Finder::FindRangeContains));
    QCOMPARE(results.size(), 40);
    QVERIFY(std::is_sorted(results.rbegin(), results.rend()));
}

void tst_Finder::findsVisibleLinesOnDemand()
{
    ContentRef table = manyLines();
    QHash<int, TabFilterData> shown;
    for (int line = 1; line <= 100; ++line)
        shown.insert(line, {});
    table.setFilter(FilterByLineId(shown, true));
    const auto wanted = all(table, {value("A", "3")});
    const auto count = [&](const QVector<LineId> &ids, int flags) {
        return m_finder.findLines(table, ids, wanted, Finder::FindFlags::fromInt(flags)).size();
    };
    QCOMPARE(count(table.getLineIdList(), 2), 40);
    QCOMPARE(count(table.getLineIdList(), 3), 10);
    QCOMPARE(count(table.getLineMapping().getOrdered(), 2), 10);
    QCOMPARE(count(table.getLineMapping().getOrdered(), 3), 10);
    QCOMPARE(count({4, 104}, 2), 2);
    QCOMPARE(count({4, 104}, 3), 1);
}

void tst_Finder::seesChangedCells()
{
    const ContentRef table = manyLines();
    const auto wanted = all(table, {value("A", "3"), value("B", "b3")});
    const auto find = [&] {
        return numbers(
            m_finder.findLines(table, table.getLineIdList(), wanted, Finder::FindRangeContains));
    };
    const QList<int> before = find();
    QVERIFY(before.contains(4) && !before.contains(5));
    table.getModifyLayer()->setValue(table.getVar(u"A").getVarId(), 4, Value("9"));
    table.getModifyLayer()->setValue(table.getVar(u"A").getVarId(), 5, Value("3.0"));
    table.getModifyLayer()->setValue(table.getVar(u"B").getVarId(), 5, Value("b3"));
    QList<int> after = before;
    after.replace(after.indexOf(4), 5);
    QCOMPARE(find(), after);
}

void tst_Finder::aChosenValueDoesNotHideARange()
{
    const ContentRef table = manyLines();
    Line line = table.getLine(101, false); // offers 100..150/5
    line.putValue(table.getVar(u"R").getVarId(), Value("105"));
    QVERIFY(line.apply());
    const auto found = numbers(m_finder.findLines(
        table, table.getLineIdList(), all(table, {value("R", "150")}), Finder::FindRangeContains));
    QVERIFY(found.contains(101));
}

void tst_Finder::searchesAddedColumns()
{
    ContentRef table = manyLines();
    const int type = registerLayerType("tst_Finder");
    BaseLayer layer(type);
    Var var(VarTypeForeign);
    var.setVarSource(type);
    var.setName("ERP");
    layer.addVar(var);
    layer.setValue(layer.getVarId(u"ERP"), 7, Value(4711));
    layer.setValue(layer.getVarId(u"ERP"), 8, Value("4711"));
    table.addLayer(layer);
    const auto found = [&](const QList<TabVarValue> &values) {
        return numbers(m_finder.findLines(table, table.getLineIdList(), all(table, values),
                                          Finder::FindRangeContains));
    };
    QCOMPARE(found({value("ERP", "4711.0")}), (QList<int>{7, 8}));
    QCOMPARE(found({value("ERP", "4711"), value("A", "6")}), QList<int>{7});
}

void tst_Finder::withoutValuesNothingIsFound()
{
    QVERIFY(m_finder.findLines(m_table, m_table.getLineIdList(), {}, {}).isEmpty());
    const ContentRef table = manyLines();
    QVERIFY(m_finder.findLines(table, table.getLineIdList(), {}, {}).isEmpty());
    QVERIFY(m_finder.findLines(m_table, {}, all(m_table, {value("Dia", "8")}), {}).isEmpty());
}

void tst_Finder::findsNothingInAnInvalidTable()
{
    for (const ContentRef &table : {ContentRef(), ContentRef(Content())}) {
        QVERIFY(m_finder.toValueList(table, {value("Dia", "8")}, FilterAll).isEmpty());
        QVERIFY(m_finder.findLines(table, {1}, all(m_table, {value("Dia", "8")}), {}).isEmpty());
    }
}

void tst_Finder::largeRangesAreNotSpreadOut()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("R", FieldType::Number, FieldKind::Range)};
    QString csv("R\n0..1000000000/1\n0..1000000000/2\n");
    for (int i = 0; i < 50; ++i)
        csv += "7\n";
    const ContentRef table = TestTables::table(descriptor, csv);
    const auto found = [&](const QString &text) {
        return numbers(m_finder.findLines(table, table.getLineIdList(),
                                          all(table, {value("R", text)}),
                                          Finder::FindRangeContains));
    };
    QCOMPARE(found("999999998"), (QList<int>{1, 2}));
    QCOMPARE(found("999999999"), QList<int>{1});
    QCOMPARE(found("1000000001"), QList<int>{});
    QCOMPARE(found("7").size(), 51);
}

QTEST_GUILESS_MAIN(tst_Finder)
#include "tst_Finder.moc"
