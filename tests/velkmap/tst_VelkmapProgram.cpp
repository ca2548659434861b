#include "../support/TestCatalog.h"

#include <geomcore/records/MappingFile.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>
#include <tools/velkmap/ExitStatus.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>

// The program as it is run: in a working folder, with its own standard output and beside others.
class tst_VelkmapProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void linksNoWindowLibrary();
    void exitStatusesOfTheManual();
    void unwritableOutput_data();
    void unwritableOutput();
    void twoWriters();
    void manySearches();
    void manualPageHasEveryCommand();
    void completionKnowsEveryCommand();

private:
    struct Result
    {
        int status = -1;
        QString out;
        QString err;
    };
    /// Runs in the folder of the test; relative paths are its own.
    Result run(const QString &program, const QStringList &arguments) const;
    Result velkmap(const QStringList &arguments) const { return run(m_program, arguments); }
    [[nodiscard]] QString path(const QString &name) const { return m_dir->filePath(name); }
    static QString document(const QString &name);

    const QString m_program = QStringLiteral(VELK_BINARY_DIR "/bin/velkmap");
    std::unique_ptr<QTemporaryDir> m_dir;
    const QTemporaryDir m_cache; ///< Of the program's user.
};

void tst_VelkmapProgram::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    TestCatalog(path("tables/2025")).writeFile("m/screw.csv", "key,a,b\nk1,1,2\nk2,3,4\n");
    TestCatalog(path("tables/2026")).writeFile("m/screw.csv", "key,a,b\nk2,3,4\nk1,1,2\n");
    TestCatalog(path("tables/2025")).writeFile("nut.csv", "key;a\nk1;1,5\n");
    TestCatalog(path("tables/2026")).writeFile("nut.csv", "key;a\nk1;1,5\n");
}

tst_VelkmapProgram::Result tst_VelkmapProgram::run(const QString &program,
                                                   const QStringList &arguments) const
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CACHE_HOME"), m_cache.path());
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_dir->path());
    process.start(program, arguments);
    Result result;
    if (!process.waitForFinished(60000) || process.exitStatus() != QProcess::NormalExit)
        return result;
    result.status = process.exitCode();
    result.out = QString::fromUtf8(process.readAllStandardOutput());
    result.err = QString::fromUtf8(process.readAllStandardError());
    return result;
}

