#include "IndexTreeFolder.h"

#include <geomcore/index/IndexTreeDisplayItemC.h>
#include <geomcore/index/IndexTreeErpSourceI.h>

#include <QIcon>

namespace {

QStringList namesOf(const PRefPtr<IndexTreeNodeC> &node)
{
    QStringList names;
    for (const PRefPtr<IndexTreeNodeC> &child : node->children())
        names += child->name() + (child->isProject() ? "" : "/");
    return names;
}

QString pathOf(const PRefPtr<IndexTreeNodeC> &node)
{
    return node ? node->treePath() : QString("none");
}

/// Knows the projects whose name begins with an "e".
class ErpSource : public IndexTreeErpSourceI
{
public:
    QList<QStringList> asked;

    QSet<QString> markedProjects(const QStringList &paths) override
    {
        asked.append(paths);
        QSet<QString> marked;
        for (const QString &path : paths) {
            if (path.section('/', -1).startsWith('e'))
                marked.insert(path);
        }
        return marked;
    }
};

/// While it lives, the tree of the process asks it.
struct ErpGuard
{
    std::shared_ptr<ErpSource> source = std::make_shared<ErpSource>();
    ErpGuard() { IndexTreeC::instance()->setErpSource(source); }
    ~ErpGuard() { IndexTreeC::instance()->setErpSource(nullptr); }
};

} // namespace

