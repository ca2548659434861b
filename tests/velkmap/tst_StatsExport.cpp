#include "../support/EnglishTexts.h"
#include "../support/SizeLimit.h"
#include "../support/TestCatalog.h"

#include <geomcore/records/MappingFile.h>
#include <release/export/MappingTable.h>
#include <release/history/JournalRow.h>
#include <release/share/SharedMapping.h>
#include <tools/velkmap/Commands.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <sys/stat.h>

using velkmap::ExitStatus;

namespace {

PrjMappingTargetC target(const QString &path)
{
    PrjMappingTargetC result;
    result.setTargetPath(path);
    result.setValid(true);
    return result;
}

// Every state with and without target line, a conflict, a text with everything that CSV quotes.
ReleaseMappingC someRelease()
{
    PrjMappingC mapping;
    mapping.setSourcePath("cat/a,b.prj");
    mapping.setSourceVersion("v260101000000");
    PrjMappingTargetC first = target("cat2/first.prj");
    first.addLineId(7, 70, PRJMAPPING::Mapped, "");
    first.addLineId(3, 30, PRJMAPPING::ToCheck, "");
    first.addLineId(5, 50, PRJMAPPING::Verified, "{L=1} -> 2\n\"x\"");
    first.setLineConflicted(3, true);
    PrjMappingTargetC second = target("cat2/second.prj");
    second.addLineId(4, 40, PRJMAPPING::Mapped, "");
    PrjMappingTargetC none = target("");
    none.addLineId(1, -1, PRJMAPPING::ToCheck, "");
    none.addLineId(2, -1, PRJMAPPING::Mapped, "");
    none.addLineId(6, -1, PRJMAPPING::Verified, "");
    mapping.addTarget(first);
    mapping.addTarget(second);
    mapping.addTarget(none);
    PrjMappingC broken;
    broken.setSourcePath("cat/broken.prj");
    broken.setSourceVersion("v260101000000");
    broken.setMappingState(PRJMAPPING::StateTableError);
    ReleaseMappingC release;
    release.setSourceDate("v260101000000");
    release.setTargetDate("v270101000000");
    release.addMapping(mapping);
    release.addMapping(broken);
    return release;
}

} // namespace

class tst_StatsExport : public QObject
{
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_out;
    QString m_err;

    ExitStatus run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        return velkmap::run(arguments, out, err);
    }
    QString writeMapping(const QString &name)
    {
        MappingFile file;
        ReleaseMappingC other;
        other.setSourceDate("v200101000000");
        file.setRelease(other);
        file.setRelease(someRelease());
        return file.write(m_dir.filePath(name)) ? m_dir.filePath(name) : QString();
    }

