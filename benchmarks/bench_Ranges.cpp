// The run over value ranges: each value of each line's range is looked up in the target table.

#include "../tests/support/TestCatalog.h"
#include "CatalogGenerator.h"
#include "Comparison.h"
#include "ProductRun.h"

#include <mapping/table/VarsetMappingRunnable.h>

#include <QDir>

#include <stdexcept>
#include <string>
#include <unordered_map>

namespace velkbench {

namespace {

constexpr int ValuesOfLine = 4;

/// The columns that both tables have are D and L. Either D tells the lines apart, or it is the
/// same in all of them and L alone does.
std::string sizeOf(int line, bool selects)
{
    return selects ? "M" + std::to_string(line) : "M8";
}

int lengthOf(int line, int value, bool selects)
{
    return selects ? 10 * value : 10 * (line * ValuesOfLine + value);
}

/// Each source line has a range of four lengths, each target line one of them.
class RangeTables
{
public:
    RangeTables(int lines, bool selects)
        : m_catalog(qtPath(m_folder.path() / "23d-libs"))
    {
        qputenv("TORMEVA_DATA", QFile::encodeName(qtPath(m_folder.path())));
        QByteArray source = "D,L:r\n";
        QByteArray target = "D,L\n";
        PrjMappingC mapping = mappingOf("old/a.prj", {"new/a.prj"});
        mapping.changeTarget(0, [&](PrjMappingTargetC &to) {
            for (int line = 0; line < lines; ++line) {
                const std::string size = sizeOf(line, selects);
                source.append(size).append(",");
                for (int value = 0; value < ValuesOfLine; ++value) {
                    const QByteArray length = QByteArray::number(lengthOf(line, value, selects));
                    source += (value > 0 ? ";" : "") + length;
                    target.append(size).append("," + length + '\n');
                }
                source += '\n';
                to.addLineId(line + 1, line * ValuesOfLine + 1, PRJMAPPING::Mapped, QString());
            }
        });
        m_catalog.write("old/a.prj", source);
        m_catalog.write("new/a.prj", target);
        m_task.variables = QStringList("L");
        m_task.mapping = mapping;
        m_task.sourceTable = m_catalog.read("old/a.prj");
        m_task.lineIds = m_task.sourceTable.getLineIdList();
        if (m_task.lineIds.size() != lines)
            throw std::runtime_error("the table cannot be read");
    }

    [[nodiscard]] const VarsetMappingRunnable::Task &task() const { return m_task; }

private:
    TemporaryFolder m_folder;
    TestCatalog m_catalog;
    VarsetMappingRunnable::Task m_task;
};

/// Finds the lines of all combinations in a hash of the target's lines.
int lookUpAll(int lines, bool selects, const std::unordered_map<std::string, int> &targets)
{
    int found = 0;
    for (int line = 0; line < lines; ++line) {
        for (int value = 0; value < ValuesOfLine; ++value)
            found += targets.at(sizeOf(line, selects) + ',' +
                                std::to_string(lengthOf(line, value, selects))) > 0;
    }
    return found;
}

void rangeRun(benchmark::State &state)
{
    const int lines = int(state.range(0));
    const bool selects = state.range(1) != 0;
    const RangeTables tables(lines, selects);
    std::unordered_map<std::string, int> targets;
    for (int line = 0; line < lines; ++line) {
        for (int value = 0; value < ValuesOfLine; ++value)
            targets[sizeOf(line, selects) + ',' + std::to_string(lengthOf(line, value, selects))] =
                line * ValuesOfLine + value + 1;
    }
    Comparison comparison;
    comparison.addReference("look_ups",
                            [&] { benchmark::DoNotOptimize(lookUpAll(lines, selects, targets)); });
    QString last;
    comparison.run(state, [&] {
        VarsetMappingRunnable run(tables.task());
        run.run();
        last = run.getMapping().findTarget(0).getMappedLine(lines).getExtended();
    });
    if (!last.endsWith(QStringLiteral("-> %1").arg(lines * ValuesOfLine)))
        throw std::runtime_error("a value was not found");
    state.counters["us_combination"] = comparison.product().cpu * 1e6 / (lines * ValuesOfLine);
}

BENCHMARK(rangeRun)
    ->ArgNames({"lines", "selective"})
    ->ArgsProduct({{2000, 4000, 8000, 16000}, {0, 1}})
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
