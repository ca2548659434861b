// Directories with very many projects: all are rows, and a row costs nothing until it is seen.
#include "CatalogNodes.h"

#include <mapping/data/LookUpTreeI.h>
#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/view/CatalogFilterModel.h>
#include <mapping/view/CatalogStructureModel.h>
#include <mapping/view/TreePath.h>

#include <QAbstractItemModelTester>
#include <QScrollBar>
#include <QTest>
#include <QTreeView>

namespace {

constexpr int Projects = 5000;

QString nameOf(int project)
{
    return QStringLiteral("p%1.prj").arg(project, 4, 10, QLatin1Char('0'));
}

/// Projects in "cat/large", and one in "cat".
ReleaseMappingC largeRelease()
{
    ReleaseMappingC release;
    PrjMappingC mapping;
    mapping.setSourceVersion(QStringLiteral("v260131120000"));
    for (int project = 0; project < Projects; ++project) {
        mapping.setSourcePath("cat/large/" + nameOf(project));
        release.addMapping(mapping);
    }
    mapping.setSourcePath(QStringLiteral("cat/other.prj"));
    release.addMapping(mapping);
    return release;
}

/// The tree as the mapping editor puts it together.
struct Tree
{
    Tree()
        : handler(largeRelease(), QStringLiteral("root"), QString())
        , model(handler.getRootStructureNode())
    {
        filter.setDynamicSortFilter(false);
        filter.setSourceModel(&model);
        view.setHeaderHidden(true);
        view.setUniformRowHeights(true);
        view.setModel(&filter);
        view.resize(300, 400);
        view.show();
        (void)QTest::qWaitForWindowExposed(&view);
        view.expand(catalog());
    }
    [[nodiscard]] QModelIndex catalog() const { return filter.index(0, 0); }
    [[nodiscard]] QModelIndex large() const { return filter.index(0, 0, catalog()); }
    void show(const QString &path)
    {
        filter.hostFilter = [path](const PrjMappingC &mapping) {
            return mapping.getSourcePath() == path;
        };
        filter.invalidate();
    }

    ReleaseMappingHandler handler;
    CatalogStructureModel model;
    CatalogFilterModel filter;
    QTreeView view;
};

/// Knows where its last project is.
class KnowingRoot : public TestNode, public LookUpTreeI
{
public:
    explicit KnowingRoot(const Ptr &directory)
        : TestNode(0, QStringLiteral("root"))
    {
        children = {directory};
    }
    QList<QList<int>> rowsTo(const QString &) const override
    {
        return {{0, int(children.first()->children.size()) - 1}};
    }
};

} // namespace

class tst_LargeDirectories : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areShownAsAWhole();
    void readWhatIsInSight();
    void modelsStaySound();
    void projectsAreFound();
    void aLookUpReadsNoOthers();
    void areFilteredBeforeTheyAreShown();
    void areDecidedOnOnce();
};

void tst_LargeDirectories::areShownAsAWhole()
{
    Tree tree;
    tree.view.setCurrentIndex(tree.large());
    QTest::keyClick(&tree.view, Qt::Key_Right);
    QVERIFY(tree.view.isExpanded(tree.large()));
    QCOMPARE(tree.filter.rowCount(tree.large()), Projects);
    const QScrollBar *const bar = tree.view.verticalScrollBar();
    QTRY_COMPARE(bar->maximum() + bar->pageStep(), Projects + 3); // with the directories and a file
    QTest::keyClick(&tree.view, Qt::Key_End);
    QCOMPARE(tree.view.currentIndex().data().toString(), QString("other.prj"));
    QTest::keyClick(&tree.view, Qt::Key_Up);
    QCOMPARE(tree.view.currentIndex().data().toString(), nameOf(Projects - 1));
    QCOMPARE(bar->value(), bar->maximum());
}

void tst_LargeDirectories::readWhatIsInSight()
{
    QList<TestNode::Ptr> projects;
    for (int project = 0; project < Projects; ++project)
        projects += TestNode::project(nameOf(project));
    CatalogStructureModel model(
        TestNode::root({FilledTestNode::directory(QStringLiteral("large"), projects)}));
    CatalogFilterModel filter;
    filter.setDynamicSortFilter(false);
    filter.setSourceModel(&model);
    QTreeView view;
    view.setUniformRowHeights(true);
    view.setModel(&filter);
    view.resize(300, 400);
    view.show();
    QVERIFY(QTest::qWaitForWindowExposed(&view));
    TestNode::namesRead = 0;
    TestNode::typesRead = 0;
    view.setCurrentIndex(filter.index(0, 0));
    QTest::keyClick(&view, Qt::Key_Right);
    QTest::keyClick(&view, Qt::Key_End);
    QTest::qWait(0);
    QCOMPARE(view.currentIndex().data().toString(), nameOf(Projects - 1));
    QVERIFY2(TestNode::namesRead > 0 && TestNode::namesRead < Projects / 5,
             qPrintable(QString::number(TestNode::namesRead)));
    // Once to know which rows may have others below.
    QVERIFY2(TestNode::typesRead < Projects * 6 / 5,
             qPrintable(QString::number(TestNode::typesRead)));
    for (const TestNode::Ptr &project : std::as_const(projects))
        QCOMPARE(project->asked, 0);
}

