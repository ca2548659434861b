#include "../support/TestTables.h"

#include <core/message/PMessage.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/FilterRule.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/LineSet.h>

#include <QTest>

#include <functional>
#include <utility>

using namespace VKTab;

namespace {

/// Hides one row.
class HideRow : public FilterRule
{
public:
    explicit HideRow(int row)
        : m_row(row)
    {
    }
    QString className() const override { return "HideRow"; }
    bool isUsed() const override { return m_row >= 0; }
    void evaluate(const FilteredTable &, LineSet &visible) const override { visible.remove(m_row); }

private:
    int m_row;
};

/// Does something to the table whenever it is asked for its filter.
class MeddlingLayer : public BaseLayer
{
public:
    explicit MeddlingLayer(std::function<FilterBase(const Content &)> meddle)
        : BaseLayer(registerLayerType("MeddlingLayer"))
        , m_meddle(std::move(meddle))
    {
    }
    boost::shared_ptr<LayerI> clone() const override
    {
        return boost::make_shared<MeddlingLayer>(*this);
    }
    boost::shared_ptr<FilterBase> getFilter(const QList<FilterCondition> &,
                                            const Content &content) const override
    {
        return boost::make_shared<FilterBase>(m_meddle(content));
    }

private:
    std::function<FilterBase(const Content &)> m_meddle;
};

class CountingSink : public PMessageSink
{
public:
    PMsgReply show(const QString &, PMsgDlgModes) override
    {
        ++messages;
        return PMsgReply::Ok;
    }
    void logToWindow(const QString &) override { ++messages; }

    int messages = 0;
};

} // namespace

class tst_LineFilters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_table = TestTables::screws(); }
    void lineFiltersShowTheirLines_data();
    void lineFiltersShowTheirLines();
    void lineFiltersComeBackFromTheTable();
    void aFilterOfAnotherClassIsNoLineFilter();
    void filtersOfDifferentClassesActTogether();
    void aDefaultFilterReplacesNothing();
    void lineNumbersCountWhateverTheSecondNumber();
    void conditionsOfTheFileHideLines_data();
    void conditionsOfTheFileHideLines();
    void conditionsCanBeRemoved();
    void conditionsThatDoNotParseHideNothing();
    void conditionsAreParsedOnce();
    void theOwnerMayTakeTheTableMeanwhile_data();
    void theOwnerMayTakeTheTableMeanwhile();
    void layersMayAskTheTable();
    void conditionsSeeChangedCellsAfterInvalidate();
    void columnFilters_data();
    void columnFilters();
    void columnFiltersSeeChangedCells();
    void columnFiltersOfAddedColumns();
    void filtersDoNotMatterToLines();

private:
    [[nodiscard]] QString visible() const
    {
        QString result;
        for (const LineId &id : m_table.getLineMapping().getOrdered())
            result += QString::number(id.value(0));
        for (const LineId &id : m_table.getLineIdList()) {
            const bool shown = result.contains(QString::number(id.value(0)));
            if (m_table.isLineVisible(id) != shown)
                return "mapping and visibility differ";
        }
        return result;
    }

    ContentRef m_table;
};

void tst_LineFilters::lineFiltersShowTheirLines_data()
{
    QTest::addColumn<QList<int>>("lines");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("used");
    QTest::newRow("some") << QList<int>{3, 1} << true << "13" << true;
    QTest::newRow("unknown ones too") << QList<int>{3, 17, -1} << true << "3" << true;
    QTest::newRow("all") << QList<int>{1, 2, 3, 4} << true << "1234" << true;
    QTest::newRow("an empty hash filters nothing") << QList<int>{} << true << "1234" << false;
    QTest::newRow("-1 shows nothing") << QList<int>{-1} << true << "" << true;
    QTest::newRow("not in use") << QList<int>{3} << false << "1234" << false;
}

void tst_LineFilters::lineFiltersShowTheirLines()
{
    QFETCH(QList<int>, lines);
    QFETCH(bool, flag);
    QHash<int, TabFilterData> hash;
    for (const int line : lines)
        hash.insert(line, TabFilterData());
    const FilterByLineId filter(hash, flag);
    QTEST(filter.getLineIdFilterUsed(), "used");
    m_table.setFilter(filter);
    m_table.invalidate(Content::InvalidateFilter, true);
    QTEST(visible(), "shown");
}

void tst_LineFilters::lineFiltersComeBackFromTheTable()
{
    QVERIFY(!FilterByLineId(m_table.getFilter(FilterByLineId::className())).getLineIdFilterUsed());
    m_table.setFilter(FilterByLineId({{2, {}}}, true));
    const FilterBase stored = m_table.getFilter(FilterByLineId::className());
    QCOMPARE(stored.getClassName(), FilterByLineId::className());
    FilterByLineId filter(stored);
    QVERIFY(filter.getLineIdFilterUsed());
    QCOMPARE(filter.getLines().keys(), QList<int>{2});
    filter.setLineIdFilterUsed(false);
    QVERIFY(!filter.getLineIdFilterUsed());
    QCOMPARE(visible(), "2"); // the table's own is another value
    m_table.setFilter(filter);
    m_table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(visible(), "1234");
    FilterByLineId again(m_table.getFilter(FilterByLineId::className()));
    again.setLineIdFilterUsed(true);
    m_table.setFilter(again);
    QCOMPARE(visible(), "2");
}