private Q_SLOTS:
    void exportsOneRowASourceLineInOrder()
    {
        QCOMPARE(VelkRelease::mappingTable(someRelease()),
                 QByteArray("source_path,source_version,source_line,target_path,target_line,state,"
                            "conflict,extended\n"
                            "\"cat/a,b.prj\",v260101000000,1,,-1,0,0,\n"
                            "\"cat/a,b.prj\",v260101000000,2,,-1,1,0,\n"
                            "\"cat/a,b.prj\",v260101000000,3,cat2/first.prj,30,0,1,\n"
                            "\"cat/a,b.prj\",v260101000000,4,cat2/second.prj,40,1,0,\n"
                            "\"cat/a,b.prj\",v260101000000,5,cat2/first.prj,50,2,0,"
                            "\"{L=1} -> 2\n\"\"x\"\"\"\n"
                            "\"cat/a,b.prj\",v260101000000,6,,-1,2,0,\n"
                            "\"cat/a,b.prj\",v260101000000,7,cat2/first.prj,70,1,0,\n"));
    }

    void exportWritesTheFile()
    {
        const QString mapping = writeMapping("export.json");
        const QString csv = m_dir.filePath("out.csv");
        QCOMPARE(run({"export", "--mapping", mapping, "--csv", csv}), ExitStatus::Done);
        QFile file(csv);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), VelkRelease::mappingTable(someRelease()));
        QVERIFY(m_err.isEmpty());
    }

    void exportThatCannotBeWritten()
    {
        const QString mapping = writeMapping("unwritable.json");
        QCOMPARE(run({"export", "--mapping", mapping, "--csv", m_dir.filePath("no/dir/out.csv")}),
                 ExitStatus::ResultUnwritable);
        QVERIFY2(m_err.contains("no/dir/out.csv"), qPrintable(m_err));
    }

    void exportOnAFullDisk()
    {
        const QString mapping = writeMapping("full.json");
        const QString csv = m_dir.filePath("full.csv");
        {
            const SizeLimit limit(100);
            QCOMPARE(run({"export", "--mapping", mapping, "--csv", csv}),
                     ExitStatus::ResultUnwritable);
        }
        QVERIFY2(m_err.contains(csv), qPrintable(m_err));
        QVERIFY(!QFile::exists(csv));
    }

    void exportIntoAPipe()
    {
        const QString mapping = writeMapping("pipe.json");
        const QString csv = m_dir.filePath("pipe.csv");
        QCOMPARE(mkfifo(QFile::encodeName(csv).constData(), 0600), 0);
        QCOMPARE(run({"export", "--mapping", mapping, "--csv", csv}), ExitStatus::ResultUnwritable);
        QVERIFY2(m_err.contains("It is no regular file."), qPrintable(m_err));
        struct stat state
        {
        };
        QCOMPARE(stat(QFile::encodeName(csv).constData(), &state), 0);
        QVERIFY(S_ISFIFO(state.st_mode));
    }

    void statsCountAsTheHandlerDoes()
    {
        const QString mapping = writeMapping("stats.json");
        QCOMPARE(run({"stats", "--mapping", mapping}), ExitStatus::Done);
        const QStringList rows = m_out.split('\n', Qt::SkipEmptyParts);
        QCOMPARE(rows.size(), 4);
        QCOMPARE(rows.at(0).simplified(),
                 QString("lines notFound mapped toCheck verified project"));
        QCOMPARE(rows.at(1).simplified(), QString("7 3 3 1 2 cat/a,b.prj"));
        QCOMPARE(rows.at(2).simplified(),
                 QString("0 0 0 0 0 cat/broken.prj (table could not be read)"));
        QCOMPARE(rows.at(3).simplified(), QString("7 3 3 1 2 in all"));
    }

    void statsAsJson()
    {
        const QString mapping = writeMapping("json.json");
        QCOMPARE(run({"stats", "--mapping", mapping, "--json"}), ExitStatus::Done);
        const QJsonObject stats = QJsonDocument::fromJson(m_out.toUtf8()).object();
        QCOMPARE(stats.value("sourceDate").toString(), QString("v260101000000"));
        QCOMPARE(stats.value("lines").toInt(), 7);
        QCOMPARE(stats.value("notFound").toInt(), 3);
        QCOMPARE(stats.value("mapped").toInt(), 3);
        QCOMPARE(stats.value("toCheck").toInt(), 1);
        QCOMPARE(stats.value("verified").toInt(), 2);
        const QJsonArray projects = stats.value("projects").toArray();
        QCOMPARE(projects.size(), 2);
        QCOMPARE(projects.at(0).toObject().value("sourcePath").toString(), QString("cat/a,b.prj"));
        QCOMPARE(projects.at(0).toObject().value("tableError").toBool(), false);
        QCOMPARE(projects.at(1).toObject().value("tableError").toBool(), true);
    }

    void statsWithReasons()
    {
        const TestCatalog old(m_dir.filePath("old"));
        old.write("cat/a.prj", "Name,D:n\nB8,8\nB9,9\nB10,10\n");
        old.write("cat/screws/b.prj", "Name\nB8\n");
        const TestCatalog now(m_dir.filePath("new"));
        now.write("cat/a.prj", "Name,D:n\nB8,8\nB9,99\nB10,10\n");
        PrjMappingC first = mappingOf("cat/a.prj", {"cat/a.prj"});
        enter(first, 0, 1, 1, PRJMAPPING::ToCheck);
        enter(first, 0, 2, 2, PRJMAPPING::ToCheck);
        enter(first, 0, 3, 3, PRJMAPPING::Verified);
        PrjMappingC second = mappingOf("cat/screws/b.prj", {"cat/a.prj", ""});
        enter(second, 1, 1, -1, PRJMAPPING::ToCheck);
        PrjMappingC third = mappingOf("cat/screwsx.prj", {"cat/a.prj", ""});
        enter(third, 1, 1, -1, PRJMAPPING::ToCheck);
        ReleaseMappingC release;
        release.setSourceDate("v1");
        for (const PrjMappingC &mapping : {first, second, third})
            release.addMapping(mapping);
        MappingFile file;
        file.setRelease(release);
        const QString path = m_dir.filePath("reasons.json");
        QVERIFY(file.write(path));
        const QStringList arguments{"stats",    "--mapping", path,        "--source", old.root(),
                                    "--target", now.root(),  "--reasons", "--others", "cat/screws"};
        // The third project's table is missing.
        QCOMPARE(run(arguments), ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("screwsx.prj"), qPrintable(m_err));
        const QStringList rows = m_out.section("Why lines are open:\n", 1).split('\n');
        QCOMPARE(rows.at(0).simplified(),
                 "clash colleague unreadable formula noTarget column equal "
                 "unlike unconfirmed project");
        QCOMPARE(rows.at(1).simplified(), "0 0 0 0 0 0 0 1 1 cat/a.prj");
        QCOMPARE(rows.at(2).simplified(), "0 1 0 0 0 0 0 0 0 cat/screws/b.prj");
        QCOMPARE(rows.at(3).simplified(), "0 0 1 0 0 0 0 0 0 cat/screwsx.prj");
        QCOMPARE(rows.at(4).simplified(), "0 1 1 0 0 0 0 1 1 in all");
        // The same when somebody took the folder over.
        const QString other = m_dir.filePath("other.json");
        QVERIFY(QFile::copy(path, other));
        const QString shared = m_dir.filePath("shared.json");
        QVERIFY(VelkRelease::SharedMapping(path).link(shared).isDone());
        VelkRelease::SharedMapping colleague(other);
        QVERIFY(colleague.link(shared).isDone());
        QVERIFY(colleague.takeFolders({"cat/screws"}).isDone());
        QCOMPARE(run(arguments.first(8)), ExitStatus::InputUnreadable);
        QCOMPARE(m_out.section("Why lines are open:\n", 1).split('\n').mid(1), rows.mid(1));
        QCOMPARE(run(arguments + QStringList{"--json"}), ExitStatus::InputUnreadable);
        const QJsonObject stats = QJsonDocument::fromJson(m_out.toUtf8()).object();
        QCOMPARE(stats.value("open").toObject().size(), 9);
        QCOMPARE(stats.value("open").toObject().value("colleague").toInt(), 1);
        QCOMPARE(stats.value("projects")
                     .toArray()
                     .at(0)
                     .toObject()
                     .value("open")
                     .toObject()
                     .value("unlike")
                     .toInt(),
                 1);
        QCOMPARE(run({"stats", "--mapping", path, "--reasons", "--source", m_dir.filePath("no")}),
                 ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("is no directory"), qPrintable(m_err));
    }

    void reportAsPage()
    {
        const TestCatalog catalog(m_dir.filePath("report"));
        catalog.write("cat/a.prj", "Name,D:n\nB8,8\nB9,9\nB10,10\nXY,99\n");
        PrjMappingC mapping = mappingOf("cat/a.prj", {"cat/a.prj", ""});
        enter(mapping, 0, 1, 1, PRJMAPPING::Verified);
        enter(mapping, 0, 2, 2, PRJMAPPING::ToCheck);
        enter(mapping, 1, 3, -1, PRJMAPPING::Verified);
        enter(mapping, 1, 4, -1, PRJMAPPING::ToCheck);
        ReleaseMappingC release;
        release.setSourceDate("v1");
        release.addMapping(mapping);
        MappingFile file;
        file.setRelease(release);
        const QString path = m_dir.filePath("report.json");
        QVERIFY(file.write(path));
        const QString page = m_dir.filePath("report.html");
        const QStringList arguments{"report",       "--mapping", path,          "--source",
                                    catalog.root(), "--target",  catalog.root()};
        QCOMPARE(run(arguments), ExitStatus::WrongUsage); // where to?
        QCOMPARE(run(arguments + QStringList{"--out", page}), ExitStatus::Done);
        QCOMPARE(m_err, QString());
        QCOMPARE(m_out, "settled lines: 2 of 4; open: 2; written to " + page + '\n');
        QFile written(page);
        QVERIFY(written.open(QIODevice::ReadOnly));
        const QString html = QString::fromUtf8(written.readAll());
        for (const char *text :
             {"<title>Mapping report: report.json</title>", "Settled lines: 2 of 4; open: 2.",
              "Open lines without a successor", "no similar line: cat",
              "Lines confirmed to have no successor", "cat/a.prj:3", "equal, only not confirmed",
              "Assigned with certainty", "UTC"})
            QVERIFY2(html.contains(text), text);
        QVERIFY(!html.contains("%1"));
        QCOMPARE(run(arguments + QStringList{"--out", page, "--others", "cat"}), ExitStatus::Done);
        QFile again(page);
        QVERIFY(again.open(QIODevice::ReadOnly));
        QVERIFY(again.readAll().contains("somebody else decides"));
        QCOMPARE(run(arguments + QStringList{"--out", m_dir.filePath("no/page.html")}),
                 ExitStatus::ResultUnwritable);
        QVERIFY2(m_err.contains("no/page.html"), qPrintable(m_err));
    }

    /// The page is written all the same, and names what is missing.
    void reportWithSamples()
    {
        const QString mapping = m_dir.filePath("samples.json");
        MappingFile file;
        ReleaseMappingC release = someRelease();
        release.setSourceDate("2022-01-01T00:00:00Z");
        file.setRelease(release);
        QVERIFY(file.write(mapping));
        QByteArray journal;
        for (const QByteArray &record :
             {QByteArray(R"({"kind":"opened","sourceDate":"2022-01-01T00:00:00Z"})"),
              QByteArray(R"({"kind":"sample","time":"2022-02-03T04:05:06.000Z","note":{)"
                         R"("judge":"mia","lines":345,"drawn":["cat/a.prj:1"],"right":59,)"
                         R"("judged":59,"certainty":"0.95","bound":"0.049510"}})"),
              QByteArray(R"({"kind":"sample","time":"2022-02-04T04:05:06.000Z","note":{)"
                         R"("judge":"tom","lines":17,"drawn":[],"right":2,"judged":3}})"),
              QByteArray(R"({"kind":"opened","sourceDate":"2023-01-01T00:00:00Z"})"),
              QByteArray(R"({"kind":"sample","time":"2023-02-04T04:05:06.000Z","note":{)"
                         R"("judge":"eve","lines":18,"right":2,"judged":3}})")})
            journal += VelkRelease::JournalRow::frame(record);
        QFile beside(mapping + ".journal");
        QVERIFY(beside.open(QIODevice::WriteOnly) && beside.write(journal) == journal.size());
        beside.close();
        const QString page = m_dir.filePath("samples.html");
        (void)run({"report", "--mapping", mapping, "--out", page, "--source", m_dir.path(),
                   "--target", m_dir.path()});
        QFile written(page);
        QVERIFY(written.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(written.readAll());
        const QStringList rows =
            text.split("<tr>").filter("mia") + text.split("<tr>").filter("tom");
        QCOMPARE(rows.size(), 2);
        QVERIFY2(rows[0].contains("2022-02-03 04:05 UTC") && rows[0].contains("345") &&
                     rows[0].contains("5.0 %"),
                 qPrintable(rows[0]));
        QVERIFY2(rows[1].contains("refused"), qPrintable(rows[1]));
        QVERIFY(!text.contains("eve<"));
    }

    void reportWithoutTables()
    {
        const QString mapping = writeMapping("lost.json");
        const QString page = m_dir.filePath("lost.html");
        QCOMPARE(run({"report", "--mapping", mapping, "--out", page, "--source", m_dir.path(),
                      "--target", m_dir.path()}),
                 ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("a,b.prj"), qPrintable(m_err));
        QFile written(page);
        QVERIFY(written.open(QIODevice::ReadOnly));
        QVERIFY(written.readAll().contains("What could not be read"));
    }

    void releaseIsChosenByDate()
    {
        const QString mapping = writeMapping("dates.json");
        QCOMPARE(run({"stats", "--mapping", mapping, "--release", "v200101000000"}),
                 ExitStatus::Done);
        QVERIFY(m_out.split('\n').at(1).endsWith("in all"));
        QCOMPARE(run({"stats", "--mapping", mapping, "--release", "v1"}),
                 ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("there is no release v1; the file holds v200101000000, "
                                "v260101000000"),
                 qPrintable(m_err));
    }

    void badMappingFiles_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("no JSON") << QByteArray("hello");
        QTest::newRow("cut off") << QByteArray("{\"v1\": {\"sourceDate\": \"v1\"");
        QTest::newRow("no release") << QByteArray("{}");
        QTest::newRow("release is a number") << QByteArray("{\"v1\": 5}");
    }
    void badMappingFiles()
    {
        QFETCH(QByteArray, content);
        const QString path = m_dir.filePath("bad.json");
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        for (const char *command : {"stats", "export"}) {
            QCOMPARE(
                run(QStringList{command, "--mapping", path, "--csv", m_dir.filePath("bad.csv")}.mid(
                    0, QByteArray(command) == "stats" ? 3 : 5)),
                ExitStatus::InputUnreadable);
            QVERIFY2(m_err.contains(path), qPrintable(m_err));
            QVERIFY(!QFile::exists(m_dir.filePath("bad.csv")));
        }
    }

    void tellsWhatWasPutRight()
    {
        PrjMappingC mapping;
        mapping.setSourcePath("cat/a.prj");
        mapping.setTargets({target(""), target("cat2/first.prj")});
        ReleaseMappingC release;
        release.setSourceDate("v1");
        release.addMapping(mapping);
        MappingFile file;
        file.setRelease(release);
        const QString path = m_dir.filePath("moved.json");
        QVERIFY(file.write(path));
        QCOMPARE(run({"stats", "--mapping", path}), ExitStatus::Done);
        QVERIFY2(m_err.contains("moved to the end"), qPrintable(m_err));
    }

    void missingMappingFile()
    {
        QCOMPARE(run({"stats", "--mapping", m_dir.filePath("none.json")}),
                 ExitStatus::InputUnreadable);
        QVERIFY2(m_err.contains("none.json"), qPrintable(m_err));
    }
};

QTEST_GUILESS_MAIN(tst_StatsExport)
#include "tst_StatsExport.moc"
