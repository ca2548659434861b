#pragma once

#include <QList>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A PostgreSQL server of its own: a cluster in a temporary folder, reached over a local socket
/// and, with a password, over the loopback. Made on construction, stopped and removed with the
/// object. Run as root, the server runs as user "postgres" or "nobody", as it refuses to be root.
///
///     PostgresServer server;
///     QVERIFY2(server.isRunning(), qPrintable(server.problem()));
///
/// A server program that is missing is a problem, too.
class PostgresServer
{
public:
    PostgresServer();
    ~PostgresServer();
    PostgresServer(const PostgresServer &) = delete;
    PostgresServer &operator=(const PostgresServer &) = delete;

    [[nodiscard]] bool isRunning() const { return m_problem.isEmpty(); }
    [[nodiscard]] QString problem() const { return m_problem; }

    /// Makes an empty database and gives its address for LinkDbSettings::fromText().
    [[nodiscard]] QString newDatabase();
    /// The address of a database over the socket, as the user that owns everything or another one.
    [[nodiscard]] QString address(const QString &database, const QString &user = ownerName()) const;
    /// Over the loopback, where a password is asked for.
    [[nodiscard]] QString loopbackAddress(const QString &database,
                                          const QString &user = ownerName()) const;
    [[nodiscard]] static QString ownerName() { return QStringLiteral("keeper"); }
    [[nodiscard]] int port() const { return m_port; }

    /// Runs SQL as the owner. Gives the first column of the rows, one a line; empty on failure,
    /// with problem().
    QString sql(const QString &database, const QString &statement);

    /// Ends all connections, as a restart would.
    void endConnections();
    /// Stops at once, as a crash would; start() brings it back with what was committed.
    void kill();
    bool start();
    /// From now on the server takes connections and statements, and answers none, until resume().
    void halt();
    void resume();

private:
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    bool run(const QString &program, const QStringList &arguments, QString *output = nullptr);
    void prepare(QProcess &process) const;

    QTemporaryDir m_folder;
    QString m_programs;
    QString m_problem;
    QProcess m_server;
    int m_port = 0;
    int m_databases = 0;
    QList<qint64> m_halted;
    unsigned m_user = 0;
    unsigned m_group = 0;
};
