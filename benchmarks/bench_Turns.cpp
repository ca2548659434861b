// How long the workbench's window keeps its user waiting: the longest turn of the event loop while
// a project of 100 000 lines is worked on. The goal is 16 ms, one picture of a screen.

#include "CatalogGenerator.h"
#include "Comparison.h"
#include "LoopTurns.h"
#include "MappingRecords.h"
#include "ProductRun.h"

#include <workbench/review/PatternDock.h>
#include <workbench/session/tasks/ReviewWork.h>
#include <workbench/start/PluginLibrary.h>
#include <workbench/window/document/DocumentDesk.h>
#include <workbench/window/editor/EditorArea.h>
#include <workbench/window/MainWindow.h>
#include <workbench/window/review/ReviewCommands.h>
#include <workbench/window/settings/WorkbenchSettings.h>

#include <core/config/PConfigInst.h>
#include <geomcore/records/MappingFile.h>
#include <gui/application/PApplication.h>
#include <mapping/view/CatalogMappingWidget.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
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

/// A catalog in two releases and the mapping file of them.
struct Release
{
    explicit Release(const CatalogShape &shape)
    {
        const auto projects = CatalogGenerator(shape).write(folder.path());
        writeEmptyMapping(projects, folder.path() / "m.json");
        runVelkmap({"assign", "--source", source(), "--target", target(), "--mapping", mapping()});
    }
    /// All of it in the mapping file alone, but for one table.
    explicit Release(const ReleaseMappingC &release)
    {
        CatalogShape shape;
        shape.lines = 10;
        (void)CatalogGenerator(shape).write(folder.path());
        MappingFile file;
        file.setRelease(release);
        if (!file.write(mapping()))
            throw std::runtime_error("no mapping file");
    }
    [[nodiscard]] QString source() const { return qtPath(folder.path() / "old"); }
    [[nodiscard]] QString target() const { return qtPath(folder.path() / "new"); }
    [[nodiscard]] QString mapping() const { return qtPath(folder.path() / "m.json"); }

    TemporaryFolder folder;
};

/// One project, a tenth of its lines changed.
const Release &largeProject()
{
    static const Release release([] {
        CatalogShape shape;
        shape.lines = Lines;
        shape.changed = 0.1;
        return shape;
    }());
    return release;
}

/// 4560 changed lines in many projects.
const Release &manyOpenLines()
{
    static const Release release([] {
        CatalogShape shape;
        shape.projects = 40;
        shape.lines = 1140;
        shape.changed = 0.1;
        return shape;
    }());
    return release;
}

const Release &millionLines()
{
    static const Release release(bigRelease(1000000));
    return release;
}

const Release &manyProjects()
{
    static const Release release([] {
        ReleaseMappingC all = bigRelease(10);
        const PrjMappingC first = all.mappingAt(0);
        for (int i = 0; i < 100000; ++i) {
            PrjMappingC mapping = first;
            mapping.setSourcePath(
                QStringLiteral("bench/d%1/din%2_%3.prj").arg(i % 97).arg(900 + i % 4200).arg(i));
            all.addMapping(mapping);
        }
        return all;
    }());
    return release;
}

/// In one folder.
const Release &flatFolder()
{
    static const Release release([] {
        ReleaseMappingC all = bigRelease(10);
        const PrjMappingC first = all.mappingAt(0);
        for (int i = 0; i < 100000; ++i) {
            PrjMappingC mapping = first;
            mapping.setSourcePath(QStringLiteral("bench/flat/din%1.prj").arg(i));
            all.addMapping(mapping);
        }
        return all;
    }());
    return release;
}

/// The workbench as its user has it, with settings of its own; all that is decided is lost.
struct Workbench
{
    /// With the mapping open, at the first open line.
    static std::unique_ptr<Workbench> opened(const Release &release = largeProject())
    {
        auto workbench = std::make_unique<Workbench>(release);
        LoopTurns unmeasured;
        unmeasured.run([&] { workbench->open(); });
        unmeasured.run([&] { workbench->action("goNext")->trigger(); });
        return workbench;
    }
    explicit Workbench(const Release &given)
        : release(given)
        , application(PRefPtr<PConfig>(new PConfigInst(folder.filePath("windows.cfg"), false)))
        , settings(folder.filePath("workbench.ini"))
        , window(std::make_unique<MainWindow>(&settings, thePlugin))
    {
        window->resize(1500, 900);
        window->show();
        LoopTurns unmeasured;
        unmeasured.run([] {});
    }
    /// At the place of the last session.
    void open()
    {
        settings.setPlace(release.mapping(), {QStringLiteral("2023-01-31"), project, 1});
        window->desk()->open(
            {.file = release.mapping(), .roots = {release.source(), release.target()}});
    }
    [[nodiscard]] QAction *action(const char *name) const
    {
        auto *const found = window->findChild<QAction *>(QLatin1String(name));
        if (!found)
            throw std::runtime_error(name);
        return found;
    }
    [[nodiscard]] bool hasPatterns() const { return window->review()->work()->hasPatterns(); }

