#include <geomcore/table/LineIndex.h>
#include <geomcore/value/RangeText.h>

#include <cstdint>

using namespace VKTab;

namespace {

TableDescriptor describe(bool withIds)
{
    TableDescriptor descriptor;
    descriptor.missingValues = QStringList{QString(), QStringLiteral("None")};
    descriptor.lineIdField = withIds ? QStringLiteral("id") : QString();
    return descriptor;
}

/// Reads every cell in each way; they must agree.
void walk(const TableData &table)
{
    std::vector<std::string_view> cells(size_t(table.columnCount()));
    std::string scratch;
    std::string second;
    for (int row = 0; row < table.rowCount(); ++row) {
        table.cells(row, cells, scratch);
        for (int column = 0; column < table.columnCount(); ++column) {
            if (table.cell(row, column, second) != cells[size_t(column)])
                __builtin_trap();
            const std::string_view cell = cells[size_t(column)];
            const QString text = QString::fromUtf8(cell.data(), qsizetype(cell.size()));
            const bool range = RangeText::parse(text).has_value();
            if (RangeText::isSimple(cell) && !range)
                __builtin_trap();
        }
        if (table.rowOf(table.lineNumber(row)) != row)
            __builtin_trap();
    }
}

void index(const std::shared_ptr<const TableData> &table)
{
    std::vector<LineIndex::Key> keys;
    std::vector<int> columns;
    for (int column = 0; column < std::min(table->columnCount(), 4); ++column) {
        keys.push_back({column, column % 2 ? CompareMode::Text : CompareMode::Number});
        columns.push_back(column);
    }
    const LineIndex lines(table, keys);
    LineIndex::Probe probe(lines, *table, columns);
    for (int row = table->rowCount() - 1; row >= 0; --row) {
        if (probe.find(row) != lines.firstOf(row))
            __builtin_trap();
    }
}

} // namespace

/// Reads any bytes as the lines of a table: the first one says whether a column holds line ids.
extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    const QByteArray csv(reinterpret_cast<const char *>(data) + 1, qsizetype(size) - 1);
    const TableReadResult result = TableData::fromMemory(describe(data[0] & 1), csv);
    if (bool(result) != result.errors.isEmpty())
        __builtin_trap();
    if (result) {
        walk(*result.data);
        index(result.data);
    }
    return 0;
}
