#include <geomcore/records/FolderLevel.h>

#include <QTest>

namespace {

PrjMappingC mapping(const QString &path, const QString &version = QStringLiteral("v1"),
                    const QString &tableVersion = QString())
{
    PrjMappingC result;
    result.setSourcePath(path);
    result.setSourceVersion(version);
    result.setTabVersion(tableVersion);
    return result;
}

} // namespace

class tst_FolderLevel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void order_data()
    {
        QTest::addColumn<QStringList>("paths");
        QTest::addColumn<QList<int>>("order");
        QTest::newRow("nothing") << QStringList() << QList<int>();
        QTest::newRow("folders before projects")
            << QStringList{"top.prj", "a/y.prj", "a/b/c.prj"} << QList<int>{2, 1, 0};
        QTest::newRow("folders by code units, projects as stored")
            << QStringList{"b/z.prj", "Z/x.prj", "a/y.prj", "a/a.prj"} << QList<int>{1, 2, 3, 0};
        QTest::newRow("a folder whose projects stand apart")
            << QStringList{"a/1.prj", "b/1.prj", "a/2.prj", "b/2.prj"} << QList<int>{0, 2, 1, 3};
        QTest::newRow("a backslash separates")
            << QStringList{"b.prj", "a\\b\\c.prj", "a/b/d.prj"} << QList<int>{1, 2, 0};
        QTest::newRow("empty components")
            << QStringList{"a.prj", "a//b.prj", "/c.prj", "a/b/d.prj"} << QList<int>{2, 1, 3, 0};
    }
    void order()
    {
        QFETCH(QStringList, paths);
        ReleaseMappingC release;
        for (const QString &path : paths)
            release.addMapping(mapping(path));
        QTEST(folderOrder(release), "order");
    }

    void theFirstOfAPathAndVersionStandsForAll()
    {
        ReleaseMappingC release;
        release.appendMapping(mapping("a/b.prj", "v1", "t1"));
        release.appendMapping(mapping("a/b.prj", "v2", "t1"));
        release.appendMapping(mapping("a/b.prj", "v1", "t2"));
        release.appendMapping(mapping("a/a.prj"));
        QCOMPARE(folderOrder(release), (QList<int>{0, 1, 3}));
    }

    void foldersOfAPath_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QStringList>("folders");
        QTest::newRow("none") << "a.prj" << QStringList();
        QTest::newRow("several") << "a/b/c.prj" << QStringList{"a", "b"};
        QTest::newRow("backslashes") << "a\\b/c.prj" << QStringList{"a", "b"};
        QTest::newRow("empty components") << "/a//c.prj" << QStringList{"", "a", ""};
        QTest::newRow("separator at the end") << "a/" << QStringList{"a"};
    }
    void foldersOfAPath()
    {
        QFETCH(QString, path);
        QStringList folders;
        for (const QStringView folder : foldersOf(path))
            folders += folder.toString();
        QTEST(folders, "folders");
        // As a level tells them apart.
        ReleaseMappingC release;
        release.addMapping(mapping(path));
        for (int depth = 1; depth <= folders.size(); ++depth)
            QCOMPARE(FolderLevel(release, {0}, depth).folders.keys(),
                     QStringList(folders.at(depth - 1)));
        QCOMPARE(FolderLevel(release, {0}, int(folders.size()) + 1).projects, QList<int>{0});
    }

    void oneLevel()
    {
        ReleaseMappingC release;
        for (const char *path : {"a/b/1.prj", "a/2.prj", "a/c/3.prj", "a/b/4.prj", "a/5.prj"})
            release.addMapping(mapping(QString::fromLatin1(path)));
        const FolderLevel level(release, {0, 1, 2, 3, 4}, 2);
        QCOMPARE(level.folders.keys(), (QStringList{"b", "c"}));
        QCOMPARE(level.folders.value("b"), (QList<int>{0, 3}));
        QCOMPARE(level.projects, (QList<int>{1, 4}));
    }
};

QTEST_GUILESS_MAIN(tst_FolderLevel)
#include "tst_FolderLevel.moc"