    const Release &release;
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
    for ([[maybe_unused]] const auto _ : state)
        turns.run(work);
    report(state, turns);
}

/// In a workbench of its own each time.
void measureAnew(benchmark::State &state, const std::function<std::unique_ptr<Workbench>()> &make,
                 const std::function<void(Workbench &)> &work,
                 const std::function<bool(Workbench &)> &isDone = {})
{
    double wall = 0;
    double cpu = 0;
    for ([[maybe_unused]] const auto _ : state) {
        const std::unique_ptr<Workbench> workbench = make();
        LoopTurns turns;
        turns.run([&] { work(*workbench); }, [&] { return !isDone || isDone(*workbench); });
        wall = std::max(wall, turns.wall());
        cpu = std::max(cpu, turns.cpu());
    }
    state.counters["ms_turn"] = wall;
    state.counters["cpu_ms_turn"] = cpu;
}

void openMapping(benchmark::State &state)
{
    measureAnew(
        state, [] { return std::make_unique<Workbench>(largeProject()); },
        [](Workbench &workbench) { workbench.open(); });
}

void openManyProjects(benchmark::State &state)
{
    measureAnew(
        state, [] { return std::make_unique<Workbench>(manyProjects()); },
        [](Workbench &workbench) { workbench.open(); });
}

void expand(const Workbench &workbench)
{
    auto *const tree = workbench.window->findChild<QTreeView *>("treeView");
    tree->expand(tree->model()->index(0, 0, tree->model()->index(0, 0)));
}

/// 100 000 rows.
void expandFlatFolder(benchmark::State &state)
{
    measureAnew(
        state, [] { return Workbench::opened(flatFolder()); },
        [](Workbench &workbench) { expand(workbench); });
}

/// To the last of 100 000 rows.
void jump(const Workbench &workbench)
{
    (void)workbench.window->editor()->showProject(QStringLiteral("bench/flat/din99999.prj"));
}

void jumpInFlatFolder(benchmark::State &state)
{
    measureAnew(
        state, [] { return Workbench::opened(flatFolder()); },
        [](Workbench &workbench) { jump(workbench); });
}

/// Half of its projects are left, and none of them was seen yet.
void expandFilteredFolder(benchmark::State &state)
{
    measureAnew(
        state,
        [] {
            auto workbench = Workbench::opened(flatFolder());
            LoopTurns unmeasured;
            unmeasured.run([&] {
                workbench->window->editor()->editor()->setProjectFilter(
                    [](const PrjMappingC &mapping) {
                        const QString path = mapping.getSourcePath();
                        return path.at(path.size() - 5).digitValue() % 2 != 0;
                    });
            });
            return workbench;
        },
        [](Workbench &workbench) { expand(workbench); });
}

/// Only one of the 100 000 projects is left, the last one in the tree.
void filterProjects(benchmark::State &state, const Release &release)
{
    measureAnew(
        state, [&] { return Workbench::opened(release); },
        [](Workbench &workbench) {
            const ReleaseMappingC all = workbench.window->desk()->document()->release();
            const QString last = all.mappingAt(all.countMappings() - 1).getSourcePath();
            workbench.window->editor()->editor()->setProjectFilter(
                [last](const PrjMappingC &mapping) { return mapping.getSourcePath() == last; });
        });
}

/// By one that has another date.
void replaceDate(Workbench &workbench)
{
    MappingDocument *const document = workbench.window->desk()->document();
    ReleaseMappingC changed = document->release();
    changed.setTargetDate(QStringLiteral("2031-01-01"));
    document->replaceRelease(changed, QStringLiteral("..."));
}

void replaceRelease(benchmark::State &state)
{
    measureAnew(
        state, [] { return Workbench::opened(manyProjects()); }, replaceDate);
}

/// With a large folder open and its last project selected.
void replaceFlatFolder(benchmark::State &state)
{
    measureAnew(
        state,
        [] {
            auto workbench = Workbench::opened(flatFolder());
            LoopTurns unmeasured;
            unmeasured.run([&] { jump(*workbench); });
            return workbench;
        },
        replaceDate);
}

/// Each of its projects has one line more confirmed.
ReleaseMappingC confirmedEverywhere(const ReleaseMappingC &release)
{
    ReleaseMappingC changed = release.head();
    for (int i = 0; i < release.countMappings(); ++i) {
        PrjMappingC mapping = release.mappingAt(i);
        PrjMappingTargetC target = mapping.findTarget(0);
        target.addLineId(1, 1, PRJMAPPING::Verified, QString());
        mapping.updateTarget(0, target);
        changed.appendMapping(mapping);
    }
    return changed;
}

