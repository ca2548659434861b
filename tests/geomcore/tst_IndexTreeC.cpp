#include <geomcore/index/IndexTreeC.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <thread>

class tst_IndexTreeC : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resolves_data();
    void resolves();
    void absolutePaths();
    void standardRoot();
    void oneInstance();
    void manyThreads();
};

void tst_IndexTreeC::resolves_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("resolved");

    QTest::newRow("catalog path") << "std/nuts/a.prj"
                                  << "/root/std/nuts/a.prj";
    QTest::newRow("leading separator") << "/std/nuts/a.prj"
                                       << "/root/std/nuts/a.prj";
    QTest::newRow("backslashes") << "std\\nuts\\a.prj"
                                 << "/root/std/nuts/a.prj";
    QTest::newRow("reference") << "$VELK_TEST_ROOT/std/a.prj"
                               << "/elsewhere/std/a.prj";
    QTest::newRow("address") << "svn://std/trunk/catalog/a.prj"
                             << "svn://std/trunk/catalog/a.prj";
    QTest::newRow("empty") << ""
                           << "";
}

void tst_IndexTreeC::resolves()
{
    QFETCH(QString, path);
    QFETCH(QString, resolved);
    qputenv("VELK_TEST_ROOT", "/elsewhere");
    const IndexTreeC tree(PPathName("/root"));
    QCOMPARE(QString(tree.compatiblePathToResolvedPath(path).native()), resolved);
    qunsetenv("VELK_TEST_ROOT");
}

void tst_IndexTreeC::absolutePaths()
{
    const QTemporaryDir dir;
    QVERIFY(QDir(dir.path()).mkpath("std"));
    QFile file(dir.filePath("std/a.prj"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const IndexTreeC tree{PPathName(dir.path())};
    QCOMPARE(QString(tree.compatiblePathToResolvedPath(QString("/std/a.prj")).native()),
             file.fileName());
    QCOMPARE(QString(tree.compatiblePathToResolvedPath(file.fileName()).native()), file.fileName());
    QVERIFY(tree.compatiblePathToResolvedPath(QString("std/a.prj")).exists(false));
    QVERIFY(!tree.compatiblePathToResolvedPath(QString("std/b.prj")).exists(false));
}

void tst_IndexTreeC::standardRoot()
{
    const IndexTreeC tree;
    QCOMPARE(QString(tree.catalogRoot().text()), QStringLiteral("$TORMEVA_DATA/23d-libs"));
    qputenv("TORMEVA_DATA", "/data");
    QCOMPARE(QString(tree.compatiblePathToResolvedPath(QString("std/a.prj")).native()),
             QStringLiteral("/data/23d-libs/std/a.prj"));
    qunsetenv("TORMEVA_DATA");
}

void tst_IndexTreeC::oneInstance()
{
    QVERIFY(IndexTreeC::instance());
    QCOMPARE(IndexTreeC::instance().get(), IndexTreeC::instance().get());
    const PPathName before = IndexTreeC::instance()->catalogRoot();
    IndexTreeC::instance()->setCatalogRoot(PPathName("/other"));
    QCOMPARE(
        QString(IndexTreeC::instance()->compatiblePathToResolvedPath(QString("a/b.prj")).native()),
        QStringLiteral("/other/a/b.prj"));
    IndexTreeC::instance()->setCatalogRoot(before);
}

void tst_IndexTreeC::manyThreads()
{
    IndexTreeC tree(PPathName("/aaaa"));
    std::atomic<int> wrong = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
        threads.emplace_back([&tree, &wrong, i] {
            for (int round = 0; round < 500; ++round) {
                if (i == 0)
                    tree.setCatalogRoot(PPathName(round % 2 ? "/aaaa" : "/bbbb"));
                const QString path = tree.compatiblePathToResolvedPath(QString("c/d.prj")).native();
                wrong += path != QLatin1String("/aaaa/c/d.prj") &&
                         path != QLatin1String("/bbbb/c/d.prj");
            }
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(wrong.load(), 0);
}

QTEST_GUILESS_MAIN(tst_IndexTreeC)
#include "tst_IndexTreeC.moc"
