// Directories with very many projects, whose rows come as they are wanted.
#include "CatalogNodes.h"

#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/view/CatalogFilterModel.h>
#include <mapping/view/CatalogStructureItem.h>
#include <mapping/view/CatalogStructureModel.h>
#include <mapping/view/RowsInSight.h>
#include <mapping/view/TreePath.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>
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
        new RowsInSight(&view);
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

} // namespace

class tst_RowsInSight : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void comeAsTheViewScrolls();
    void modelsStaySound();
    void areFoundBeforeTheyAreThere();
    void aFarOneTakesNoneOfTheOthers();
    void areFilteredBeforeTheyAreThere();
    void areDecidedOnInTurns();
};

void tst_RowsInSight::comeAsTheViewScrolls()
{
    Tree tree;
    tree.view.setCurrentIndex(tree.large());
    QTest::keyClick(&tree.view, Qt::Key_Right);
    QVERIFY(tree.view.isExpanded(tree.large()));
    QTest::qWait(0);
    const int first = tree.filter.rowCount(tree.large());
    QVERIFY2(first > 0 && first < Projects, qPrintable(QString::number(first)));
    // What follows is in its place all the same.
    QCOMPARE(tree.filter.index(1, 0, tree.catalog()).data().toString(), QString("other.prj"));
    for (int pages = 0; pages < Projects; ++pages) {
        const QModelIndex before = tree.view.currentIndex();
        QTest::keyClick(&tree.view, Qt::Key_PageDown);
        QTest::qWait(0);
        if (tree.view.currentIndex() == before)
            break;
        // No end in sight before the last one.
        const QModelIndex current = tree.view.currentIndex();
        if (current.parent() == tree.large())
            QVERIFY(tree.filter.rowCount(tree.large()) - current.row() > 20 ||
                    tree.filter.rowCount(tree.large()) == Projects);
    }
    QCOMPARE(tree.view.currentIndex().data().toString(), QString("other.prj"));
    QCOMPARE(tree.filter.rowCount(tree.large()), Projects);
    for (const int row : {0, 999, 1000, Projects - 1})
        QCOMPARE(tree.filter.index(row, 0, tree.large()).data().toString(), nameOf(row));
}

/// The tester fetches all that it can.
void tst_RowsInSight::modelsStaySound()
{
    Tree tree;
    tree.view.expand(tree.large());
    const auto mode = QAbstractItemModelTester::FailureReportingMode::QtTest;
    const QAbstractItemModelTester source(&tree.model, mode);
    const QAbstractItemModelTester filtered(&tree.filter, mode);
    QTRY_COMPARE(tree.filter.rowCount(tree.large()), Projects);
    tree.show("cat/large/" + nameOf(Projects - 2));
    tree.filter.finish();
    QCOMPARE(tree.filter.rowCount(tree.large()), 1);
}

void tst_RowsInSight::areFoundBeforeTheyAreThere()
{
    Tree tree;
    QVERIFY(tree.filter.rowCount(tree.large()) < Projects / 2);
    const QModelIndex found =
        TreePath::find(&tree.filter, "cat/large/" + nameOf(Projects - 2), QString());
    QCOMPARE(found.data().toString(), nameOf(Projects - 2));
    QCOMPARE(found.row(), Projects - 2);
    QVERIFY(!TreePath::find(&tree.filter, "cat/large/gone.prj", QString()).isValid());
}

/// Whatever lies between is a number of rows and nothing else, until a view lays it out.
void tst_RowsInSight::aFarOneTakesNoneOfTheOthers()
{
    Tree tree;
    QSignalSpy inserted(&tree.model, &QAbstractItemModel::rowsInserted);
    const QModelIndex found =
        TreePath::find(&tree.filter, "cat/large/" + nameOf(Projects - 2), QString());
    QCOMPARE(found.row(), Projects - 2);
    QCOMPARE(inserted.size(), 1);
    const QList<CatalogStructureItem *> items =
        tree.model.rootItem().children.at(0)->children.at(0)->children;
    QCOMPARE(items.size(), Projects - 1);
    QVERIFY(items.size() - items.count(nullptr) < 10);
    tree.view.expand(tree.large());
    tree.view.scrollTo(found);
    QTRY_VERIFY(tree.view.visualRect(found).isValid());
    QCOMPARE(tree.filter.index(2000, 0, tree.large()).data().toString(), nameOf(2000));
}

/// Alone in the filter, and nothing of the first rows is in it.
void tst_RowsInSight::areFilteredBeforeTheyAreThere()
{
    Tree tree;
    tree.view.expand(tree.large());
    QTest::qWait(0);
    tree.show("cat/large/" + nameOf(Projects - 2));
    tree.filter.finish();
    QCOMPARE(tree.filter.rowCount(tree.catalog()), 1);
    QVERIFY(tree.filter.hasChildren(tree.large()));
    QTRY_COMPARE(tree.filter.rowCount(tree.large()), 1); // it was open, and is so still
    const QModelIndex only = tree.filter.index(0, 0, tree.large());
    QCOMPARE(only.data().toString(), nameOf(Projects - 2));
    QTRY_VERIFY(tree.view.visualRect(only).isValid());
}

/// All of them, so that none is left for the turn in which the filter shows.
void tst_RowsInSight::areDecidedOnInTurns()
{
    Tree tree;
    const QString last = "cat/large/" + nameOf(Projects - 1);
    (void)TreePath::find(&tree.filter, last, QString());
    tree.view.expand(tree.large());
    QCOMPARE(tree.filter.rowCount(tree.large()), Projects);
    int asked = 0;
    tree.filter.hostFilter = [&](const PrjMappingC &mapping) {
        ++asked;
        return mapping.getSourcePath() == last;
    };
    tree.filter.invalidate();
    tree.filter.finish();
    QCOMPARE(tree.filter.rowCount(tree.large()), 1);
    QCOMPARE(asked, Projects + 1);
}

QTEST_MAIN(tst_RowsInSight)
#include "tst_RowsInSight.moc"
