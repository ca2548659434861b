#include <geomcore/repository/RepositoryAddress.h>

#include <QTest>

class tst_RepositoryAddress : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void addresses_data();
    void addresses();
    void urls_data();
    void urls();
    void urlsBelow();
};

void tst_RepositoryAddress::addresses_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("catalog");
    QTest::addColumn<QString>("path");
    QTest::newRow("usual") << "svn://cat/trunk/catalog/a b/p.prj"
                           << "cat"
                           << "a b/p.prj";
    QTest::newRow("separators") << "svn://cat/trunk/catalog//a\\p.prj"
                                << "cat"
                                << "a/p.prj";
    QTest::newRow("no path") << "svn://cat/trunk/catalog/"
                             << ""
                             << "";
    QTest::newRow("no catalog") << "svn:///trunk/catalog/a"
                                << ""
                                << "";
    QTest::newRow("other place") << "svn://cat/branches/catalog/a"
                                 << ""
                                 << "";
    QTest::newRow("begin of a name") << "svn://cat/trunk/catalogs/a"
                                     << ""
                                     << "";
    QTest::newRow("other scheme") << "http://cat/trunk/catalog/a"
                                  << ""
                                  << "";
    QTest::newRow("leads out") << "svn://cat/trunk/catalog/a/../../b"
                               << ""
                               << "";
    QTest::newRow("dot") << "svn://cat/trunk/catalog/./b"
                         << ""
                         << "";
    QTest::newRow("line feed") << "svn://cat/trunk/catalog/a\nb"
                               << ""
                               << "";
    QTest::newRow("NUL") << "svn://cat/trunk/catalog/a" + QString(QChar(u'\0')) << ""
                         << "";
    QTest::newRow("file") << "/trunk/catalog/a"
                          << ""
                          << "";
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
}

void tst_RepositoryAddress::addresses()
{
    QFETCH(QString, address);
    const RepositoryAddress parts = RepositoryAddress::of(address);
    QTEST(parts.isValid() ? parts.catalog : QString(""), "catalog");
    QTEST(parts.isValid() ? parts.path : QString(""), "path");
}

void tst_RepositoryAddress::urls_data()
{
    QTest::addColumn<QString>("catalog");
    QTest::addColumn<QString>("server");
    QTest::addColumn<QString>("url");
    QTest::newRow("name") << "std"
                          << ""
                          << "svn://std/trunk/catalog";
    QTest::newRow("name and port") << "std.local:3691"
                                   << ""
                                   << "svn://std.local:3691/trunk/catalog";
    QTest::newRow("server") << "a b"
                            << "svn://h:1/r/s-1"
                            << "svn://h:1/r/s-1/trunk/catalog";
    QTest::newRow("numbers") << "c"
                             << "svn://[::1]:3690"
                             << "svn://[::1]:3690/trunk/catalog";
    QTest::newRow("option") << "-x"
                            << ""
                            << "";
    QTest::newRow("user") << "u@h"
                          << ""
                          << "";
    QTest::newRow("blank") << "a b"
                           << ""
                           << "";
    QTest::newRow("shell") << "a;b"
                           << ""
                           << "";
    QTest::newRow("tunnel") << "c"
                            << "svn+ssh://h"
                            << "";
    QTest::newRow("file") << "c"
                          << "file:///r"
                          << "";
    QTest::newRow("server's path leads out") << "c"
                                             << "svn://h/../r"
                                             << "";
    QTest::newRow("line feed at the end") << "c"
                                          << "svn://h\n"
                                          << "";
}

void tst_RepositoryAddress::urls()
{
    QFETCH(QString, catalog);
    QFETCH(QString, server);
    QTEST(repositoryUrlOf(catalog, server), "url");
}

void tst_RepositoryAddress::urlsBelow()
{
    QCOMPARE(repositoryUrlBelow("svn://h/c", ""), "svn://h/c");
    QCOMPARE(repositoryUrlBelow("svn://h/c", "a b/50%@2/\u00fc"),
             "svn://h/c/a%20b/50%25%402/%C3%BC");
}

QTEST_GUILESS_MAIN(tst_RepositoryAddress)
#include "tst_RepositoryAddress.moc"
