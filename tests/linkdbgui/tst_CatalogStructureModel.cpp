#include "CatalogNodes.h"

#include <geomcore/index/IndexTreeC.h>
#include <mapping/data/ReleaseMappingHandler.h>
#include <mapping/data/StateTreeI.h>
#include <mapping/view/CatalogStructureModel.h>

#include <QAbstractItemModelTester>
#include <QIcon>
#include <QSignalSpy>
#include <QTest>
#include <QTranslator>

using Node = boost::shared_ptr<CatalogStructureNodeI>;

namespace {

constexpr auto Unconfirmed = "<nobr>Es existiert mindestens eine unbestätigte Änderung.</nobr>";
constexpr auto Unmapped = "<nobr>Es existiert mindestens eine nicht zugeordnete Zeile.</nobr>";
constexpr auto Confirmed = "<nobr>Es existiert mindestens eine bestätigte Zuordnung.</nobr>";
constexpr auto TableErrorBelow = "<nobr>Die Tabelle von mindestens einem Quellprojekt konnte nicht "
                                 "geöffnet werden.</nobr>";
constexpr auto TableError =
    "<nobr>Die Tabelle des Quellprojekts konnte nicht geöffnet werden.</nobr>";
constexpr auto Conflict = "<nobr>Es existiert mindestens ein Konflikt.</nobr>";
constexpr auto Break = "<br />";

/// root: a/(b/(c.prj), d.prj), e/, f.prj
TestNode::Ptr sampleTree()
{
    return TestNode::root(
        {TestNode::directory("a", {TestNode::directory("b", {TestNode::project("c.prj")}),
                                   TestNode::project("d.prj")}),
         TestNode::directory("e"), TestNode::project("f.prj")});
}

QString texts(const QAbstractItemModel &model, const QModelIndex &parent = QModelIndex())
{
    QStringList rows;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = texts(model, index);
        rows += index.data().toString() + (below.isEmpty() ? QString() : '(' + below + ')');
    }
    return rows.join(' ');
}

QVariant dataOf(const TestNode::Ptr &node, int role)
{
    const CatalogStructureModel model(TestNode::root({node}));
    return model.index(0, 0).data(role);
}

QImage imageOf(const QIcon &icon)
{
    return icon.pixmap(16, 16).toImage();
}

/// Puts what a text is looked up by around it.
class MarkingTranslator : public QTranslator
{
public:
    QString translate(const char *context, const char *source, const char *, int) const override
    {
        return QString::fromUtf8(context) + ":" + QString::fromUtf8(source).left(2);
    }
    bool isEmpty() const override { return false; }
};

} // namespace

