#include <core/text/PathAlias.h>
#include <core/text/PPathName.h>

#include <QTest>

#include <atomic>
#include <thread>

namespace {

const QString begin = QStringLiteral("$VELK_ALIAS/root");

} // namespace

class tst_PathAlias : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { qputenv("VELK_ALIAS", "/environment"); }
    void cleanup()
    {
        PathAlias::set(begin, QString());
        qunsetenv("VELK_ALIAS");
    }

    void replaces_data()
    {
        QTest::addColumn<QString>("path");
        QTest::addColumn<QString>("native");
        QTest::newRow("the begin alone") << begin << "/alias";
        QTest::newRow("below") << begin + "/cat/a.prj"
                               << "/alias/cat/a.prj";
        QTest::newRow("backslashes") << "$VELK_ALIAS\\root\\a.prj"
                                     << "/alias/a.prj";
        QTest::newRow("braces") << "${VELK_ALIAS}/root/a.prj"
                                << "/alias/a.prj";
        QTest::newRow("half a component") << begin + "s/a.prj"
                                          << "/environment/roots/a.prj";
        QTest::newRow("another begin") << "$VELK_ALIAS/a.prj"
                                       << "/environment/a.prj";
        QTest::newRow("not at the begin") << "/x/" + begin << "/x//environment/root";
    }
    void replaces()
    {
        QFETCH(QString, path);
        QFETCH(QString, native);
        PathAlias::set(begin, "/alias");
        const PPathName name(path);
        QCOMPARE(QString(name.native()), PPathName(native).native());
        QCOMPARE(QString(name.text()), path);
        QCOMPARE(name, PPathName(native));
    }

    void isTakenBack()
    {
        PathAlias::set(begin, "/alias");
        PathAlias::set(begin, "/other");
        QCOMPARE(QString(PPathName(begin).native()), QStringLiteral("/other"));
        PathAlias::set(begin, QString());
        QCOMPARE(QString(PPathName(begin).native()), QStringLiteral("/environment/root"));
    }

    void mayHaveReferences()
    {
        PathAlias::set(begin, "$VELK_ALIAS/root/deeper");
        QCOMPARE(QString(PPathName(begin + "/a").native()),
                 QStringLiteral("/environment/root/deeper/a"));
    }

    void changesBesideReaders()
    {
        PathAlias::set(begin, "/one");
        std::atomic_bool wrong = false;
        std::thread reader([&] {
            for (int i = 0; i < 2000; ++i) {
                const QString path = PPathName(begin + "/a").native();
                if (path != "/one/a" && path != "/two/a")
                    wrong = true;
            }
        });
        for (int i = 0; i < 2000; ++i)
            PathAlias::set(begin, i % 2 ? "/one" : "/two");
        reader.join();
        QVERIFY(!wrong);
    }
};

QTEST_GUILESS_MAIN(tst_PathAlias)
#include "tst_PathAlias.moc"