class tst_IndexTreeNodeC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void directoriesComeFirst()
    {
        const IndexTreeFolder folder({"std/b.prj", "std/A.prj", "std/a.prj", "std/z/", "std/B/",
                                      "std/notes.txt/", "std/.hidden/x.prj", "std/.x.prj",
                                      "top.prj", "alpha/"});
        QFile other(folder.root() + "/std/table.csv");
        QVERIFY(other.open(QIODevice::WriteOnly));
        const PRefPtr<IndexTreeNodeC> root = folder.tree()->getRoot();
        QCOMPARE(namesOf(root), QStringList({"alpha/", "std/"})); // no project beside catalogs
        QCOMPARE(namesOf(root->child("std")),
                 QStringList({"B/", "notes.txt/", "z/", "A.prj", "a.prj", "b.prj"}));
        QCOMPARE(namesOf(root->child("alpha")), QStringList());
        QVERIFY(root->child("std")->hasChildren());
        QVERIFY(!root->child("alpha")->hasChildren());
        QVERIFY(!root->child("std")->child("a.prj")->hasChildren());
    }

    void saysWhereItIs()
    {
        const IndexTreeFolder folder({"std/nuts/a.prj"});
        const PRefPtr<IndexTreeC> tree = folder.tree();
        const auto project = tree->findNodeByTreePath("cat/std/nuts/a.prj", "");
        QVERIFY(project);
        QCOMPARE(project->kind(), IndexTreeNodeC::Project);
        QCOMPARE(project->catalogPath(), QString("std/nuts/a.prj"));
        QCOMPARE(project->file(), QDir::toNativeSeparators(folder.root() + "/std/nuts/a.prj"));
        QCOMPARE(QString(project->getType()), QString("VIEW3D/"));
        QCOMPARE(pathOf(project->parent()), QString("cat/std/nuts"));
        QCOMPARE(QString(project->parent()->getType()), QString("DIRECTORY/"));
        QCOMPARE(pathOf(project->parent()->parent()->parent()), QString("cat"));
        QCOMPARE(project->parent()->parent()->parent()->kind(), IndexTreeNodeC::Root);
        QVERIFY(!tree->getRoot()->parent());
        QCOMPARE(tree->getRoot()->name(), QString());
    }

    void findsByTreePath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("below");
        QTest::addColumn<QString>("found");
        QTest::newRow("catalog") << "cat/std"
                                 << ""
                                 << "cat/std";
        QTest::newRow("separator at the end") << "cat/std/"
                                              << ""
                                              << "cat/std";
        QTest::newRow("root") << "cat"
                              << ""
                              << "cat";
        QTest::newRow("root with separator") << "cat/"
                                             << ""
                                             << "cat";
        QTest::newRow("project below") << "cat/std"
                                       << "nuts/a.prj"
                                       << "cat/std/nuts/a.prj";
        QTest::newRow("no such catalog") << "cat/other"
                                         << ""
                                         << "none";
        QTest::newRow("below a project") << "cat/std/nuts/a.prj"
                                         << "x"
                                         << "none";
        QTest::newRow("no tree path") << "std"
                                      << ""
                                      << "none";
        QTest::newRow("empty") << ""
                               << ""
                               << "none";
        QTest::newRow("case counts") << "cat/STD"
                                     << ""
                                     << "none";
        QTest::newRow("leads up") << "cat/std/.."
                                  << ""
                                  << "none";
        QTest::newRow("leads nowhere") << "cat/./std"
                                       << ""
                                       << "none";
        QTest::newRow("no project") << "cat/std/nuts/a.csv"
                                    << ""
                                    << "none";
    }
    void findsByTreePath()
    {
        QFETCH(QString, path);
        QFETCH(QString, below);
        const IndexTreeFolder folder({"std/nuts/a.prj"});
        QFile table(folder.root() + "/std/nuts/a.csv");
        QVERIFY(table.open(QIODevice::WriteOnly));
        QTEST(pathOf(folder.tree()->findNodeByTreePath(path, below)), "found");
    }

    void linksDoNotLeadOut()
    {
        const IndexTreeFolder folder({"std/nuts/a.prj"});
        const IndexTreeFolder elsewhere({"far/b.prj"});
        QVERIFY(QFile::link(elsewhere.root() + "/far", folder.root() + "/std/out"));
        QVERIFY(QFile::link(folder.root() + "/std/nuts", folder.root() + "/std/in"));
        const auto catalog = folder.tree()->findNodeByTreePath("cat/std", "");
        QCOMPARE(namesOf(catalog), QStringList({"in/", "nuts/"}));
        QVERIFY(!catalog->child("out"));
    }

    void describesItself()
    {
        const IndexTreeFolder folder({"std/plain.prj", "std/nuts/"});
        folder.add("std/named.prj", "DIN 931 <b>%1");
        const auto catalog = folder.tree()->findNodeByTreePath("cat/std", "");
        const auto named = catalog->child("named.prj");
        QCOMPARE(named->description(), QString("DIN 931 <b>%1"));
        QCOMPARE(catalog->child("plain.prj")->description(), QString("plain.prj"));
        QCOMPARE(catalog->child("nuts")->description(), QString("nuts"));
        folder.add("std/named.prj", "other");
        QCOMPARE(named->description(), QString("DIN 931 <b>%1")); // read once
        QCOMPARE(catalog->child("named.prj")->description(), QString("other"));
    }

    void itemGivesData_data()
    {
        QTest::addColumn<QVariantList>("index");
        QTest::addColumn<QVariant>("project");
        QTest::addColumn<QVariant>("directory");
        const auto number = [](int field) {
            return QVariantList{field};
        };
        QTest::newRow("file name") << number(2) << QVariant("a.prj") << QVariant("nuts");
        QTest::newRow("description") << number(6) << QVariant("Nut") << QVariant("nuts");
        QTest::newRow("catalog path")
            << QVariantList{35, 4} << QVariant("std/nuts/a.prj") << QVariant("std/nuts");
        QTest::newRow("native path")
            << number(35) << QVariant("ROOT/std/nuts/a.prj") << QVariant("ROOT/std/nuts");
        QTest::newRow("selectable") << number(44) << QVariant("true") << QVariant("false");
        QTest::newRow("unknown") << number(7) << QVariant() << QVariant();
    }
    void itemGivesData()
    {
        QFETCH(QVariantList, index);
        const IndexTreeFolder folder({"std/nuts/"});
        folder.add("std/nuts/a.prj", "Nut");
        const auto node = folder.tree()->findNodeByTreePath("cat/std/nuts", "");
        const DisplayIndexC wanted = index.size() == 1 ? DisplayIndexC(index.at(0).toInt())
                                                       : DisplayIndexC(index.at(0), index.at(1));
        const auto dataOf = [&](const PRefPtr<IndexTreeNodeC> &of) {
            QVariant data = IndexTreeDisplayItemC::createFromNode(of)->data(wanted);
            return data.isValid() ? QVariant(data.toString().replace(folder.root(), "ROOT")) : data;
        };
        QTEST(dataOf(node->child("a.prj")), "project");
        QTEST(dataOf(node), "directory");
    }

    void onlyProjectsCanBeChosen()
    {
        const IndexTreeFolder folder({"std/a.prj"});
        const auto item =
            IndexTreeDisplayItemC::createFromNode(folder.tree()->findNodeByTreePath("cat/std", ""));
        QVERIFY(!item->canSelect());
        QVERIFY(!item->canActivate());
        QVERIFY(item->hasChildren());
        QCOMPARE(item->children().size(), 1);
        const auto project = item->children().first();
        QVERIFY(project->canSelect());
        QVERIFY(project->canActivate());
        QVERIFY(!project->hasChildren());
        QVERIFY(!IndexTreeDisplayItemC::createFromNode(nullptr));
    }

    void erpMarkIsAskedOnce()
    {
        const ErpGuard erp;
        const IndexTreeFolder folder({"std/a.prj", "std/e.prj"});
        const auto catalog = folder.tree()->findNodeByTreePath("cat/std", "");
        const auto iconKey = [&](const QString &name, int form) {
            const auto node = name.isEmpty() ? catalog : catalog->child(name);
            const auto item = IndexTreeDisplayItemC::createFromNode(node);
            const auto key = [&] {
                return item->data(DisplayIndexC(QVariant(23), QVariant(form))).value<QIcon>();
            };
            (void)key();
            return key().pixmap(16).toImage();
        };
        QVERIFY(!iconKey("", 1).isNull());
        QCOMPARE(iconKey("", 1), iconKey("", 0));
        QCOMPARE(iconKey("a.prj", 1), iconKey("a.prj", 0));
        QVERIFY(iconKey("e.prj", 1) != iconKey("e.prj", 0));
        QCOMPARE(erp.source->asked,
                 (QList<QStringList>{{"std/a.prj"}, {"std/e.prj"}})); // none for form 0
    }
};

QTEST_MAIN(tst_IndexTreeNodeC)
#include "tst_IndexTreeNodeC.moc"
