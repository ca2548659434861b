#include <mapping/data/CatalogNodeType.h>
#include <mapping/data/LookUpTreeI.h>
#include <mapping/data/ReleaseMappingHandler.h>

#include <QTest>

using Node = boost::shared_ptr<CatalogStructureNodeI>;

namespace {

PrjMappingC mapping(const QString &path, const QString &version, const QString &tableVersion)
{
    PrjMappingC result;
    result.setSourcePath(path);
    result.setSourceVersion(version);
    result.setTabVersion(tableVersion);
    return result;
}

/// What rowsTo has to give, found by looking at all nodes.
QList<QList<int>> rowsBelow(const Node &node, const QString &path)
{
    QList<QList<int>> found;
    const QList<Node> children = node->getChildren();
    for (int row = 0; row < children.size(); ++row) {
        const Node &child = children.at(row);
        if (CatalogNodeType::isProject(child->getNodeType()) && child->getPath() == path)
            found += QList<int>{row};
        for (const QList<int> &below : rowsBelow(child, path))
            found += QList<int>{row} + below;
    }
    return found;
}

QList<QList<int>> rowsTo(const Node &root, const QString &path)
{
    return dynamic_cast<const LookUpTreeI &>(*root).rowsTo(path);
}

} // namespace

class tst_LookUpTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oddPaths_data();
    void oddPaths();
    void rowsOfARelease();
    void othersHaveNone_data();
    void othersHaveNone();
    void theTreeDoesNotShowWhatCameLater();
};

void tst_LookUpTree::oddPaths_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("folders");
    QTest::newRow("no separator") << "a.prj" << 0;
    QTest::newRow("backslashes") << "a\\b\\c.prj" << 2;
    QTest::newRow("mixed") << "a\\b/c.prj" << 2;
    QTest::newRow("leading separator") << "/a.prj" << 1;
    QTest::newRow("doubled separator") << "a//b.prj" << 2;
    QTest::newRow("separator at the end") << "a/" << 1;
}

void tst_LookUpTree::oddPaths()
{
    QFETCH(QString, path);
    QFETCH(int, folders);
    ReleaseMappingC release;
    release.addMapping(mapping(path, "v1", "t1"));
    const ReleaseMappingHandler handler(release, "root", "");
    QCOMPARE(rowsTo(handler.getRootStructureNode(), path),
             QList<QList<int>>{QList<int>(folders + 1, 0)});
}

namespace {

/// Folders and projects in no order; "a/y.prj" in two versions and two versions of its table.
ReleaseMappingC mixedRelease()
{
    ReleaseMappingC release;
    for (const char *const path : {"top.prj", "b/z.prj", "a/y.prj", "a\\b/c.prj", "a/a.prj",
                                   "b/y.prj", "a/b.prj", "a/b/c.prj", "Z/x.prj"})
        release.addMapping(mapping(path, "v1", "t1"));
    release.addMapping(mapping("a/y.prj", "v2", "t1"));
    release.addMapping(mapping("a/y.prj", "v1", "t2"));
    return release;
}

} // namespace

void tst_LookUpTree::rowsOfARelease()
{
    const ReleaseMappingC release = mixedRelease();
    const ReleaseMappingHandler handler(release, "root", "");
    const Node root = handler.getRootStructureNode();
    for (int i = 0; i < release.countMappings(); ++i) {
        const QString path = release.mappingAt(i).getSourcePath();
        QCOMPARE(rowsTo(root, path), rowsBelow(root, path));
    }
    QCOMPARE(rowsTo(root, "a/y.prj").size(), 3);
}

void tst_LookUpTree::othersHaveNone_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("nothing") << "";
    QTest::newRow("a folder") << "a";
    QTest::newRow("a folder with separator") << "a/";
    QTest::newRow("other project") << "a/x.prj";
    QTest::newRow("other folder") << "c/z.prj";
    QTest::newRow("folder of another one") << "a/b/y.prj";
    QTest::newRow("other case") << "A/y.prj";
    QTest::newRow("other separator") << "a\\y.prj";
}

void tst_LookUpTree::othersHaveNone()
{
    QFETCH(QString, path);
    const ReleaseMappingHandler handler(mixedRelease(), "root", "");
    QCOMPARE(rowsTo(handler.getRootStructureNode(), path), QList<QList<int>>());
}

void tst_LookUpTree::theTreeDoesNotShowWhatCameLater()
{
    ReleaseMappingHandler handler(mixedRelease(), "root", "");
    const Node root = handler.getRootStructureNode();
    QCOMPARE(rowsTo(root, "a/y.prj").size(), 3);
    handler.updateMapping(mapping("a/new.prj", "v1", "t1"));
    handler.updateMapping(mapping("new/a.prj", "v1", "t1"));
    QCOMPARE(rowsTo(root, "a/new.prj"), QList<QList<int>>());
    QCOMPARE(rowsTo(root, "new/a.prj"), QList<QList<int>>());
}

QTEST_GUILESS_MAIN(tst_LookUpTree)
#include "tst_LookUpTree.moc"