void tst_LineFilters::aFilterOfAnotherClassIsNoLineFilter()
{
    const FilterByLineId filter{FilterBase(std::make_shared<HideRow>(1))};
    QVERIFY(!filter.getLineIdFilterUsed());
    QVERIFY(filter.getLines().isEmpty());
    QCOMPARE(filter.getClassName(), FilterByLineId::className());
    QVERIFY(!FilterBase().isUsed());
    QCOMPARE(FilterBase().getClassName(), "");
}

void tst_LineFilters::filtersOfDifferentClassesActTogether()
{
    m_table.setFilter(FilterBase(std::make_shared<HideRow>(1)));
    QCOMPARE(visible(), "134");
    m_table.setFilter(FilterByLineId({{2, {}}, {3, {}}}, true));
    QCOMPARE(visible(), "3");
    m_table.setFilter(FilterByLineId({{2, {}}, {3, {}}}, false));
    QCOMPARE(visible(), "134");
    m_table.setFilter(FilterBase(std::make_shared<HideRow>(-1)));
    QCOMPARE(visible(), "1234");
}

void tst_LineFilters::aDefaultFilterReplacesNothing()
{
    m_table.setFilter(FilterByLineId({{2, {}}}, true));
    m_table.setFilter(FilterBase());
    QCOMPARE(visible(), "2");
}

void tst_LineFilters::lineNumbersCountWhateverTheSecondNumber()
{
    TableDescriptor descriptor;
    descriptor.lineIdField = "Id";
    descriptor.lineSubIdField = "Sub";
    descriptor.fields = {TestTables::field("Id", FieldType::Integer, FieldKind::Internal),
                         TestTables::field("Sub", FieldType::Integer, FieldKind::Internal)};
    ContentRef table = TestTables::table(descriptor, "Id,Sub,A\n5,0,x\n5,1,y\n6,0,z\n");
    table.setFilter(FilterByLineId({{5, {}}}, true));
    QCOMPARE(table.getLineMapping().getOrdered(), (QVector<LineId>{LineId(5), LineId(5, 1)}));
    QCOMPARE(table.getLineInfo(LineId(5)).getLineId(), LineId(5, 0));
    QVERIFY(table.isLineVisible(LineId(5, 1)));
    QVERIFY(!table.isLineVisible(LineId(6)));
}

void tst_LineFilters::conditionsOfTheFileHideLines_data()
{
    QTest::addColumn<QString>("condition");
    QTest::addColumn<QString>("shown");
    QTest::newRow("number") << "Dia .GE. 10"
                            << "234";
    QTest::newRow("text") << "Note .EQ. 'blank'"
                          << "13";
    QTest::newRow("two columns") << "Note .EQ. 'blank' .AND. Dia .GT. 8"
                                 << "3";
    QTest::newRow("decimal comma") << "Weight .LT. 2"
                                   << "12";
    QTest::newRow("missing value") << "Weight .NE. 0"
                                   << "124";
    QTest::newRow("computed") << "Volume .EQ. 20"
                              << "2";
    QTest::newRow("all") << "Dia .GT. 0"
                         << "1234";
    QTest::newRow("none") << "Dia .LT. 0"
                          << "";
}

void tst_LineFilters::conditionsOfTheFileHideLines()
{
    QFETCH(QString, condition);
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.filterConditions.append({"PRJLINECOND", condition, {}});
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    QTEST(visible(), "shown");
}

void tst_LineFilters::conditionsCanBeRemoved()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.filterConditions = {{"PRJLINECOND", "Dia .GT. 8", {}}, {"BYPRJ", "Dia .LT. 16", {}}};
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    QCOMPARE(visible(), "23");
    m_table.getFileLayer()->removeFilterCondition("PRJLINECOND");
    QCOMPARE(visible(), "123");
    m_table.getFileLayer()->removeFilterCondition("BYPRJ");
    QCOMPARE(visible(), "1234");
}

void tst_LineFilters::conditionsThatDoNotParseHideNothing()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.filterConditions = {{"A", "Dia .GT.", {}}, {"B", "Dia .LT. 16", {}}};
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    const auto sink = std::make_shared<CountingSink>();
    const auto former = PMessage::setSink(sink);
    for (int round = 0; round < 5; ++round) {
        m_table.invalidate(Content::InvalidateFilter, true);
        QCOMPARE(visible(), "123");
    }
    PMessage::setSink(former);
    QCOMPARE(sink->messages, 0); // who reads the table tells of it
}

