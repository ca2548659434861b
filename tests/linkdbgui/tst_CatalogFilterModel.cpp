#include "CatalogNodes.h"

#include <mapping/view/CatalogFilterModel.h>
#include <mapping/view/CatalogStructureModel.h>

#include <QAbstractItemModelTester>
#include <QTest>
#include <QThread>
#include <QTreeView>

namespace {

enum Mode { Open, WithTarget, WithoutTarget, Both };

/// The filter over a tree, set as the mapping editor sets it.
struct Filtered
{
    explicit Filtered(const TestNode::Ptr &root)
        : source(root)
    {
        filter.setSourceModel(&source);
        filter.setDynamicSortFilter(false);
    }
    void set(bool toCheck, bool target, bool noTarget)
    {
        filter.filterToCheck = toCheck;
        filter.filterTarget = target;
        filter.filterNoTarget = noTarget;
        filter.invalidate();
    }
    void set(Mode mode) { set(true, mode == WithTarget || mode == Both, mode >= WithoutTarget); }
    [[nodiscard]] QString rows(const QModelIndex &parent = QModelIndex()) const
    {
        QStringList texts;
        for (int row = 0; row < filter.rowCount(parent); ++row) {
            const QModelIndex index = filter.index(row, 0, parent);
            const QString below = rows(index);
            texts += index.data().toString() + (below.isEmpty() ? QString() : '(' + below + ')');
        }
        return texts.join(' ');
    }

    CatalogStructureModel source;
    CatalogFilterModel filter;
};

/// root: a/(b/(open.prj), done.prj), e/(done.prj), none.prj, open.prj
TestNode::Ptr sampleTree()
{
    return TestNode::root(
        {TestNode::directory("a", {TestNode::directory("b", {TestNode::project("open.prj", 0x080)}),
                                   TestNode::project("done.prj", 0x200)}),
         TestNode::directory("e", {TestNode::project("done.prj", 0x200)}),
         TestNode::project("none.prj", 0x100), TestNode::project("open.prj", 0x002)});
}

} // namespace

