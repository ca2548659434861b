#include "../support/SlotOrder.h"
#include "IndexTreeFolder.h"

#include <geomcore/index/IndexTreeDisplayItemC.h>
#include <geomcore/index/IndexTreeErpSourceI.h>
#include <geomcore/index/IndexTreeFilterProxyModelC.h>
#include <geomcore/index/IndexTreeModelC.h>

#include <QAbstractItemModelTester>
#include <QSignalSpy>

namespace {

PRefPtr<IndexTreeDisplayItemI> rootItem(const PRefPtr<IndexTreeC> &tree)
{
    return IndexTreeDisplayItemC::createFromNode(tree->getRoot());
}

/// Model and proxy as the selection of projects uses them.
struct Chain
{
    explicit Chain(const PRefPtr<IndexTreeC> &tree, bool filtered = true)
        : model(rootItem(tree))
        , column(new IndexTreeModelColumnC("", "Name", DisplayIndexC(2)))
    {
        column->addRole(Qt::DecorationRole, DisplayIndexC(23));
        if (filtered)
            column->addRole(33, DisplayIndexC(44));
        model.addColumn(column);
        proxy.setSourceModel(&model);
        if (filtered) {
            proxy.setFilterKeyColumn(0);
            proxy.setFilterRole(33);
            proxy.setFilterFixedString("true");
        }
        proxy.setFastChildDetection(true);
        proxy.setEmptyChildDetection(true);
        proxy.sort(0, Qt::AscendingOrder);
    }

    IndexTreeModelC model;
    PRefPtr<IndexTreeModelColumnC> column;
    IndexTreeFilterProxyModelC proxy;
};

/// Counts how often it is asked for what is below.
class CountingItem : public IndexTreeDisplayItemI
{
public:
    explicit CountingItem(int depth, int &reads, int &looks)
        : m_depth(depth)
        , m_reads(reads)
        , m_looks(looks)
    {
    }
    [[nodiscard]] QVariant data(const DisplayIndexC &) const override { return m_depth; }
    [[nodiscard]] bool canSelect() const override { return m_depth == 0; }
    [[nodiscard]] bool canActivate() const override { return false; }
    [[nodiscard]] bool hasChildren() const override
    {
        ++m_looks;
        return m_depth > 0;
    }
    [[nodiscard]] QList<PRefPtr<IndexTreeDisplayItemI>> children() const override
    {
        ++m_reads;
        QList<PRefPtr<IndexTreeDisplayItemI>> items;
        for (int i = 0; m_depth > 0 && i < 3; ++i)
            items.append(new CountingItem(m_depth - 1, m_reads, m_looks));
        return items;
    }

private:
    int m_depth;
    int &m_reads;
    int &m_looks;
};

} // namespace