QString tst_VelkmapProgram::document(const QString &name)
{
    QFile file(QStringLiteral(VELK_SOURCE_DIR "/") + name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

void tst_VelkmapProgram::linksNoWindowLibrary()
{
    const Result libraries = run("ldd", {m_program});
    QCOMPARE(libraries.status, 0);
    QVERIFY2(libraries.out.contains("libVelkRelease"), qPrintable(libraries.out));
    for (const char *name :
         {"libVelkGui", "libVelkGeomCoreGui", "libVelkLinkDbGui", "libQt6Widgets", "libQt6UiTools"})
        QVERIFY2(!libraries.out.contains(name), name);
}

void tst_VelkmapProgram::exitStatusesOfTheManual()
{
    const QString manual = document("docs/manual.md");
    const Result help = velkmap({"--help"});
    for (const auto &[status, text] : ::velkmap::exitStatusTexts) {
        const QString row = QString("| %1 | %2 |").arg(QString::number(int(status)), text);
        QVERIFY2(manual.contains(row), qPrintable(row));
        QVERIFY2(help.out.contains(QString("%1  %2\n").arg(int(status), 5).arg(text)),
                 qPrintable(help.out));
    }
}

void tst_VelkmapProgram::unwritableOutput_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("stats") << "stats --mapping m.json";
    QTest::newRow("stats for programs") << "stats --mapping m.json --json";
    QTest::newRow("assign") << "assign --mapping m.json --source old --target new";
    QTest::newRow("help") << "--help";
}

void tst_VelkmapProgram::unwritableOutput()
{
    QFETCH(QString, arguments);
    for (const char *release : {"2025 --into old/bolts", "2026 --into new/bolts"})
        QCOMPARE(velkmap(QString("import --from tables/%1").arg(release).split(' ')).status, 0);
    QCOMPARE(velkmap({"create", "--source", "old", "--target", "new", "--catalog", "bolts",
                      "--mapping", "m.json"})
                 .status,
             0);
    const QString closed = QStringLiteral("exec '%1' %2 >&-").arg(m_program, arguments);
    const Result result = run("sh", {"-c", closed});
    QCOMPARE(result.status, 3);
    QVERIFY2(result.err.contains("standard output cannot be written"), qPrintable(result.err));
}

void tst_VelkmapProgram::twoWriters()
{
    for (const char *release : {"2025 --into old/bolts", "2026 --into new/bolts"})
        QCOMPARE(velkmap(QString("import --from tables/%1").arg(release).split(' ')).status, 0);
    for (int i = 0; i < 5; ++i) {
        const QString mapping = QString("m%1.json").arg(i);
        const QStringList dates{"2020-01-01", "2021-01-01"};
        std::vector<std::unique_ptr<QProcess>> processes;
        for (const QString &date : dates) {
            auto &process = processes.emplace_back(std::make_unique<QProcess>());
            process->setWorkingDirectory(m_dir->path());
            process->start(m_program, {"create", "--source", "old", "--target", "new", "--catalog",
                                       "bolts", "--mapping", mapping, "--source-date", date});
        }
        QStringList written;
        for (size_t k = 0; k < processes.size(); ++k) {
            QVERIFY(processes[k]->waitForFinished(60000));
            const int status = processes[k]->exitCode();
            const QString err = QString::fromUtf8(processes[k]->readAllStandardError());
            QVERIFY2(status == 0 || (status == 3 && err.contains("is being worked on by")),
                     qPrintable(err));
            if (status == 0)
                written << dates.at(int(k)) + "T00:00:00Z";
        }
        MappingFile file;
        QVERIFY(file.read(path(mapping)));
        QStringList there = file.sourceDates();
        there.sort();
        QCOMPARE(there, written);
    }
}

// On one index that is not there yet.
void tst_VelkmapProgram::manySearches()
{
    QCOMPARE(velkmap({"import", "--from", "tables/2026", "--into", "new/bolts"}).status, 0);
    const QStringList search{"search", "--root", "new", "--index", "index", "k1"};
    QProcess programs[4];
    for (QProcess &program : programs) {
        program.setWorkingDirectory(m_dir->path());
        program.start(m_program, search);
    }
    int complete = 0;
    for (QProcess &program : programs) {
        QVERIFY(program.waitForFinished(60000));
        const int status = program.exitCode();
        QVERIFY2(status == int(::velkmap::ExitStatus::Done) ||
                     status == int(::velkmap::ExitStatus::IndexBuilding),
                 program.readAllStandardError().constData());
        complete += status == 0 ? 1 : 0;
    }
    QVERIFY(complete >= 1);
    const Result after = velkmap(search);
    QCOMPARE(after.status, 0);
    QCOMPARE(after.err, QString());
    QCOMPARE(after.out.count("  ("), 2);
}

void tst_VelkmapProgram::manualPageHasEveryCommand()
{
    const Result page =
        run(QStringLiteral(VELK_SOURCE_DIR "/packaging/velkmap-commands"), {m_program});
    QCOMPARE(page.status, 0);
    for (const velkmap::Command &command : velkmap::commands()) {
        const qsizetype begin = page.out.indexOf(".SS \"velkmap " + command.name + "\"\n");
        QVERIFY2(begin >= 0, qPrintable(command.name));
        const qsizetype end = page.out.indexOf("\n.SS", begin);
        const QString part = page.out.mid(begin, end - begin);
        QVERIFY2(part.contains("\nUsage: velkmap " + command.name), qPrintable(part));
        QVERIFY2(part.contains("\\-\\-help"), qPrintable(part));
        QVERIFY2(part.count(".nf") == part.count(".fi"), qPrintable(part));
    }
}

void tst_VelkmapProgram::completionKnowsEveryCommand()
{
    const auto complete = [this](const QString &words, int word) {
        const QString script =
            QStringLiteral("PATH=%1:$PATH; . %2; COMP_WORDS=(velkmap %3); COMP_CWORD=%4; _velkmap; "
                           "echo \"${COMPREPLY[*]}\"")
                .arg(QFileInfo(m_program).path(),
                     QStringLiteral(VELK_SOURCE_DIR "/packaging/completion.bash"), words)
                .arg(word);
        return run("bash", {"-c", script}).out.trimmed().split(u' ');
    };
    QStringList names{"--help", "--version"};
    for (const velkmap::Command &command : velkmap::commands()) {
        names += command.name;
        const QStringList options = complete(command.name + " --", 2);
        QVERIFY2(options.size() >= 2 && options.contains("--help"), qPrintable(command.name));
    }
    QStringList found = complete("''", 1);
    found.sort();
    names.sort();
    QCOMPARE(found, names);
}

QTEST_GUILESS_MAIN(tst_VelkmapProgram)
#include "tst_VelkmapProgram.moc"
