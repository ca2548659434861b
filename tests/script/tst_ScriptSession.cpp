#include "../support/EnglishTexts.h"
#include "../support/SizeLimit.h"
#include "../support/TestCatalog.h"

#include <core/component/PMemManager.h>
#include <core/Version.h>
#include <geomcore/records/MappingFile.h>
#include <script/run/ScriptSession.h>

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

#include <sys/stat.h>

/// What scripts have in every program, and how their runs end.
class tst_ScriptSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void reads_data();
    void reads();
    void errors_data();
    void errors();
    void withoutAnything();
    void tablesStayWithinTheCatalogs();
    void mappingStaysAsItWas();
    void rows_data();
    void rows();
    void outputIsCompleteOrAbsent_data();
    void outputIsCompleteOrAbsent();
    void outputThatCannotBeWritten();
    void outputEndsWithItsRun();
    void fullDisk();
    void files_data();
    void files();
    void unreadableFiles_data();
    void unreadableFiles();
    void stopped();
    void linesAreNoBurden();

private:
    [[nodiscard]] QString path(const QString &name) const { return m_source.root() + u'/' + name; }
    ScriptOutcome run(const QString &program)
    {
        return m_session->run(program, QStringLiteral("test.js"));
    }
    static QByteArray contentOf(const QString &file)
    {
        QFile in(file);
        return in.open(QIODevice::ReadOnly) ? in.readAll() : QByteArray("absent");
    }
    [[nodiscard]] static QString textOf(const mzComVariantC &value)
    {
        mzComStringC text;
        static_cast<void>(value.getExt(text));
        return text.text();
    }

    TestCatalog m_source;
    TestCatalog m_target;
    ReleaseMappingC m_release;
    std::unique_ptr<ScriptSession> m_session;
    QString m_output;
};

void tst_ScriptSession::initTestCase()
{
    m_source.write("cat/bolt.prj", "Dia:n,Note\n8,\"a \"\"b\"\"\"\n10,%1\n12,\n14,x\n16,y\n",
                   [](VKTab::TableDescriptor &descriptor) {
                       descriptor.normNumber = QStringLiteral("DIN 931");
                   });
    m_source.write("cat/broken.prj", "a\n1\"\n");
    m_target.write("new/screw.prj", "Dia:n\n8\n");
    PrjMappingC mapping = mappingOf("cat/bolt.prj", {"new/screw.prj", "new/none.prj", ""});
    enter(mapping, 0, 1, 7, PRJMAPPING::Mapped);
    enter(mapping, 0, 2, 8, PRJMAPPING::ToCheck, "{A=1} -> 8");
    enter(mapping, 1, 2, 9, PRJMAPPING::Verified);
    enter(mapping, 2, 3, -1, PRJMAPPING::ToCheck);
    enter(mapping, 2, 4, -1, PRJMAPPING::Verified);
    enter(mapping, 0, 5, 9, PRJMAPPING::Verified);
    mapping.changeTarget(0, [](PrjMappingTargetC &target) { target.setLineConflicted(5, true); });
    mapping.updateMappingState();
    m_release.setSourceDate("2025-01-01");
    m_release.setTargetDate("2026-01-01");
    m_release.addMapping(mapping);
    PrjMappingC broken = mappingOf("cat/broken.prj", {});
    broken.setMappingState(PRJMAPPING::StateTableError);
    m_release.addMapping(broken);
    MappingFile file;
    file.setRelease(m_release);
    ReleaseMappingC last = m_release;
    last.setSourceDate("2025-06-01");
    file.setRelease(last);
    QVERIFY(file.write(path("m.json")));
    QVERIFY(MappingFile().write(path("empty.json")));
    QCOMPARE(::mkfifo(qPrintable(path("pipe")), 0600), 0);
}

void tst_ScriptSession::init()
{
    m_session = std::make_unique<ScriptSession>();
    m_session->setMapping(m_release, {m_source.root(), m_target.root()});
    m_output = path("out.csv");
    QFile::remove(m_output);
}

void tst_ScriptSession::cleanup()
{
    m_session.reset();
    QCOMPARE(PMemManager::liveObjects(), 0);
}