class tst_IndexTreeModelC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passTheTester()
    {
        const IndexTreeFolder folder({"std/nuts/a.prj", "std/b.prj", "empty/"});
        Chain chain(folder.tree());
        const QAbstractItemModelTester sourceTester(
            &chain.model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QAbstractItemModelTester proxyTester(
            &chain.proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(rowsOf(chain.model), QString("empty std(nuts(a.prj) b.prj)"));
        QCOMPARE(rowsOf(chain.proxy), QString("std(nuts(a.prj) b.prj)"));
        chain.model.addColumn(
            new IndexTreeModelColumnC("description", "Beschreibung", DisplayIndexC(6)));
        chain.proxy.sort(-1);
        chain.model.updateData(chain.model.index(0, 0), chain.model.index(1, 0));
        QCOMPARE(rowsOf(chain.proxy), QString("std(nuts(a.prj) b.prj)"));
        QCOMPARE(chain.model.columnCount(), 2);
        QCOMPARE(chain.model.headerData(1, Qt::Horizontal).toString(), QString("Beschreibung"));
    }

    void emptyWithoutColumnAndRoot()
    {
        const IndexTreeFolder folder({"std/b.prj"});
        IndexTreeModelC model(rootItem(folder.tree()));
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.hasChildren());
        QVERIFY(!model.index(PString("cat/std"), 0).isValid());
        model.addColumn(nullptr);
        QCOMPARE(model.columnCount(), 0);
        IndexTreeModelC nothing(nullptr);
        nothing.addColumn(new IndexTreeModelColumnC("", "Name", DisplayIndexC(2)));
        QCOMPARE(nothing.rowCount(), 0);
        QVERIFY(!nothing.index(PString("cat/std"), 0).isValid());
        QVERIFY(!nothing.getDisplayItem(QModelIndex()));
    }

    void readsALevelWhenItIsOpened()
    {
        int reads = 0;
        int looks = 0;
        IndexTreeModelC model(new CountingItem(3, reads, looks));
        model.addColumn(new IndexTreeModelColumnC("", "", DisplayIndexC(2)));
        QCOMPARE(reads, 1); // the first level
        QCOMPARE(model.rowCount(), 3);
        const QModelIndex first = model.index(0, 0);
        QVERIFY(model.hasChildren(first));
        QVERIFY(model.hasChildren(first));
        QCOMPARE(looks, 1);
        QCOMPARE(model.rowCount(first), 0);
        QVERIFY(model.canFetchMore(first));
        QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
        model.fetchMore(first);
        model.fetchMore(first);
        QCOMPARE(inserted.size(), 1);
        QCOMPARE(inserted.first().at(0).toModelIndex(), first);
        QCOMPARE(inserted.first().at(2).toInt(), 2);
        QCOMPARE(reads, 2);
        QVERIFY(!model.canFetchMore(first));
    }

    void readsAgain()
    {
        const IndexTreeFolder folder({"std/b.prj", "std/d.prj", "std/nuts/a.prj", "old/x.prj"});
        Chain chain(folder.tree());
        chain.model.readAgain(chain.model.index(1, 0)); // nothing was read yet
        QVERIFY(chain.model.canFetchMore(chain.model.index(1, 0)));
        const QAbstractItemModelTester sourceTester(
            &chain.model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const QAbstractItemModelTester proxyTester(
            &chain.proxy, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(rowsOf(chain.proxy), QString("old(x.prj) std(nuts(a.prj) b.prj d.prj)"));
        const QPersistentModelIndex b = chain.model.index(PString("cat/std/b.prj"), 0);
        const QPersistentModelIndex nut = chain.model.index(PString("cat/std/nuts/a.prj"), 0);
        const QPersistentModelIndex gone = chain.model.index(PString("cat/std/d.prj"), 0);
        folder.add("std/a.prj", {});
        folder.add("std/c.prj", {});
        folder.add("std/nuts/z.prj", {});
        QVERIFY(QFile::remove(folder.root() + "/std/d.prj"));
        const QSignalSpy inserted(&chain.model, &QAbstractItemModel::rowsInserted);
        chain.model.readAgain(chain.model.index(PString("cat/std"), 0));
        QCOMPARE(inserted.size(), 2);
        QCOMPARE(rowsOf(chain.proxy), QString("old(x.prj) std(nuts(a.prj) a.prj b.prj c.prj)"));
        QVERIFY(b.isValid() && nut.isValid() && !gone.isValid());
        QCOMPARE(b.row(), 2);
        QVERIFY(QDir(folder.root() + "/old").removeRecursively());
        folder.add("std/b.prj", "Bolt");
        chain.model.readAgain(QModelIndex());
        chain.model.readAgain(chain.model.index(PString("cat/std/nuts"), 0));
        chain.model.readAgain(chain.model.index(PString("cat/std"), 0));
        QCOMPARE(rowsOf(chain.proxy), QString("std(nuts(a.prj z.prj) a.prj b.prj c.prj)"));
        chain.column->addRole(Qt::DisplayRole, DisplayIndexC(6));
        QCOMPARE(b.data().toString(), QString("Bolt"));
    }

    void projectAfterADirectoryOfItsName()
    {
        const IndexTreeFolder folder({"std/a.prj/inner.prj"});
        Chain chain(folder.tree());
        QCOMPARE(rowsOf(chain.proxy), QString("std(a.prj(inner.prj))"));
        QVERIFY(QDir(folder.root() + "/std/a.prj").removeRecursively());
        folder.add("std/a.prj", {});
        chain.model.readAgain(chain.model.index(PString("cat/std"), 0));
        folder.add("std/screws/s.prj", {});
        chain.model.readAgain(chain.model.index(PString("cat/std"), 0));
        QCOMPARE(rowsOf(chain.proxy), QString("std(screws(s.prj) a.prj)"));
        QVERIFY(!chain.model.hasChildren(chain.model.index(PString("cat/std/a.prj"), 0)));
    }

    void proxyOpensNothing()
    {
        int reads = 0;
        int looks = 0;
        IndexTreeModelC model(new CountingItem(3, reads, looks));
        const PRefPtr<IndexTreeModelColumnC> column(
            new IndexTreeModelColumnC("", "", DisplayIndexC(2)));
        column->addRole(33, DisplayIndexC(2));
        model.addColumn(column);
        IndexTreeFilterProxyModelC proxy;
        proxy.setFilterRole(33);
        proxy.setFilterFixedString("0");
        proxy.setFastChildDetection(true);
        proxy.setEmptyChildDetection(true);
        proxy.setSourceModel(&model);
        QCOMPARE(proxy.rowCount(), 3);
        QVERIFY(proxy.hasChildren(proxy.index(0, 0)));
        QCOMPARE(reads, 1);
        QCOMPARE(looks, 3); // one a row in sight
    }

    void findsTreePaths()
    {
        const IndexTreeFolder folder({"std/nuts/a.prj", "std/b.prj"});
        Chain chain(folder.tree());
        QCOMPARE(chain.model.index(PString("cat/std"), 0), chain.model.index(0, 0));
        const QModelIndex deep = chain.model.index(PString("cat/std/nuts/a.prj"), 0);
        QCOMPARE(deep.data().toString(), QString("a.prj"));
        QCOMPARE(deep.parent().parent(), chain.model.index(0, 0));
        QCOMPARE(chain.proxy.mapFromSource(deep).data().toString(), QString("a.prj"));
        const QString relative = chain.model.getDisplayItem(deep)
                                     ->data(DisplayIndexC(QVariant(35), QVariant(4)))
                                     .toString();
        QCOMPARE(relative, QString("std/nuts/a.prj"));
        for (const char *path : {"cat/other", "std", "", "cat", "cat/", "cat/std/b.prj/c"})
            QVERIFY2(!chain.model.index(PString(path), 0).isValid(), path);
        QVERIFY(!chain.model.index(PString("cat/std"), 1).isValid());
        QVERIFY(!chain.model.index(PString("cat/std"), -1).isValid());
    }

    void descriptionsInTheTreesOrder()
    {
        const IndexTreeFolder folder({"std/nuts/"});
        folder.add("std/b.prj", "alpha");
        folder.add("std/C.prj", "zeta");
        folder.add("std/a.prj", "omega");
        Chain chain(folder.tree(), false);
        QCOMPARE(rowsOf(chain.proxy), QString("std(nuts a.prj b.prj C.prj)"));
        QSignalSpy changed(&chain.model, &QAbstractItemModel::dataChanged);
        chain.column->addRole(0, DisplayIndexC(6));
        const QModelIndex first = chain.model.index(0, 0);
        chain.proxy.sort(-1);
        chain.model.updateData(first, first);
        QCOMPARE(changed.size(), 2); // the level, and what was read below
        QCOMPARE(changed.at(1).at(0).toModelIndex(), chain.model.index(0, 0, first));
        QCOMPARE(changed.at(1).at(1).toModelIndex(), chain.model.index(3, 0, first));
        QCOMPARE(rowsOf(chain.proxy), QString("std(nuts omega alpha zeta)"));
        chain.column->addRole(0, DisplayIndexC(2));
        chain.proxy.sort(0);
        chain.model.updateData(first, first);
        QCOMPARE(rowsOf(chain.proxy), QString("std(nuts a.prj b.prj C.prj)"));
        chain.proxy.sort(0, Qt::AscendingOrder);
        changed.clear();
        chain.model.updateData(QModelIndex(), first);
        chain.model.updateData(first, QModelIndex());
        chain.model.updateData(first, chain.model.index(0, 0, first));
        QCOMPARE(changed.size(), 0);
    }

    void childDetection_data()
    {
        QTest::addColumn<bool>("fast");
        QTest::addColumn<bool>("empty");
        QTest::addColumn<QString>("rows");
        QTest::addColumn<bool>("expandable"); // "hollow", after it was opened
        QTest::newRow("fast, empty") << true << true << "full(a.prj) hollow" << false;
        QTest::newRow("fast") << true << false << "full(a.prj) hollow" << true;
        QTest::newRow("slow") << false << true << "full(a.prj)" << false;
    }
    void childDetection()
    {
        QFETCH(bool, fast);
        QFETCH(bool, empty);
        const IndexTreeFolder folder({"full/a.prj", "hollow/x/", "none/"});
        Chain chain(folder.tree());
        chain.proxy.setFastChildDetection(fast);
        chain.proxy.setEmptyChildDetection(empty);
        QCOMPARE(chain.proxy.rowCount(), 2); // nobody looked into "hollow"
        const QModelIndex hollow = chain.proxy.index(1, 0);
        QCOMPARE(hollow.data().toString(), QString("hollow"));
        QVERIFY(chain.proxy.hasChildren(hollow));
        chain.proxy.fetchMore(hollow);
        QTEST(chain.proxy.hasChildren(hollow), "expandable");
        chain.proxy.invalidate();
        QTEST(rowsOf(chain.proxy), "rows");
    }

    void asksTheErpForADirectoryAtOnce()
    {
        class Source : public IndexTreeErpSourceI
        {
        public:
            QList<QStringList> asked;
            QSet<QString> markedProjects(const QStringList &paths) override
            {
                asked.append(paths);
                return {paths.last()};
            }
        };
        const auto source = std::make_shared<Source>();
        IndexTreeC::instance()->setErpSource(source);
        const IndexTreeFolder folder({"std/a.prj", "std/b.prj", "std/nuts/c.prj"});
        IndexTreeModelC model(rootItem(folder.tree()));
        model.addColumn(new IndexTreeModelColumnC("", "Name", DisplayIndexC(2)));
        model.setErpPrefetchingEnabled(true);
        QCOMPARE(source->asked.size(), 0); // catalogs are no projects
        const QModelIndex project = model.index(PString("cat/std/a.prj"), 0);
        QCOMPARE(source->asked, (QList<QStringList>{{"std/a.prj", "std/b.prj"}}));
        (void)model.getDisplayItem(project)->data(DisplayIndexC(QVariant(23), QVariant(1)));
        QCOMPARE(source->asked.size(), 1);
        IndexTreeC::instance()->setErpSource(nullptr);
    }

    void slotOrder()
    {
        // Behind the destructor.
        QCOMPARE(slotOf(&IndexTreeDisplayItemI::data), 2);
        QCOMPARE(slotOf(&IndexTreeDisplayItemI::canSelect), 3);
        QCOMPARE(slotOf(&IndexTreeDisplayItemI::canActivate), 4);
    }

    void leavesNeverHaveChildren()
    {
        const IndexTreeFolder folder({"std/a.prj", "std/nuts/c.prj"});
        Chain chain(folder.tree());
        const auto neverHas = [&](const char *path) {
            return chain.model.index(PString(path), 0).flags().testFlag(Qt::ItemNeverHasChildren);
        };
        QVERIFY(neverHas("cat/std/a.prj"));
        QVERIFY(!neverHas("cat/std/nuts"));
        QCOMPARE(chain.model.index(PString("cat/std"), 0).flags(),
                 Qt::ItemIsEnabled | Qt::ItemIsSelectable);
        QVERIFY(!chain.model.data(QModelIndex(), 0).isValid());
    }
};

QTEST_MAIN(tst_IndexTreeModelC)
#include "tst_IndexTreeModelC.moc"
