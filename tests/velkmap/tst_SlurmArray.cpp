#include <TestPaths.h>
#include <tools/velkmap/Commands.h>

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTemporaryDir>
#include <QTest>
#include <QTextStream>

#include <csignal>
#include <pwd.h>
#include <unistd.h>

using velkmap::ExitStatus;

namespace {

constexpr int startMs = 60'000; ///< of each program, on a machine that has much else to do

/// A cluster of this computer alone, of plain processes that all end with it.
class Cluster
{
public:
    explicit Cluster(const QString &folder)
        : m_folder(folder)
    {
    }
    ~Cluster()
    {
        for (QProcess *process : {&m_node, &m_controller, &m_munge}) {
            process->kill();
            process->waitForFinished();
        }
    }
    Cluster(const Cluster &) = delete;
    Cluster &operator=(const Cluster &) = delete;

    [[nodiscard]] bool start();
    /// What its programs have said, for a failure.
    [[nodiscard]] QByteArray logs() const;
    void startNode() { m_node.start(tool("slurmd"), {"-f", configuration(), "-D"}); }
    void killNode()
    {
        m_node.kill();
        m_node.waitForFinished();
    }
    /// Waits for the end of a command of the scheduler.
    QByteArray run(const QString &name, const QStringList &arguments) const
    {
        QProcess process;
        process.setProcessEnvironment(environment());
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(tool(name), arguments);
        process.waitForFinished(20000);
        return process.readAll();
    }
    [[nodiscard]] QProcessEnvironment environment() const
    {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("SLURM_CONF", configuration());
        return environment;
    }
    [[nodiscard]] static QString host() { return QSysInfo::machineHostName().section('.', 0, 0); }
    [[nodiscard]] static QString tool(const QString &name)
    {
        const QString found = QStandardPaths::findExecutable(name);
        return found.isEmpty() ? QStandardPaths::findExecutable(name, {"/usr/sbin", "/sbin"})
                               : found;
    }

private:
    [[nodiscard]] QString configuration() const { return m_folder + "/slurm.conf"; }
    void configure() const;
    /// Two of this process.
    [[nodiscard]] static int port(int which) { return 20000 + int(getpid()) % 10000 * 2 + which; }

    const QString m_folder;
    QProcess m_munge;
    QProcess m_controller;
    QProcess m_node;
};

void Cluster::configure() const
{
    const char *text = "ClusterName=t\nSlurmctldHost=HOST(127.0.0.1)\nAuthType=auth/munge\n"
                       "AuthInfo=socket=DIR/run/m.sock\nSlurmUser=USER\nSlurmdUser=USER\n"
                       "StateSaveLocation=DIR/state\nSlurmdSpoolDir=DIR/spool\n"
                       "SlurmctldPidFile=DIR/c.pid\nSlurmdPidFile=DIR/d.pid\n"
                       "SlurmctldLogFile=DIR/c.log\nSlurmdLogFile=DIR/d.log\n"
                       "SlurmctldPort=PORT1\nSlurmdPort=PORT2\nProctrackType=proctrack/linuxproc\n"
                       "TaskPlugin=task/none\nJobAcctGatherType=jobacct_gather/none\n"
                       "SelectType=select/cons_tres\nSelectTypeParameters=CR_Core\n"
                       "ReturnToService=2\nMpiDefault=none\n"
                       "NodeName=HOST NodeAddr=127.0.0.1 CPUs=2 RealMemory=500 State=UNKNOWN\n"
                       "PartitionName=p Nodes=HOST Default=YES State=UP\n";
    const QByteArray user = getpwuid(getuid()) ? getpwuid(getuid())->pw_name : "";
    QFile file(configuration());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(text)
                   .replace("HOST", host().toUtf8())
                   .replace("DIR", m_folder.toUtf8())
                   .replace("USER", user)
                   .replace("PORT1", QByteArray::number(port(0)))
                   .replace("PORT2", QByteArray::number(port(1))));
}

bool Cluster::start()
{
    for (const char *folder : {"run", "state", "spool"})
        QDir(m_folder).mkpath(folder);
    QFile::setPermissions(m_folder + "/run", QFile::Permissions::fromInt(0x7755));
    QFile key(m_folder + "/munge.key");
    if (!key.open(QIODevice::WriteOnly) || key.write(QByteArray(1024, 'k')) != 1024)
        return false;
    key.close();
    key.setPermissions(QFile::ReadOwner);
    configure();
    m_munge.start(tool("munged"),
                  {"--foreground", "--force", "--key-file=" + key.fileName(),
                   "--socket=" + m_folder + "/run/m.sock", "--pid-file=" + m_folder + "/run/m.pid",
                   "--log-file=" + m_folder + "/run/m.log", "--seed-file=" + m_folder + "/seed"});
    if (!QTest::qWaitFor([&] { return QFile::exists(m_folder + "/run/m.sock"); }, startMs))
        return false;
    m_controller.start(tool("slurmctld"), {"-f", configuration(), "-D"});
    const auto isUp = [&] {
        return run("scontrol", {"ping"}).contains("is UP");
    };
    if (!QTest::qWaitFor(isUp, startMs))
        return false;
    startNode();
    return QTest::qWaitFor([&] { return run("sinfo", {"-h"}).contains("idle"); }, startMs);
}

