#include "../support/EnglishTexts.h"
#include "../support/TestCatalog.h"

#include <geomcore/linkdb/PLinkDbC.h>
#include <geomcore/records/MappingFile.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTest>
#include <QTextStream>

#include <csignal>

using velkmap::ExitStatus;

/// Scripts in the batch program.
class tst_RunCommand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void runs_data();
    void runs();
    void usage_data();
    void usage();
    void outputs();
    void linkDatabase();
    void interrupted();

private:
    ExitStatus run(const QStringList &arguments)
    {
        m_out.clear();
        m_err.clear();
        QTextStream out(&m_out);
        QTextStream err(&m_err);
        return velkmap::run(QStringList{"run"} + arguments, out, err);
    }
    [[nodiscard]] QString path(const QString &name) const { return m_catalog.root() + u'/' + name; }

    TestCatalog m_catalog;
    QString m_out;
    QString m_err;
};

void tst_RunCommand::initTestCase()
{
    m_catalog.write("cat/a.prj", "Dia:n\n8\n10\n");
    PrjMappingC mapping = mappingOf("cat/a.prj", {"cat/a.prj"});
    enter(mapping, 0, 1, 2, PRJMAPPING::Mapped);
    ReleaseMappingC release;
    release.setSourceDate("2025-01-01");
    release.addMapping(mapping);
    MappingFile file;
    file.setRelease(release);
    release.setSourceDate("2025-06-01");
    file.setRelease(release);
    QVERIFY(file.write(path("m.json")));
}

void tst_RunCommand::runs_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("out");
    QTest::addColumn<QString>("err");
    const QStringList mapping{"--mapping", path("m.json"), "--source", m_catalog.root()};
    const auto row = [](const char *name, const QByteArray &program, const QStringList &arguments,
                        int status, const QString &out, const QString &err = {}) {
        QTest::newRow(name) << program << arguments << status << out << err;
    };
    row("prints", "print('ä', args.length)", {}, 0, "ä 0\n");
    row("arguments", "print(args.join('|'))", {"a b", "--", "--c", "%1"}, 0, "a b|--c|%1\n");
    row("status", "print(1); exit(7); print(2)", {}, 7, "1\n");
    row("status beyond a byte", "exit(258)", {}, 2, "");
    row("no mapping", "print(mapping, output)", {}, 0, "null null\n");
    row("last release", "print(mapping.sourceDate)", mapping, 0, "2025-06-01\n");
    row("chosen release", "print(mapping.sourceDate)",
        mapping + QStringList{"--release", "2025-01-01"}, 0, "2025-01-01\n");
    row("table", "print(mapping.projectAt(0).sourceTable().value(2, 'Dia'))", mapping, 0, "10\n");
    row("no such release", "1", mapping + QStringList{"--release", "1999"}, 2, "",
        "there is no release 1999");
    row("no such mapping", "1", {"--mapping", path("none.json")}, 2, "", "none.json");
    row("error", "print(1);\nthrow new Error('no %1')", {}, 6, "1\n", "test.js:2: Error: no %1\n");
    row("does not parse", "let a = ;", {}, 6, "", "test.js:1: SyntaxError");
    row("time limit", "for (;;);", {"--time-limit", "0.1"}, 6, "",
        "test.js: The script was stopped: it took more than 0.1 s\n");
    row("memory limit", "const a = []; for (;;) a.push(new Array(1000).fill(1))",
        {"--memory-limit", "50", "--time-limit", "60"}, 6, "",
        "it took more than 50 MB of memory\n");
}

void tst_RunCommand::runs()
{
    QFETCH(QByteArray, program);
    QFETCH(QStringList, arguments);
    QFETCH(QString, err);
    m_catalog.writeFile("test.js", program);
    const ExitStatus status = run(QStringList(path("test.js")) + arguments);
    QVERIFY2(m_err.contains(err), qPrintable(m_err));
    QVERIFY2(!err.isEmpty() || m_err.isEmpty(), qPrintable(m_err));
    QTEST(int(status), "status");
    QTEST(m_out, "out");
}

