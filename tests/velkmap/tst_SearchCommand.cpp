#include "../support/EnglishTexts.h"

#include <geomcore/search/CatalogIndexUpdate.h>
#include <tools/velkmap/Commands.h>
#include <tools/velkmap/TerminalProgress.h>

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

using velkmap::ExitStatus;

class tst_SearchCommand : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_out;
    QString m_err;

    void write(const QString &path, const QByteArray &bytes)
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_dir.filePath(path)).path()));
        QFile file(m_dir.filePath(path));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    ExitStatus run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        return velkmap::run(QStringList{"search"} + arguments, out, err);
    }
    ExitStatus search(const QStringList &arguments)
    {
        return run(
            QStringList{"--root", m_dir.filePath("root"), "--index", m_dir.filePath("index")} +
            arguments);
    }

private Q_SLOTS:
    void initTestCase()
    {
        write("root/std/nuts/a.prj", "[PROJECT]\nNAME=Hexagon nut\nSACHM=a.json\n");
        write("root/std/nuts/a.json",
              R"({"normNumber": "ISO 4032", "lineDesignation": "ISO 4032 - {Dia}"})");
        write("root/std/nuts/a.csv", "Dia,m\nM8,6.8\nM10,8.4\n");
        write("root/std/deep/c.prj", "[PROJECT]\nNAME=Elsewhere\nSACHM=../tables/c.json\n");
        write("root/std/tables/c.json", "{}");
        write("root/std/tables/c.csv", "Kind\nbrass\n");
        write("root/std/b.prj", "[PROJECT]\nNAME=\"Bolt \\n\\\"<b>\\\"\"\n");
    }

    void printsProjectsAndLines()
    {
        QCOMPARE(search({"hexagon", "m8"}), ExitStatus::Done);
        QCOMPARE(m_out, QString("std/nuts/a.prj  Hexagon nut  (2 lines, 1 found)\n"
                                "    1: ISO 4032 - M8\n"));
        QCOMPARE(m_err, QString());
        QCOMPARE(search({"--lines", "0", "m8"}), ExitStatus::Done);
        QCOMPARE(m_out, QString("std/nuts/a.prj  Hexagon nut  (2 lines, 1 found)\n"));
        QCOMPARE(search({"bolt"}), ExitStatus::Done);
        QCOMPARE(m_out, QString("std/b.prj  Bolt  \"<b>\"\n")); // one row
    }

    // Within the root, which nobody else has named.
    void tableInAnotherFolder()
    {
        QCOMPARE(search({"brass"}), ExitStatus::Done);
        QCOMPARE(m_out, QString("std/deep/c.prj  Elsewhere  (1 line, 1 found)\n"
                                "    1: Kind = brass\n"));
    }

    void printsJson()
    {
        QCOMPARE(search({"--json", "--where", "m > 8"}), ExitStatus::Done);
        const QJsonObject json = QJsonDocument::fromJson(m_out.toUtf8()).object();
        QCOMPARE(json["state"].toString(), QString("found"));
        QCOMPARE(json["hasMore"].toBool(true), false);
        const QJsonObject expected{
            {"path", "std/nuts/a.prj"},
            {"title", "Hexagon nut"},
            {"normNumber", "ISO 4032"},
            {"lines", 2},
            {"matchingLines", 1},
            {"firstLines", QJsonArray{QJsonObject{{"line", 2}, {"text", "ISO 4032 - M10"}}}}};
        QCOMPARE(json["projects"].toArray(), QJsonArray{expected});
        QCOMPARE(search({"--json", "absent"}), ExitStatus::NothingFound);
        QCOMPARE(QJsonDocument::fromJson(m_out.toUtf8()).object()["state"].toString(),
                 QString("nothingFound"));
    }

    void endsDifferently_data()
    {
        QTest::addColumn<QStringList>("arguments");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("err");
        QTest::newRow("found") << QStringList{"hexagon"} << 0 << "";
        QTest::newRow("nothing") << QStringList{"absent"} << 4
                                 << "velkmap search: nothing was found\n";
        QTest::newRow("no words") << QStringList{} << 1 << "there is nothing to look for";
        QTest::newRow("blank words") << QStringList{" "} << 1 << "there is nothing to look for";
        QTest::newRow("wrong condition")
            << QStringList{"--where", "L 20"} << 1
            << "--where: \"L 20\" has none of = != < <= > >= ~ ^ behind the variable";
        QTest::newRow("wrong limit")
            << QStringList{"--limit", "x", "m8"} << 1 << "--limit is no number";
        QTest::newRow("wrong lines")
            << QStringList{"--lines", "-1", "m8"} << 1 << "--lines is no number";
        QTest::newRow("word with a minus") << QStringList{"--", "-8"} << 4 << "nothing was found";
        QTest::newRow("limited") << QStringList{"--limit", "1", "prj"} << 0
                                 << "velkmap search: there are more; --limit 0 shows all\n";
        QTest::newRow("below") << QStringList{"--below", "std/nuts", "bolt"} << 4 << "nothing";
        QTest::newRow("conditions")
            << QStringList{"--where", "m > 8", "--where", "Dia = M8"} << 4 << "nothing";
        QTest::newRow("no root") << QStringList{"--root", "/nowhere/at/all", "m8"} << 2
                                 << "\"/nowhere/at/all\" is no readable directory";
        QTest::newRow("no index") << QStringList{"--index", m_dir.filePath("none"), "--no-update",
                                                 "m8"}
                                  << 2
                                  << "there is no index of this root in " + m_dir.filePath("none");
        QTest::newRow("no place") << QStringList{"--index", m_dir.filePath("root/std/b.prj/x"),
                                                 "m8"}
                                  << 3 << "the index could not be written: ";
    }
    void endsDifferently()
    {
        QFETCH(QStringList, arguments);
        QFETCH(QString, err);
        QTEST(int(search(arguments)), "status");
        QVERIFY2(err.isEmpty() ? m_err.isEmpty() : m_err.contains(err), qPrintable(m_err));
    }

    void noticesChanges()
    {
        QCOMPARE(search({"fresh"}), ExitStatus::NothingFound);
        write("root/std/fresh.prj", "[PROJECT]\nNAME=Fresh\n");
        QCOMPARE(search({"--no-update", "fresh"}), ExitStatus::NothingFound);
        QCOMPARE(search({"fresh"}), ExitStatus::Done);
        QVERIFY(QFile::remove(m_dir.filePath("root/std/fresh.prj")));
        QCOMPARE(search({"fresh"}), ExitStatus::NothingFound);
    }

    void indexThatOthersMake()
    {
        const QString index = m_dir.filePath("index5");
        ExitStatus status = ExitStatus::Done;
        (void)CatalogIndexUpdate(index, m_dir.filePath("root"))
            .run(CatalogIndexUpdate::Files, [&](int done, int total) {
                if (done == 0 && total > 0)
                    status = run({"--root", m_dir.filePath("root"), "--index", index, "hexagon"});
                return true;
            });
        QCOMPARE(status, ExitStatus::IndexBuilding);
        QVERIFY2(m_err.contains("another program brings the index up to date"), qPrintable(m_err));
        QVERIFY2(m_err.contains("is not complete yet"), qPrintable(m_err));
    }

    void damagedIndexIsMadeAnew()
    {
        QFile file(m_dir.filePath("index"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        file.seek(4096);
        file.write(QByteArray(int(file.size()) - 4096, 'z'));
        file.close();
        QCOMPARE(search({"hexagon"}), ExitStatus::Done);
        QVERIFY(m_out.contains("std/nuts/a.prj"));
    }

    void indexInTheCache()
    {
        const QTemporaryDir cache;
        qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
        qputenv("TORMEVA_DATA", m_dir.path().toUtf8());
        QVERIFY(QFile::link(m_dir.filePath("root"), m_dir.filePath("23d-libs")));
        QCOMPARE(run({"hexagon"}), ExitStatus::Done);
        QCOMPARE(QDir(cache.filePath("velkworkbench")).entryList({"catalog-*.index"}).size(), 1);
        QVERIFY(QFile::remove(m_dir.filePath("23d-libs")));
        qunsetenv("TORMEVA_DATA");
        qunsetenv("XDG_CACHE_HOME");
    }

    void help()
    {
        QCOMPARE(run({"--help"}), ExitStatus::Done);
        QVERIFY2(m_out.startsWith("Usage: velkmap search [options] [WORD...]\n"),
                 qPrintable(m_out));
        for (const char *option : {"--root", "--where", "--below", "--limit", "--lines", "--json",
                                   "--index", "--no-update"})
            QVERIFY2(m_out.contains(option), option);
    }

    void progressWithoutLines()
    {
        using velkmap::TerminalProgress;
        QCOMPARE(TerminalProgress::text(5, 10, 60000), QString("5 of 10 projects, 1:00 left"));
        QCOMPARE(TerminalProgress::text(10, 10, 60000), QString("10 of 10 projects"));
    }
};

QTEST_GUILESS_MAIN(tst_SearchCommand)
#include "tst_SearchCommand.moc"
