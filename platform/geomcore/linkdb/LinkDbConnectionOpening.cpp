#include "LinkDbConnection.h"

#include "LinkDbSchema.h"
#include "LinkDbSecret.h"

#include <core/text/countText.h>
#include <core/text/PString.h>

#include <QDir>
#include <QFileInfo>
#include <QSqlError>

namespace {

QString accountName()
{
    const QString user = qEnvironmentVariable("USER");
    return user.isEmpty() ? qEnvironmentVariable("USERNAME") : user;
}

} // namespace

QString LinkDbConnection::notConnected()
{
    return PString::translate("Es besteht keine Verbindung zu einer Linkdatenbank. Sie wird in den "
                              "Einstellungen gewählt.",
                              "VelkGeomCore");
}

QString LinkDbConnection::lostChangesText(int statements)
{
    return PString::translate("Nicht festgeschriebene Änderungen sind verloren (Anweisungen: %1).",
                              "VelkGeomCore")
        .arg(countText(statements));
}

QString LinkDbConnection::uncertainText(const QString &cause)
{
    return PString::translate("%1. Ob die Änderungen festgeschrieben sind, ist ungewiss: vor einer "
                              "Wiederholung nachsehen.",
                              "VelkGeomCore")
        .arg(cause);
}

QString LinkDbConnection::cannotBeOpened(const QString &why) const
{
    return PString::translate("Die Linkdatenbank %1 kann nicht geöffnet werden: %2", "VelkGeomCore")
        .arg(m_settings.displayName(), why);
}

bool LinkDbConnection::open(const LinkDbSettings &settings, const QString &password)
{
    close();
    m_settings = settings;
    m_password = password;
    m_lostChanges = 0;
    m_error = {};
    if (!connectNow())
        return false;
    if (LinkDbSchema::bringUpToDate(*this)) {
        m_wanted = true;
        return true;
    }
    disconnectNow();
    return false;
}

bool LinkDbConnection::connectNow()
{
    if (m_settings.kind == LinkDbSettings::Kind::None)
        return fail(notConnected());
    const QString driver = isPostgreSQL() ? QStringLiteral("QPSQL") : QStringLiteral("QSQLITE");
    QSqlDatabase connection = QSqlDatabase::addDatabase(driver, m_connection);
    if (!connection.isValid())
        return fail(PString::translate("Der Treiber %1 für die Linkdatenbank fehlt", "VelkGeomCore")
                        .arg(driver));
    if (isPostgreSQL()) {
        connection.setDatabaseName(m_settings.database);
        connection.setHostName(m_settings.host);
        if (m_settings.port > 0)
            connection.setPort(m_settings.port);
        connection.setUserName(m_settings.user);
        connection.setPassword(m_password);
        connection.setConnectOptions(
            QStringLiteral("connect_timeout=%1;keepalives_idle=30;keepalives_interval=10;"
                           "tcp_user_timeout=30000;application_name=velklinkdb;sslmode=%2")
                .arg(QString::number(m_settings.connectSeconds),
                     m_settings.sslMode.isEmpty() ? QStringLiteral("prefer") : m_settings.sslMode));
    } else {
        const QFileInfo info(PString::ResolveEnvirons(m_settings.file));
        if ((info.exists() || info.isSymLink()) && !info.isFile())
            return fail(
                cannotBeOpened(PString::translate("das ist keine gewöhnliche Datei", "VelkCore")));
        if (m_settings.readOnly && !info.exists())
            return fail(PString::translate("Die Linkdatenbank %1 gibt es nicht", "VelkGeomCore")
                            .arg(info.filePath()));
        if (!m_settings.readOnly)
            QDir().mkpath(info.absolutePath()); // opening fails if that does
        connection.setDatabaseName(info.absoluteFilePath());
        connection.setConnectOptions(
            QStringLiteral("QSQLITE_BUSY_TIMEOUT=%1%2")
                .arg(QString::number(BusyMs),
                     m_settings.readOnly ? QStringLiteral(";QSQLITE_OPEN_READONLY") : QString()));
    }
    m_isConnecting = true;
    m_open = connection.open() || openWithSecret(connection);
    m_isConnecting = false;
    if (!m_open) {
        const QSqlError error = connection.lastError();
        connection = QSqlDatabase();
        disconnectNow();
        const QString why = error.databaseText().trimmed();
        return fail(cannotBeOpened(why.isEmpty() ? error.driverText() : why));
    }
    m_userName = m_settings.user.isEmpty() ? accountName() : m_settings.user;
    if (!isPostgreSQL())
        return true;
    Result who;
    const QString mode = m_settings.readOnly ? QStringLiteral("on") : QStringLiteral("off");
    if (run(QStringLiteral("SET client_min_messages = warning")) &&
        run(QStringLiteral("SET default_transaction_read_only = ") + mode) &&
        run(QStringLiteral("SELECT current_user, pg_backend_pid()"), &who) && !who.rows.isEmpty()) {
        m_userName = who.rows.first().value(0).toString();
        m_backend = who.rows.first().value(1).toLongLong();
        return true;
    }
    disconnectNow();
    return false;
}

/// Where nothing else gave a password the server may have wanted one.
bool LinkDbConnection::openWithSecret(QSqlDatabase &connection) const
{
    if (!isPostgreSQL() || !m_password.isEmpty() || qEnvironmentVariableIsSet("PGPASSWORD"))
        return false;
    const QString secret =
        LinkDbSecret::find(m_settings, m_settings.user.isEmpty() ? accountName() : m_settings.user);
    if (secret.isNull())
        return false;
    connection.setPassword(secret);
    return connection.open();
}

void LinkDbConnection::disconnectNow()
{
    m_backend = 0;
    m_open = false;
    m_pending = false;
    m_pendingStatements = 0;
    if (!QSqlDatabase::contains(m_connection))
        return;
    database().close();
    QSqlDatabase::removeDatabase(m_connection);
}

void LinkDbConnection::close()
{
    if (m_pending)
        static_cast<void>(rollback());
    m_wanted = false;
    disconnectNow();
}

bool LinkDbConnection::ready()
{
    if (m_open)
        return true;
    if (!m_wanted)
        return fail(notConnected());
    if (!connectNow()) {
        m_error.lost = true;
        return false;
    }
    m_notices.append(
        PString::translate("Die Verbindung zur Linkdatenbank %1 besteht wieder", "VelkGeomCore")
            .arg(m_settings.displayName()));
    return true;
}

void LinkDbConnection::cancel()
{
    const qint64 backend = m_backend;
    if (m_cancelled.exchange(true) || backend == 0)
        return;
    // PostgreSQL takes the request over another connection, which may have to wait, too.
    if (m_canceller.joinable())
        m_canceller.join();
    m_canceller = std::thread([settings = m_settings, password = m_password, backend] {
        LinkDbConnection other;
        other.m_settings = settings;
        other.m_password = password;
        if (other.connectNow())
            static_cast<void>(
                other.run(QStringLiteral("SELECT pg_cancel_backend(%1)").arg(backend)));
        other.disconnectNow();
    });
}

void LinkDbConnection::leaveCanceller()
{
    if (m_canceller.joinable())
        m_canceller.detach();
}

void LinkDbConnection::replace(const LinkDbSettings &settings, const QString &password,
                               int lostChanges)
{
    m_settings = settings;
    m_password = password;
    m_wanted = true;
    m_lostChanges = lostChanges;
}
