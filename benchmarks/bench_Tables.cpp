// The editor's tables until they are up to date again: one confirmation by key, many at once, and a
// project with a very large table that is opened, scrolled and filtered. Runs without a display.

#include "CatalogGenerator.h"

#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/table/TableMappingWidget.h>

#include <geomcore/project/PrjClass.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcoregui/table/VkTableModel.h>
#include <geomcoregui/table/VkTableView.h>

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>

namespace velkbench {

namespace {

constexpr int MappedLines = 100000;
constexpr int LargeLines = 1000000;

/// A generated project in both releases; the new one is where target projects are looked for.
class Catalog
{
public:
    explicit Catalog(int lines)
    {
        CatalogShape shape;
        shape.lines = lines;
        m_project = CatalogGenerator(shape).write(m_folder.path()).front().path;
        std::filesystem::create_directory_symlink(m_folder.path() / "new",
                                                  m_folder.path() / "23d-libs");
    }
    /// Its new release is the local catalog of the process.
    void makeCurrent() const
    {
        qputenv("TORMEVA_DATA", QByteArray::fromStdString(m_folder.path().string()));
    }
    [[nodiscard]] QString project() const { return QString::fromStdString(m_project); }
    [[nodiscard]] VKTab::ContentRef oldTable() const
    {
        VKTab::ContentRef table = VKTab::Content();
        (void)VKTab::readProjectTable(
            QString::fromStdString((m_folder.path() / "old" / m_project).string()), table);
        return table;
    }

private:
    TemporaryFolder m_folder;
    std::string m_project;
};

/// How the lines of a mapping stand.
enum Lines { AllAssigned, AllToCheck, HalfToCheck };

PrjMappingC mappingOf(const QString &project, int lines, Lines kind)
{
    PrjMappingTargetC target;
    target.setValid(true);
    target.setTargetPath(project);
    for (int line = 1; line <= lines; ++line) {
        const bool isOpen = kind == AllToCheck || (kind == HalfToCheck && line % 2 == 0);
        target.addLineId(line, line, isOpen ? PRJMAPPING::ToCheck : PRJMAPPING::Mapped, QString());
    }
    PrjMappingC mapping;
    mapping.setSourcePath(project);
    mapping.setSourceVersion("v1");
    mapping.addTarget(target);
    return mapping;
}

/// The editor's two tables with a handler behind them, on screen; the table is read, but not yet
/// shown.
class Editor
{
public:
    Editor(const Catalog &catalog, int lines, Lines kind)
        : m_table(catalog.oldTable())
        , m_mapping(mappingOf(catalog.project(), lines, kind))
    {
        ReleaseMappingC release;
        release.addMapping(m_mapping);
        m_handler = std::make_unique<ReleaseMappingHandler>(release, "bench", QString());
        QObject::connect(&m_widget, &TableMappingWidget::projectMappingUpdated, &m_widget,
                         [this](const PrjMappingC &changed) { m_handler->updateMapping(changed); });
        m_widget.resize(1400, 900);
        m_widget.show();
        QCoreApplication::processEvents();
    }
    void open()
    {
        m_widget.loadSourceTable(m_table, m_mapping, m_handler->getCatalogMapping());
        paint();
    }
    void paint()
    {
        source()->grid()->viewport()->repaint();
        QCoreApplication::processEvents();
    }
    void select(int line)
    {
        m_table.setSelection(line, true);
        QCoreApplication::processEvents();
    }
    /// Every line of that step, beginning with the first one; lines that stand together as one
    /// range, as the user selects them.
    void selectLines(int lines, int step)
    {
        const VkTableModel *const model = source()->model();
        const int last = model->columnCount() - 1;
        QItemSelection selection;
        if (step == 1)
            selection.select(model->index(0, 0), model->index(lines - 1, last));
        for (int i = 0; step > 1 && i < lines; ++i)
            selection.select(model->index(i * step, 0), model->index(i * step, last));
        source()->grid()->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
        QCoreApplication::processEvents();
    }
    void tick(const char *box)
    {
        m_widget.findChild<QAbstractButton *>(box)->click();
        paint();
    }
    void confirm()
    {
        m_widget.findChild<QPushButton *>("btnMapLine")->click();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] VkTableView *source() const
    {
        return m_widget.findChild<VkTableView *>("sourceView");
    }
    [[nodiscard]] int verified() const { return m_handler->countVerified(); }

private:
    VKTab::ContentRef m_table;
    const PrjMappingC m_mapping;
    std::unique_ptr<ReleaseMappingHandler> m_handler;
    TableMappingWidget m_widget{nullptr};
};

/// A project with 100 000 lines, all with their assignment, that is open.
class OpenEditor : public Editor
{
public:
    OpenEditor()
        : Editor(catalog(), MappedLines, AllAssigned)
    {
        open();
    }

private:
    static const Catalog &catalog()
    {
        static const Catalog catalog(MappedLines);
        catalog.makeCurrent();
        return catalog;
    }
};

/// Goal: 16 ms. With the argument 1 the target table shows only lines that nothing is assigned to.
void confirmOne(benchmark::State &state)
{
    OpenEditor editor;
    if (state.range(0) == 1)
        editor.tick("chkFilterTarget");
    int line = 0;
    for ([[maybe_unused]] const auto _ : state) {
        state.PauseTiming();
        line = (line + 7919) % MappedLines;
        editor.select(line + 1);
        state.ResumeTiming();
        editor.confirm();
    }
    state.counters["verified"] = editor.verified();
}
BENCHMARK(confirmOne)->ArgName("filtered")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// Selecting a line until its target line is shown. The argument as above.
void selectOne(benchmark::State &state)
{
    OpenEditor editor;
    if (state.range(0) == 1)
        editor.tick("chkFilterTarget");
    int line = 0;
    for ([[maybe_unused]] const auto _ : state) {
        line = (line + 7919) % MappedLines;
        editor.select(line + 1);
    }
}
BENCHMARK(selectOne)->ArgName("filtered")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// Goal: 500 ms for 10 000 lines; 2000 lines that stand apart in twice the time of as many that
/// stand together. The second argument is the step from line to line.
void confirmMany(benchmark::State &state)
{
    OpenEditor editor;
    editor.selectLines(int(state.range(0)), int(state.range(1)));
    for ([[maybe_unused]] const auto _ : state)
        editor.confirm();
    state.counters["verified"] = editor.verified();
}
BENCHMARK(confirmMany)
    ->ArgNames({"lines", "step"})
    ->Args({10000, 1})
    ->Args({2000, 1})
    ->Args({2000, 7})
    ->Unit(benchmark::kMillisecond)
    ->Iterations(1);

/// The catalog of a million lines, written once.
const Catalog &largeCatalog()
{
    static const Catalog catalog(LargeLines);
    catalog.makeCurrent();
    return catalog;
}

/// Goal: 300 ms after reading. The argument says how the lines stand.
void openEditor(benchmark::State &state)
{
    for ([[maybe_unused]] const auto _ : state) {
        state.PauseTiming();
        {
            Editor editor(largeCatalog(), LargeLines, Lines(state.range(0)));
            state.ResumeTiming();
            editor.open();
            state.PauseTiming();
        }
        state.ResumeTiming();
    }
}
BENCHMARK(openEditor)
    ->ArgName("kind")
    ->Arg(AllAssigned)
    ->Arg(AllToCheck)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(3);

/// Goal: 100 ms for "only not assigned", until the lines are painted. The argument as above.
void showUnassigned(benchmark::State &state)
{
    Editor editor(largeCatalog(), LargeLines, Lines(state.range(0)));
    editor.open();
    for ([[maybe_unused]] const auto _ : state) {
        editor.tick("chkFilterSource");
        state.PauseTiming();
        state.counters["rows"] = editor.source()->model()->rowCount();
        editor.tick("chkFilterSource");
        state.ResumeTiming();
    }
}
BENCHMARK(showUnassigned)
    ->ArgName("kind")
    ->Arg(AllAssigned)
    ->Arg(AllToCheck)
    ->Arg(HalfToCheck)
    ->Unit(benchmark::kMillisecond)
    ->Iterations(5);

/// The same for target lines that no source line went to.
void showUnused(benchmark::State &state)
{
    Editor editor(largeCatalog(), LargeLines, AllAssigned);
    editor.open();
    editor.select(1);
    for ([[maybe_unused]] const auto _ : state) {
        editor.tick("chkFilterTarget");
        state.PauseTiming();
        editor.tick("chkFilterTarget");
        state.ResumeTiming();
    }
}
BENCHMARK(showUnused)->Unit(benchmark::kMillisecond)->Iterations(5);

/// Goal: 16 ms a frame.
void scrollView(benchmark::State &state)
{
    Editor editor(largeCatalog(), LargeLines, AllAssigned);
    editor.open();
    const VkTableView &view = *editor.source();
    QScrollBar *const bar = view.grid()->verticalScrollBar();
    int position = 0;
    for ([[maybe_unused]] const auto _ : state) {
        position = int((qint64(position) + 7919 * 20) % bar->maximum());
        bar->setValue(position);
        view.grid()->viewport()->repaint();
    }
    state.counters["rows"] = view.model()->rowCount();
}
BENCHMARK(scrollView)->Unit(benchmark::kMillisecond);

/// Goal: 100 ms a filter, typed one letter after the other, when the column is ready for it, as it
/// is soon after the cursor came into its field.
void filterView(benchmark::State &state)
{
    Editor editor(largeCatalog(), LargeLines, AllAssigned);
    editor.open();
    const VkTableView &view = *editor.source();
    VkTableModel *const model = view.model();
    const int column = model->statusColumnCount() + int(state.range(0));
    const VKTab::VarId variable = model->variable(column).getVarId();
    model->setQuickFilter(variable, "x");
    model->clearQuickFilters();
    int step = 0;
    for ([[maybe_unused]] const auto _ : state) {
        model->setQuickFilter(variable, QStringLiteral("12345").left(++step % 6));
        view.grid()->viewport()->repaint();
    }
    state.counters["rows"] = model->rowCount();
}
BENCHMARK(filterView)->ArgName("column")->Arg(0)->Arg(1)->Arg(4)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace velkbench

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