void tst_ScriptSession::reads_data()
{
    QTest::addColumn<QString>("expression");
    QTest::addColumn<QString>("expected");
    const auto row = [](const char *expression, const QString &expected) {
        QTest::newRow(expression) << QString::fromUtf8(expression) << expected;
    };
    row("velk.version", velkVersion());
    row("args.length", "0");
    row("output", "null");
    row("mapping.sourceDate", "2025-01-01");
    row("mapping.targetDate", "2026-01-01");
    row("mapping.sourceRoot", m_source.root());
    row("mapping.targetRoot", m_target.root());
    row("mapping.projectCount", "2");
    row("mapping.projectAt(2)", "null");
    row("mapping.projectAt(-1)", "null");
    row("mapping.project('none')", "null");
    row("mapping.projectAt(1).path", "cat/broken.prj");
    row("mapping.projectAt(1).hasTableError", "true");
    row("mapping.projectAt(0).hasTableError", "false");
    row("mapping.project('cat/bolt.prj').version", "v1");
    row("[p.lines, p.notFound, p.mapped, p.toCheck, p.verified]", "6,2,1,1,3");
    row("p.targetCount + p.targetAt(1) + p.targetAt(2) + p.targetAt(3)", "3new/none.prj");
    row("p.rowCount", "6");
    row("[2, 3, 9].map(line => p.rowOf(line))", "1,3,-1");
    const QString all = "Array.from({length: 6}, (_, i) => p.%1(i)).join('|')";
    row(qPrintable(all.arg("sourceLineAt")), "1|2|2|3|4|5");
    row(qPrintable(all.arg("targetLineAt")), "7|8|9|-1|-1|9");
    row(qPrintable(all.arg("targetPathAt")),
        "new/screw.prj|new/screw.prj|new/none.prj|||new/screw.prj");
    row(qPrintable(all.arg("stateAt")), "1|0|2|0|2|2");
    row(qPrintable(all.arg("isConflictAt")), "false|false|false|false|false|true");
    row(qPrintable(all.arg("isOpenAt")), "false|true|false|true|false|true");
    row(qPrintable(all.arg("textAt")), "|{A=1} -> 8||||");
    row("p.sourceTable().lineCount", "5");
    row("p.sourceTable().normNumber", "DIN 931");
    row("p.sourceTable().path", m_source.file("cat/bolt.prj"));
    row("p.sourceTable().value(1, 'Note')", "a \"b\"");
    row("p.sourceTable().value(2, 'Note')", "%1");
    row("p.sourceTable().number(2, 'Dia')", "10");
    row("p.targetTable('new/screw.prj').lineCount", "1");
    row(qPrintable("velk.openTable('" + m_source.file("cat/bolt.prj") + "').lineCount"), "5");
    row(qPrintable("velk.openMapping('" + path("m.json") + "').sourceDate"), "2025-06-01");
    row(qPrintable("velk.openRelease('" + path("m.json") + "', '2025-01-01', '" + m_source.root() +
                   "', '').project('cat/bolt.prj').sourceTable().lineCount"),
        "5");
    row("String(mapping) + p", "[prxReleaseMappingC][prxProjectMappingC]");
}

void tst_ScriptSession::reads()
{
    QFETCH(QString, expression);
    const ScriptOutcome outcome = run("var p = mapping.projectAt(0); String(" + expression + ")");
    QVERIFY2(outcome.state == ScriptOutcome::Done, qPrintable(outcome.error.text()));
    QTEST(textOf(outcome.value), "expected");
}

void tst_ScriptSession::errors_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("message");
    const QString p = "\nmapping.projectAt(0).";
    QTest::newRow("row") << p + "stateAt(6)"
                         << "The mapping of \"cat/bolt.prj\" has no row 6";
    QTest::newRow("negative row") << p + "textAt(-1)"
                                  << "The mapping of \"cat/bolt.prj\" has no row -1";
    QTest::newRow("fraction") << p + "textAt(1.5)"
                              << "prxProjectMappingC.textAt: argument 1 is of the wrong type";
    QTest::newRow("no target file") << p + "targetTable('new/none.prj')"
                                    << "new/none.prj";
    QTest::newRow("empty path") << p + "targetTable('')"
                                << "A table is read by the path of its project; this one is empty";
    QTest::newRow("broken table") << "\nmapping.projectAt(1).sourceTable()"
                                  << "broken.csv: row 2, column 1: ";
    QTest::newRow("mapping") << "\nvelk.openMapping('/none.json')"
                             << "/none.json";
    QTest::newRow("mapping without release") << "\nvelk.openMapping('" + path("empty.json") + "')"
                                             << "the file holds no release";
    QTest::newRow("release") << "\nvelk.openRelease('" + path("m.json") + "', '1999', '', '')"
                             << "there is no release 1999; the file holds 2025-01-01, 2025-06-01";
    QTest::newRow("no release") << "\nvelk.openRelease('" + path("m.json") + "', '', '', '')"
                                << "there is no release ; the file holds";
    QTest::newRow("pipe") << "\nvelk.openTable('" + path("pipe") + "')" << path("pipe");
    QTest::newRow("folder") << "\nvelk.openMapping('/')"
                            << "/";
}

void tst_ScriptSession::errors()
{
    QFETCH(QString, program);
    QFETCH(QString, message);
    const ScriptOutcome outcome = run(program);
    QCOMPARE(outcome.state, ScriptOutcome::Failed);
    QVERIFY2(outcome.error.message.contains(message), qPrintable(outcome.error.message));
    QCOMPARE(outcome.error.file, QStringLiteral("test.js"));
    QCOMPARE(outcome.error.line, 2);
}

