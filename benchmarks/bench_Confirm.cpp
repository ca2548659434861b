// Confirming one line of a large mapping, the way of every click in the editor: take the record out
// of the handler's mapping, change one entry, publish it. Beside it a copy of a QHash of the same
// entries, which is what a plain record would cost.

#include "Comparison.h"
#include "MappingRecords.h"

#include <mapping/data/ReleaseMappingHandler.h>

#include <QHash>

namespace velkbench {

namespace {

constexpr int ConfirmationsPerRound = 1000;

void confirmOne(ReleaseMappingHandler &handler, int line)
{
    PrjMappingC mapping = handler.getCatalogMapping().lastRelease().mappingAt(0);
    PrjMappingTargetC target = mapping.findTarget(0);
    const PrjMappingTargetLineC entry = target.getMappedLine(line);
    target.addLineId(line, entry.getTargetLineId(), PRJMAPPING::Verified, entry.getExtended());
    mapping.updateTarget(0, target);
    mapping.updateMappingState();
    handler.updateMapping(mapping);
}

QHash<int, PrjMappingTargetLineC> plainRecord(int lines)
{
    return bigRelease(lines).mappingAt(0).findTarget(0).getMappedLines();
}

void confirm(benchmark::State &state)
{
    const int lines = int(state.range(0));
    ReleaseMappingHandler handler(bigRelease(lines), QStringLiteral("bench"), QString());
    const QHash<int, PrjMappingTargetLineC> plain = plainRecord(lines);
    Comparison comparison;
    comparison.addReference("QHash", [&] {
        QHash<int, PrjMappingTargetLineC> copy = plain;
        copy.insert(1, PrjMappingTargetLineC(1, PRJMAPPING::Verified, QString()));
        benchmark::DoNotOptimize(copy.size());
    });
    int line = 0;
    comparison.run(state, [&] {
        for (int i = 0; i < ConfirmationsPerRound; ++i) {
            line = (line + 7919) % lines;
            confirmOne(handler, line + 1);
        }
    });
    const double one = comparison.product().cpu / ConfirmationsPerRound;
    state.counters["us_confirm"] = one * 1e6;
    state.counters["times_faster"] = state.counters["ms_QHash"] * 1e-3 / one;
    state.counters.erase("vs_QHash"); // of a whole round, says nothing
    state.counters["verified"] = handler.countVerified();
}

BENCHMARK(confirm)
    ->ArgName("lines")
    ->Arg(10000)
    ->Arg(100000)
    ->Arg(1000000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(10);

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
