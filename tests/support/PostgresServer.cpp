#include "PostgresServer.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QThread>

#include <grp.h>
#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>

namespace {

constexpr int startMs = 60'000;

/// Folder of the newest server's programs.
QString findPrograms()
{
    const QString own = qEnvironmentVariable("VELK_POSTGRES_PROGRAMS");
    if (!own.isEmpty())
        return own;
    const QDir versions(QStringLiteral("/usr/lib/postgresql"));
    QStringList names = versions.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    std::ranges::sort(names, {}, [](const QString &name) { return name.toDouble(); });
    for (auto name = names.crbegin(); name != names.crend(); ++name) {
        const QString programs = versions.filePath(*name + QStringLiteral("/bin"));
        if (QFileInfo::exists(programs + QStringLiteral("/initdb")))
            return programs;
    }
    const QString onPath = QStandardPaths::findExecutable(QStringLiteral("initdb"));
    return onPath.isEmpty() ? QString() : QFileInfo(onPath).canonicalPath();
}

int freePort()
{
    const int probe = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address;
    auto *const any = reinterpret_cast<sockaddr *>(&address);
    const bool found = ::bind(probe, any, size) == 0 && ::getsockname(probe, any, &size) == 0;
    ::close(probe);
    return found ? ntohs(address.sin_port) : 0;
}

} // namespace

PostgresServer::PostgresServer()
    : m_folder(QDir::tempPath() + QStringLiteral("/velkpg-XXXXXX"))
    , m_programs(findPrograms())
    , m_port(freePort())
{
    if (m_programs.isEmpty()) {
        m_problem = QStringLiteral("the programs of a PostgreSQL server are missing (initdb)");
        return;
    }
    if (::geteuid() == 0) {
        const passwd *user = ::getpwnam("postgres");
        if (!user)
            user = ::getpwnam("nobody");
        if (!user ||
            ::chown(QFile::encodeName(folder()).constData(), user->pw_uid, user->pw_gid) != 0) {
            m_problem = QStringLiteral("there is no other user than root to run the server");
            return;
        }
        m_user = user->pw_uid;
        m_group = user->pw_gid;
    }
    QFile password(folder() + QStringLiteral("/password"));
    if (!password.open(QIODevice::WriteOnly) || password.write("secret\n") < 0 ||
        !password.setPermissions(QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther)) {
        m_problem = password.errorString();
        return;
    }
    password.close();
    if (run(QStringLiteral("initdb"),
            {QStringLiteral("-D"), folder() + QStringLiteral("/data"), QStringLiteral("-U"),
             ownerName(), QStringLiteral("--auth-local=trust"),
             QStringLiteral("--auth-host=scram-sha-256"), QStringLiteral("-E"),
             QStringLiteral("UTF8"), QStringLiteral("--locale=C"), QStringLiteral("--no-sync"),
             QStringLiteral("--pwfile"), folder() + QStringLiteral("/password")}))
        start();
}

PostgresServer::~PostgresServer()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    resume();
    ::kill(pid_t(m_server.processId()), SIGINT); // fast: ends all connections
    if (!m_server.waitForFinished(startMs))
        kill();
}

void PostgresServer::prepare(QProcess &process) const
{
    process.setWorkingDirectory(folder());
    if (m_user == 0)
        return;
    process.setChildProcessModifier([user = m_user, group = m_group] {
        if (::setgroups(0, nullptr) != 0 || ::setgid(group) != 0 || ::setuid(user) != 0)
            ::_exit(126);
    });
}

bool PostgresServer::run(const QString &program, const QStringList &arguments, QString *output)
{
    QProcess process;
    prepare(process);
    process.start(m_programs + u'/' + program, arguments);
    if (!process.waitForFinished(startMs) || process.exitCode() != 0) {
        m_problem = program + QStringLiteral(": ") + process.errorString() +
                    QString::fromUtf8(process.readAllStandardError());
        return false;
    }
    if (output)
        *output = QString::fromUtf8(process.readAllStandardOutput());
    return true;
}

bool PostgresServer::start()
{
    prepare(m_server);
    m_server.setStandardErrorFile(folder() + QStringLiteral("/log"), QIODevice::Append);
    m_server.start(m_programs + QStringLiteral("/postgres"),
                   {QStringLiteral("-D"), folder() + QStringLiteral("/data"), QStringLiteral("-k"),
                    folder(), QStringLiteral("-p"), QString::number(m_port), QStringLiteral("-c"),
                    QStringLiteral("listen_addresses=127.0.0.1"), QStringLiteral("-c"),
                    QStringLiteral("fsync=off"), QStringLiteral("-c"),
                    QStringLiteral("shared_buffers=16MB"), QStringLiteral("-c"),
                    QStringLiteral("max_connections=30")});
    QElapsedTimer time;
    time.start();
    while (time.elapsed() < startMs && m_server.state() != QProcess::NotRunning) {
        m_problem.clear();
        if (!sql(QStringLiteral("postgres"), QStringLiteral("SELECT 1")).isEmpty())
            return true;
        QThread::msleep(20);
    }
    QFile log(folder() + QStringLiteral("/log"));
    if (log.open(QIODevice::ReadOnly))
        m_problem += QString::fromUtf8(log.readAll());
    return false;
}

void PostgresServer::halt()
{
    const QString clients =
        sql(QStringLiteral("postgres"),
            QStringLiteral("SELECT pid FROM pg_stat_activity WHERE backend_type "
                           "= 'client backend' AND pid <> pg_backend_pid()"));
    m_halted = {m_server.processId()};
    for (const QString &client : clients.split(u'\n', Qt::SkipEmptyParts))
        m_halted.append(client.toLongLong());
    for (const qint64 process : std::as_const(m_halted))
        ::kill(pid_t(process), SIGSTOP);
}

void PostgresServer::resume()
{
    for (const qint64 process : std::exchange(m_halted, {}))
        ::kill(pid_t(process), SIGCONT);
}

void PostgresServer::kill()
{
    // Immediate shutdown: like a crash, but it takes its children along.
    ::kill(pid_t(m_server.processId()), SIGQUIT);
    m_server.waitForFinished(startMs);
}

QString PostgresServer::sql(const QString &database, const QString &statement)
{
    QString output;
    run(QStringLiteral("psql"),
        {QStringLiteral("-h"), folder(), QStringLiteral("-p"), QString::number(m_port),
         QStringLiteral("-U"), ownerName(), QStringLiteral("-d"), database, QStringLiteral("-AtX"),
         QStringLiteral("-v"), QStringLiteral("ON_ERROR_STOP=1"), QStringLiteral("-c"), statement},
        &output);
    return output.trimmed();
}

QString PostgresServer::newDatabase()
{
    const QString name = QStringLiteral("test%1").arg(++m_databases);
    sql(QStringLiteral("postgres"), QStringLiteral("CREATE DATABASE ") + name);
    return address(name);
}

QString PostgresServer::address(const QString &database, const QString &user) const
{
    return QStringLiteral("postgresql:///%1?host=%2&port=%3&user=%4")
        .arg(database, folder(), QString::number(m_port), user);
}

QString PostgresServer::loopbackAddress(const QString &database, const QString &user) const
{
    return QStringLiteral("postgresql://%1@127.0.0.1:%2/%3")
        .arg(user, QString::number(m_port), database);
}

void PostgresServer::endConnections()
{
    sql(QStringLiteral("postgres"),
        QStringLiteral("SELECT count(pg_terminate_backend(pid)) FROM pg_stat_activity "
                       "WHERE pid <> pg_backend_pid() AND backend_type = 'client backend'"));
}
