// Writing and reading the mapping file beside RapidJSON's writer and SAX reader on the same data.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "MappingRecords.h"
#include "ReferenceJson.h"

#include <geomcore/records/MappingFile.h>
#include <mapping/data/ReleaseMappingHandler.h>

#include <stdexcept>

namespace velkbench {

namespace {

void require(bool condition, const char *text)
{
    if (!condition)
        throw std::runtime_error(text);
}

/// What the editor does on saving: ReleaseMappingHandler::commitModifications.
void commit(benchmark::State &state)
{
    const TemporaryFolder folder;
    const ReleaseMappingC release = bigRelease(int(state.range(0)));
    const auto file = folder.path() / "mapping.json";
    ReleaseMappingHandler handler(release, QStringLiteral("bench"),
                                  QString::fromStdString(file.string()));
    Comparison comparison;
    comparison.addReference("rapidjson", [&] { writeWithRapidJson(release, folder.path() / "r"); });
    comparison.run(state, [&] {
        std::filesystem::remove(file);
        require(handler.commitModifications(), "the file was not written");
    });
    state.counters["bytes_per_line"] = double(file_size(file)) / double(state.range(0));
}

/// What the batch program does: written beside, synced, renamed.
void writeFile(benchmark::State &state)
{
    const TemporaryFolder folder;
    const ReleaseMappingC release = bigRelease(int(state.range(0)));
    const QString path = QString::fromStdString((folder.path() / "mapping.json").string());
    Comparison comparison;
    comparison.addReference("rapidjson", [&] { writeWithRapidJson(release, folder.path() / "r"); });
    comparison.run(state, [&] {
        MappingFile file;
        file.setRelease(release);
        require(file.write(path), "the file was not written");
    });
}

void readFile(benchmark::State &state)
{
    const TemporaryFolder folder;
    const auto path = folder.path() / "mapping.json";
    const QString nativePath = QString::fromStdString(path.string());
    MappingFile written;
    written.setRelease(bigRelease(int(state.range(0))));
    require(written.write(nativePath), "the file was not written");
    Comparison comparison;
    comparison.addReference("rapidjson",
                            [&] { benchmark::DoNotOptimize(readWithRapidJson(path)); });
    comparison.run(state, [&] {
        MappingFile file;
        require(file.read(nativePath), "the file was not read");
        benchmark::DoNotOptimize(file.releases().size());
    });
}

void memoryOfRecords(benchmark::State &state)
{
    double peak = 0;
    for ([[maybe_unused]] const auto _ : state) {
        const PeakMemory memory;
        const ReleaseMappingC release = bigRelease(int(state.range(0)));
        benchmark::DoNotOptimize(release.countMappings());
        peak = memory.peak();
    }
    state.counters["bytes_per_line"] = peak / double(state.range(0));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgName("lines")
        ->Arg(100000)
        ->Arg(1000000)
        ->Unit(benchmark::kMillisecond)
        ->Iterations(10);
}

BENCHMARK(commit)->Apply(sizes)->UseManualTime();
BENCHMARK(writeFile)->Apply(sizes)->UseManualTime();
BENCHMARK(readFile)->Apply(sizes)->UseManualTime();
BENCHMARK(memoryOfRecords)->Apply(sizes);

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
