// Creating the mapping of a large release in which many lines changed alike, so that how they did
// is learned from all projects, beside assigning its lines.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "ProductRun.h"

#include <benchmark/benchmark.h>

#include <QCoreApplication>

namespace velkbench {

namespace {

/// A release of which a third of the lines has a number in another unit.
class CreateRun
{
public:
    CreateRun(int projects, int lines)
    {
        CatalogShape shape;
        shape.projects = projects;
        shape.lines = lines;
        shape.changed = 1.0 / 3;
        shape.millimetres = true;
        (void)CatalogGenerator(shape).write(m_folder.path());
        create();
        std::filesystem::copy_file(file("mapping.json"), file("created.json"));
    }
    void create()
    {
        std::filesystem::remove(file("mapping.json"));
        run("create", "mapping.json", {QStringLiteral("--catalog"), CatalogName});
    }
    void assign()
    {
        std::filesystem::copy_file(file("created.json"), file("assigned.json"),
                                   std::filesystem::copy_options::overwrite_existing);
        run("assign", "assigned.json", {QStringLiteral("--jobs"), QStringLiteral("1")});
    }

private:
    std::filesystem::path file(const char *name) const { return m_folder.path() / name; }
    void run(const char *command, const char *mapping, const QStringList &more)
    {
        runVelkmap(QStringList{QString::fromLatin1(command), QStringLiteral("--mapping"),
                               qtPath(file(mapping)), QStringLiteral("--source"),
                               qtPath(file("old")), QStringLiteral("--target"),
                               qtPath(file("new"))} +
                   more);
    }

    const QString CatalogName = QString::fromLatin1(CatalogGenerator::CatalogName);
    TemporaryFolder m_folder;
};

/// Projects of 10 000 lines.
void createLearning(benchmark::State &state)
{
    CreateRun run(int(state.range(0)), 10000);
    Comparison comparison;
    comparison.addReference("assign", [&] { run.assign(); });
    comparison.run(state, [&] { run.create(); });
}

BENCHMARK(createLearning)
    ->ArgName("projects")
    ->Arg(10)
    ->Arg(100)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
