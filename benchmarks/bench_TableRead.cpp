// Reading a table beside the in-place parse of its file and beside counting its lines.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "CsvCursor.h"
#include "MappedFile.h"

#include <geomcore/table/TableData.h>

#include <stdexcept>

namespace velkbench {

namespace {

size_t parseInPlace(const std::filesystem::path &csv)
{
    const MappedFile file(csv);
    CsvCursor cursor(file.bytes());
    std::vector<std::string_view> cells;
    size_t bytes = 0;
    while (cursor.next(cells)) {
        for (const std::string_view cell : cells)
            bytes += cell.size();
    }
    return bytes;
}

void addReferences(Comparison &comparison, const std::filesystem::path &csv)
{
    comparison.addReference("parse", [csv] { benchmark::DoNotOptimize(parseInPlace(csv)); });
    comparison.addReference(
        "lineCount", [csv] { benchmark::DoNotOptimize(countLines(MappedFile(csv).bytes())); });
}

std::shared_ptr<const VKTab::TableData> read(const std::filesystem::path &csv)
{
    auto descriptor = csv;
    descriptor.replace_extension(".json");
    const auto result = VKTab::TableData::read(QString::fromStdString(descriptor.string()));
    if (!result)
        throw std::runtime_error("the generated table cannot be read");
    return result.data;
}

void readTable(benchmark::State &state)
{
    const TemporaryFolder folder;
    CatalogShape shape;
    shape.lines = int(state.range(0));
    shape.ranges = state.range(1) != 0;
    const auto csv = CatalogGenerator(shape).write(folder.path()).front().oldCsv;
    Comparison comparison;
    addReferences(comparison, csv);
    comparison.run(state, [&] { benchmark::DoNotOptimize(read(csv)->rowCount()); });
}

/// Reads the table and then splits every row once, as a search through all lines does.
void readAndWalkTable(benchmark::State &state)
{
    const TemporaryFolder folder;
    CatalogShape shape;
    shape.lines = int(state.range(0));
    shape.ranges = state.range(1) != 0;
    const auto csv = CatalogGenerator(shape).write(folder.path()).front().oldCsv;
    Comparison comparison;
    addReferences(comparison, csv);
    comparison.run(state, [&] {
        const auto table = read(csv);
        std::vector<std::string_view> cells(size_t(table->columnCount()));
        std::string scratch;
        size_t bytes = 0;
        for (int row = 0; row < table->rowCount(); ++row) {
            table->cells(row, cells, scratch);
            for (const std::string_view cell : cells)
                bytes += cell.size();
        }
        benchmark::DoNotOptimize(bytes);
    });
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"lines", "ranges"});
    for (const int lines : {10000, 100000, 1000000}) {
        for (const int ranges : {0, 1})
            benchmark->Args({lines, ranges});
    }
    benchmark->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(10);
}

BENCHMARK(readTable)->Apply(sizes);
BENCHMARK(readAndWalkTable)->Apply(sizes);

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
