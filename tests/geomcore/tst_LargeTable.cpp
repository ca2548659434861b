#include "../support/TestTables.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/FilterByLineId.h>
#include <geomcore/table/Finder.h>
#include <geomcore/table/LineView.h>

#include <QTest>

#include <atomic>
#include <cstdlib>
#include <malloc.h>
#include <new>

using namespace VKTab;

namespace {

std::atomic<qint64> allocations = 0;

/// Bytes that the program has in use; 0 where an allocator does not tell.
qint64 usedBytes()
{
    const auto info = mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

} // namespace

void *operator new(std::size_t size)
{
    ++allocations;
    if (void *memory = std::malloc(size))
        return memory;
    throw std::bad_alloc();
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    ++allocations;
    return std::malloc(size);
}

void operator delete(void *memory) noexcept
{
    std::free(memory);
}
void operator delete(void *memory, std::size_t) noexcept
{
    std::free(memory);
}

/// What a table of a million lines costs beside its file.
class tst_LargeTable : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup() { m_table = ContentRef(); }
    void openingCostsNothingPerLine();
    void walkingCostsNoAllocation();
    void readingCellsCostsNoAllocation();
    void anUnfilteredMappingCostsNothing();
    void aFilterCostsABitmapAndItsRows();
    void listsOfIdsAreMadeOnceOnDemand();
    void statusKeysCostFourBytesALine();
    void searchesThroughAnIndex();

private:
    static constexpr int Lines = 1000000;
    std::shared_ptr<const TableData> m_data;
    ContentRef m_table;
};

void tst_LargeTable::initTestCase()
{
    QByteArray csv("A,B\n");
    csv.reserve(Lines * 12);
    for (int i = 0; i < Lines; ++i)
        csv += QByteArray::number(i) + ",b" + QByteArray::number(i % 1000) + '\n';
    TableDescriptor descriptor;
    descriptor.fields = {TestTables::field("A", FieldType::Integer), TestTables::field("B")};
    m_data = TableData::fromMemory(descriptor, csv).data;
    QVERIFY(m_data);
    QCOMPARE(m_data->rowCount(), Lines);
}

void tst_LargeTable::init()
{
    m_table.setFileLayer(boost::make_shared<FileLayer>(m_data));
}

void tst_LargeTable::openingCostsNothingPerLine()
{
    const qint64 count = allocations;
    const qint64 bytes = usedBytes();
    ContentRef table;
    table.setFileLayer(boost::make_shared<FileLayer>(m_data));
    QVERIFY(table.isValid());
    QCOMPARE(table.getLineCount(), Lines);
    QCOMPARE(table.getTableData(), m_data);
    QVERIFY(allocations - count > 0); // the library's allocations are counted
    QVERIFY(allocations - count < 500);
    QVERIFY(usedBytes() - bytes < 100000);
}

void tst_LargeTable::walkingCostsNoAllocation()
{
    QVERIFY(m_table.isLineVisible(1));
    int lines = 0;
    const qint64 count = allocations;
    const qint64 bytes = usedBytes();
    for (int number = 1; number <= Lines; ++number) {
        const Line line = m_table.getLine(number, false);
        lines += line.isValid() && line.getVarList().size() == 2 && m_table.isLineVisible(number);
    }
    QCOMPARE(lines, Lines);
    QCOMPARE(allocations - count, 0);
    QCOMPARE(usedBytes(), bytes);
}

void tst_LargeTable::readingCellsCostsNoAllocation()
{
    std::string scratch;
    size_t size = 0;
    const qint64 count = allocations;
    for (int number = 1; number <= Lines; ++number)
        size += LineView(m_table, number).text(0, scratch).size();
    QCOMPARE(size, size_t(5888890));
    QCOMPARE(allocations - count, 0);
}

void tst_LargeTable::anUnfilteredMappingCostsNothing()
{
    const qint64 bytes = usedBytes();
    const LineMapping mapping = m_table.getLineMapping();
    QCOMPARE(mapping.count(), Lines);
    QCOMPARE(mapping.getLineId(Lines - 1), LineId(Lines));
    QCOMPARE(mapping.getRow(500000), 499999);
    QVERIFY(usedBytes() - bytes < 1000);
}

void tst_LargeTable::aFilterCostsABitmapAndItsRows()
{
    QHash<int, TabFilterData> shown;
    for (int number = 1; number <= Lines; number += 100)
        shown.insert(number, {});
    const FilterByLineId filter(shown, true);
    const qint64 count = allocations;
    const qint64 bytes = usedBytes();
    m_table.setFilter(filter);
    m_table.invalidate(Content::InvalidateFilter, true);
    QCOMPARE(m_table.getLineMapping().count(), Lines / 100);
    QVERIFY(m_table.isLineVisible(101));
    QVERIFY(!m_table.isLineVisible(102));
    QVERIFY(allocations - count < 100);
    QVERIFY(usedBytes() - bytes < Lines / 8 + Lines / 100 * 4 + 20000);
}

void tst_LargeTable::listsOfIdsAreMadeOnceOnDemand()
{
    const QVector<LineId> ids = m_table.getLineIdList();
    QCOMPARE(ids.size(), Lines);
    QCOMPARE(ids.last(), LineId(Lines));
    const qint64 bytes = usedBytes();
    QVERIFY(m_table.getLineIdList().isSharedWith(ids));
    QVERIFY(m_table.getLineMapping().getOrdered().isSharedWith(ids));
    QCOMPARE(usedBytes(), bytes);
}

void tst_LargeTable::statusKeysCostFourBytesALine()
{
    const qint64 bytes = usedBytes();
    const QString key("CatalogMapper");
    const QStringList states{"M", "C", "N"};
    for (int number = 1; number <= Lines; ++number)
        m_table.getModifyLayer()->setLineKeyValue(number, key, states[number % 3]);
    QCOMPARE(m_table.getLine(Lines, false).getLineKeyValue(key).toString(), states[Lines % 3]);
    QVERIFY(usedBytes() - bytes < 6 * Lines);
    QVERIFY(m_table.isPlain());
}

void tst_LargeTable::searchesThroughAnIndex()
{
    const Finder finder;
    const auto wanted = finder.toValueList(
        m_table, {{"A", "765432", "", 0, 1}, {"B", "b432", "", 0, 1}}, FilterDefault);
    const QVector<LineId> ordered = m_table.getLineMapping().getOrdered();
    QCOMPARE(finder.findLines(m_table, ordered, wanted, Finder::FindRangeContains).size(), 1);
    const qint64 count = allocations;
    for (int i = 0; i < 1000; ++i) {
        const auto hits = finder.findLines(m_table, ordered, wanted, Finder::FindRangeContains);
        QCOMPARE(hits.first().getLineId(), LineId(765433));
    }
    QVERIFY(allocations - count < 100000);
}

QTEST_GUILESS_MAIN(tst_LargeTable)
#include "tst_LargeTable.moc"
