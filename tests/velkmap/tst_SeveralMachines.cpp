#include "../support/EnglishTexts.h"
#include "../support/SizeLimit.h"
#include "../workbench/AsNobody.h"

#include <core/files/EditLock.h>
#include <geomcore/records/MappingFile.h>
#include <release/assign/AssignmentPart.h>
#include <TestPaths.h>
#include <tools/velkmap/Commands.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <set>

using velkmap::ExitStatus;
using VelkRelease::ReleaseShares;
using VelkRelease::ShareNumber;

/// The example catalog, whose projects share target lines and one of whose tables is broken, in
/// shares.
class tst_SeveralMachines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void shareNumbers_data();
    void shareNumbers();
    void sharesAreEven();
    void joinIsOneRun_data();
    void joinIsOneRun();
    void faults_data();
    void faults();
    void wrongUsage_data();
    void wrongUsage();
    void mappingStays();
    void gnuParallel();
    void joinKilledAtAnyMoment();
    void joinOnAFullDisk();
    void joinWithoutRights();

private:
    ExitStatus run(const QStringList &arguments);
    ExitStatus share(int number, int of, const QStringList &more = {});
    ExitStatus join(const QStringList &parts, const QString &mapping = {});
    [[nodiscard]] QString path(const QString &name) const { return m_dir->filePath(name); }
    [[nodiscard]] QString part(int number) const
    {
        return path(QStringLiteral("part-%1.json").arg(number));
    }
    [[nodiscard]] static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    const QString m_source = QStringLiteral(VELK_SOURCE_DIR "/examples/release-1");
    const QString m_target = QStringLiteral(VELK_SOURCE_DIR "/examples/release-2");
    QTemporaryDir m_made;
    QByteArray m_oneRun;
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_out;
    QString m_err;
};

ExitStatus tst_SeveralMachines::run(const QStringList &arguments)
{
    m_out.clear();
    m_err.clear();
    QTextStream out(&m_out);
    QTextStream err(&m_err);
    return velkmap::run(arguments, out, err);
}

ExitStatus tst_SeveralMachines::share(int number, int of, const QStringList &more)
{
    return run(QStringList{"assign", "--mapping", path("m.json"), "--source", m_source, "--target",
                           m_target, "--shard", QStringLiteral("%1/%2").arg(number).arg(of),
                           "--out", part(number)} +
               more);
}

ExitStatus tst_SeveralMachines::join(const QStringList &parts, const QString &mapping)
{
    return run(QStringList{"join"} + parts +
               QStringList{"--mapping", mapping.isEmpty() ? path("m.json") : mapping});
}

void tst_SeveralMachines::initTestCase()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QCOMPARE(run({"create", "--source", m_source, "--target", m_target, "--catalog",
                  "standardparts", "--mapping", m_made.filePath("created.json")}),
             ExitStatus::InputUnreadable);
    QVERIFY(QFile::copy(m_made.filePath("created.json"), m_made.filePath("one.json")));
    QCOMPARE(run({"assign", "--mapping", m_made.filePath("one.json"), "--source", m_source,
                  "--target", m_target}),
             ExitStatus::InputUnreadable);
    m_oneRun = bytes(m_made.filePath("one.json"));
}

void tst_SeveralMachines::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(QFile::copy(m_made.filePath("created.json"), path("m.json")));
}

void tst_SeveralMachines::shareNumbers_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("share");
    QTest::newRow("one of one") << "1/1" << 1;
    QTest::newRow("last") << "8/8" << 8;
    for (const char *text :
         {"0/8", "9/8", "-1/8", "1/0", "1", "1/2/3", "a/b", "", "1/", "1/100001"})
        QTest::newRow(text) << text << 0;
}

void tst_SeveralMachines::shareNumbers()
{
    QFETCH(const QString, text);
    QTEST(ShareNumber::fromText(text).share, "share");
}

void tst_SeveralMachines::sharesAreEven()
{
    MappingFile file;
    QVERIFY(file.read(path("m.json")));
    const ReleaseMappingC release = file.releases().value(0);
    QList<int> all;
    for (int i = 0; i < release.countMappings(); ++i)
        all << i;
    const ReleaseShares shares(release, all, m_source, 4);
    const ReleaseShares again(release, all, m_source, 4);
    std::set<int> seen;
    qint64 least = shares.size(1);
    qint64 most = 0;
    for (int share = 1; share <= 4; ++share) {
        QCOMPARE(again.positions(share), shares.positions(share));
        for (const int position : shares.positions(share))
            QVERIFY(seen.insert(position).second);
        least = std::min(least, shares.size(share));
        most = std::max(most, shares.size(share));
    }
    QCOMPARE(int(seen.size()), release.countMappings());
    QVERIFY2(most * 10 <= least * 12, qPrintable(QStringLiteral("%1 %2").arg(least).arg(most)));
    const ReleaseShares many(release, all, m_source, release.countMappings() + 5);
    QVERIFY(many.positions(release.countMappings() + 5).isEmpty());
}

