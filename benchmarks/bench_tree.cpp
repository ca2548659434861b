// The catalog's tree with very many projects: from the release in memory to the first picture, and
// from one changed record or filter to the next picture. Beside the first, a QStandardItemModel of
// the same names, built and painted.

#include "Comparison.h"

#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/view/CatalogFilterModel.h>
#include <mapping/view/CatalogStructureDelegate.h>
#include <mapping/view/CatalogStructureModel.h>

#include <QApplication>
#include <QStandardItemModel>
#include <QTreeView>

namespace velkbench {

namespace {

constexpr int Projects = 100000;
constexpr int ChangesPerRound = 100;

QString pathOf(int project, int directories)
{
    const QString name = QStringLiteral("part_%1.prj").arg(project, 6, 10, QLatin1Char('0'));
    if (directories == 0)
        return name;
    const int directory = project / (Projects / directories);
    return QStringLiteral("catalog_%1/group_%2/%3")
        .arg(directory, 4, 10, QLatin1Char('0'))
        .arg(directory % 7)
        .arg(name);
}

PrjMappingC mappingOf(const QString &path, PRJMAPPING::CheckState state)
{
    PrjMappingTargetC target;
    target.setValid(true);
    target.setTargetPath(path);
    target.setTargetVersion(QStringLiteral("v250630100000"));
    target.addLineId(1, 1, state, QString());
    PrjMappingC mapping;
    mapping.setSourcePath(path);
    mapping.setSourceVersion(QStringLiteral("v230131100000"));
    mapping.addTarget(target);
    mapping.updateMappingState();
    return mapping;
}

ReleaseMappingC manyProjects(int directories)
{
    ReleaseMappingC release;
    release.setSourceDate(QStringLiteral("2023-01-31"));
    for (int project = 0; project < Projects; ++project)
        release.addMapping(
            mappingOf(pathOf(project, directories), PRJMAPPING::CheckState(project % 3)));
    return release;
}

void dress(QTreeView &view, QAbstractItemModel &model)
{
    view.setHeaderHidden(true);
    view.setModel(&model);
    view.resize(400, 900);
}

void paint(QTreeView &view, QImage &image)
{
    view.render(&image);
    benchmark::DoNotOptimize(image.constBits());
}

/// The tree as the mapping editor puts it together.
struct Tree
{
    explicit Tree(const CatalogMappingHandlerI &handler)
        : model(handler.getRootStructureNode())
    {
        filter.setDynamicSortFilter(false);
        filter.setSourceModel(&model);
        dress(view, filter);
        view.setItemDelegate(new CatalogStructureDelegate(&view));
    }
    CatalogStructureModel model;
    CatalogFilterModel filter;
    QTreeView view;
};

void paintStandardItems(const ReleaseMappingC &release, QImage &image)
{
    QStandardItemModel model;
    QHash<QString, QStandardItem *> directories;
    for (int i = 0; i < release.countMappings(); ++i) {
        const QString path = release.mappingAt(i).getSourcePath();
        const QString directory = path.section(u'/', 0, -2);
        QStandardItem *&parent = directories[directory];
        if (!parent) {
            parent = directory.isEmpty() ? model.invisibleRootItem() : new QStandardItem(directory);
            if (!directory.isEmpty())
                model.appendRow(parent);
        }
        parent->appendRow(new QStandardItem(path.section(u'/', -1)));
    }
    QTreeView view;
    dress(view, model);
    paint(view, image);
}

void firstPaint(benchmark::State &state)
{
    const ReleaseMappingC release = manyProjects(int(state.range(0)));
    QImage image(400, 900, QImage::Format_RGB32);
    std::unique_ptr<ReleaseMappingHandler> handler;
    std::unique_ptr<Tree> tree;
    Comparison comparison;
    comparison.addReference("StandardItems", [&] { paintStandardItems(release, image); });
    comparison.run(
        state,
        [&] {
            tree = std::make_unique<Tree>(*handler);
            paint(tree->view, image);
        },
        [&] {
            tree.reset();
            handler = std::make_unique<ReleaseMappingHandler>(release, QStringLiteral("bench"),
                                                              QString());
        });
}

void changeAndPaint(benchmark::State &state)
{
    const int directories = int(state.range(0));
    ReleaseMappingHandler handler(manyProjects(directories), QStringLiteral("bench"), QString());
    Tree tree(handler);
    tree.view.expand(tree.filter.index(0, 0));
    QImage image(400, 900, QImage::Format_RGB32);
    paint(tree.view, image);
    int project = 0;
    Comparison comparison;
    comparison.addReference("paint", [&] {
        for (int i = 0; i < ChangesPerRound; ++i)
            paint(tree.view, image);
    });
    comparison.run(state, [&] {
        for (int i = 0; i < ChangesPerRound; ++i) {
            project = (project + 7919) % Projects;
            handler.updateMapping(
                mappingOf(pathOf(project, directories), PRJMAPPING::CheckState((project + i) % 3)));
            tree.model.invalidateNodes();
            paint(tree.view, image);
        }
    });
    state.counters["ms_change"] = comparison.product().wall * 1e3 / ChangesPerRound;
}

/// The filter switched on and painted, and off again and painted.
void toggleFilter(benchmark::State &state)
{
    const ReleaseMappingHandler handler(manyProjects(int(state.range(0))), QStringLiteral("bench"),
                                        QString());
    Tree tree(handler);
    tree.view.expand(tree.filter.index(0, 0));
    QImage image(400, 900, QImage::Format_RGB32);
    paint(tree.view, image);
    Comparison comparison;
    comparison.run(state, [&] {
        for (const bool on : {true, false}) {
            tree.filter.filterToCheck = on;
            tree.filter.invalidate();
            tree.filter.finish();
            paint(tree.view, image);
        }
    });
}

BENCHMARK(firstPaint)
    ->ArgName("directories")
    ->Arg(0)
    ->Arg(100)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);
BENCHMARK(toggleFilter)
    ->ArgName("directories")
    ->Arg(0)
    ->Arg(100)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond)
    ->UseManualTime()
    ->Iterations(3);
BENCHMARK(changeAndPaint)
    ->ArgName("directories")
    ->Arg(0)
    ->Arg(100)
    ->Arg(10000)
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
