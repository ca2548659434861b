// The plan over a table as a whole: what assigning costs where many lines have changed. Each run is
// the first one of its tables, for the plans used last are kept.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "ProductRun.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/readProjectTable.h>
#include <release/assign/assignProjectLines.h>

#include <QCoreApplication>

#include <stdexcept>

namespace velkbench {

namespace {

const QString SourcePath = QStringLiteral("bench/p0000.prj");

/// One project in two releases, of which a share of the lines differs in one number.
class PlanRun
{
public:
    PlanRun(int lines, double changed)
    {
        CatalogShape shape;
        shape.lines = lines;
        shape.changed = changed;
        (void)CatalogGenerator(shape).write(m_folder.path());
        read("old", m_table);
        read("new", m_targetTable);
        m_mapping.setSourcePath(SourcePath);
        m_mapping.setSourceVersion(QStringLiteral("v1"));
        PrjMappingTargetC target;
        target.setTargetPath(SourcePath);
        target.setValid(true);
        m_mapping.addTarget(target);
        m_mapping.updateMappingState();
    }

    void assign()
    {
        IndexTreeC::instance()->setCatalogRoot(qtPath(m_folder.path() / "new"));
        PrjMappingC mapping = m_mapping;
        (void)VelkRelease::assignProjectLines(SourcePath, mapping, m_table, ReleaseMappingC(), {},
                                              true);
        if (mapping.targetAt(0).countLines() == 0)
            throw std::runtime_error("the target got no line");
    }

private:
    void read(const char *release, VKTab::ContentRef &table) const
    {
        const QString path = qtPath(m_folder.path() / release) + u'/' + SourcePath;
        if (!VKTab::readProjectTable(path, table, {.allLines = true}))
            throw std::runtime_error("a table cannot be read");
    }

    TemporaryFolder m_folder;
    VKTab::ContentRef m_table;
    VKTab::ContentRef m_targetTable; ///< Held, so that the mapper has nothing to read.
    PrjMappingC m_mapping;
};

/// All lines are open, beside a tenth as many.
void allOpen(benchmark::State &state)
{
    WorkerPool::instance().setThreads(1);
    const int lines = int(state.range(0));
    PlanRun run(lines, 1);
    PlanRun tenth(lines / 10, 1);
    Comparison comparison;
    comparison.addReference("tenth", [&] { tenth.assign(); }); // the goal: 12
    double bytes = 0;
    comparison.run(state, [&] {
        const PeakMemory memory;
        run.assign();
        bytes = memory.peak();
    });
    state.counters["bytes_per_line"] =
        bytes / lines; // with the target's indexes, beside the tables
}

/// A tenth of the lines is open, beside none.
void tenthOpen(benchmark::State &state)
{
    WorkerPool::instance().setThreads(1);
    const int lines = int(state.range(0));
    PlanRun run(lines, 0.1);
    PlanRun unchanged(lines, 0);
    Comparison comparison;
    comparison.addReference("unchanged", [&] { unchanged.assign(); }); // the goal: 1.6
    comparison.run(state, [&] { run.assign(); });
}

/// 3500 of 12 000 lines are open, on two cores.
void someOpen(benchmark::State &state)
{
    WorkerPool::instance().setThreads(2);
    PlanRun run(int(state.range(0)), 0.29);
    Comparison comparison;
    comparison.run(state, [&] { run.assign(); });
    state.counters["ms"] = comparison.product().wall * 1e3; // the goal: 1000
}

BENCHMARK(allOpen)
    ->ArgName("lines")
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK(tenthOpen)
    ->ArgName("lines")
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1);
BENCHMARK(someOpen)
    ->ArgName("lines")
    ->Arg(12000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(1);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