class tst_CatalogStructureModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { TestNode::invalidated.clear(); }

    void veryManyRowsAreThereAtOnce()
    {
        QList<TestNode::Ptr> projects;
        for (int i = 0; i < 2500; ++i)
            projects += TestNode::project(QString::number(i));
        const TestNode::Ptr root = TestNode::root(projects);
        CatalogStructureModel model(root);
        QCOMPARE(model.rowCount(), 2500);
        QVERIFY(!model.canFetchMore({}));
        TestNode::namesRead = 0;
        for (int row = 0; row < 2500; ++row)
            QVERIFY(!model.hasChildren(model.index(row, 0)));
        QCOMPARE(TestNode::namesRead, 0);
        for (const TestNode::Ptr &project : std::as_const(projects))
            QCOMPARE(project->asked, 0);
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (int row = 0; row < 2500; ++row)
            QCOMPARE(model.index(row, 0).data().toString(), QString::number(row));
        QCOMPARE(root->asked, 1);
    }

    void invalidatesRowsThatNobodySaw()
    {
        QList<TestNode::Ptr> children;
        for (int i = 0; i < 1002; ++i)
            children += TestNode::project(QString::number(i));
        children += TestNode::directory("d", {TestNode::project("e")});
        CatalogStructureModel model(TestNode::root(children));
        model.invalidateNodes();
        QCOMPARE(TestNode::invalidated.size(), 1002 + 3);
        QCOMPARE(TestNode::invalidated.mid(1001), QStringList({"1001", "e", "d", "root"}));
    }

    void passesTheTester()
    {
        CatalogStructureModel model(sampleTree());
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(texts(model), QString("a(b(c.prj) d.prj) e f.prj"));
    }

    void isMadeWithoutParent()
    {
        const CatalogStructureModel model(sampleTree());
        QCOMPARE(model.QObject::parent(), nullptr);
    }

    void emptyRootHasNoRows()
    {
        const CatalogStructureModel model(TestNode::root());
        QCOMPARE(model.rowCount(), 0);
        QVERIFY(!model.hasChildren());
        QVERIFY(!model.index(0, 0).isValid());
    }

    void withoutRootThereIsNothing()
    {
        CatalogStructureModel model(nullptr);
        QCOMPARE(model.rowCount(), 0);
        model.invalidateNodes();
    }

    void indexOfRows()
    {
        const CatalogStructureModel model(sampleTree());
        QCOMPARE(model.index(2, 0).data().toString(), QString("f.prj"));
        QVERIFY(!model.index(3, 0).isValid());
        QVERIFY(!model.index(-1, 0).isValid());
        const QModelIndex a = model.index(0, 0);
        QCOMPARE(model.index(1, 0, a).data().toString(), QString("d.prj"));
        QVERIFY(!model.index(2, 0, a).isValid());
    }

    void indexDoesNotLookAtTheColumn()
    {
        const CatalogStructureModel model(sampleTree());
        const QModelIndex index = model.index(0, 7);
        QVERIFY(index.isValid());
        QCOMPARE(index.column(), 7);
        QCOMPARE(index.data().toString(), QString("a"));
        QCOMPARE(model.rowCount(index), 2);
    }

    void parentOfRows()
    {
        const CatalogStructureModel model(sampleTree());
        const QModelIndex a = model.index(0, 0);
        const QModelIndex d = model.index(1, 0, a);
        const QModelIndex c = model.index(0, 0, model.index(0, 0, a));
        QVERIFY(!model.parent(QModelIndex()).isValid());
        QVERIFY(!model.parent(a).isValid());
        QCOMPARE(model.parent(d), a);
        QCOMPARE(model.parent(model.index(1, 3, a)), a);
        QCOMPARE(model.parent(model.parent(c)), a);
    }

    void alwaysOneColumn()
    {
        const CatalogStructureModel model(sampleTree());
        QCOMPARE(model.columnCount(), 1);
        QCOMPARE(model.columnCount(model.index(0, 0)), 1);
        QCOMPARE(model.columnCount(model.index(2, 0)), 1);
    }

    void childrenOfRows()
    {
        const TestNode::Ptr root = sampleTree();
        const CatalogStructureModel model(root);
        QVERIFY(model.hasChildren());
        QVERIFY(model.hasChildren(model.index(0, 0)));
        QVERIFY(!model.hasChildren(model.index(1, 0)));
        QVERIFY(!model.hasChildren(model.index(2, 0)));
        QCOMPARE(root->children[2]->asked, 0); // a project has none
        QCOMPARE(model.rowCount(model.index(0, 0)), 2);
        QCOMPARE(model.rowCount(model.index(1, 0)), 0);
    }

    void childrenAreAskedForOnceAndLate()
    {
        const TestNode::Ptr root = sampleTree();
        const TestNode::Ptr a = root->children[0];
        const TestNode::Ptr b = a->children[0];
        const CatalogStructureModel model(root);
        QCOMPARE(root->asked, 0);
        QCOMPARE(model.rowCount(), 3);
        QCOMPARE(root->asked, 1);
        QCOMPARE(a->asked, 0);
        // Whether there are children is known once they are loaded: one level further than shown.
        QVERIFY(model.hasChildren(model.index(0, 0)));
        QCOMPARE(a->asked, 1);
        QCOMPARE(b->asked, 0);
        QCOMPARE(texts(model), texts(model));
        for (const TestNode::Ptr &node : {root, a, b, b->children[0]})
            QCOMPARE(node->asked, 1);
    }

    void aFilledDirectoryIsNotAskedWhetherItHasAny()
    {
        const TestNode::Ptr filled = FilledTestNode::directory(
            "a", {TestNode::project("c.prj"), TestNode::project("d.prj")});
        CatalogStructureModel model(TestNode::root({filled, TestNode::directory("b")}));
        const QAbstractItemModelTester tester(
            &model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const CatalogStructureModel fresh(TestNode::root({filled}));
        const int asked = filled->asked;
        QVERIFY(fresh.hasChildren(fresh.index(0, 0)));
        QCOMPARE(filled->asked, asked);
        QCOMPARE(fresh.rowCount(fresh.index(0, 0)), 2);
        QCOMPARE(filled->asked, asked + 1);
        QVERIFY(fresh.hasChildren(fresh.index(0, 0)));
        QVERIFY(!model.hasChildren(model.index(1, 0)));
    }

    void dataReadsNoChildren()
    {
        const TestNode::Ptr root = sampleTree();
        const CatalogStructureModel model(root);
        const QModelIndex a = model.index(0, 0);
        for (const int role : {0, 1, 3, 42, 43, 44})
            QVERIFY(a.data(role).isValid());
        QCOMPARE(root->children[0]->asked, 0);
    }

    void roleNumbers()
    {
        QCOMPARE(int(CatalogStructureModel::MappingStateRole), 42);
        QCOMPARE(int(CatalogStructureModel::StructureNodeRole), 43);
        QCOMPARE(int(CatalogStructureModel::ConflictRole), 44);
    }

    void otherRolesAndInvalidIndexesGiveNothing()
    {
        const CatalogStructureModel model(sampleTree());
        for (int role = 0; role < 300; ++role) {
            const bool known = QList<int>{0, 1, 3, 42, 43, 44}.contains(role);
            QCOMPARE(model.data(model.index(0, 0), role).isValid(), known);
            QVERIFY(!model.data(QModelIndex(), role).isValid());
        }
    }

    void displayIsTheName()
    {
        const QVariant value = dataOf(TestNode::directory("Gehäuse"), Qt::DisplayRole);
        QCOMPARE(value.typeId(), int(QMetaType::QString));
        QCOMPARE(value.toString(), QString("Gehäuse"));
    }

    void decoration_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<QString>("key");
        QTest::newRow("root") << 0 << "DIRECTORY/";
        QTest::newRow("directory") << 1 << "DIRECTORY/";
        QTest::newRow("project") << 2 << "VIEW3D/";
        QTest::newRow("type 3") << 3 << "VIEW3D/";
        QTest::newRow("type 4") << 4 << "DIRECTORY/";
    }
    void decoration()
    {
        QFETCH(int, type);
        QFETCH(QString, key);
        const TestNode::Ptr node = TestNode::directory("x");
        node->type = type;
        const QVariant value = dataOf(node, Qt::DecorationRole);
        QCOMPARE(value.typeId(), int(QMetaType::QIcon));
        const auto *item = IndexTreeC::instance()->getIconTable().findItem(PString(key));
        QVERIFY(item);
        QVERIFY(!imageOf(item->getIcon()).isNull());
        QCOMPARE(imageOf(value.value<QIcon>()), imageOf(item->getIcon()));
    }

    void mappingStateIsAnInt_data()
    {
        QTest::addColumn<int>("state");
        for (const int state : {0, 0x001, 0x002, 0x080, 0x100, 0x200, 0x400, 0x800, 0xF83})
            QTest::addRow("0x%03x", state) << state;
    }
    void mappingStateIsAnInt()
    {
        QFETCH(int, state);
        const QVariant value =
            dataOf(TestNode::project("a.prj", state), CatalogStructureModel::MappingStateRole);
        QCOMPARE(value.typeId(), int(QMetaType::Int));
        QCOMPARE(value.toInt(), state);
    }

    void conflictIsABool()
    {
        const TestNode::Ptr node = TestNode::project("a.prj");
        for (const bool conflicts : {false, true}) {
            node->conflicts = conflicts;
            const QVariant value = dataOf(node, CatalogStructureModel::ConflictRole);
            QCOMPARE(value.typeId(), int(QMetaType::Bool));
            QCOMPARE(value.toBool(), conflicts);
        }
    }

    void nodeUnderItsExactName()
    {
        const TestNode::Ptr node = TestNode::project("a.prj");
        const QVariant value = dataOf(node, CatalogStructureModel::StructureNodeRole);
        QCOMPARE(value.typeName(), "boost::shared_ptr<CatalogStructureNodeI>");
        QCOMPARE(value.userType(),
                 QMetaType::fromName("boost::shared_ptr<CatalogStructureNodeI>").id());
        QCOMPARE(CatalogStructureModel::nodeFrom(value).get(), node.get());
    }

    void nodeFromOtherValues()
    {
        QVERIFY(!CatalogStructureModel::nodeFrom(QVariant()));
        QVERIFY(!CatalogStructureModel::nodeFrom(QVariant("text")));
        QVERIFY(!CatalogStructureModel::nodeFrom(QVariant(5)));
        QVERIFY(!CatalogStructureModel::nodeFrom(QVariant::fromValue(Node())));
        const Node node = TestNode::project("a.prj");
        QCOMPARE(CatalogStructureModel::nodeFrom(QVariant::fromValue(node)), node);
    }

    void toolTip_data()
    {
        QTest::addColumn<int>("type");
        QTest::addColumn<int>("state");
        QTest::addColumn<bool>("conflicts");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, int type, int state, bool conflicts,
                            const QStringList &parts) {
            QTest::newRow(name) << type << state << conflicts << parts.join(QString());
        };
        row("nothing", 2, 0, false, {});
        row("bits that say nothing", 2, 0x403, false, {});
        row("unconfirmed", 2, 0x080, false, {Unconfirmed});
        row("unmapped", 2, 0x100, false, {Unmapped});
        row("confirmed", 2, 0x200, false, {Confirmed});
        row("table error of a project", 2, 0x800, false, {TableError});
        row("table error of type 3", 3, 0x800, false, {TableError});
        row("table error of a directory", 1, 0x800, false, {TableErrorBelow});
        row("table error of a root", 0, 0x800, false, {TableError});
        row("conflict only", 2, 0, true, {Conflict});
        row("unconfirmed and confirmed", 2, 0x280, false, {Unconfirmed, Break, Confirmed});
        row("unconfirmed and conflict", 2, 0x080, true, {Unconfirmed, Conflict});
        row("error and conflict", 1, 0x800, true, {TableErrorBelow, Conflict});
        row("unmapped and error", 2, 0x900, false, {Unmapped, Break, TableError});
        row("all", 2, 0xF83, true,
            {Unconfirmed, Break, Unmapped, Break, Confirmed, Break, TableError, Conflict});
    }
    void toolTip()
    {
        QFETCH(int, type);
        QFETCH(int, state);
        QFETCH(bool, conflicts);
        const TestNode::Ptr node = TestNode::project("a.prj", state);
        node->type = type;
        node->conflicts = conflicts;
        const QVariant value = dataOf(node, Qt::ToolTipRole);
        QCOMPARE(value.typeId(), int(QMetaType::QString));
        QTEST(value.toString(), "text");
    }

    void toolTipIsTranslatedSentenceBySentence()
    {
        const TestNode::Ptr node = TestNode::project("a.prj", 0xB80);
        node->conflicts = true;
        MarkingTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(dataOf(node, Qt::ToolTipRole).toString(),
                 QString("<nobr>VelkLinkDbGui:Es</nobr><br /><nobr>VelkLinkDbGui:Es</nobr><br />"
                         "<nobr>VelkLinkDbGui:Es</nobr><br /><nobr>VelkLinkDbGui:Di</nobr>"
                         "<nobr>VelkLinkDbGui:Es</nobr>"));
        QVERIFY(QCoreApplication::removeTranslator(&translator));
    }

    void invalidateGoesBottomUpThroughTheWholeTree()
    {
        const TestNode::Ptr root = sampleTree();
        CatalogStructureModel model(root);
        QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
        QSignalSpy reset(&model, &QAbstractItemModel::modelReset);
        QSignalSpy layout(&model, &QAbstractItemModel::layoutChanged);
        model.invalidateNodes();
        QCOMPARE(TestNode::invalidated,
                 (QStringList{"c.prj", "b", "d.prj", "a", "e", "f.prj", "root"}));
        QCOMPARE(root->children[0]->children[0]->asked, 1);
        QCOMPARE(changed.size() + reset.size() + layout.size(), 0);
        model.invalidateNodes();
        QCOMPARE(TestNode::invalidated.size(), 14);
        QCOMPARE(root->asked, 1);
    }

    void invalidateByTheRootItself()
    {
        // A root of the host that wraps another one and hands the short way on.
        class WrappedRoot : public TestNode, public StateTreeI
        {
        public:
            WrappedRoot()
                : TestNode(0, "wrapped")
            {
            }
            void invalidateTree() override { ++dropped; }
            int dropped = 0;
        };
        const auto root = boost::make_shared<WrappedRoot>();
        root->children = {TestNode::directory("a", {TestNode::project("c.prj")})};
        CatalogStructureModel model(root);
        model.invalidateNodes();
        QCOMPARE(root->dropped, 1);
        QCOMPARE(root->asked, 0);
        QCOMPARE(TestNode::invalidated, QStringList());
        // From an item below it the nodes are walked.
        model.invalidateNodes(model.index(0, 0));
        QCOMPARE(TestNode::invalidated, (QStringList{"c.prj", "a"}));
    }

    void invalidateBelowOneItem()
    {
        CatalogStructureModel model(sampleTree());
        model.invalidateNodes(model.index(0, 0));
        QCOMPARE(TestNode::invalidated, (QStringList{"c.prj", "b", "d.prj", "a"}));
    }

    void invalidateReachesEveryDirectoryOfARelease()
    {
        const auto mapping = [](PRJMAPPING::CheckState state) {
            PrjMappingC result;
            result.setSourcePath("a/b/c.prj");
            result.setSourceVersion("v");
            PrjMappingTargetC target;
            target.addLineId(1, 1, state, QString());
            result.addTarget(target);
            return result;
        };
        ReleaseMappingC release;
        release.addMapping(mapping(PRJMAPPING::ToCheck));
        ReleaseMappingHandler handler(release, "root", QString());
        CatalogStructureModel model(handler.getRootStructureNode());
        const QModelIndex a = model.index(0, 0);
        const QModelIndex b = model.index(0, 0, a);
        const QModelIndex c = model.index(0, 0, b);
        const auto states = [&] {
            QList<int> list;
            for (const QModelIndex &index : {a, b, c})
                list += index.data(CatalogStructureModel::MappingStateRole).toInt();
            return list;
        };
        QCOMPARE(states(), (QList<int>{0x081, 0x081, 0x080}));
        handler.updateMapping(mapping(PRJMAPPING::Verified));
        QCOMPARE(states(), (QList<int>{0x081, 0x081, 0x200}));
        model.invalidateNodes();
        QCOMPARE(states(), (QList<int>{0x201, 0x201, 0x200}));
    }

    void newProjectsDoNotAppear()
    {
        const TestNode::Ptr root = sampleTree();
        CatalogStructureModel model(root);
        QCOMPARE(texts(model), QString("a(b(c.prj) d.prj) e f.prj"));
        root->children += TestNode::project("g.prj");
        model.invalidateNodes();
        QCOMPARE(texts(model), QString("a(b(c.prj) d.prj) e f.prj"));
    }

    void everythingElseIsTheBaseClass()
    {
        CatalogStructureModel model(sampleTree());
        const QModelIndex a = model.index(0, 0);
        QCOMPARE(model.flags(a), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QVERIFY(!model.setData(a, "x"));
        QCOMPARE(model.headerData(0, Qt::Horizontal), QVariant(1));
    }

    void nodesAreHeldWhileTheModelLives()
    {
        const int before = TestNode::alive;
        {
            const CatalogStructureModel model(sampleTree());
            QCOMPARE(texts(model), QString("a(b(c.prj) d.prj) e f.prj"));
            QCOMPARE(TestNode::alive, before + 7);
        }
        QCOMPARE(TestNode::alive, before);
    }
};

QTEST_MAIN(tst_CatalogStructureModel)
#include "tst_CatalogStructureModel.moc"
