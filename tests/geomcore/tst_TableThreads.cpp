#include "../support/TestTables.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/Finder.h>
#include <geomcore/table/LayerType.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TabOptions.h>
#include <geomcore/table/ValueRangeIterator.h>

#include <QTest>

#include <atomic>
#include <thread>
#include <vector>

using namespace VKTab;

/// Readers on several threads beside the owner, who writes.
class tst_TableThreads : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void firstReadersOnSeveralThreadsAgree();
    void readersStandBesideTheOwner();
    void readersStandBesideAnOwnerWhoReplacesTheTable();
    void linesOutliveChangesOfLayers();

private:
    /// What a worker does with a line; the number of hits of its combinations in the same table.
    [[nodiscard]] static int work(const ContentRef &table, const LineId &id);
    void write(int round);

    static constexpr int Lines = 300;
    ContentRef m_table;
};

void tst_TableThreads::init()
{
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A", FieldType::Number),
                         TestTables::field("L", FieldType::Number, FieldKind::Range),
                         TestTables::field("T"),
                         TestTables::field("C", FieldType::Number, FieldKind::Computed)};
    descriptor.fields[3].formula = "A * 2";
    descriptor.filterConditions.append({"BYPRJ", "A .GE. 0", {}});
    QString csv("A,L,T\n");
    for (int i = 0; i < Lines; ++i)
        csv += QString("%1,%2;%3,t%4\n").arg(i).arg(i).arg(i + 1).arg(i % 5);
    m_table = TestTables::table(descriptor, csv);
}

int tst_TableThreads::work(const ContentRef &table, const LineId &id)
{
    Line line = table.getLine(id, true);
    const ResolveRangeOptionsC options;
    ValueRangeIterator iterator(table, line, options);
    iterator.setVariablesToResolve({"L"});
    const Finder finder;
    int hits = 0;
    while (iterator.next()) {
        const auto varset = createVarsetFromVKTable(line, {});
        const TabVarValue value = varset.value("L").toTabVarValue();
        const auto wanted = finder.toValueList(table, {value}, FilterDefault);
        hits +=
            int(finder.findLines(table, table.getLineIdList(), wanted, Finder::FindRangeContains)
                    .size());
    }
    return hits;
}

void tst_TableThreads::firstReadersOnSeveralThreadsAgree()
{
    std::atomic<int> sum = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&] {
            sum += work(m_table, 7) + int(m_table.getLineMapping().getOrdered().size());
            sum += int(LineView(m_table, 5).number(3).value_or(0));
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    // Line 7 offers 6 and 7: line 6 offers 6 too, line 8 offers 7.
    QCOMPARE(sum.load(), 4 * (4 + Lines + 8));
}

void tst_TableThreads::write(int round)
{
    const LineId id(round % Lines + 1);
    m_table.setSelection(id, true);
    const auto modify = m_table.getModifyLayer();
    modify->setLineKeyValue(id, "CatalogMapper", round % 2 ? "M" : "C");
    Line line = m_table.getLine(id, false);
    line.putValue(m_table.getVar(u"L").getVarId(), Value(id.value(0)));
    QVERIFY(line.apply());
    modify->setValue(m_table.getVar(u"T").getVarId(), id, Value("changed"));
    m_table.setFilter(FilterByLineId({{round % Lines, {}}}, round % 3 != 0));
    m_table.invalidate(Content::InvalidateFilter, true);
    m_table.setOptions(boost::make_shared<TabOptions>());
    if (round % 20 == 0) {
        modify->reset();
        BaseLayer layer(registerLayerType("tst_TableThreads"));
        Var var(VarTypeForeign);
        var.setName("MORE");
        layer.addVar(var);
        m_table.addLayer(layer);
    }
}

void tst_TableThreads::readersStandBesideTheOwner()
{
    std::atomic<bool> stop = false;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i) {
        threads.emplace_back([&, i] {
            for (int n = i; !stop; ++n) {
                const LineId id(n % (Lines - 2) + 2);
                // What ranges offer does not depend on what the owner chooses.
                wrong += work(m_table, id) != 4;
                const Line line = m_table.getLine(id, false);
                wrong += line.getValue(m_table.getVar(u"A"), FormatPlain, {}).toString() !=
                         QString::number(id.value(0) - 1);
                wrong += line.getLineKeyValue("CatalogMapper").toString().size() > 1;
                wrong += m_table.getLineMapping().count() > Lines;
                wrong += m_table.isLineVisible(LineId(Lines + 1));
                wrong += m_table.getSelection().value(0) > Lines;
                wrong += LineView(line).value(2).isNull();
            }
        });
    }
    for (int round = 0; round < 200; ++round)
        write(round);
    stop = true;
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

void tst_TableThreads::readersStandBesideAnOwnerWhoReplacesTheTable()
{
    std::atomic<bool> stop = false;
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 3; ++i) {
        threads.emplace_back([&, i] {
            for (int n = i; !stop; ++n) {
                const LineId id(n % Lines + 1);
                const int shown = m_table.getLineMapping().count();
                wrong += shown < 0 || shown > Lines;
                wrong += m_table.isLineVisible(LineId(Lines + 1));
                const Line line = m_table.getLine(id, false);
                const QString text =
                    line.getValue(m_table.getVar(u"C"), FormatPlain, {}).toString();
                wrong += !text.isEmpty() && text != QString::number((id.value(0) - 1) * 2);
            }
        });
    }
    const auto file = m_table.getFileLayer();
    for (int round = 0; round < 200; ++round) {
        m_table.setFileLayer(nullptr);
        m_table.setFilter(FilterByLineId({{round % Lines, {}}}, true));
        m_table.setFileLayer(file);
        m_table.setFilter(FilterByLineId({{round % Lines, {}}}, round % 2 != 0));
    }
    stop = true;
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

void tst_TableThreads::linesOutliveChangesOfLayers()
{
    std::atomic<bool> stop = false;
    std::atomic<int> wrong = 0;
    const Line line = m_table.getLine(9, false);
    const Var var = m_table.getVar(u"A");
    std::thread reader([&] {
        const Line mine = line;
        while (!stop)
            wrong += mine.getValue(var, FormatPlain, {}).toString() != "8";
    });
    for (int round = 0; round < 50; ++round) {
        m_table.addLayer(BaseLayer(registerLayerType("tst_TableThreads")));
        m_table.invalidate(Content::InvalidateColumns, true);
    }
    const auto file = m_table.getFileLayer();
    m_table.setFileLayer(file);
    m_table = ContentRef();
    stop = true;
    reader.join();
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(tst_TableThreads)
#include "tst_TableThreads.moc"
