// The mapping editor on one project with a large table: opening it, going to a line and confirming
// it, each until everything that is shown is painted. Whole windows, no part left out.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "MappingRecords.h"
#include "ProductRun.h"

#include <geomcoregui/table/VkTableView.h>
#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/view/CatalogMappingWidget.h>

#include <QApplication>
#include <QPushButton>
#include <QTreeView>

namespace velkbench {

namespace {

constexpr int LinesPerRound = 20;

void settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// A catalog in two releases on disk; the new one is the local catalog of the process.
struct Catalogs
{
    explicit Catalogs(int lines)
    {
        CatalogShape shape;
        shape.lines = lines;
        CatalogGenerator(shape).write(folder.path());
        std::filesystem::create_directory_symlink(folder.path() / "new",
                                                  folder.path() / "23d-libs");
        qputenv("TORMEVA_DATA", QByteArray::fromStdString(folder.path().string()));
    }
    TemporaryFolder folder;
};

/// The editor in its window, its only project not yet opened.
struct Editor
{
    Editor(const Catalogs &catalogs, const ReleaseMappingC &release)
        : handler(new ReleaseMappingHandler(release, QStringLiteral("bench"), QString()))
        , widget(qtPath(catalogs.folder.path() / "old"), handler, nullptr, nullptr)
        , tree(widget.findChild<QTreeView *>(QStringLiteral("treeView")))
    {
        widget.resize(1600, 1000);
        widget.show();
        settle();
    }
    void open()
    {
        const QModelIndex directory = tree->model()->index(0, 0);
        tree->setCurrentIndex(tree->model()->index(0, 0, directory));
        settle();
    }
    void select(int line)
    {
        widget.findChild<VkTableView *>(QStringLiteral("sourceView"))
            ->getTable()
            .setSelection(VKTab::LineId(line), true);
        settle();
    }
    void confirm()
    {
        widget.findChild<QPushButton *>(QStringLiteral("btnMapLine"))->click();
        settle();
    }

    ReleaseMappingHandler *handler; ///< the widget's
    CatalogMappingWidget widget;
    QTreeView *tree;
};

void add(Seconds &sum, const Seconds &seconds)
{
    sum.wall += seconds.wall;
    sum.cpu += seconds.cpu;
}

void openProject(benchmark::State &state)
{
    const Catalogs catalogs(int(state.range(0)));
    const ReleaseMappingC release = bigRelease(int(state.range(0)));
    std::unique_ptr<Editor> editor;
    Comparison comparison;
    comparison.run(
        state, [&] { editor->open(); },
        [&] {
            editor.reset();
            editor = std::make_unique<Editor>(catalogs, release);
        });
}

void confirmLines(benchmark::State &state)
{
    const int lines = int(state.range(0));
    const Catalogs catalogs(lines);
    Editor editor(catalogs, bigRelease(lines));
    editor.open();
    const int confirmedBefore = editor.handler->countVerified();
    int line = 0;
    Seconds selecting;
    Seconds confirming;
    for ([[maybe_unused]] const auto _ : state) {
        Seconds round;
        for (int i = 0; i < LinesPerRound; ++i) {
            line = (line + 7920) / 10 * 10 + 1; // one that the program assigned
            line %= lines;
            const Seconds select = measure([&] { editor.select(line); });
            const Seconds confirm = measure([&] { editor.confirm(); });
            add(selecting, select);
            add(confirming, confirm);
            round.wall += select.wall + confirm.wall;
        }
        state.SetIterationTime(round.wall);
    }
    const double count = double(state.iterations()) * LinesPerRound;
    state.counters["ms_select"] = selecting.wall * 1e3 / count;
    state.counters["ms_confirm"] = confirming.wall * 1e3 / count;
    state.counters["cpu_ms_select"] = selecting.cpu * 1e3 / count;
    state.counters["cpu_ms_confirm"] = confirming.cpu * 1e3 / count;
    state.counters["confirmed"] = editor.handler->countVerified() - confirmedBefore;
}

BENCHMARK(openProject)
    ->ArgName("lines")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);
BENCHMARK(confirmLines)
    ->ArgName("lines")
    ->Arg(10000)
    ->Arg(100000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