void replaceEveryProject(benchmark::State &state, bool undone)
{
    ReleaseMappingC changed;
    const auto replace = [&changed](Workbench &workbench) {
        workbench.window->desk()->document()->replaceRelease(changed, QStringLiteral("..."));
    };
    measureAnew(
        state,
        [&] {
            auto workbench = Workbench::opened(manyProjects());
            changed = confirmedEverywhere(workbench->window->desk()->document()->release());
            LoopTurns unmeasured;
            if (undone)
                unmeasured.run([&] { replace(*workbench); });
            return workbench;
        },
        [&](Workbench &workbench) {
            if (undone)
                workbench.action("editUndo")->trigger();
            else
                replace(workbench);
        });
}

void closeManyProjects(benchmark::State &state)
{
    measureAnew(
        state, [] { return Workbench::opened(manyProjects()); },
        [](Workbench &workbench) { workbench.action("fileClose")->trigger(); });
}

void closeMapping(benchmark::State &state)
{
    measureAnew(
        state, [] { return Workbench::opened(); },
        [](Workbench &workbench) { workbench.action("fileClose")->trigger(); });
}

/// All 1 000 000 lines in the file, after one was confirmed.
void saveMapping(benchmark::State &state)
{
    measureAnew(
        state,
        [] {
            auto workbench = Workbench::opened(millionLines());
            LoopTurns unmeasured;
            unmeasured.run(
                [&] { workbench->window->findChild<QPushButton *>("btnMapLine")->click(); });
            return workbench;
        },
        [](Workbench &workbench) { workbench.action("fileSave")->trigger(); });
}

QDialog &locatorOf(const Workbench &workbench)
{
    auto *const dialog = workbench.window->findChild<QDialog *>("LocatorDialog");
    if (!dialog)
        throw std::runtime_error("no locator");
    return *dialog;
}

void openLocator(benchmark::State &state)
{
    measureAnew(
        state, [] { return Workbench::opened(); },
        [](Workbench &workbench) { workbench.action("goLocate")->trigger(); });
}

/// One key after the other.
void typeInLocator(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened(manyProjects());
    LoopTurns unmeasured;
    unmeasured.run([&] { workbench->action("goLocate")->trigger(); });
    auto *const input = locatorOf(*workbench).findChild<QLineEdit *>("locatorInput");
    const QString words = QStringLiteral("din 93 d5 1");
    measureTurns(state, [&] {
        if (input->text() == words)
            input->clear();
        else
            input->insert(words.mid(input->text().size(), 1));
    });
    locatorOf(*workbench).close();
}

void showDifferences(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    measureTurns(state, [&] { workbench->action("reviewDifferences")->trigger(); });
}

/// With the panel of differences, which goes along.
void nextWithDifferences(benchmark::State &state)
{
    const std::unique_ptr<Workbench> workbench = Workbench::opened();
    LoopTurns unmeasured;
    unmeasured.run([&] { workbench->action("reviewDifferences")->trigger(); });
    measureTurns(state, [&] { workbench->action("goNext")->trigger(); });
}

void readPatternsOfManyProjects(benchmark::State &state)
{
    measureAnew(
        state, [] { return Workbench::opened(manyOpenLines()); },
        [](Workbench &workbench) { workbench.action("reviewPatterns")->trigger(); },
        [](Workbench &workbench) { return workbench.hasPatterns(); });
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
    for ([[maybe_unused]] const auto _ : state)
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
    velkbench::addTurns("readPatternsOfManyProjects", velkbench::readPatternsOfManyProjects, 2);
    velkbench::addTurns("showDifferences", velkbench::showDifferences, 4);
    velkbench::addTurns("nextWithDifferences", velkbench::nextWithDifferences, 20);
    velkbench::addTurns("openLocator", velkbench::openLocator, 3);
    velkbench::addTurns("typeInLocator", velkbench::typeInLocator, 24);
    velkbench::addTurns("saveMapping", velkbench::saveMapping, 2);
    velkbench::addTurns("closeMapping", velkbench::closeMapping, 3);
    velkbench::addTurns("openManyProjects", velkbench::openManyProjects, 2);
    velkbench::addTurns("expandFlatFolder", velkbench::expandFlatFolder, 2);
    velkbench::addTurns("jumpInFlatFolder", velkbench::jumpInFlatFolder, 2);
    velkbench::addTurns("expandFilteredFolder", velkbench::expandFilteredFolder, 2);
    velkbench::addTurns(
        "filterProjects",
        [](benchmark::State &state) {
            velkbench::filterProjects(state, velkbench::manyProjects());
        },
        2);
    velkbench::addTurns(
        "filterFlatFolder",
        [](benchmark::State &state) { velkbench::filterProjects(state, velkbench::flatFolder()); },
        2);
    velkbench::addTurns("replaceRelease", velkbench::replaceRelease, 2);
    velkbench::addTurns("replaceFlatFolder", velkbench::replaceFlatFolder, 2);
    velkbench::addTurns(
        "replaceEveryProject",
        [](benchmark::State &state) { velkbench::replaceEveryProject(state, false); }, 2);
    velkbench::addTurns(
        "undoEveryProject",
        [](benchmark::State &state) { velkbench::replaceEveryProject(state, true); }, 2);
    velkbench::addTurns("closeManyProjects", velkbench::closeManyProjects, 2);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
}
