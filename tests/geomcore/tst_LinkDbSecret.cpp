#include "../support/PostgresServer.h"

#include <core/message/PMessage.h>
#include <core/message/PScriptedMessageSink.h>
#include <geomcore/linkdb/PLinkDbC.h>

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

namespace {

constexpr int patienceMs = 20'000;

/// A session of the desktop without a display: a message bus and a secret store of its own, which
/// end with it. For this process and its children.
class Session
{
public:
    Session()
    {
        for (const char *name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_RUNTIME_DIR"})
            qputenv(name, QFile::encodeName(m_folder.path()));
        for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY"})
            qunsetenv(name);
        // A bus that starts no services by itself: it would start another store, which is locked.
        QFile configuration(m_folder.filePath("bus.conf"));
        if (!configuration.open(QIODevice::WriteOnly) ||
            configuration.write(busConfiguration()) < 0)
            problem = configuration.errorString();
        configuration.close();
        m_bus.start("dbus-daemon", {"--config-file=" + configuration.fileName(), "--nofork",
                                    "--nopidfile", "--print-address"});
        if (!m_bus.waitForStarted() || !m_bus.waitForReadyRead(patienceMs)) {
            problem = "dbus-daemon: " + m_bus.errorString();
            return;
        }
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus.readLine().trimmed());
        m_store.start("gnome-keyring-daemon", {"--unlock", "--foreground", "--components=secrets"});
        if (!m_store.waitForStarted()) {
            problem = "gnome-keyring-daemon: " + m_store.errorString();
            return;
        }
        m_store.write("of the session");
        m_store.closeWriteChannel();
    }
    ~Session()
    {
        for (QProcess *const process : {&m_store, &m_bus}) {
            process->terminate();
            if (!process->waitForFinished(patienceMs))
                process->kill();
        }
    }
    Q_DISABLE_COPY_MOVE(Session)

    /// Waits for the store the first time.
    [[nodiscard]] static bool store(const QStringList &attributes, const QByteArray &secret)
    {
        QProcess tool;
        tool.start("secret-tool", QStringList{"store", "--label=a test"} + attributes);
        tool.write(secret);
        tool.closeWriteChannel();
        return tool.waitForFinished(patienceMs) && tool.exitStatus() == QProcess::NormalExit &&
               tool.exitCode() == 0;
    }

    QString problem;

private:
    [[nodiscard]] QByteArray busConfiguration() const
    {
        return "<busconfig><type>session</type><auth>EXTERNAL</auth><listen>unix:path=" +
               QFile::encodeName(m_folder.filePath("bus")) +
               "</listen><policy context='default'><allow send_destination='*' eavesdrop='true'/>"
               "<allow eavesdrop='true'/><allow own='*'/></policy></busconfig>";
    }

    const QTemporaryDir m_folder;
    QProcess m_bus;
    QProcess m_store;
};

QStringList attributesOf(const QString &host, const QString &user)
{
    return {"protocol", "postgresql", "server", host, "user", user};
}

} // namespace

/// Passwords of the link database out of the desktop's real secret store.
class tst_LinkDbSecret : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void passwordOfTheStore();
};

void tst_LinkDbSecret::passwordOfTheStore()
{
    for (const char *program : {"dbus-daemon", "gnome-keyring-daemon", "secret-tool"})
        QVERIFY2(!QStandardPaths::findExecutable(program).isEmpty(), program);
    qunsetenv("PGPASSWORD");
    qputenv("PGPASSFILE", "/nonexistent");
    PostgresServer server;
    QVERIFY2(server.isRunning(), qPrintable(server.problem()));
    QVERIFY(!server.newDatabase().isEmpty());
    const LinkDbSettings settings = LinkDbSettings::fromText(server.loopbackAddress("postgres"));
    const Session session;
    QVERIFY2(session.problem.isEmpty(), qPrintable(session.problem));
    const auto sink = std::make_shared<PScriptedMessageSink>();
    const PMessageSinkScope scope(sink);
    PLinkDbC linkDb;
    // Of another host or another user.
    QTRY_VERIFY_WITH_TIMEOUT(Session::store(attributesOf("db.example", "keeper"), "secret"),
                             patienceMs);
    QVERIFY(Session::store(attributesOf("127.0.0.1", "anna"), "secret"));
    QVERIFY(!linkDb.open(settings));
    QVERIFY(Session::store(attributesOf("127.0.0.1", "keeper"), "wrong"));
    QVERIFY(!linkDb.open(settings));
    QVERIFY(Session::store(attributesOf("127.0.0.1", "keeper"), "secret"));
    QVERIFY2(linkDb.open(settings), qPrintable(linkDb.lastError().text));
    QCOMPARE(linkDb.executeCountStatement("SELECT COUNT(*) FROM plm_document"), 0);
    // A new connection asks anew.
    server.endConnections();
    QCOMPARE(linkDb.executeCountStatement("SELECT COUNT(*) FROM plm_document"), 0);
    const QStringList logged = sink->logged();
    for (const QString &text : logged)
        QVERIFY(!text.contains("secret"));
}

QTEST_GUILESS_MAIN(tst_LinkDbSecret)
#include "tst_LinkDbSecret.moc"