QByteArray Cluster::logs() const
{
    QByteArray all = "Slurm does not start";
    for (const char *name : {"run/m.log", "c.log", "d.log"}) {
        QFile file(m_folder + '/' + name);
        all += QByteArray("\n") + name + ": " +
               (file.open(QIODevice::ReadOnly) ? file.readAll().right(2000) : "is not there");
    }
    return all;
}

} // namespace

/// A job array of the real scheduler.
class tst_SlurmArray : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void killedNode();

private:
    static QByteArray bytes(const QString &path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    static void run(const QStringList &arguments)
    {
        QString text;
        QTextStream out(&text);
        QTextStream err(&text);
        const ExitStatus status = velkmap::run(arguments, out, err);
        out.flush();
        QVERIFY2(status == ExitStatus::Done || status == ExitStatus::InputUnreadable,
                 qPrintable(text));
    }
};

/// The second share's machine dies in the middle of its work. Its share is done again, and the
/// joined mapping is that of one run.
void tst_SlurmArray::killedNode()
{
    for (const char *name : {"munged", "slurmctld", "slurmd", "sbatch", "scontrol"}) {
        if (Cluster::tool(name).isEmpty())
            QFAIL("there is no Slurm");
    }
    const QTemporaryDir dir;
    QVERIFY(QFile::setPermissions(dir.path(), QFile::Permissions::fromInt(0x7755)));
    const QString source = QStringLiteral(VELK_SOURCE_DIR "/examples/release-1");
    const QString target = QStringLiteral(VELK_SOURCE_DIR "/examples/release-2");
    const QString mapping = dir.filePath("m.json");
    run({"create", "--source", source, "--target", target, "--catalog", "standardparts",
         "--mapping", mapping});
    QVERIFY(QFile::copy(mapping, dir.filePath("one.json")));
    run({"assign", "--mapping", dir.filePath("one.json"), "--source", source, "--target", target});

    // The first try of share 2 tells its process and does not end by itself.
    QFile slow(dir.filePath("velkmap"));
    QVERIFY(slow.open(QIODevice::WriteOnly));
    slow.write("#!/bin/sh\nif [ \"$SLURM_ARRAY_TASK_ID$SLURM_RESTART_COUNT\" = 2 ]; then\n"
               "echo $$ >>\"" +
               dir.filePath("pid").toUtf8() +
               "\"; exec sleep 60; fi\nexec " VELK_BINARY_DIR "/bin/velkmap \"$@\"\n");
    slow.close();
    slow.setPermissions(slow.permissions() | QFile::ExeOwner | QFile::ExeUser);

    Cluster cluster(dir.path());
    QVERIFY2(cluster.start(), cluster.logs().constData());
    QProcess array;
    QProcessEnvironment environment = cluster.environment();
    environment.insert("VELKMAP", slow.fileName());
    array.setProcessEnvironment(environment);
    array.setProcessChannelMode(QProcess::MergedChannels);
    array.start(VELK_SOURCE_DIR "/examples/machines/assign-on-slurm",
                {"3", mapping, source, target, dir.filePath("parts")});
    QTRY_VERIFY_WITH_TIMEOUT(bytes(dir.filePath("pid")).endsWith('\n'), 15000);

    cluster.killNode();
    cluster.run("scontrol",
                {"update", "NodeName=" + Cluster::host(), "State=DOWN", "Reason=killed"});
    ::kill(bytes(dir.filePath("pid")).trimmed().toInt(), SIGKILL);
    QVERIFY(!QFile::exists(dir.filePath("parts/part-2.json")));
    QTRY_VERIFY_WITH_TIMEOUT(cluster.run("squeue", {"-h", "-o", "%T %K"}).contains("PENDING 2"),
                             15000);
    cluster.startNode();
    const QByteArray jobs = cluster.run("squeue", {"-h", "-t", "PENDING", "-o", "%i"});
    for (const QByteArray &job : jobs.split('\n')) // it would wait for two minutes
        cluster.run("scontrol", {"update", "JobId=" + job.trimmed(), "StartTime=now"});
    QVERIFY2(array.waitForFinished(60000), cluster.run("squeue", {}).constData());
    const QByteArray told = array.readAll();
    QVERIFY2(array.exitCode() == 2, told.constData()); // the broken table
    QVERIFY2(told.contains("3 parts with "), told.constData());
    QCOMPARE(bytes(mapping), bytes(dir.filePath("one.json")));
}

QTEST_GUILESS_MAIN(tst_SlurmArray)
#include "tst_SlurmArray.moc"
