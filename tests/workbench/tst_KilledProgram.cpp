#include "SessionFixture.h"

#include <workbench/session/document/MappingDocument.h>
#include <workbench/session/file/GuardedSave.h>

#include <core/json/PJsonValue.h>
#include <geomcore/records/MappingFile.h>

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTest>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <memory>
#include <sys/syscall.h>
#include <unistd.h>

// This program's own calls of the system, and those of all libraries in it, come by here: at a
// given one the program is killed, before it or, where bytes are written, after half of them.
namespace {

std::atomic<int> killAt{0}; ///< 0: never
std::atomic<int> callCount{0};
std::atomic<bool> counting{false};
bool killHalfway = false;

/// True if the program has to die at this call.
bool isFatal()
{
    return counting && ++callCount == killAt;
}

[[noreturn]] void die()
{
    ::syscall(SYS_kill, ::syscall(SYS_getpid), SIGKILL);
    while (true)
        ::syscall(SYS_pause);
}

void dieIfFatal()
{
    if (isFatal())
        die();
}

} // namespace

extern "C" {
ssize_t write(int file, const void *bytes, size_t count)
{
    if (file > STDERR_FILENO && isFatal()) {
        if (killHalfway)
            ::syscall(SYS_write, file, bytes, count / 2);
        die();
    }
    return ssize_t(::syscall(SYS_write, file, bytes, count));
}
int fsync(int file)
{
    dieIfFatal();
    return int(::syscall(SYS_fsync, file));
}
int rename(const char *from, const char *to) noexcept
{
    dieIfFatal();
    return int(::syscall(SYS_rename, from, to));
}
int link(const char *from, const char *to) noexcept
{
    dieIfFatal();
    return int(::syscall(SYS_link, from, to));
}
int unlink(const char *path) noexcept
{
    dieIfFatal();
    return int(::syscall(SYS_unlink, path));
}
}

namespace {

const QStringList Dates{QStringLiteral("2020-01-01"), QStringLiteral("2022-01-01"),
                        QStringLiteral("2024-01-01")};
const QString Date = Dates.at(1);

ProjectId project()
{
    return {QStringLiteral("cat/a.prj"), SessionFixture::Version, QStringLiteral("t1")};
}

/// Lines that the program confirms one by one.
constexpr int Decisions = 10;

void confirm(MappingDocument &document, int line)
{
    document.updateMapping(SessionFixture::withState(document.mapping(project()), {line}, 2));
    QCoreApplication::processEvents();
}

/// "--victim FILE DEED CALL HALFWAY": confirms lines, and says each; or confirms all and saves. Is
/// killed at that call; ends by itself if there are not so many, and says how many there were.
int runVictim(const QStringList &arguments)
{
    MappingDocument document;
    if (document.open({arguments.value(2), Date, {}, {}, {}}) !=
        MappingDocument::OpenResult::Opened)
        return 1;
    const bool saves = arguments.value(3) == u"save";
    killHalfway = arguments.value(5) == u"1";
    killAt = arguments.value(4).toInt();
    counting = !saves;
    for (int line = 1; line <= Decisions; ++line) {
        confirm(document, line);
        std::printf("%d\n", line);
        std::fflush(stdout);
    }
    counting = saves;
    if (saves && document.save().result != SaveResult::Saved)
        return 2;
    counting = false;
    std::printf("calls %d\n", callCount.load());
    std::fflush(stdout);
    // As it was killed behind the last of them: nothing is closed in good order.
    die();
}

struct Ending
{
    int seen = 0;  ///< decisions that the user had seen confirmed
    int calls = 0; ///< of the system, if the program came to its end
};

} // namespace

/// Kills the program at each of its calls of the system while it confirms and while it saves. With
/// VELK_KILLS=N in the environment also N times each at random calls, with a file of 25 MB.
class tst_KilledProgram : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void atEachCall_data();
    void atEachCall();
    void atRandomCallsOfALargeFile_data();
    void atRandomCallsOfALargeFile();

private:
    void make(int projects);
    [[nodiscard]] Ending kill(const QString &deed, int call, bool halfway) const;
    void check(const Ending &ending, bool saved);

    std::unique_ptr<SessionFixture> m_files;
    QString m_file;
    QHash<QString, QByteArray> m_releases; ///< texts as they were
};

/// A file of three releases, as written by nobody else than this program.
void tst_KilledProgram::make(int projects)
{
    m_files = std::make_unique<SessionFixture>();
    m_file = m_files->path(QStringLiteral("m.json"));
    MappingFile file;
    for (const QString &date : Dates) {
        ReleaseMappingC release;
        release.setSourceDate(date);
        release.setTargetDate(QStringLiteral("2026-01-01"));
        release.addMapping(SessionFixture::plainMapping(QStringLiteral("cat/a.prj"), 20));
        for (int i = 1; i < projects; ++i)
            release.addMapping(SessionFixture::plainMapping(
                QStringLiteral("cat/p%1.prj").arg(i, 4, 10, QLatin1Char('0')), 1000, 1));
        file.setRelease(release);
    }
    QVERIFY(file.write(m_file));
    m_releases.clear();
    PJsonValue document;
    QVERIFY(document.parse(SessionFixture::content(m_file)));
    for (const QString &date : Dates)
        m_releases.insert(date, document.value(date).toByteArray(true));
}

