#pragma once

#include "LinkDbError.h"
#include "LinkDbSettings.h"
#include "PLinkDbRecordC.h"

#include <QSqlDatabase>
#include <QSqlQuery>

#include <atomic>
#include <functional>
#include <optional>
#include <thread>

/// Connection to a link database with its transaction. On one thread, but for cancel().
///
/// Nothing is committed by itself: the first statement that changes data opens a transaction, and
/// such statements run inside a savepoint each, so that a failed one goes alone. A lost connection
/// takes the open transaction along; the next statement connects anew.
class LinkDbConnection
{
public:
    struct Result
    {
        std::shared_ptr<const LinkDbColumns> columns;
        QList<QVariantList> rows;
        qint64 changed = 0; ///< rows that a changing statement touched
    };
    LinkDbConnection();
    ~LinkDbConnection();
    LinkDbConnection(const LinkDbConnection &) = delete;
    LinkDbConnection &operator=(const LinkDbConnection &) = delete;

    /// Connects and makes or migrates the tables. An open connection is closed before, and what is
    /// pending on it rolled back.
    [[nodiscard]] bool open(const LinkDbSettings &settings, const QString &password);
    void close();
    [[nodiscard]] bool isOpen() const { return m_open; }

    [[nodiscard]] const LinkDbSettings &settings() const { return m_settings; }
    [[nodiscard]] bool isPostgreSQL() const
    {
        return m_settings.kind == LinkDbSettings::Kind::PostgreSQL;
    }
    /// Name that the database knows the user by; for SQLite that of the account.
    [[nodiscard]] const QString &userName() const { return m_userName; }
    /// For SQLite, which knows no users.
    void setUserName(const QString &name) { m_userName = name; }

    [[nodiscard]] bool select(const QString &sql, Result &result);
    /// A statement, or several that stand or fall as one, in the open transaction.
    [[nodiscard]] bool change(const QString &sql, qint64 *changed = nullptr);
    [[nodiscard]] bool changeAll(const std::function<bool()> &statements);
    /// True also if nothing is pending.
    [[nodiscard]] bool commit();
    [[nodiscard]] bool rollback();
    [[nodiscard]] bool isPending() const { return m_pending; }

    /// A statement without savepoint; for use inside changeAll() and for the tables' own upkeep.
    [[nodiscard]] bool run(const QString &sql, Result *result = nullptr);

    [[nodiscard]] QString literal(const QVariant &value) const;
    /// Of a text that every database writes in the same way, on any thread.
    [[nodiscard]] static std::optional<QString> plainLiteral(const QVariant &value);
    [[nodiscard]] static QString identifier(const QString &name);
    /// Stored names of a table's columns; none if there is no such table.
    [[nodiscard]] QStringList columnsOf(const QString &table);
    /// The same for a caller that is not in the middle of other statements: false with the error if
    /// the table cannot be asked for or is not there.
    [[nodiscard]] bool tableColumns(const QString &table, QStringList &columns);

    [[nodiscard]] const LinkDbError &error() const { return m_error; }
    /// Sets the error and is false.
    bool fail(const QString &text, const QString &statement = {}, bool lost = false);

    [[nodiscard]] static QString lostChangesText(int statements);
    /// Of a commit without an answer.
    [[nodiscard]] static QString uncertainText(const QString &cause);
    /// What is told if there never was a connection.
    [[nodiscard]] static QString notConnected();

    /// Any thread: the statement that runs gives up soon.
    void cancel();
    void clearCancel() { m_cancelled = false; }
    /// Any thread: it waits for a server's first answers, with nothing at stake.
    [[nodiscard]] bool isConnecting() const { return m_isConnecting; }
    /// Before its thread is left to itself: nobody waits for what cancel() began.
    void leaveCanceller();
    /// Connects at the next statement, in the place of one that was given up with so many
    /// statements that were not committed.
    void replace(const LinkDbSettings &settings, const QString &password, int lostChanges);
    [[nodiscard]] int pendingStatements() const { return m_pendingStatements; }
    /// Statements went with a connection and no commit() has told so yet.
    [[nodiscard]] bool hasLostChanges() const { return m_lostChanges > 0; }
    [[nodiscard]] bool isCancelled() const { return m_cancelled; }

    /// What is to be told of connections lost and taken up again, since the last call.
    [[nodiscard]] QStringList takeNotices() { return std::exchange(m_notices, {}); }

private:
    static constexpr int BusyMs = 50; ///< the driver's own wait for a lock

    [[nodiscard]] QSqlDatabase database() const;
    [[nodiscard]] bool connectNow();
    [[nodiscard]] bool openWithSecret(QSqlDatabase &connection) const;
    [[nodiscard]] QString cannotBeOpened(const QString &why) const;
    void disconnectNow();
    [[nodiscard]] bool ready();
    [[nodiscard]] bool begin();
    bool note(const QSqlQuery &query, const QString &statement);
    [[nodiscard]] bool isLost(const QSqlError &error);
    [[nodiscard]] bool execute(QSqlQuery &query, const QString &sql);
    [[nodiscard]] bool inSavepoint(const std::function<bool()> &statements);
    [[nodiscard]] bool readAgain(const QString &sql, Result &result);
    [[nodiscard]] bool outcomeOfCommit();

    LinkDbSettings m_settings;
    QString m_password;
    QString m_connection;
    QString m_userName;
    bool m_open = false;
    bool m_wanted = false; ///< open until the connection was lost
    bool m_pending = false;
    std::atomic<int> m_pendingStatements = 0; ///< read by who gives up
    int m_lostChanges = 0; ///< statements that went with the connection and are not yet told
    QString m_transactionId;
    LinkDbError m_error;
    std::atomic<bool> m_cancelled = false;
    std::atomic<bool> m_isConnecting = false;
    std::atomic<qint64> m_backend = 0;
    QStringList m_notices;
    std::thread m_canceller;
};
