// Creating and assigning the mapping of real tables, beside SQLite's import and join by name. The
// folders of CSV files come from the environment: VELK_SAMPLE_OLD and VELK_SAMPLE_NEW.

#include "Comparison.h"
#include "ProductRun.h"
#include "SqliteJoin.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

#include <chrono>
#include <cstdlib>

namespace velkbench {

namespace {

/// Both releases imported as catalog "sample".
class SampleRun
{
public:
    SampleRun(const std::string &oldFolder, const std::string &newFolder)
    {
        import(oldFolder, m_folder.path() / "old");
        import(newFolder, m_folder.path() / "new");
    }
    /// Lets the next run begin afresh: the product keeps the target tables used last open.
    void forget()
    {
        for (const auto &entry :
             std::filesystem::recursive_directory_iterator(m_folder.path() / "new")) {
            if (entry.path().extension() == ".csv")
                std::filesystem::last_write_time(entry.path(),
                                                 entry.last_write_time() + std::chrono::seconds(1));
        }
    }

    void createAndAssign()
    {
        const QString mapping = qtPath(this->mapping());
        const QString source = qtPath(m_folder.path() / "old");
        const QString target = qtPath(m_folder.path() / "new");
        std::filesystem::remove(this->mapping());
        runVelkmap({QStringLiteral("create"), QStringLiteral("--source"), source,
                    QStringLiteral("--target"), target, QStringLiteral("--catalog"),
                    QStringLiteral("sample"), QStringLiteral("--mapping"), mapping});
        runVelkmap({QStringLiteral("assign"), QStringLiteral("--mapping"), mapping,
                    QStringLiteral("--source"), source, QStringLiteral("--target"), target,
                    QStringLiteral("--jobs"), QStringLiteral("1")});
    }
    std::filesystem::path mapping() const { return m_folder.path() / "mapping.json"; }

private:
    static void import(const std::string &from, const std::filesystem::path &root)
    {
        // Tables that cannot be read are left out on both sides.
        runVelkmap({QStringLiteral("import"), QStringLiteral("--from"),
                    QString::fromStdString(from), QStringLiteral("--into"),
                    qtPath(root / "sample")},
                   {0, 2});
    }

    TemporaryFolder m_folder;
};

void createAndAssign(benchmark::State &state)
{
    const char *oldFolder = std::getenv("VELK_SAMPLE_OLD");
    const char *newFolder = std::getenv("VELK_SAMPLE_NEW");
    if (!oldFolder || !newFolder) {
        state.SkipWithError("VELK_SAMPLE_OLD and VELK_SAMPLE_NEW name no folders");
        return;
    }
    SampleRun run(oldFolder, newFolder);
    Comparison comparison;
    comparison.addReference("sqlite", [&] {
        benchmark::DoNotOptimize(SqliteJoin().joinFolders(oldFolder, newFolder));
    });
    comparison.run(
        state, [&] { run.createAndAssign(); }, [&] { run.forget(); });
    const StateCounts counts = countStates(run.mapping());
    state.counters["lines"] = counts.lines;
    state.counters["mapped"] = counts.mapped;
    state.counters["toCheck"] = counts.toCheck;
    state.counters["notFound"] = counts.notFound;
}

BENCHMARK(createAndAssign)->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(10);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