Ending tst_KilledProgram::kill(const QString &deed, int call, bool halfway) const
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--victim"), m_file, deed, QString::number(call),
                   QString::number(int(halfway))});
    Ending ending;
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::CrashExit)
        return ending;
    const QList<QByteArray> rows = process.readAllStandardOutput().split('\n');
    for (const QByteArray &row : rows) {
        if (row.startsWith("calls "))
            ending.calls = row.sliced(6).toInt();
        else if (!row.isEmpty())
            ending.seen = row.toInt();
    }
    return ending;
}

/// No release lost or torn, no decision lost that was seen, recovery offered.
void tst_KilledProgram::check(const Ending &ending, bool saved)
{
    PJsonValue document;
    QString error;
    QVERIFY2(document.parse(SessionFixture::content(m_file), &error), qPrintable(error));
    QCOMPARE(document.keys(), Dates);
    for (const QString &date : Dates) {
        if (date != Date)
            QVERIFY(document.value(date).toByteArray(true) == m_releases.value(date));
    }
    const bool isOld = document.value(Date).toByteArray(true) == m_releases.value(Date);
    QVERIFY(saved || isOld);

    MappingDocument next;
    const MappingDocument::OpenResult result = next.open({m_file, Date, {}, {}, {}});
    if (isOld && ending.seen > 1)
        QCOMPARE(result, MappingDocument::OpenResult::RecoveryPending);
    if (result == MappingDocument::OpenResult::RecoveryPending)
        QCOMPARE(next.open({m_file, Date, {}, {}, MappingDocument::Recovery::UseRecovered}),
                 MappingDocument::OpenResult::Opened);
    QVERIFY2(next.counts().verified() >= ending.seen - 1 &&
                 next.counts().verified() <= ending.seen + 1,
             qPrintable(QString::number(next.counts().verified())));
    for (int line = 1; line < ending.seen; ++line)
        QCOMPARE(next.mapping(project()).targetAt(0).getMappedLine(line).getState(),
                 PRJMAPPING::Verified);
    QCOMPARE(next.save().result, SaveResult::Saved);
    next.close();
    QCOMPARE(MappingDocument::sourceDates(m_file), Dates);
}

void tst_KilledProgram::atEachCall_data()
{
    QTest::addColumn<QString>("deed");
    QTest::addColumn<bool>("halfway");
    for (const char *deed : {"confirm", "save"}) {
        QTest::addRow("%s, before", deed) << QString::fromLatin1(deed) << false;
        QTest::addRow("%s, halfway", deed) << QString::fromLatin1(deed) << true;
    }
}

void tst_KilledProgram::atEachCall()
{
    QFETCH(QString, deed);
    QFETCH(bool, halfway);
    int call = 0;
    Ending ending;
    do {
        make(2);
        ending = kill(deed, ++call, halfway);
        check(ending, deed == u"save");
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("killed at call %1").arg(call)));
    } while (ending.calls == 0 && call < 200);
    // It was killed somewhere, and came through in the end.
    QVERIFY(call > 3);
    QVERIFY(ending.calls > 3);
    QCOMPARE(ending.seen, Decisions);
}

void tst_KilledProgram::atRandomCallsOfALargeFile_data()
{
    QTest::addColumn<QString>("deed");
    for (const char *deed : {"confirm", "save"})
        QTest::newRow(deed) << QString::fromLatin1(deed);
}

void tst_KilledProgram::atRandomCallsOfALargeFile()
{
    QFETCH(QString, deed);
    const int times = qEnvironmentVariableIntValue("VELK_KILLS");
    make(times > 0 ? 450 : 3);
    const QByteArray before = SessionFixture::content(m_file);
    const int calls = kill(deed, 0, false).calls;
    QVERIFY(calls > 3);
    int recovered = 0;
    QElapsedTimer time;
    time.start();
    for (int i = 0; i < qMax(times, 3); ++i) {
        const QStringList names = QDir(m_files->path({})).entryList(QDir::Files | QDir::Hidden);
        for (const QString &name : names)
            QFile::remove(m_files->path(name));
        SessionFixture::setContent(m_file, before);
        const int call = 1 + int(QRandomGenerator::global()->bounded(calls));
        const bool halfway = QRandomGenerator::global()->bounded(2) == 1;
        const Ending ending = kill(deed, call, halfway);
        check(ending, deed == u"save");
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(QStringLiteral("killed at call %1 of %2").arg(call).arg(calls)));
        recovered += ending.calls == 0 ? 1 : 0;
    }
    qInfo("%s: killed %d times at one of %d calls, file of %.1f MB, %.0f s", qPrintable(deed),
          recovered, calls, double(before.size()) / 1e6, double(time.elapsed()) / 1000);
}

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == QLatin1String("--victim"))
        return runVictim(arguments);
    tst_KilledProgram test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_KilledProgram.moc"