void tst_SeveralMachines::joinIsOneRun_data()
{
    QTest::addColumn<int>("shares");
    QTest::newRow("one") << 1;
    QTest::newRow("three") << 3;
    QTest::newRow("more than projects") << 60;
}

void tst_SeveralMachines::joinIsOneRun()
{
    QFETCH(const int, shares);
    QStringList parts;
    for (int number = shares; number >= 1; --number) { // in any order
        const ExitStatus status = share(number, shares);
        QVERIFY2(status == ExitStatus::Done || status == ExitStatus::InputUnreadable,
                 qPrintable(m_err));
        parts << part(number);
    }
    QCOMPARE(join(parts), ExitStatus::InputUnreadable); // the broken table, as in one run
    QVERIFY2(m_err.contains("could not be read") || m_err.contains(".csv"), qPrintable(m_err));
    QCOMPARE(bytes(path("m.json")), m_oneRun);
}

void tst_SeveralMachines::faults_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("message");
    QTest::newRow("lost") << "lost"
                          << "part 2/3 is missing";
    QTest::newRow("twice") << "twice"
                           << "part 2/3 is there 2 times: ";
    QTest::newRow("another number of shares") << "shares"
                                              << "part 2/4 of another work";
    QTest::newRow("other options") << "force"
                                   << "part 2/3 of another work";
    QTest::newRow("cut off") << "cut"
                             << "part-2.json";
    QTest::newRow("no part") << "mapping"
                             << "is no part that velkmap assign --shard wrote";
    QTest::newRow("mapping changed since") << "changed"
                                           << "or was changed since";
}

void tst_SeveralMachines::faults()
{
    QFETCH(const QString, fault);
    QFETCH(const QString, message);
    QStringList parts;
    for (int number = 1; number <= 3; ++number) {
        share(number, 3);
        parts << part(number);
    }
    const QByteArray before = bytes(path("m.json"));
    QString mapping = path("m.json");
    if (fault == "lost") {
        parts.removeAt(1);
    } else if (fault == "twice") {
        QVERIFY(QFile::copy(part(2), path("again.json")));
        parts << path("again.json");
    } else if (fault == "shares") {
        share(2, 4);
    } else if (fault == "force") {
        share(2, 3, {"--force"});
    } else if (fault == "cut") {
        QVERIFY(QFile::resize(part(2), 1000));
    } else if (fault == "mapping") {
        parts[1] = path("m.json");
    } else {
        mapping = path("changed.json");
        QVERIFY(QFile::copy(m_made.filePath("one.json"), mapping));
    }
    QCOMPARE(join(parts, mapping), ExitStatus::InputUnreadable);
    QVERIFY2(m_err.contains(message), qPrintable(m_err));
    QVERIFY(m_err.contains("nothing was written"));
    QCOMPARE(bytes(path("m.json")), before);
}

void tst_SeveralMachines::wrongUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    const QStringList assign{"assign", "--mapping", "m.json", "--source",
                             m_source, "--target",  m_target};
    QTest::newRow("share without part") << assign + QStringList{"--shard", "1/2"};
    QTest::newRow("part without share") << assign + QStringList{"--out", "p.json"};
    QTest::newRow("no share") << assign + QStringList{"--shard", "3/2", "--out", "p.json"};
    QTest::newRow("no parts") << QStringList{"join", "--mapping", "m.json"};
}

void tst_SeveralMachines::wrongUsage()
{
    QFETCH(const QStringList, arguments);
    QCOMPARE(run(arguments), ExitStatus::WrongUsage);
}

/// Machines read one mapping at once, also while somebody has it open.
void tst_SeveralMachines::mappingStays()
{
    const QByteArray before = bytes(path("m.json"));
    EditLock lock;
    QCOMPARE(lock.take(path("m.json")), EditLock::Taken);
    share(1, 2);
    QVERIFY(QFile::exists(part(1)));
    QCOMPARE(bytes(path("m.json")), before);
    QCOMPARE(join({part(1)}), ExitStatus::ResultUnwritable);
}

