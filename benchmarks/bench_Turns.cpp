// How long the workbench's window keeps its user waiting: the longest turn of the event loop while
// a project of 100 000 lines is worked on. The goal is 16 ms, one picture of a screen.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "LoopTurns.h"
#include "ProductRun.h"

#include <workbench/review/PatternDock.h>
#include <workbench/session/ReviewWork.h>
#include <workbench/start/PluginLibrary.h>
#include <workbench/window/DocumentDesk.h>
#include <workbench/window/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/ReviewCommands.h>
#include <workbench/window/WorkbenchSettings.h>

#include <core/config/PConfigInst.h>
#include <gui/application/PApplication.h>

#include <QAction>
#include <QApplication>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeView>

#include <memory>
#include <stdexcept>

namespace velkbench {

namespace {

constexpr int Lines = 100000;
const QString project = QStringLiteral("bench/p0000.prj");

PLinkDbGuiI *thePlugin = nullptr;

/// A catalog in two releases with a tenth of its lines changed, and a mapping file that is
/// assigned.
struct Release
{
    Release()
    {
        CatalogShape shape;
        shape.lines = Lines;
        shape.changed = 0.1;
        const auto projects = CatalogGenerator(shape).write(folder.path());
        writeEmptyMapping(projects, folder.path() / "m.json");
        runVelkmap({"assign", "--source", source(), "--target", target(), "--mapping", mapping()});
    }
    [[nodiscard]] QString source() const { return qtPath(folder.path() / "old"); }
    [[nodiscard]] QString target() const { return qtPath(folder.path() / "new"); }
    [[nodiscard]] QString mapping() const { return qtPath(folder.path() / "m.json"); }

    TemporaryFolder folder;
};

/// The workbench as its user has it, with settings of its own; all that is decided is lost.
struct Workbench
{
    /// With the mapping open, at the first open line.
    static std::unique_ptr<Workbench> opened()
    {
        auto workbench = std::make_unique<Workbench>();
        LoopTurns unmeasured;
        unmeasured.run([&] { workbench->open(); });
        unmeasured.run([&] { workbench->action("goNext")->trigger(); });
        return workbench;
    }
    Workbench()
        : application(PRefPtr<PConfig>(new PConfigInst(folder.filePath("windows.cfg"), false)))
        , settings(folder.filePath("workbench.ini"))
        , window(std::make_unique<MainWindow>(&settings, thePlugin))
    {
        window->resize(1500, 900);
        window->show();
    }
    void open()
    {
        window->desk()->open(
            {.file = release().mapping(), .roots = {release().source(), release().target()}});
        window->editor()->selectProject(project);
    }
    [[nodiscard]] QAction *action(const char *name) const
    {
        auto *const found = window->findChild<QAction *>(QLatin1String(name));
        if (!found)
            throw std::runtime_error(name);
        return found;
    }
    [[nodiscard]] bool hasPatterns() const { return window->review()->work()->hasPatterns(); }

    static const Release &release()
    {
        static const Release release;
        return release;
    }

    QTemporaryDir folder;
    PApplication application;
    WorkbenchSettings settings;
    std::unique_ptr<MainWindow> window;
};

void report(benchmark::State &state, const LoopTurns &turns)
{
    state.counters["ms_turn"] = turns.wall();
    state.counters["cpu_ms_turn"] = turns.cpu();
}

/// Does it once in each iteration.
void measureTurns(benchmark::State &state, const std::function<void()> &work)
{
    LoopTurns turns;
    for (auto _ : state)
        turns.run(work);
    report(state, turns);
}

void openMapping(benchmark::State &state)
{
    double wall = 0;
    double cpu = 0;
    for (auto _ : state) {
        Workbench workbench;
        LoopTurns turns;
        turns.run([&] { workbench.open(); });
        wall = std::max(wall, turns.wall());
        cpu = std::max(cpu, turns.cpu());
    }
    state.counters["ms_turn"] = wall;
    state.counters["cpu_ms_turn"] = cpu;
}

void selectLine(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    int line = 0;
    measureTurns(state, [&] {
        line = (line + 7919) % Lines;
        workbench->window->editor()->selectLine(line + 1);
    });
}

void nextOpenLine(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    measureTurns(state, [&] { workbench->action("goNext")->trigger(); });
}

void confirmLine(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    measureTurns(state,
                 [&] { workbench->window->findChild<QPushButton *>("btnMapLine")->click(); });
}

void undoAndRedo(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    bool undo = false;
    measureTurns(state, [&] {
        if (!undo)
            workbench->window->findChild<QPushButton *>("btnMapLine")->click();
        else
            workbench->action("editUndo")->trigger();
        undo = !undo;
    });
}

void filterByState(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    measureTurns(state, [&] { workbench->action("stateToCheck")->trigger(); });
}

void readPatterns(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    LoopTurns turns;
    for (auto _ : state)
        turns.run([&] { workbench->action("reviewPatterns")->trigger(); },
                  [&] { return workbench->hasPatterns(); });
    report(state, turns);
}

void choosePattern(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    LoopTurns unmeasured;
    unmeasured.run([&] { workbench->action("reviewPatterns")->trigger(); },
                   [&] { return workbench->hasPatterns(); });
    auto *const list = workbench->window->findChild<QTreeView *>("PatternList");
    int row = 0;
    measureTurns(state, [&] {
        row = (row + 1) % std::max(1, list->model()->rowCount());
        list->setCurrentIndex(list->model()->index(row, 0));
        Q_EMIT list->doubleClicked(list->currentIndex());
    });
}

void addTurns(const char *name, void (*run)(benchmark::State &), int iterations)
{
    benchmark::RegisterBenchmark(name, run)->Unit(benchmark::kMillisecond)->Iterations(iterations);
}

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    qputenv("QT_NO_GLIB", "1"); // see LoopTurns
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    PluginLibrary plugin;
    if (!plugin.load(PluginLibrary::pathOf("VelkLinkDbGui")))
        qFatal("%s", qPrintable(plugin.error()));
    velkbench::thePlugin = plugin.plugin();
    velkbench::addTurns("openMapping", velkbench::openMapping, 3);
    velkbench::addTurns("selectLine", velkbench::selectLine, 20);
    velkbench::addTurns("nextOpenLine", velkbench::nextOpenLine, 20);
    velkbench::addTurns("confirmLine", velkbench::confirmLine, 20);
    velkbench::addTurns("undoAndRedo", velkbench::undoAndRedo, 20);
    velkbench::addTurns("filterByState", velkbench::filterByState, 10);
    velkbench::addTurns("readPatterns", velkbench::readPatterns, 1);
    velkbench::addTurns("choosePattern", velkbench::choosePattern, 10);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
