// Building an index over all columns of a table, and looking up the lines of another table in it.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "ProductRun.h"
#include "ReferenceJoin.h"

#include <geomcore/table/LineIndex.h>

#include <benchmark/benchmark.h>

#include <numeric>
#include <stdexcept>

namespace velkbench {

namespace {

using Table = std::shared_ptr<const VKTab::TableData>;

Table read(const std::filesystem::path &csv)
{
    auto descriptor = csv;
    descriptor.replace_extension(".json");
    const auto result = VKTab::TableData::read(qtPath(descriptor));
    if (!result)
        throw std::runtime_error("the generated table cannot be read");
    return result.data;
}

std::vector<VKTab::LineIndex::Key> keysOf(const Table &table, VKTab::CompareMode mode)
{
    std::vector<VKTab::LineIndex::Key> keys;
    for (int column = 0; column < table->columnCount(); ++column)
        keys.push_back({column, mode});
    return keys;
}

CatalogShape shapeOf(const benchmark::State &state)
{
    CatalogShape shape;
    shape.lines = int(state.range(0));
    shape.shuffled = state.range(1) != 0;
    return shape;
}

VKTab::CompareMode modeOf(const benchmark::State &state)
{
    return state.range(2) != 0 ? VKTab::CompareMode::Number : VKTab::CompareMode::Text;
}

void buildIndex(benchmark::State &state)
{
    const TemporaryFolder folder;
    const auto files = CatalogGenerator(shapeOf(state)).write(folder.path()).front();
    const Table table = read(files.newCsv);
    double bytes = 0;
    for ([[maybe_unused]] const auto _ : state) {
        const PeakMemory memory;
        const VKTab::LineIndex index(table, keysOf(table, modeOf(state)));
        benchmark::DoNotOptimize(index.distinctCount());
        bytes = memory.peak();
    }
    state.counters["bytes_per_line"] = bytes / double(state.range(0));
    state.counters["lines"] =
        benchmark::Counter(double(state.range(0)), benchmark::Counter::kIsIterationInvariantRate);
}

/// Look-ups of all lines in an index at hand; the reference does all of its join.
void lookUp(benchmark::State &state)
{
    const TemporaryFolder folder;
    const auto files = CatalogGenerator(shapeOf(state)).write(folder.path()).front();
    const Table oldTable = read(files.oldCsv);
    const Table newTable = read(files.newCsv);
    const VKTab::LineIndex index(newTable, keysOf(newTable, modeOf(state)));
    std::vector<int> columns(size_t(oldTable->columnCount()));
    std::iota(columns.begin(), columns.end(), 0);
    std::vector<int> rows(size_t(oldTable->rowCount()));
    Comparison comparison;
    comparison.addReference(
        "join", [&] { benchmark::DoNotOptimize(referenceJoin(files.oldCsv, files.newCsv).hits); });
    comparison.run(state, [&] {
        VKTab::LineIndex::Probe(index, *oldTable, columns).find(0, rows);
        benchmark::DoNotOptimize(rows.data());
    });
    const auto hits =
        size_t(std::count_if(rows.begin(), rows.end(), [](int row) { return row >= 0; }));
    if (hits != referenceJoin(files.oldCsv, files.newCsv).hits)
        throw std::runtime_error("the index does not find what the join finds");
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"lines", "shuffled", "numbers"})
        ->Unit(benchmark::kMillisecond)
        ->Iterations(5);
    for (const int lines : {10000, 100000, 1000000}) {
        for (const int shuffled : {0, 1}) {
            for (const int numbers : {0, 1})
                benchmark->Args({lines, shuffled, numbers});
        }
    }
}

BENCHMARK(buildIndex)->Apply(sizes);
BENCHMARK(lookUp)->Apply(sizes)->UseManualTime();

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