void tst_ScriptSession::withoutAnything()
{
    m_session->setNoMapping();
    QVERIFY(run("mapping === null && output === null && args.length === 0").value ==
            mzComVariantC(true));
}

void tst_ScriptSession::tablesStayWithinTheCatalogs()
{
    for (const QString name : {"../../etc/passwd", "/etc/passwd", "cat/../../x.prj"}) {
        const ScriptOutcome outcome = run("mapping.projectAt(0).targetTable('" + name + "')");
        QCOMPARE(outcome.state, ScriptOutcome::Failed);
        QVERIFY2(!outcome.error.message.isEmpty(), qPrintable(name));
    }
}

void tst_ScriptSession::mappingStaysAsItWas()
{
    run("var kept = mapping; var project = mapping.projectAt(0)");
    m_session->setMapping({}, {});
    QCOMPARE(
        textOf(run("mapping.projectCount + ' ' + kept.projectCount + ' ' + project.lines").value),
        QStringLiteral("0 2 6"));
}

void tst_ScriptSession::rows_data()
{
    QTest::addColumn<QString>("cells");
    QTest::addColumn<QString>("expected");
    QTest::newRow("kinds") << "['a', 1, 1.5, -0.1, 1e300, true, null, undefined, NaN]"
                           << "a,1,1.5,-0.1,1e+300,true,,,nan\n";
    QTest::newRow("quotes") << R"(['a"b', 'c,d', 'e\nf', 'g\rh', "it's", ' '])"
                            << "\"a\"\"b\",\"c,d\",\"e\nf\",\"g\rh\",it's, \n";
    QTest::newRow("none") << "[]"
                          << "\n";
    QTest::newRow("one that is empty") << "['']"
                                       << "\"\"\n";
    QTest::newRow("holes") << "[1, , 2]"
                           << "1,,2\n";
    QTest::newRow("like a list") << "({length: 2, 0: 'a', 1: 'b'})"
                                 << "a,b\n";
    QTest::newRow("planes") << QStringLiteral("['\u00e4\u4e2d\U0001f529%1\\\\']")
                            << QStringLiteral("\u00e4\u4e2d\U0001f529%1\\\n");
    QTest::newRow("NUL") << "['a\\0b']" << QStringLiteral("a") + QChar(0) + QStringLiteral("b\n");
}

void tst_ScriptSession::rows()
{
    QFETCH(QString, cells);
    QString error;
    QVERIFY2(m_session->setOutput(m_output, &error), qPrintable(error));
    const ScriptOutcome outcome = run("output.writeRow(" + cells + ")");
    QVERIFY2(outcome.state == ScriptOutcome::Done, qPrintable(outcome.error.text()));
    QTEST(QString::fromUtf8(contentOf(m_output)), "expected");
}

void tst_ScriptSession::outputIsCompleteOrAbsent_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QByteArray>("expected");
    QTest::newRow("complete") << "output.write('a'); output.writeLine('b\\n%1')"
                              << QByteArray("ab\n%1\n");
    QTest::newRow("empty") << "1" << QByteArray();
    QTest::newRow("ends itself") << "output.write('a'); exit(3)" << QByteArray("a");
    QTest::newRow("fails") << "output.write('a'); throw 1" << QByteArray("absent");
    QTest::newRow("does not parse") << "output.write('a'" << QByteArray("absent");
    QTest::newRow("never ends") << "output.write('a'); for (;;);" << QByteArray("absent");
    QTest::newRow("no list") << "output.writeRow({})" << QByteArray("absent");
    QTest::newRow("text as list") << "output.writeRow('abc')" << QByteArray("absent");
    QTest::newRow("far too long") << "output.writeRow({length: 2147483647})"
                                  << QByteArray("absent");
    QTest::newRow("object in a cell") << "output.writeRow([mapping])" << QByteArray("absent");
    QTest::newRow("throwing list")
        << "output.writeRow({get length() { throw new Error('x'); }})" << QByteArray("absent");
}

void tst_ScriptSession::outputIsCompleteOrAbsent()
{
    QFETCH(QString, program);
    QFETCH(QByteArray, expected);
    m_session->engine().setLimits({.silent = std::chrono::milliseconds(100)});
    QVERIFY(m_session->setOutput(m_output, nullptr));
    const ScriptOutcome outcome = run(program);
    QCOMPARE(outcome.state, expected == "absent" ? ScriptOutcome::Failed : ScriptOutcome::Done);
    m_session.reset();
    QCOMPARE(contentOf(m_output), expected);
    QCOMPARE(QDir(m_source.root()).entryList({"out.csv*"}).size(), expected == "absent" ? 0 : 1);
}

