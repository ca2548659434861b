// Merging what two users made of one release, beside reading the two files that they made.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "MappingRecords.h"
#include "ProductRun.h"

#include <release/merge/mergeFiles.h>

#include <stdexcept>

namespace velkbench {

namespace {

/// One of a hundred lines is decided anew, from the first one on.
ReleaseMappingC edited(const ReleaseMappingC &release, int first)
{
    ReleaseMappingC result = release;
    for (int i = 0; i < release.countMappings(); ++i) {
        PrjMappingC mapping = release.mappingAt(i);
        mapping.changeTarget(0, [&](PrjMappingTargetC &target) {
            for (int line = first; line <= target.countLines(); line += 100)
                target.addLineId(line, line + first, PRJMAPPING::Verified, QString());
        });
        mapping.updateMappingState();
        result.addMapping(mapping);
    }
    return result;
}

/// The lines of a release in so many projects.
ReleaseMappingC releaseOf(int lines, int projects)
{
    if (projects == 1)
        return bigRelease(lines);
    const ReleaseMappingC part = bigRelease(lines / projects);
    ReleaseMappingC release;
    release.setSourceDate(part.getSourceDate());
    release.setTargetDate(part.getTargetDate());
    for (int i = 0; i < projects; ++i) {
        PrjMappingC mapping = part.mappingAt(0);
        mapping.setSourcePath(QStringLiteral("bench/p%1.prj").arg(i, 6, 10, QLatin1Char('0')));
        release.appendMapping(mapping);
    }
    return release;
}

struct Files
{
    QString base;
    QString ours;
    QString theirs;
    QString merged;
};

Files write(const ReleaseMappingC &base, const std::filesystem::path &folder)
{
    Files files;
    const auto put = [&](const char *name, const ReleaseMappingC &release) {
        const QString path = qtPath(folder / name);
        MappingFile file;
        file.setRelease(release);
        if (!file.write(path))
            throw std::runtime_error("a mapping file cannot be written");
        return path;
    };
    files.base = put("base.json", base);
    files.ours = put("ours.json", edited(base, 17));
    files.theirs = put("theirs.json", edited(base, 42));
    files.merged = qtPath(folder / "merged.json");
    return files;
}

MappingFile read(const QString &path)
{
    MappingFile file;
    if (!file.read(path))
        throw std::runtime_error("a mapping file cannot be read");
    return file;
}

/// Records in, records out.
void mergeRecords(benchmark::State &state)
{
    const TemporaryFolder folder;
    const Files files = write(releaseOf(int(state.range(0)), int(state.range(1))), folder.path());
    Comparison comparison;
    comparison.addReference("reading_both", [&] {
        benchmark::DoNotOptimize(read(files.ours).releases().size());
        benchmark::DoNotOptimize(read(files.theirs).releases().size());
    });
    const MappingFile base = read(files.base);
    const MappingFile ours = read(files.ours);
    const MappingFile theirs = read(files.theirs);
    qsizetype changes = 0;
    comparison.run(state, [&] {
        const auto merged = VelkRelease::mergeFiles(base, ours, theirs);
        changes = merged.releases.first().online.size();
    });
    state.counters["their_changes"] = double(changes);
}

/// The whole of `velkmap merge`: three files read, one written.
void mergeCommand(benchmark::State &state)
{
    const TemporaryFolder folder;
    const Files files = write(releaseOf(int(state.range(0)), int(state.range(1))), folder.path());
    Comparison comparison;
    comparison.addReference("reading_both", [&] {
        benchmark::DoNotOptimize(read(files.ours).releases().size());
        benchmark::DoNotOptimize(read(files.theirs).releases().size());
    });
    comparison.run(state, [&] {
        runVelkmap({"merge", "--base", files.base, "--ours", files.ours, "--theirs", files.theirs,
                    "--out", files.merged});
    });
}

void sizes(benchmark::internal::Benchmark *benchmark)
{
    benchmark->ArgNames({"lines", "projects"})
        ->Args({100000, 1})
        ->Args({1000000, 1})
        ->Args({1000000, 1000})
        ->Unit(benchmark::kMillisecond)
        ->UseManualTime()
        ->Iterations(5);
}

BENCHMARK(mergeRecords)->Apply(sizes);
BENCHMARK(mergeCommand)->Apply(sizes);

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
