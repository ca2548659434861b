// Assigning the lines of a big table, from two CSV files to a mapping file, the way of the batch
// program: read both tables, look up, check, record, write. Beside it the hand-written join and
// SQLite.

#include "Comparison.h"
#include "ProductRun.h"
#include "ReferenceJoin.h"
#include "SqliteJoin.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <chrono>
#include <stdexcept>

namespace velkbench {

namespace {

/// A catalog of both releases with its mapping file.
class AssignRun
{
public:
    /// \a threads: how many the product takes; 0 for all cores.
    explicit AssignRun(const CatalogShape &shape, int threads = 1)
        : m_threads(threads)
        , m_projects(CatalogGenerator(shape).write(m_folder.path()))
    {
        writeEmptyMapping(m_projects, emptyMapping());
    }

    /// Lets the next run begin afresh: the product keeps the target tables used last open.
    void forget()
    {
        for (const GeneratedProject &project : m_projects) {
            const auto time = std::filesystem::last_write_time(project.newCsv);
            std::filesystem::last_write_time(project.newCsv, time + std::chrono::seconds(1));
        }
    }

    /// From the files to the mapping file.
    void assign()
    {
        std::filesystem::copy_file(emptyMapping(), mapping(),
                                   std::filesystem::copy_options::overwrite_existing);
        runVelkmap({QStringLiteral("assign"), QStringLiteral("--mapping"), qtPath(mapping()),
                    QStringLiteral("--source"), qtPath(m_folder.path() / "old"),
                    QStringLiteral("--target"), qtPath(m_folder.path() / "new"),
                    QStringLiteral("--jobs"), QString::number(m_threads)});
    }

    JoinResult join() const
    {
        return referenceJoin(m_projects.front().oldCsv, m_projects.front().newCsv);
    }
    size_t sqliteJoin() const
    {
        return SqliteJoin().join(m_projects.front().oldCsv, m_projects.front().newCsv);
    }
    std::filesystem::path emptyMapping() const { return m_folder.path() / "empty.json"; }
    std::filesystem::path mapping() const { return m_folder.path() / "mapping.json"; }
    std::filesystem::path reference() const { return m_folder.path() / "reference.json"; }

private:
    int m_threads;
    TemporaryFolder m_folder;
    std::vector<GeneratedProject> m_projects;
};

CatalogShape shapeOf(const benchmark::State &state)
{
    CatalogShape shape;
    shape.lines = int(state.range(0));
    shape.shuffled = state.range(1) != 0;
    return shape;
}

void assignWith(benchmark::State &state, int threads)
{
    AssignRun run(shapeOf(state), threads);
    const size_t hits = run.join().hits;
    Comparison comparison;
    comparison.addReference("join", [&] { benchmark::DoNotOptimize(run.join().hits); });
    comparison.addReference("joinAndFile",
                            [&] { writeMinimalMapping(run.join(), run.reference()); });
    comparison.addReference("sqlite", [&] { benchmark::DoNotOptimize(run.sqliteJoin()); });
    comparison.run(
        state, [&] { run.assign(); }, [&] { run.forget(); });
    const StateCounts counts = countStates(run.mapping());
    if (counts.mapped != int(hits) || counts.lines != int(state.range(0)))
        throw std::runtime_error("the mapping does not hold what the join found");
    state.counters["us_line"] = comparison.product().cpu * 1e6 / double(state.range(0));
    state.counters["mapped"] = counts.mapped;
    state.counters["toCheck"] = counts.toCheck;
    state.counters["notFound"] = counts.notFound;
}

void assign(benchmark::State &state)
{
    assignWith(state, 1);
}

/// All cores; wall_vs_join is what counts.
void assignOnAllCores(benchmark::State &state)
{
    assignWith(state, 0);
}

void assignMemory(benchmark::State &state)
{
    AssignRun run(shapeOf(state));
    double peak = 0;
    for ([[maybe_unused]] const auto _ : state) {
        run.forget();
        const PeakMemory memory;
        run.assign();
        peak = memory.peak();
    }
    state.counters["bytes_per_line"] = peak / double(state.range(0));
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"lines", "shuffled"})->Unit(benchmark::kMillisecond)->Iterations(5);
    for (const int lines : {10000, 100000, 1000000}) {
        for (const int shuffled : {0, 1})
            benchmark->Args({lines, shuffled});
    }
}

BENCHMARK(assign)->Apply(sizes)->UseManualTime();
BENCHMARK(assignOnAllCores)->Apply(sizes)->UseManualTime();
BENCHMARK(assignMemory)->Apply(sizes)->Iterations(1);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
