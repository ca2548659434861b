// The locator's look-up among the paths of 100 000 projects: what it costs at each key, and once
// for a release. The goal is 50 ms. Beside it, a walk through a list of the same folded texts that
// asks each of them for the words.

#include "Comparison.h"

#include <geomcore/search/PartFinder.h>
#include <geomcore/search/SearchText.h>

#include <QStringList>

#include <algorithm>

namespace velkbench {

namespace {

constexpr int Projects = 100000;
constexpr int Limit = 50;

const char *const Queries[] = {"d", "din", "din 9", "din 93 schr", "4017 0999", "zzz"};
const char *const Kinds[] = {"schrauben", "muttern", "scheiben", "stifte", "Größen/lager"};

QStringList paths()
{
    QStringList paths;
    paths.reserve(Projects);
    for (int project = 0; project < Projects; ++project)
        paths << QStringLiteral("hersteller_%1/%2/%3%4_%5.prj")
                     .arg(project % 97, 2, 10, QLatin1Char('0'))
                     .arg(QString::fromUtf8(Kinds[project % std::size(Kinds)]),
                          project % 3 ? QStringLiteral("din") : QStringLiteral("iso"))
                     .arg(900 + project % 4200)
                     .arg(project, 6, 10, QLatin1Char('0'));
    return paths;
}

PartFinder finderOf(const QStringList &paths)
{
    PartFinder finder;
    for (const QString &path : paths)
        finder.add(path);
    return finder;
}

void findAtEachKey(benchmark::State &state)
{
    const QStringList all = paths();
    const PartFinder finder = finderOf(all);
    QStringList folded;
    for (const QString &path : all)
        folded << SearchText::folded(path);
    const QString query = QString::fromUtf8(Queries[state.range(0)]);
    state.SetLabel(query.toStdString());
    Comparison comparison;
    comparison.addReference("list", [&] {
        const QStringList words = SearchText::folded(query).split(u' ');
        int count = 0;
        for (const QString &path : std::as_const(folded))
            count += std::all_of(words.begin(), words.end(),
                                 [&](const QString &word) { return path.contains(word); });
        benchmark::DoNotOptimize(count);
    });
    int hits = 0;
    comparison.run(state, [&] { hits = finder.find(query, Limit).count; });
    state.counters["hits"] = hits;
}
BENCHMARK(findAtEachKey)->DenseRange(0, int(std::size(Queries)) - 1)->Unit(benchmark::kMillisecond);

void takeARelease(benchmark::State &state)
{
    const QStringList all = paths();
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(finderOf(all).count());
}
BENCHMARK(takeARelease)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velkbench

BENCHMARK_MAIN();
