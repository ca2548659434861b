// The editor's tables until they are up to date again: one confirmation by key, many at once, and a
// view of a very large table that opens, scrolls and filters. Runs without a display.

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
constexpr int ManyLines = 10000;
constexpr int ViewedLines = 1000000;

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

/// The tables of a project whose lines all have their assignment, with a handler behind them.
class Editor
{
public:
    Editor()
        : m_catalog(MappedLines)
        , m_table(m_catalog.oldTable())
    {
        PrjMappingTargetC target;
        target.setValid(true);
        target.setTargetPath(m_catalog.project());
        for (int line = 1; line <= MappedLines; ++line)
            target.addLineId(line, line, PRJMAPPING::Mapped, QString());
        PrjMappingC mapping;
        mapping.setSourcePath(m_catalog.project());
        mapping.setSourceVersion("v1");
        mapping.addTarget(target);
        ReleaseMappingC release;
        release.addMapping(mapping);
        m_handler = std::make_unique<ReleaseMappingHandler>(release, "bench", QString());
        QObject::connect(&m_widget, &TableMappingWidget::projectMappingUpdated, &m_widget,
                         [this](const PrjMappingC &changed) { m_handler->updateMapping(changed); });
        m_widget.resize(1400, 900);
        m_widget.show();
        m_widget.loadSourceTable(m_table, mapping, m_handler->getCatalogMapping());
        QCoreApplication::processEvents();
    }
    void select(int line)
    {
        m_table.setSelection(line, true);
        QCoreApplication::processEvents();
    }
    void selectFirst(int lines)
    {
        auto *const view = m_widget.findChild<VkTableView *>("sourceView");
        const QModelIndex last = view->model()->index(lines - 1, view->model()->columnCount() - 1);
        view->grid()->selectionModel()->select({view->model()->index(0, 0), last},
                                               QItemSelectionModel::ClearAndSelect);
        QCoreApplication::processEvents();
    }
    void tick(const char *box) { m_widget.findChild<QAbstractButton *>(box)->click(); }
    void confirm()
    {
        m_widget.findChild<QPushButton *>("btnMapLine")->click();
        QCoreApplication::processEvents();
    }
    [[nodiscard]] int verified() const { return m_handler->countVerified(); }

private:
    const Catalog m_catalog;
    VKTab::ContentRef m_table;
    std::unique_ptr<ReleaseMappingHandler> m_handler;
    TableMappingWidget m_widget{nullptr};
};

/// Goal: 16 ms. With the argument 1 the target table shows only lines that nothing is assigned to.
void confirmOne(benchmark::State &state)
{
    Editor editor;
    if (state.range(0) == 1)
        editor.tick("chkFilterTarget");
    int line = 0;
    for (auto _ : state) {
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
    Editor editor;
    if (state.range(0) == 1)
        editor.tick("chkFilterTarget");
    int line = 0;
    for (auto _ : state) {
        line = (line + 7919) % MappedLines;
        editor.select(line + 1);
    }
}
BENCHMARK(selectOne)->ArgName("filtered")->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

/// Goal: 500 ms for 10 000 lines.
void confirmMany(benchmark::State &state)
{
    Editor editor;
    editor.selectFirst(ManyLines);
    for (auto _ : state)
        editor.confirm();
    state.counters["verified"] = editor.verified();
}
BENCHMARK(confirmMany)->Unit(benchmark::kMillisecond)->Iterations(1);

/// A view of a million lines; the catalog is written once.
class Viewed
{
public:
    static const Catalog &catalog()
    {
        static const Catalog catalog(ViewedLines);
        return catalog;
    }
    Viewed()
        : m_table(catalog().oldTable())
    {
        m_view.resize(1400, 900);
        m_view.show();
        QCoreApplication::processEvents();
    }
    void open()
    {
        m_view.setTable(m_table);
        m_view.grid()->viewport()->repaint();
        QCoreApplication::processEvents();
    }
    void close()
    {
        m_view.setTable(VKTab::ContentRef());
        QCoreApplication::processEvents();
    }
    VkTableView &view() { return m_view; }

private:
    VKTab::ContentRef m_table;
    VkTableView m_view;
};

/// Goal: 1 s after reading.
void openView(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Viewed viewed; // a table that nobody has asked for anything yet
        state.ResumeTiming();
        viewed.open();
        state.PauseTiming();
        viewed.close();
        state.ResumeTiming();
    }
}
BENCHMARK(openView)->Unit(benchmark::kMillisecond)->Iterations(3);

/// Goal: 16 ms a frame.
void scrollView(benchmark::State &state)
{
    Viewed viewed;
    viewed.open();
    QScrollBar *const bar = viewed.view().grid()->verticalScrollBar();
    int position = 0;
    for (auto _ : state) {
        position = int((qint64(position) + 7919 * 20) % bar->maximum());
        bar->setValue(position);
        viewed.view().grid()->viewport()->repaint();
    }
    state.counters["rows"] = viewed.view().model()->rowCount();
}
BENCHMARK(scrollView)->Unit(benchmark::kMillisecond);

/// Goal: 100 ms a filter, typed one letter after the other, when the column is ready for it, as it
/// is soon after the cursor came into its field.
void filterView(benchmark::State &state)
{
    Viewed viewed;
    viewed.open();
    VkTableModel *const model = viewed.view().model();
    const VKTab::VarId variable = model->variable(int(state.range(0))).getVarId();
    model->setQuickFilter(variable, "x");
    model->clearQuickFilters();
    int step = 0;
    for (auto _ : state) {
        model->setQuickFilter(variable, QStringLiteral("12345").left(++step % 6));
        viewed.view().grid()->viewport()->repaint();
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