void tst_RunCommand::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("err");
    QTest::newRow("no script") << QStringList() << 1 << "which script?";
    QTest::newRow("option") << QStringList{"x.js", "--fly"} << 1 << "fly";
    QTest::newRow("time") << QStringList{"x.js", "--time-limit", "soon"} << 1 << "--time-limit";
    QTest::newRow("negative") << QStringList{"x.js", "--time-limit", "-1"} << 1 << "--time-limit";
    QTest::newRow("memory") << QStringList{"x.js", "--memory-limit", "x"} << 1 << "--memory-limit";
    QTest::newRow("no file") << QStringList{"/none.js"} << 2
                             << "/none.js: The script cannot be read: ";
    QTest::newRow("output") << QStringList{"/none.js", "--output", "/none/x"} << 3
                            << "/none/x cannot be written: ";
}

void tst_RunCommand::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, err);
    QTEST(int(run(arguments)), "status");
    QVERIFY2(m_err.contains(err), qPrintable(m_err));
    QCOMPARE(m_out, QString());
}

void tst_RunCommand::outputs()
{
    m_catalog.writeFile("test.js", "output.writeRow([args[0], 'a,b'])");
    QCOMPARE(run({path("test.js"), "--output", path("o.csv"), "1"}), ExitStatus::Done);
    QFile file(path("o.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("1,\"a,b\"\n"));
    // A failing script leaves it.
    m_catalog.writeFile("test.js", "output.write('x'); throw 1");
    QCOMPARE(run({path("test.js"), "--output", path("o.csv")}), ExitStatus::ScriptFailed);
    file.seek(0);
    QCOMPARE(file.readAll(), QByteArray("1,\"a,b\"\n"));
}

void tst_RunCommand::linkDatabase()
{
    {
        PLinkDbC linkDb;
        QVERIFY(linkDb.open(LinkDbSettings::fromText(path("links.db"))));
        PLinkDbRecordC record = linkDb.createRecord("plm_document");
        record.setValue("PRJ_PATH", "cat/a.prj");
        record.setValue("LINE_ID", 1);
        record.setValue("PDMID1", "47,11");
        QVERIFY(linkDb.executeInsertStatement(
            linkDb.createSqlStatement("plm_document", record, false)));
    }
    m_catalog.writeFile(
        "test.js", "print(velk.hasLinkDb);\n"
                   "const n = velk.erpNumbers('cat/a.prj');\n"
                   "print(n.lineCount, n.lineAt(0), n.lineAt(1), n.numbersOf(1), n.numbersOf(2));\n"
                   "const db = createObject('tmvtools.linkdb'); print(db.codeV(\"it's\", true))");
    QCOMPARE(run({path("test.js"), "--linkdb", path("links.db")}), ExitStatus::Done);
    QCOMPARE(m_out, QString("true\n1 1 -1 47,11 \n'it''s'\n"));
    QCOMPARE(run({path("test.js")}), ExitStatus::ScriptFailed);
    QCOMPARE(m_out, QString("false\n"));
    QCOMPARE(m_err, QString("velkmap run: " + path("test.js") +
                            ":2: Error: No link database is connected.\n"));
    QCOMPARE(run({path("test.js"), "--linkdb", "postgresql://"}), ExitStatus::WrongUsage);
    QCOMPARE(run({path("test.js"), "--linkdb", path("cat")}), ExitStatus::InputUnreadable);
    // In the export.
    QString text;
    QTextStream stream(&text);
    QCOMPARE(velkmap::run({"export", "--mapping", path("m.json"), "--csv", path("e.csv"),
                           "--linkdb", path("links.db")},
                          stream, stream),
             ExitStatus::Done);
    QFile file(path("e.csv"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("source_path,source_version,source_line,target_path,"
                                        "target_line,state,conflict,extended,erp_number\n"
                                        "cat/a.prj,v1,1,cat/a.prj,2,1,0,,\"47,11\"\n"));
}

void tst_RunCommand::interrupted()
{
    m_catalog.writeFile("test.js",
                        "print('begun'); output.write('x');\n"
                        "for (const end = Date.now() + 200; Date.now() < end;) print('');\n"
                        "for (;;);");
    QProcess process;
    process.start(QStringLiteral(VELK_BINARY_DIR "/bin/velkmap"),
                  {"run", path("test.js"), "--output", path("never.csv")});
    QVERIFY(process.waitForReadyRead(20000));
    QVERIFY(::kill(pid_t(process.processId()), SIGINT) == 0);
    QVERIFY(process.waitForFinished(20000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 130);
    QCOMPARE(QString::fromUtf8(process.readAllStandardError()),
             QString("velkmap run: " + path("test.js") + ": The script was stopped\n"));
    QVERIFY(!QFile::exists(path("never.csv")));
}

QTEST_GUILESS_MAIN(tst_RunCommand)
#include "tst_RunCommand.moc"