void tst_ScriptSession::outputThatCannotBeWritten()
{
    QString error;
    QVERIFY(!m_session->setOutput(path("none/out.csv"), &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!m_session->setOutput(path("pipe"), &error));
    QVERIFY(run("output === null").value == mzComVariantC(true));
}

void tst_ScriptSession::outputEndsWithItsRun()
{
    QVERIFY(m_session->setOutput(m_output, nullptr));
    QCOMPARE(run("output.write('a')").state, ScriptOutcome::Done);
    const ScriptOutcome second = run("output.write('b')");
    QCOMPARE(second.state, ScriptOutcome::Failed);
    QCOMPARE(second.error.message, QStringLiteral("Error: The output is closed"));
    QCOMPARE(contentOf(m_output), QByteArray("a"));
}

void tst_ScriptSession::fullDisk()
{
    QVERIFY(m_session->setOutput(m_output, nullptr));
    const SizeLimit limit(10);
    const ScriptOutcome outcome = run("output.write('more than ten bytes')");
    QCOMPARE(outcome.state, ScriptOutcome::NotWritten);
    QVERIFY2(outcome.error.message.startsWith("The output cannot be written: "),
             qPrintable(outcome.error.message));
    QCOMPARE(outcome.error.file, m_output);
    QVERIFY(QDir(m_source.root()).entryList({"out.csv*"}).isEmpty());
}

void tst_ScriptSession::files_data()
{
    QTest::addColumn<QByteArray>("program");
    QTest::addColumn<QString>("expected");
    QTest::newRow("plain") << QByteArray("'ä'") << QStringLiteral("ä");
    QTest::newRow("byte order mark") << QByteArray("\xef\xbb\xbf'a'") << QStringLiteral("a");
    QTest::newRow("program line") << QByteArray("#!/usr/bin/env velkmap\n'a'")
                                  << QStringLiteral("a");
    QTest::newRow("empty") << QByteArray() << QString();
    QTest::newRow("args") << QByteArray("args.join('/')") << QStringLiteral("a b/%1/");
}

void tst_ScriptSession::files()
{
    QFETCH(QByteArray, program);
    m_source.writeFile("test.js", program);
    m_session->setArguments({"a b", "%1", ""});
    const ScriptOutcome outcome = m_session->runFile(path("test.js"));
    QVERIFY2(outcome.state == ScriptOutcome::Done, qPrintable(outcome.error.text()));
    QTEST(textOf(outcome.value), "expected");
    m_source.writeFile("test.js", "#!/x\n\nthrow new Error('no')");
    const ScriptOutcome failed = m_session->runFile(path("test.js"));
    QCOMPARE(failed.error.text(), path("test.js") + ":3: Error: no");
}

void tst_ScriptSession::unreadableFiles_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("cause");
    QTest::newRow("none") << "none.js"
                          << "No such file or directory";
    QTest::newRow("folder") << "cat"
                            << "it is a directory";
    QTest::newRow("pipe") << "pipe"
                          << "it is no regular file";
    QTest::newRow("no text") << "bytes.js"
                             << "it is no text in UTF-8";
    QTest::newRow("NUL in the name")
        << QStringLiteral("a") + QChar(0) + QStringLiteral("b") << "the name has a NUL in it";
}

void tst_ScriptSession::unreadableFiles()
{
    QFETCH(QString, name);
    m_source.writeFile("bytes.js", "'\xff\xfe\xc3'");
    const QString file = path(name);
    const ScriptOutcome outcome = m_session->runFile(file);
    QCOMPARE(outcome.state, ScriptOutcome::Unreadable);
    QCOMPARE(outcome.error.file, file);
    QFETCH(QString, cause);
    QCOMPARE(outcome.error.message, "The script cannot be read: " + cause);
}

void tst_ScriptSession::stopped()
{
    m_session->engine().setBreath([this] { m_session->engine().stop(); });
    QCOMPARE(run("for (;;) print(1)").state, ScriptOutcome::Stopped);
}

/// Objects that a script forgets go while it runs, without an event loop.
void tst_ScriptSession::linesAreNoBurden()
{
    int most = 0;
    m_session->engine().setPrinter(
        [&](const QString &) { most = std::max(most, PMemManager::liveObjects()); });
    const ScriptOutcome outcome =
        run("for (let i = 0; i < 60000; ++i) { mapping.projectAt(0).rowCount;"
            "  if (i % 1000 == 0) print(i); }");
    QVERIFY2(outcome.state == ScriptOutcome::Done, qPrintable(outcome.error.text()));
    QVERIFY2(most < 50000, qPrintable(QString::number(most)));
}

QTEST_GUILESS_MAIN(tst_ScriptSession)
#include "tst_ScriptSession.moc"