void tst_LargeDirectories::modelsStaySound()
{
    Tree tree;
    tree.view.expand(tree.large());
    const auto mode = QAbstractItemModelTester::FailureReportingMode::QtTest;
    const QAbstractItemModelTester source(&tree.model, mode);
    const QAbstractItemModelTester filtered(&tree.filter, mode);
    QCOMPARE(tree.filter.rowCount(tree.large()), Projects);
    tree.show("cat/large/" + nameOf(Projects - 2));
    tree.filter.finish();
    QCOMPARE(tree.filter.rowCount(tree.large()), 1);
    tree.filter.hostFilter = {};
    tree.filter.invalidate();
    QCOMPARE(tree.filter.rowCount(tree.large()), Projects);
}

void tst_LargeDirectories::projectsAreFound()
{
    Tree tree;
    const QString path = "cat/large/" + nameOf(Projects - 2);
    const QModelIndex found = TreePath::find(&tree.filter, path, QString());
    QCOMPARE(found.data().toString(), nameOf(Projects - 2));
    QCOMPARE(found.row(), Projects - 2);
    QVERIFY(!TreePath::find(&tree.filter, path, "v0").isValid());
    QVERIFY(!TreePath::find(&tree.filter, "cat/large/gone.prj", QString()).isValid());
    tree.view.expand(tree.large());
    tree.view.scrollTo(found);
    QTRY_VERIFY(tree.view.visualRect(found).isValid());
    tree.show("cat/other.prj");
    tree.filter.finish();
    QVERIFY(!TreePath::find(&tree.filter, path, QString()).isValid());
}

void tst_LargeDirectories::aLookUpReadsNoOthers()
{
    QList<TestNode::Ptr> projects;
    for (int project = 0; project < Projects; ++project) {
        projects += TestNode::project(nameOf(project));
        projects.last()->mapping.setSourcePath(nameOf(project));
    }
    const CatalogStructureModel model(boost::make_shared<KnowingRoot>(
        FilledTestNode::directory(QStringLiteral("large"), projects)));
    TestNode::namesRead = 0;
    TestNode::pathsRead = 0;
    const QModelIndex found = TreePath::find(&model, nameOf(Projects - 1), QString());
    QCOMPARE(found.row(), Projects - 1);
    QCOMPARE(TestNode::pathsRead, 1);
    QCOMPARE(TestNode::namesRead, 0);
    // What it says is checked.
    QVERIFY(!TreePath::find(&model, nameOf(1), QString()).isValid());
}

/// Alone in the filter, and nothing of the first rows is in it.
void tst_LargeDirectories::areFilteredBeforeTheyAreShown()
{
    Tree tree;
    tree.view.expand(tree.large());
    QTest::qWait(0);
    tree.show("cat/large/" + nameOf(Projects - 2));
    tree.filter.finish();
    QCOMPARE(tree.filter.rowCount(tree.catalog()), 1);
    QVERIFY(tree.filter.hasChildren(tree.large()));
    QCOMPARE(tree.filter.rowCount(tree.large()), 1);
    QVERIFY(tree.view.isExpanded(tree.large()));
    const QModelIndex only = tree.filter.index(0, 0, tree.large());
    QCOMPARE(only.data().toString(), nameOf(Projects - 2));
    QTRY_VERIFY(tree.view.visualRect(only).isValid());
}

/// On all of them by the walk, so that none is left for the turn in which they are shown.
void tst_LargeDirectories::areDecidedOnOnce()
{
    Tree tree;
    int asked = 0;
    tree.filter.hostFilter = [&](const PrjMappingC &mapping) {
        return ++asked % 2 == 0 || mapping.getSourcePath() == "cat/other.prj";
    };
    tree.filter.invalidate();
    tree.filter.finish();
    QCOMPARE(asked, Projects + 1);
    tree.view.setCurrentIndex(tree.large());
    QTest::keyClick(&tree.view, Qt::Key_Right);
    QVERIFY(tree.view.isExpanded(tree.large()));
    QCOMPARE(tree.filter.rowCount(tree.large()), Projects / 2);
    QCOMPARE(asked, Projects + 1);
}

QTEST_MAIN(tst_LargeDirectories)
#include "tst_LargeDirectories.moc"