void tst_LineFilters::conditionsAreParsedOnce()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.filterConditions = {{"A", "Dia .LT. 16", {}}};
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    const auto file = m_table.getFileLayer();
    const auto rule = [&] {
        return file->getFilter(file->getFilterConditions(), m_table)->rule();
    };
    const auto first = rule();
    QCOMPARE(rule(), first);
    file->addFilterCondition({"B", "Dia .LT. 10"});
    QVERIFY(rule() != first);
    QCOMPARE(visible(), "1");
}

void tst_LineFilters::theOwnerMayTakeTheTableMeanwhile_data()
{
    QTest::addColumn<bool>("byCondition");
    QTest::newRow("condition") << true;
    QTest::newRow("lines") << false;
}

void tst_LineFilters::theOwnerMayTakeTheTableMeanwhile()
{
    QFETCH(bool, byCondition);
    MeddlingLayer layer([byCondition](Content table) {
        table.setFileLayer(nullptr);
        const FilterByLineId lines({{2, {}}}, true);
        return byCondition ? FilterBase() : FilterBase(lines.rule());
    });
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.filterConditions = {
        {"A", byCondition ? "Dia .EQ. 10 .AND. Note .NE. 'x'" : "1 .EQ. 1", {}}};
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    m_table.addLayer(layer);
    QCOMPARE(m_table.getLineMapping().getOrdered(), QVector<LineId>{2}); // of the table as it was
    QVERIFY(!m_table.isValid());
    QCOMPARE(m_table.getLineMapping().count(), 0);
}

void tst_LineFilters::layersMayAskTheTable()
{
    bool asked = false;
    MeddlingLayer layer([&asked](const Content &table) {
        if (!std::exchange(asked, true))
            (void)table.getLineMapping().count();
        return FilterBase();
    });
    m_table.addLayer(layer);
    QCOMPARE(visible(), "1234");
    QVERIFY(asked);
}

void tst_LineFilters::conditionsSeeChangedCellsAfterInvalidate()
{
    TableDescriptor descriptor = TestTables::screwDescriptor();
    descriptor.filterConditions = {{"A", "Note .EQ. 'blank'", {}}};
    m_table = TestTables::table(descriptor, TestTables::screwLines());
    QCOMPARE(visible(), "13");
    m_table.getModifyLayer()->setValue(m_table.getVar(u"Note").getVarId(), 2, Value("blank"));
    QCOMPARE(visible(), "13"); // as the views show it
    m_table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(visible(), "123");
}

void tst_LineFilters::columnFilters_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<QString>("shown");
    QTest::newRow("one text") << "Note" << QStringList{"blank"} << "13";
    QTest::newRow("two texts") << "Note" << QStringList{"blank", "galvanised"} << "123";
    QTest::newRow("number written otherwise") << "Dia" << QStringList{"8.0"} << "1";
    QTest::newRow("missing") << "Weight" << QStringList{""} << "3";
    QTest::newRow("unknown text") << "Note" << QStringList{"x"} << "";
    QTest::newRow("no texts") << "Note" << QStringList{} << "1234";
    QTest::newRow("computed") << "Volume" << QStringList{"16", "20"} << "12";
}

void tst_LineFilters::columnFilters()
{
    QFETCH(QString, name);
    QFETCH(QStringList, texts);
    const auto file = m_table.getFileLayer();
    file->setColumnFilter(file->getVarId(name), texts);
    QTEST(visible(), "shown");
}

void tst_LineFilters::columnFiltersSeeChangedCells()
{
    const auto file = m_table.getFileLayer();
    const VarId note = file->getVarId(u"Note");
    m_table.getModifyLayer()->setValue(note, 2, Value("blank"));
    m_table.getModifyLayer()->setValue(note, 1, Value("black"));
    file->setColumnFilter(note, {"blank"});
    QCOMPARE(visible(), "23");
}

void tst_LineFilters::columnFiltersOfAddedColumns()
{
    const int type = registerLayerType("tst_LineFilters");
    BaseLayer layer(type);
    Var var(VarTypeForeign);
    var.setName("MORE");
    layer.addVar(var);
    m_table.addLayer(layer);
    const auto added = boost::dynamic_pointer_cast<BaseLayer>(m_table.getLayer(type));
    const VarId id = added->getVarId(u"MORE");
    added->setValue(id, 2, Value("x"));
    added->setValue(id, 4, Value(7));
    added->setColumnFilter(id, {"x", "7"});
    QCOMPARE(visible(), "24");
}

void tst_LineFilters::filtersDoNotMatterToLines()
{
    m_table.setFilter(FilterByLineId({{-1, {}}}, true));
    QCOMPARE(visible(), "");
    QCOMPARE(m_table.getLineIdList().size(), 4);
    QCOMPARE(m_table.getLineInfoList().size(), 4);
    QVERIFY(m_table.getLine(1, false).isValid());
}

QTEST_GUILESS_MAIN(tst_LineFilters)
#include "tst_LineFilters.moc"
