// Conditions and variable mappings: what a changed one would mean, as the formula editor tells it
// after each key, and assigning all lines anew among three targets with conditions, as the editor's
// button does it. Both on one core, with open tables. Beside them the hand-written join of the same
// files.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "ProductRun.h"
#include "ReferenceJoin.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/ReleaseMappingC.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/readProjectTable.h>
#include <release/assign/assignProjectLines.h>
#include <release/effect/RuleEffect.h>

#include <QCoreApplication>

#include <stdexcept>

namespace velkbench {

namespace {

const QString SourcePath = QStringLiteral("bench/p0000.prj");

/// One old project and three new ones, each with all lines and a condition that takes a third.
class RuleRun
{
public:
    explicit RuleRun(int lines)
    {
        CatalogShape shape;
        shape.lines = lines;
        m_project = CatalogGenerator(shape).write(m_folder.path()).front();
        IndexTreeC::instance()->setCatalogRoot(qtPath(m_folder.path() / "new"));
        WorkerPool::instance().setThreads(1);
        const QString source = qtPath(m_folder.path() / "old") + u'/' + SourcePath;
        if (!VKTab::readProjectTable(source, m_table, {.allLines = true}))
            throw std::runtime_error("the source table cannot be read");
        m_mapping.setSourcePath(SourcePath);
        m_mapping.setSourceVersion(QStringLiteral("v1"));
        addTarget(SourcePath, QStringLiteral("L .LE. 330"));
        addTarget(copyOfTarget(1), QStringLiteral("L .GT. 330 .AND. L .LE. 660"));
        addTarget(copyOfTarget(2), QStringLiteral("L .GT. 660"));
        m_mapping.updateMappingState();
    }

    [[nodiscard]] JoinResult join() const
    {
        return referenceJoin(m_project.oldCsv, m_project.newCsv);
    }
    PrjMappingC assign()
    {
        PrjMappingC mapping = m_mapping;
        (void)VelkRelease::assignProjectLines(SourcePath, mapping, m_table, ReleaseMappingC(),
                                              {QStringLiteral("L")}, true);
        return mapping;
    }
    void setMapping(const PrjMappingC &mapping) { m_mapping = mapping; }
    /// Of a condition that nobody has asked for yet.
    [[nodiscard]] VelkRelease::RuleEffect effect()
    {
        PrjMappingTargetC changed = m_mapping.findTarget(0);
        changed.clearConditions();
        changed.addCondition(
            VarsetConditionC::fromText(QStringLiteral("L .LE. %1").arg(100 + m_asked++)));
        return VelkRelease::ruleEffect(m_mapping, 0, changed, m_table).value();
    }

private:
    void addTarget(const QString &path, const QString &condition)
    {
        PrjMappingTargetC target;
        target.setTargetPath(path);
        target.setValid(true);
        target.addCondition(VarsetConditionC::fromText(condition));
        m_mapping.addTarget(target);
    }
    QString copyOfTarget(int number) const
    {
        const std::filesystem::path folder = m_folder.path() / "new/bench";
        const std::filesystem::path copy = folder / ("copy" + std::to_string(number));
        std::filesystem::create_directory(copy);
        for (const char *const ending : {".prj", ".json", ".csv"})
            std::filesystem::copy_file(folder / (std::string("p0000") + ending),
                                       copy / (std::string("p0000") + ending));
        return QStringLiteral("bench/copy%1/p0000.prj").arg(number);
    }

    TemporaryFolder m_folder;
    GeneratedProject m_project;
    VKTab::ContentRef m_table;
    PrjMappingC m_mapping;
    int m_asked = 0;
};

void assignAmongTargets(benchmark::State &state)
{
    RuleRun run(int(state.range(0)));
    Comparison comparison;
    comparison.addReference("join", [&] { benchmark::DoNotOptimize(run.join().hits); });
    PrjMappingC result;
    comparison.run(state, [&] { result = run.assign(); });
    int lines = 0;
    for (int i = 0; i < result.countTargets(); ++i) {
        lines += result.targetAt(i).countLines();
        if (!result.targetAt(i).isNotFoundTarget() && result.targetAt(i).countLines() == 0)
            throw std::runtime_error("a target got no line");
    }
    if (lines != int(state.range(0)))
        throw std::runtime_error("lines are missing");
}

void tellEffect(benchmark::State &state, bool confirmed)
{
    RuleRun run(int(state.range(0)));
    if (confirmed) {
        PrjMappingC mapping = run.assign();
        mapping.verifyAll();
        run.setMapping(mapping);
    }
    Comparison comparison;
    comparison.addReference("join", [&] { benchmark::DoNotOptimize(run.join().hits); });
    VelkRelease::RuleEffect effect;
    comparison.run(state, [&] { effect = run.effect(); });
    state.counters["ms"] = comparison.product().wall * 1e3; // the goal: 300
    state.counters["taken"] = effect.taken;
    state.counters["misfits"] = double(effect.misfits.size());
}

/// Nothing is assigned yet.
void effectOnOpenLines(benchmark::State &state)
{
    tellEffect(state, false);
}

/// Everything is confirmed.
void effectOnConfirmedLines(benchmark::State &state)
{
    tellEffect(state, true);
}

BENCHMARK(assignAmongTargets)
    ->ArgName("lines")
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(5);
BENCHMARK(effectOnOpenLines)
    ->ArgName("lines")
    ->Arg(50000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(5);
BENCHMARK(effectOnConfirmedLines)
    ->ArgName("lines")
    ->Arg(50000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(5);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