class tst_CatalogFilterModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passesTheTester()
    {
        Filtered filtered(sampleTree());
        const QAbstractItemModelTester tester(
            &filtered.filter, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QString all = "a(b(open.prj) done.prj) e(done.prj) none.prj open.prj";
        QCOMPARE(filtered.rows(), all);
        filtered.set(WithTarget);
        QCOMPARE(filtered.rows(), QString("a(b(open.prj)) open.prj"));
        filtered.set(false, true, false);
        QCOMPARE(filtered.rows(), all);
    }

    void allOffAtConstruction()
    {
        const CatalogFilterModel filter;
        QVERIFY(!filter.filterToCheck);
        QVERIFY(!filter.filterTarget);
        QVERIFY(!filter.filterNoTarget);
        QCOMPARE(filter.metaObject()->methodCount(),
                 QSortFilterProxyModel::staticMetaObject.methodCount());
    }

    void projectStates_data()
    {
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("open");
        QTest::addColumn<bool>("withTarget");
        QTest::addColumn<bool>("withoutTarget");
        const auto row = [](int state, bool open, bool withTarget, bool withoutTarget) {
            QTest::addRow("0x%03x", state) << state << open << withTarget << withoutTarget;
        };
        row(0x000, false, false, false);
        row(0x001, false, false, false);
        row(0x002, true, true, false);
        row(0x080, true, true, false);
        row(0x100, true, false, true);
        row(0x200, false, false, false);
        row(0x400, false, false, false);
        row(0x800, true, false, false);
        row(0x601, false, false, false);
        row(0x102, true, false, true);
        row(0x180, true, false, true);
        row(0x182, true, false, true);
        row(0x280, true, true, false);
        row(0x202, true, true, false);
        row(0x300, true, false, true);
        row(0x802, true, true, false);
        row(0x880, true, true, false);
        row(0x900, true, false, true);
        row(0xA00, true, false, false);
    }
    void projectStates()
    {
        QFETCH(int, state);
        QFETCH(bool, withoutTarget);
        Filtered filtered(TestNode::root({TestNode::project("a.prj", state)}));
        filtered.set(Open);
        QTEST(filtered.filter.rowCount() == 1, "open");
        filtered.set(WithTarget);
        QTEST(filtered.filter.rowCount() == 1, "withTarget");
        filtered.set(WithoutTarget);
        QTEST(filtered.filter.rowCount() == 1, "withoutTarget");
        // With both set, the one for missing targets wins.
        filtered.set(Both);
        QCOMPARE(filtered.filter.rowCount() == 1, withoutTarget);
    }

    void hostFilterComesOnTop()
    {
        const TestNode::Ptr root = sampleTree();
        const TestNode::Ptr inside = root->children[0]->children[0]->children[0];
        inside->mapping.setSourcePath("a/b/open.prj");
        root->children[3]->mapping.setSourcePath("open.prj");
        Filtered filtered(root);
        const QString all = filtered.rows();
        QStringList asked;
        filtered.filter.hostFilter = [&asked](const PrjMappingC &mapping) {
            asked += mapping.getSourcePath();
            return mapping.getSourcePath() == "a/b/open.prj";
        };
        filtered.set(false, false, false);
        QCOMPARE(filtered.rows(), QString("a(b(open.prj))"));
        QVERIFY(asked.contains("open.prj"));
        inside->state = 0x200;
        filtered.set(Open);
        QCOMPARE(filtered.rows(), QString());
        filtered.filter.hostFilter = {};
        filtered.set(false, false, false);
        QCOMPARE(filtered.rows(), all);
    }

    void withoutTheFirstTheOthersDoNothing()
    {
        Filtered filtered(sampleTree());
        const QString all = filtered.rows();
        filtered.set(false, true, true);
        QCOMPARE(filtered.rows(), all);
    }

    void withoutTheFirstTheBaseClassDecides()
    {
        Filtered filtered(sampleTree());
        filtered.filter.setFilterFixedString("none");
        QCOMPARE(filtered.rows(), QString("none.prj"));
        // With it, the base class is not asked.
        filtered.set(Open);
        QCOMPARE(filtered.rows(), QString("a(b(open.prj)) none.prj open.prj"));
    }

    void directoriesWithoutAcceptedProjectsAreHidden_data()
    {
        QTest::addColumn<int>("mode");
        QTest::addColumn<QString>("rows");
        QTest::newRow("open") << int(Open) << "a(b(open.prj)) none.prj open.prj";
        QTest::newRow("with target") << int(WithTarget) << "a(b(open.prj)) open.prj";
        QTest::newRow("without target") << int(WithoutTarget) << "none.prj";
        QTest::newRow("both") << int(Both) << "none.prj";
    }
    void directoriesWithoutAcceptedProjectsAreHidden()
    {
        QFETCH(int, mode);
        Filtered filtered(sampleTree());
        filtered.set(Mode(mode));
        QTEST(filtered.rows(), "rows");
    }

    void projectsAreToldByTheEndOfTheirText_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("shown");
        QTest::newRow("project") << 2 << "a.prj" << true;
        QTest::newRow("only the ending") << 2 << ".prj" << true;
        QTest::newRow("other case") << 2 << "a.PRJ" << false;
        QTest::newRow("no ending") << 2 << "a" << false;
        QTest::newRow("ending within") << 2 << "a.prj.old" << false;
        QTest::newRow("directory with the ending") << 1 << "a.prj" << true;
        QTest::newRow("directory") << 1 << "a" << false;
    }
    void projectsAreToldByTheEndOfTheirText()
    {
        QFETCH(int, type);
        QFETCH(QString, name);
        const TestNode::Ptr node = TestNode::project(name, 0x080);
        node->type = type;
        Filtered filtered(TestNode::root({node}));
        filtered.set(Open);
        QTEST(filtered.filter.rowCount() == 1, "shown");
    }

    void aDirectoryWithTheEndingHidesWhatIsBelow()
    {
        Filtered filtered(
            TestNode::root({TestNode::directory("a.prj", {TestNode::project("b.prj", 0x080)})}));
        filtered.set(Open);
        QCOMPARE(filtered.filter.rowCount(), 0);
    }

    void aDirectorysOwnStateDoesNotCount()
    {
        const TestNode::Ptr directory =
            TestNode::directory("a", {TestNode::project("b.prj", 0x200)});
        directory->state = 0x080;
        Filtered filtered(TestNode::root({directory}));
        filtered.set(Open);
        QCOMPARE(filtered.filter.rowCount(), 0);
    }

    void theSearchStopsAtTheFirstAcceptedRow()
    {
        const TestNode::Ptr first = TestNode::directory("b", {TestNode::project("c.prj", 0x080)});
        const TestNode::Ptr second = TestNode::directory("d", {TestNode::project("e.prj", 0x080)});
        Filtered filtered(TestNode::root({TestNode::directory("a", {first, second})}));
        filtered.set(Open);
        QCOMPARE(filtered.filter.rowCount(), 1);
        QCOMPARE(first->asked, 1);
        QCOMPARE(second->asked, 0);
        // What was left out is found out as soon as somebody wants to know.
        QCOMPARE(filtered.rows(), QString("a(b(c.prj) d(e.prj))"));
    }

    void whatCostsNothingIsDecidedBeforehand()
    {
        const auto projects = [](int openOnes) {
            QList<TestNode::Ptr> nodes;
            for (int i = 0; i < 100; ++i)
                nodes += TestNode::project(QString::number(i) + ".prj");
            for (int i = 0; i < openOnes; ++i)
                nodes[i]->mapping.setSourcePath("wanted");
            return nodes;
        };
        Filtered filtered(TestNode::root(
            {FilledTestNode::directory("a", {FilledTestNode::directory("b", projects(1)),
                                             FilledTestNode::directory("c", projects(0)),
                                             FilledTestNode::directory("d", projects(2))})}));
        int asked = 0;
        filtered.filter.hostFilter = [&asked](const PrjMappingC &mapping) {
            ++asked;
            return mapping.getSourcePath() == "wanted";
        };
        filtered.set(false, false, false);
        QCOMPARE(asked, 300);
        QCOMPARE(filtered.rows(), QString("a(b(0.prj) d(0.prj 1.prj))"));
        QCOMPARE(asked, 300);
    }

    void aViewLoadsWhatIsOpen()
    {
        const TestNode::Ptr open = FilledTestNode::directory("b", {TestNode::project("c.prj", 2)});
        const TestNode::Ptr closed = FilledTestNode::directory("d", {TestNode::project("e.prj")});
        const TestNode::Ptr above = FilledTestNode::directory("a", {open, closed});
        Filtered filtered(TestNode::root({above}));
        QTreeView tree;
        tree.setModel(&filtered.filter);
        tree.show();
        QVERIFY(QTest::qWaitForWindowExposed(&tree));
        QCOMPARE(above->asked, 0);
        const QModelIndex top = filtered.filter.index(0, 0);
        tree.expand(top);
        tree.expand(filtered.filter.index(0, 0, top));
        QTest::qWait(0);
        QVERIFY(tree.indexBelow(tree.indexBelow(tree.indexBelow(top))).isValid());
        QCOMPARE(open->asked, 1);
        QCOMPARE(closed->asked, 0);
        // A filter has to know.
        filtered.set(Open);
        QCOMPARE(closed->asked, 1);
        QCOMPARE(filtered.rows(), QString("a(b(c.prj))"));
        filtered.set(false, false, false);
        const QAbstractItemModelTester tester(
            &filtered.filter, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(filtered.rows(), QString("a(b(c.prj) d(e.prj))"));
    }

    void aChangeShowsAfterInvalidateOnly()
    {
        const TestNode::Ptr project = TestNode::project("a.prj", 0x080);
        Filtered filtered(TestNode::root({project}));
        filtered.set(Open);
        QCOMPARE(filtered.filter.rowCount(), 1);
        project->state = 0x200;
        filtered.source.invalidateNodes();
        QCOMPARE(filtered.filter.rowCount(), 1);
        filtered.filter.invalidate();
        QCOMPARE(filtered.filter.rowCount(), 0);
    }

    void aLargeTreeIsWalkedInTurns_data()
    {
        QTest::addColumn<bool>("atOnce");
        QTest::newRow("by itself") << false;
        QTest::newRow("somebody needs it at once") << true;
    }
    void aLargeTreeIsWalkedInTurns()
    {
        QFETCH(bool, atOnce);
        QList<TestNode::Ptr> directories;
        for (int i = 0; i < 10; ++i) {
            directories += TestNode::directory("d" + QString::number(i));
            for (int project = 0; project < 1000; ++project)
                directories.last()->children +=
                    TestNode::project(QString::number(project) + ".prj");
        }
        directories.last()->children.last()->mapping.setSourcePath("wanted");
        Filtered filtered(TestNode::root(directories));
        QCOMPARE(filtered.filter.rowCount(), 10);
        int asked = 0;
        int applied = 0;
        filtered.filter.onApplied = [&applied] {
            ++applied;
        };
        filtered.filter.hostFilter = [&asked](const PrjMappingC &mapping) {
            if (++asked % 3000 == 0)
                QThread::msleep(20);
            return mapping.getSourcePath() == "wanted";
        };
        filtered.set(false, false, false);
        QVERIFY2(asked < 5000, qPrintable(QString::number(asked)));
        QCOMPARE(filtered.filter.rowCount(), 10); // as before
        QCOMPARE(applied, 0);
        if (atOnce)
            filtered.filter.finish();
        QTRY_COMPARE(applied, 1);
        QCOMPARE(filtered.rows(), QString("d9(999.prj)"));
        // Another one does not wait for it.
        filtered.set(false, false, false);
        filtered.filter.hostFilter = {};
        filtered.set(false, false, false);
        QCOMPARE(applied, 2);
        QCOMPARE(filtered.filter.rowCount(), 10);
        QTest::qWait(50);
        QCOMPARE(applied, 2);
    }

    void nothingIsBelowAProject()
    {
        const auto open = [](const char *name) {
            return TestNode::directory(name, {TestNode::project("o.prj", 2)});
        };
        Filtered filtered(
            TestNode::root({open("a"), TestNode::directory("b"), open("c"),
                            TestNode::project("a.prj"), TestNode::project("b.prj", 2), open("d"),
                            TestNode::project("c.prj", 2), TestNode::project("d.prj")}));
        const auto leaves = [&filtered] {
            QStringList names;
            for (int row = 0; row < filtered.filter.rowCount(); ++row) {
                const QModelIndex index = filtered.filter.index(row, 0);
                if (index.flags() & Qt::ItemNeverHasChildren)
                    names += index.data().toString();
            }
            return names.join(' ');
        };
        // Known of those behind the last directory; of others the view has to ask.
        QCOMPARE(leaves(), QString("c.prj d.prj"));
        filtered.set(Open);
        QCOMPARE(filtered.rows(), QString("a(o.prj) c(o.prj) b.prj d(o.prj) c.prj"));
        QCOMPARE(leaves(), QString("c.prj"));
        const QModelIndex below = filtered.filter.index(0, 0, filtered.filter.index(0, 0));
        QVERIFY(below.flags() & Qt::ItemNeverHasChildren);
        QCOMPARE(leaves(), QString("c.prj"));
        QVERIFY(!(filtered.filter.flags({}) & Qt::ItemNeverHasChildren));
        filtered.set(false, false, false);
        QCOMPARE(leaves(), QString("c.prj d.prj"));
        filtered.filter.setFilterFixedString("d");
        QCOMPARE(filtered.rows(), QString("d d.prj"));
        QCOMPARE(leaves(), QString("d.prj"));
    }

    void rowsKeepTheirOrder()
    {
        Filtered filtered(
            TestNode::root({TestNode::project("c.prj", 2), TestNode::project("a.prj", 2),
                            TestNode::project("B.prj", 2)}));
        QCOMPARE(filtered.rows(), QString("c.prj a.prj B.prj"));
        filtered.set(Open);
        QCOMPARE(filtered.rows(), QString("c.prj a.prj B.prj"));
    }

    void nodesAreReadThroughTheFilter()
    {
        const TestNode::Ptr project = TestNode::project("b.prj", 2);
        Filtered filtered(TestNode::root({TestNode::project("a.prj"), project}));
        filtered.set(Open);
        const QVariant value =
            filtered.filter.index(0, 0).data(CatalogStructureModel::StructureNodeRole);
        QCOMPARE(CatalogStructureModel::nodeFrom(value).get(), project.get());
    }
};

QTEST_MAIN(tst_CatalogFilterModel)
#include "tst_CatalogFilterModel.moc"