void tst_SeveralMachines::gnuParallel()
{
    if (QStandardPaths::findExecutable("parallel").isEmpty())
        QFAIL("there is no GNU Parallel");
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("VELKMAP", VELK_BINARY_DIR "/bin/velkmap");
    environment.insert("HOME", m_dir->path());
    environment.insert("TMPDIR", m_dir->path());
    environment.insert("TASKS", "2");
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    const QStringList arguments{"3", path("m.json"), m_source, m_target, path("parts")};
    // a part that a machine left unfinished does not count, one that is there is not made again
    QVERIFY(QDir(m_dir->path()).mkdir("parts"));
    share(2, 3);
    QVERIFY(QFile::copy(part(2), path("parts/part-2.json")));
    process.start(VELK_SOURCE_DIR "/examples/machines/assign-with-parallel", arguments);
    QVERIFY(process.waitForFinished(60000));
    const QByteArray told = process.readAll();
    QVERIFY2(process.exitCode() == 2, told.constData()); // the broken table
    QVERIFY2(told.contains("3 parts with ") && !told.contains("part 2/3:"), told.constData());
    QCOMPARE(bytes(path("m.json")), m_oneRun);
}

/// The mapping is the former or the joined one, and joining again comes to its end.
void tst_SeveralMachines::joinKilledAtAnyMoment()
{
    const int wanted = qEnvironmentVariableIntValue("VELK_KILLS");
    const QByteArray before = bytes(path("m.json"));
    QStringList join{"join"};
    for (int number = 1; number <= 3; ++number) {
        share(number, 3);
        join << part(number);
    }
    join += {"--mapping", path("m.json")};
    QRandomGenerator random(11);
    QElapsedTimer clock;
    qint64 takes = 0;
    int joined = 0;
    for (int kill = 0; kill <= (wanted > 0 ? wanted : 6); ++kill) {
        QVERIFY(QFile::remove(path("m.json")) &&
                QFile::copy(m_made.filePath("created.json"), path("m.json")));
        if (kill > 0) {
            QProcess process;
            process.start(VELK_BINARY_DIR "/bin/velkmap", join);
            QVERIFY(process.waitForStarted());
            QTest::qSleep(random.bounded(int(takes) + 1));
            process.kill();
            QVERIFY(process.waitForFinished());
            const QByteArray left = bytes(path("m.json"));
            QVERIFY(left == before || left == m_oneRun);
            joined += left == m_oneRun;
            if (left == m_oneRun)
                continue; // of another release now, and refused
        }
        QProcess process;
        clock.start();
        process.start(VELK_BINARY_DIR "/bin/velkmap", join);
        QVERIFY(process.waitForFinished(60000));
        takes = clock.elapsed();
        QVERIFY2(process.exitCode() == 2, process.readAllStandardError().constData());
        QCOMPARE(bytes(path("m.json")), m_oneRun);
    }
    qInfo("%d were joined before the kill", joined);
}

void tst_SeveralMachines::joinOnAFullDisk()
{
    const QByteArray before = bytes(path("m.json"));
    QStringList parts;
    for (int number = 1; number <= 2; ++number) {
        share(number, 2);
        parts << part(number);
    }
    for (const qint64 room : {qint64(0), qint64(100), m_oneRun.size() / 2, m_oneRun.size() - 1}) {
        const SizeLimit full(room);
        QCOMPARE(join(parts), ExitStatus::ResultUnwritable);
        QCOMPARE(bytes(path("m.json")), before);
    }
    QCOMPARE(join(parts), ExitStatus::InputUnreadable); // the broken table
    QCOMPARE(bytes(path("m.json")), m_oneRun);
}

void tst_SeveralMachines::joinWithoutRights()
{
    share(1, 1);
    QFile::setPermissions(m_dir->path(), QFile::Permissions(0x5555));
    const QByteArray before = bytes(path("m.json"));
    {
        const AsNobody nobody;
        QVERIFY(!nobody.failed());
        QCOMPARE(join({part(1)}), ExitStatus::ResultUnwritable);
    }
    QFile::setPermissions(m_dir->path(), QFile::Permissions(0x7700));
    QCOMPARE(bytes(path("m.json")), before);
}

QTEST_GUILESS_MAIN(tst_SeveralMachines)
#include "tst_SeveralMachines.moc"
