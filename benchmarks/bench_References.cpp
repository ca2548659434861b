// The references alone: what the other benchmarks compare the product with.

#include "CatalogGenerator.h"
#include "CsvCursor.h"
#include "MappedFile.h"
#include "ReferenceJoin.h"
#include "SqliteJoin.h"

#include <benchmark/benchmark.h>

namespace velkbench {

namespace {

GeneratedProject generated(const benchmark::State &state, const TemporaryFolder &folder)
{
    CatalogShape shape;
    shape.lines = int(state.range(0));
    shape.shuffled = state.range(1) != 0;
    return CatalogGenerator(shape).write(folder.path()).front();
}

void lineCount(benchmark::State &state)
{
    const TemporaryFolder folder;
    const GeneratedProject files = generated(state, folder);
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(countLines(MappedFile(files.oldCsv).bytes()));
}

void inPlaceParse(benchmark::State &state)
{
    const TemporaryFolder folder;
    const GeneratedProject files = generated(state, folder);
    for ([[maybe_unused]] const auto _ : state) {
        const MappedFile file(files.oldCsv);
        CsvCursor cursor(file.bytes());
        std::vector<std::string_view> cells;
        size_t bytes = 0;
        while (cursor.next(cells)) {
            for (const std::string_view cell : cells)
                bytes += cell.size();
        }
        benchmark::DoNotOptimize(bytes);
    }
}

void handWrittenJoin(benchmark::State &state)
{
    const TemporaryFolder folder;
    const GeneratedProject files = generated(state, folder);
    for ([[maybe_unused]] const auto _ : state) {
        const JoinResult result = referenceJoin(files.oldCsv, files.newCsv);
        state.counters["hits"] = double(result.hits);
    }
}

void handWrittenJoinAndFile(benchmark::State &state)
{
    const TemporaryFolder folder;
    const GeneratedProject files = generated(state, folder);
    for ([[maybe_unused]] const auto _ : state)
        writeMinimalMapping(referenceJoin(files.oldCsv, files.newCsv), folder.path() / "out.json");
}

void sqliteJoin(benchmark::State &state)
{
    const TemporaryFolder folder;
    const GeneratedProject files = generated(state, folder);
    for ([[maybe_unused]] const auto _ : state)
        state.counters["hits"] = double(SqliteJoin().join(files.oldCsv, files.newCsv));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"lines", "shuffled"});
    for (const int lines : {10000, 100000, 1000000}) {
        for (const int shuffled : {0, 1})
            benchmark->Args({lines, shuffled});
    }
    benchmark->Unit(benchmark::kMillisecond);
}

BENCHMARK(lineCount)->Apply(sizes);
BENCHMARK(inPlaceParse)->Apply(sizes);
BENCHMARK(handWrittenJoin)->Apply(sizes);
BENCHMARK(handWrittenJoinAndFile)->Apply(sizes);
BENCHMARK(sqliteJoin)->Apply(sizes);

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
