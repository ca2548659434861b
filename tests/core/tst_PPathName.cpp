#include <core/text/PPathName.h>

#include <QTemporaryDir>
#include <QTest>

class tst_PPathName : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qputenv("VELK_TEST_DATA", "/srv/data/");
        qputenv("VELK_TEST_REPO", "svn://host/trunk");
        qunsetenv("VELK_TEST_UNSET");
    }

    void native_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("expected");
        QTest::newRow("empty") << ""
                               << "";
        QTest::newRow("plain") << "a/b.prj"
                               << "a/b.prj";
        QTest::newRow("backslashes") << "a\\b\\c"
                                     << "a/b/c";
        QTest::newRow("mixed and doubled") << "a\\/b//c"
                                           << "a/b/c";
        QTest::newRow("reference that ends with a separator") << "$VELK_TEST_DATA/23d"
                                                              << "/srv/data/23d";
        QTest::newRow("reference in braces") << "${VELK_TEST_DATA}x"
                                             << "/srv/data/x";
        QTest::newRow("unknown reference") << "$VELK_TEST_UNSET/x"
                                           << "$VELK_TEST_UNSET/x";
        QTest::newRow("dots stay") << "a/../b"
                                   << "a/../b";
        QTest::newRow("address") << "svn://std/trunk/catalog/a b/x.prj"
                                 << "svn://std/trunk/catalog/a b/x.prj";
        QTest::newRow("address with odd text") << "svn://h//a\\b/%1/../c/"
                                               << "svn://h//a\\b/%1/../c/";
        QTest::newRow("other scheme") << "https://h/x"
                                      << "https://h/x";
        QTest::newRow("reference to an address") << "$VELK_TEST_REPO/x"
                                                 << "svn://host/trunk/x";
        QTest::newRow("umlauts") << "Größen\\Ü"
                                 << "Größen/Ü";
    }
    void native()
    {
        QFETCH(QString, text);
        QFETCH(QString, expected);
        QCOMPARE(QString(PPathName(text).native()), expected);
        QCOMPARE(QString(PPathName(text).text()), text);
    }

    void exists()
    {
        QTemporaryDir dir;
        QFile file(dir.filePath("x.prj"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        qputenv("VELK_TEST_DIR", dir.path().toUtf8());
        QVERIFY(PPathName("$VELK_TEST_DIR").exists(true));
        QVERIFY(PPathName("$VELK_TEST_DIR").exists(false));
        QVERIFY(PPathName("$VELK_TEST_DIR\\x.prj").exists(false));
        QVERIFY(!PPathName("$VELK_TEST_DIR/x.prj").exists(true));
        QVERIFY(!PPathName("$VELK_TEST_DIR/y.prj").exists(false));
    }
    void addressesAndTheEmptyPathExistOnNoDisk()
    {
        QVERIFY(!PPathName("").exists(false));
        QVERIFY(!PPathName("").exists(true));
        QVERIFY(!PPathName("svn://std/trunk").exists(false));
        // The text alone would be a file of that name relative to the current directory.
        QTemporaryDir dir;
        QVERIFY(QDir(dir.path()).mkpath("svn:/std"));
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(dir.path()));
        const bool found = PPathName("svn://std").exists(false);
        QDir::setCurrent(before);
        QVERIFY(!found);
    }

    void join_data()
    {
        QTest::addColumn<QString>("base");
        QTest::addColumn<QString>("relative");
        QTest::addColumn<QString>("expected");
        QTest::newRow("none between") << "a"
                                      << "b"
                                      << "a/b";
        QTest::newRow("one at the base") << "a/"
                                         << "b"
                                         << "a/b";
        QTest::newRow("one at the relative") << "a"
                                             << "/b"
                                             << "a/b";
        QTest::newRow("both") << "a/"
                              << "/b"
                              << "a/b";
        QTest::newRow("several, backslashes") << "a\\\\"
                                              << "\\//b"
                                              << "a/b";
        QTest::newRow("reference stays") << "$TORMEVA_DATA/23d-libs"
                                         << "cat/x.prj"
                                         << "$TORMEVA_DATA/23d-libs/cat/x.prj";
        QTest::newRow("inner text stays") << "a\\b"
                                          << "c\\d"
                                          << "a\\b/c\\d";
        QTest::newRow("empty base") << ""
                                    << "b"
                                    << "b";
        QTest::newRow("empty relative") << "a"
                                        << ""
                                        << "a";
        QTest::newRow("root") << "/"
                              << "b"
                              << "/b";
        QTest::newRow("address") << "svn://h/t/"
                                 << "/b"
                                 << "svn://h/t/b";
        QTest::newRow("scheme alone") << "svn://"
                                      << "h"
                                      << "svn://h";
    }
    void join()
    {
        QFETCH(QString, base);
        QFETCH(QString, relative);
        QFETCH(QString, expected);
        QCOMPARE(QString((PPathName(base) + PPathName(relative)).text()), expected);
    }

    void merge_data()
    {
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("expected");
        QTest::newRow("relative") << "/cat/din"
                                  << "x.tab"
                                  << "/cat/din/x.tab";
        QTest::newRow("up one") << "/cat/din"
                                << "..\\iso\\x.tab"
                                << "/cat/iso/x.tab";
        QTest::newRow("dot") << "/cat"
                             << "./x.tab"
                             << "/cat/x.tab";
        QTest::newRow("absolute stays as it is") << "/cat"
                                                 << "/other/../x.tab"
                                                 << "/other/../x.tab";
        QTest::newRow("drive is absolute") << "/cat"
                                           << "C:\\tab\\x.tab"
                                           << "C:\\tab\\x.tab";
        QTest::newRow("absolute through a reference") << "/cat"
                                                      << "$VELK_TEST_DATA/x.tab"
                                                      << "$VELK_TEST_DATA/x.tab";
        QTest::newRow("address as file") << "/cat"
                                         << "svn://h/x"
                                         << "svn://h/x";
        QTest::newRow("address as directory") << "svn://h/a/b"
                                              << "../c.tab"
                                              << "svn://h/a/c.tab";
        QTest::newRow("reference in the directory") << "$VELK_TEST_DATA/a"
                                                    << "../../x"
                                                    << "/srv/x";
        QTest::newRow("relative directory") << "a/b"
                                            << "../x"
                                            << "a/x";
        QTest::newRow("no file") << "/cat/"
                                 << ""
                                 << "/cat";
        QTest::newRow("nothing") << ""
                                 << ""
                                 << "";
    }
    void merge()
    {
        QFETCH(QString, directory);
        QFETCH(QString, file);
        QFETCH(QString, expected);
        QCOMPARE(QString(PPathName::MergeDirAndFile(directory, file, true).text()), expected);
    }
    void mergeWithoutNormalisingKeepsTheText()
    {
        const auto merged = PPathName::MergeDirAndFile("$VELK_TEST_DATA/a", "../x", false);
        QCOMPARE(QString(merged.text()), QString("$VELK_TEST_DATA/a/../x"));
    }

    void equal_data()
    {
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        QTest::addColumn<bool>("same");
        QTest::newRow("itself") << "a/b"
                                << "a/b" << true;
        QTest::newRow("separators") << "a/b"
                                    << "a\\b" << true;
        QTest::newRow("reference on the left") << "$VELK_TEST_DATA/x"
                                               << "/srv/data/x" << true;
        QTest::newRow("reference on the right") << "\\srv\\data\\x"
                                                << "${VELK_TEST_DATA}x" << true;
        QTest::newRow("separator at the end") << "a/b/"
                                              << "a/b" << true;
        QTest::newRow("doubled") << "a//b"
                                 << "a/b" << true;
        QTest::newRow("dots") << "a/c/../b"
                              << "./a/b" << true;
        QTest::newRow("case counts") << "a/B"
                                     << "a/b" << false;
        QTest::newRow("other file") << "a/b"
                                    << "a/c" << false;
        QTest::newRow("relative is not absolute") << "a"
                                                  << "/a" << false;
        QTest::newRow("addresses") << "svn://h/a/b"
                                   << "svn://h\\a//b/" << true;
        QTest::newRow("other host") << "svn://h/a"
                                    << "svn://i/a" << false;
        QTest::newRow("host is no directory") << "svn://h/../a"
                                              << "svn://a" << false;
        QTest::newRow("address and path") << "svn://h/a"
                                          << "svn:/h/a" << false;
        QTest::newRow("empty and dot") << ""
                                       << "." << false;
        QTest::newRow("both empty") << ""
                                    << "" << true;
    }
    void equal()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        QFETCH(bool, same);
        QCOMPARE(PPathName(a) == PPathName(b), same);
        QCOMPARE(PPathName(b) == PPathName(a), same);
        if (same)
            QCOMPARE(qHash(PPathName(a), 7), qHash(PPathName(b), 7));
    }
    void servesAsKey()
    {
        const QHash<PPathName, int> hash{{PPathName("$VELK_TEST_DATA/x"), 1}};
        QCOMPARE(hash.value(PPathName("/srv\\data/x")), 1);
    }

    void parts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("directory");
        QTest::addColumn<QString>("file");
        QTest::newRow("file") << "a/b/c.prj"
                              << "a/b"
                              << "c.prj";
        QTest::newRow("backslashes") << "C:\\a\\c.prj"
                                     << "C:\\a"
                                     << "c.prj";
        QTest::newRow("one component") << "c.prj"
                                       << ""
                                       << "c.prj";
        QTest::newRow("in the root") << "/c.prj"
                                     << "/"
                                     << "c.prj";
        QTest::newRow("in a drive's root") << "C:\\c.prj"
                                           << "C:\\"
                                           << "c.prj";
        QTest::newRow("separator at the end") << "a/b/"
                                              << "a"
                                              << "b";
        QTest::newRow("two dots in the name") << "a/b.c.prj"
                                              << "a"
                                              << "b.c.prj";
        QTest::newRow("reference kept") << "$VELK_TEST_DATA/c.prj"
                                        << "$VELK_TEST_DATA"
                                        << "c.prj";
        QTest::newRow("address") << "svn://h/t/c.prj"
                                 << "svn://h/t"
                                 << "c.prj";
        QTest::newRow("host alone") << "svn://h"
                                    << ""
                                    << "h";
        QTest::newRow("empty") << ""
                               << ""
                               << "";
    }
    void parts()
    {
        QFETCH(QString, text);
        QFETCH(QString, directory);
        QFETCH(QString, file);
        QCOMPARE(QString(PPathName(text).directory().text()), directory);
        QCOMPARE(QString(PPathName(text).standardFileName()), file);
    }

    void absolute_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<bool>("expected");
        QTest::newRow("root") << "/a" << true;
        QTest::newRow("backslash") << "\\a" << true;
        QTest::newRow("drive") << "c:/a" << true;
        QTest::newRow("drive without root") << "c:a" << false;
        QTest::newRow("relative") << "a/b" << false;
        QTest::newRow("reference") << "$VELK_TEST_DATA/a" << true;
        QTest::newRow("unknown reference") << "$VELK_TEST_UNSET/a" << false;
        QTest::newRow("address") << "svn://h" << true;
        QTest::newRow("empty") << "" << false;
    }
    void absolute()
    {
        QFETCH(QString, text);
        QFETCH(bool, expected);
        QCOMPARE(PPathName(text).isAbsolute(), expected);
    }
};

QTEST_GUILESS_MAIN(tst_PPathName)
#include "tst_PPathName.moc"
