#include "LinkDbConnection.h"

#include <core/text/PString.h>

#include <QRegularExpression>
#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlRecord>
#include <QThread>

#include <chrono>
#include <optional>

namespace {

constexpr std::chrono::seconds patience{10}; ///< all waits for a lock of a file
constexpr int commitLooks = 20;              ///< at a commit whose answer was lost
constexpr int commitLookMs = 100;

QString nextConnection()
{
    static std::atomic<quint64> count = 0;
    return QStringLiteral("velk-linkdb-%1").arg(++count);
}

/// The names in a table's own spelling: the driver of SQLite drops quotes from those of a result.
std::optional<QString> tableOfStar(const QString &sql)
{
    static const QRegularExpression star(QStringLiteral("^\\s*SELECT\\s+\\*\\s+FROM\\s+(\\w+)"
                                                        "(\\s+WHERE\\b.*)?\\s*$"),
                                         QRegularExpression::CaseInsensitiveOption |
                                             QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch match = star.match(sql);
    return match.hasMatch() ? std::optional(match.captured(1)) : std::nullopt;
}

} // namespace

LinkDbConnection::LinkDbConnection()
    : m_connection(nextConnection())
{
}

LinkDbConnection::~LinkDbConnection()
{
    close();
    if (m_canceller.joinable())
        m_canceller.join();
}

QSqlDatabase LinkDbConnection::database() const
{
    return QSqlDatabase::database(m_connection, false);
}

bool LinkDbConnection::fail(const QString &text, const QString &statement, bool lost)
{
    m_error = {text, statement, {}, lost, false};
    return false;
}

bool LinkDbConnection::isLost(const QSqlError &error)
{
    if (!isPostgreSQL())
        return false;
    const QString state = error.nativeErrorCode();
    if (state.startsWith(QLatin1String("08")) || state.startsWith(QLatin1String("57P")))
        return true;
    if (!state.isEmpty())
        return false;
    if (!database().isOpen()) // the driver has seen it
        return true;
    QSqlQuery ping(database());
    return !ping.exec(QStringLiteral("SELECT 1"));
}

bool LinkDbConnection::note(const QSqlQuery &query, const QString &statement)
{
    const QSqlError error = query.lastError();
    const QString text = error.databaseText().trimmed();
    m_error = {text.isEmpty() ? error.driverText() : text, statement, error.nativeErrorCode(),
               false, false};
    m_error.cancelled =
        m_cancelled && (error.nativeErrorCode() == QLatin1String("57014") || !isPostgreSQL());
    if (!isLost(error))
        return false;
    m_error.lost = true;
    m_lostChanges += m_pendingStatements;
    disconnectNow();
    QString notice = PString::translate("Die Verbindung zur Linkdatenbank %1 ist abgebrochen: %2",
                                        "VelkGeomCore")
                         .arg(m_settings.displayName(), m_error.text);
    if (m_lostChanges > 0)
        notice += u' ' + lostChangesText(m_lostChanges);
    m_notices.append(notice);
    return false;
}

bool LinkDbConnection::execute(QSqlQuery &query, const QString &sql)
{
    // The database would see the statement up to there only.
    if (sql.contains(QChar(0)))
        return fail(PString::translate("Die Anweisung enthält ein Nullzeichen", "VelkGeomCore"),
                    sql);
    const auto end = std::chrono::steady_clock::now() + patience;
    while (!query.exec(sql)) {
        const int code = query.lastError().nativeErrorCode().toInt() & 0xff;
        const bool busy = !isPostgreSQL() && (code == 5 || code == 6);
        if (!busy || m_cancelled || std::chrono::steady_clock::now() > end)
            return note(query, sql);
        QThread::msleep(BusyMs / 2);
    }
    return true;
}

bool LinkDbConnection::run(const QString &sql, Result *result)
{
    QSqlQuery query(database());
    query.setForwardOnly(true);
    if (!execute(query, sql))
        return false;
    if (!result)
        return true;
    result->changed = query.numRowsAffected();
    if (!query.isSelect())
        return true;
    const QSqlRecord record = query.record();
    QStringList names;
    for (int i = 0; i < record.count(); ++i)
        names.append(record.fieldName(i));
    while (query.next()) {
        if (m_cancelled) {
            result->rows.clear();
            fail(
                PString::translate("Abgebrochen: %1", "VelkGeomCore").arg(m_settings.displayName()),
                sql);
            m_error.cancelled = true;
            return false;
        }
        QVariantList row;
        row.reserve(names.size());
        for (int i = 0; i < names.size(); ++i)
            row.append(query.value(i));
        result->rows.append(std::move(row));
    }
    if (query.lastError().isValid())
        return note(query, sql);
    result->columns = std::make_shared<LinkDbColumns>(names);
    return true;
}

bool LinkDbConnection::begin()
{
    if (m_pending)
        return true;
    if (!run(isPostgreSQL() ? QStringLiteral("BEGIN") : QStringLiteral("BEGIN IMMEDIATE")))
        return false;
    Result id;
    if (isPostgreSQL() && (!run(QStringLiteral("SELECT txid_current()"), &id) || id.rows.isEmpty()))
        return false;
    m_transactionId = id.rows.isEmpty() ? QString() : id.rows.first().value(0).toString();
    m_pending = true;
    m_pendingStatements = 0;
    m_lostChanges = 0;
    return true;
}

bool LinkDbConnection::inSavepoint(const std::function<bool()> &statements)
{
    if (!run(QStringLiteral("SAVEPOINT linkdb_statement")))
        return false;
    const bool done = statements();
    if (!done && !m_open)
        return false; // the transaction went with the connection
    const LinkDbError error = m_error;
    const bool undone = done || run(QStringLiteral("ROLLBACK TO SAVEPOINT linkdb_statement"));
    const bool released = undone && run(QStringLiteral("RELEASE SAVEPOINT linkdb_statement"));
    if (!done && released)
        m_error = error;
    return done && released;
}

bool LinkDbConnection::changeAll(const std::function<bool()> &statements)
{
    m_error = {};
    if (!ready())
        return false;
    const bool opened = !m_pending;
    // A server that was restarted since: nothing is begun yet, so nothing can be written twice.
    if (!begin() && !(m_error.lost && ready() && begin()))
        return false;
    if (inSavepoint(statements)) {
        ++m_pendingStatements;
        return true;
    }
    // A transaction in which nothing was done would only hold locks.
    if (opened && m_pending) {
        const LinkDbError error = m_error;
        static_cast<void>(rollback());
        m_error = error;
    }
    return false;
}

bool LinkDbConnection::change(const QString &sql, qint64 *changed)
{
    return changeAll([&] {
        Result result;
        const bool done = run(sql, &result);
        if (changed)
            *changed = result.changed;
        return done;
    });
}

/// Reading may be done twice if the connection was lost and no changes went with it.
bool LinkDbConnection::readAgain(const QString &sql, Result &result)
{
    if (run(sql, &result))
        return true;
    if (!m_error.lost || m_lostChanges > 0 || !ready())
        return false;
    result = {};
    return run(sql, &result);
}

bool LinkDbConnection::select(const QString &sql, Result &result)
{
    m_error = {};
    if (!ready())
        return false;
    // An error inside of a transaction would make PostgreSQL refuse all that follows.
    const bool done = m_pending && isPostgreSQL() ? inSavepoint([&] { return run(sql, &result); })
                                                  : readAgain(sql, result);
    if (!done || isPostgreSQL())
        return done;
    if (const auto table = tableOfStar(sql)) {
        const QStringList names = columnsOf(*table);
        if (names.size() == result.columns->count())
            result.columns = std::make_shared<LinkDbColumns>(names);
    }
    return true;
}

bool LinkDbConnection::commit()
{
    m_error = {};
    if (m_lostChanges > 0) {
        m_lostChanges = 0;
        return fail(PString::translate("Die Änderungen sind mit der Verbindung zur Linkdatenbank "
                                       "verloren gegangen; sie sind zu wiederholen",
                                       "VelkGeomCore"),
                    QStringLiteral("COMMIT"), true);
    }
    if (!m_pending)
        return true;
    if (run(QStringLiteral("COMMIT"))) {
        m_pending = false;
        m_pendingStatements = 0;
        return true;
    }
    if (m_error.lost)
        return outcomeOfCommit();
    // Not committed, and a statement after a failed commit must not be taken for part of it.
    const LinkDbError error = m_error;
    static_cast<void>(rollback());
    m_error = error;
    return false;
}

/// Of a commit whose answer did not come; the server still knows what became of it.
bool LinkDbConnection::outcomeOfCommit()
{
    const LinkDbError error = m_error;
    const QString sql = QStringLiteral("SELECT txid_status(%1)").arg(m_transactionId);
    for (int look = 0; look < commitLooks && !m_cancelled; ++look) {
        if (look > 0)
            QThread::msleep(commitLookMs);
        Result result;
        if (!ready() || !run(sql, &result) || result.rows.isEmpty())
            continue;
        const QString state = result.rows.first().value(0).toString();
        if (state == QLatin1String("in progress"))
            continue;
        m_lostChanges = 0;
        if (state == QLatin1String("committed")) {
            m_error = {};
            return true;
        }
        m_error = error;
        return false;
    }
    m_lostChanges = 0;
    m_error = error;
    m_error.text = uncertainText(error.text);
    return false;
}

bool LinkDbConnection::rollback()
{
    m_error = {};
    m_lostChanges = 0;
    if (!m_pending)
        return true;
    m_pending = false;
    m_pendingStatements = 0;
    return run(QStringLiteral("ROLLBACK"));
}

QString LinkDbConnection::literal(const QVariant &value) const
{
    QVariant clean = value;
    if (value.typeId() == QMetaType::QString)
        clean = value.toString().remove(QChar(0));
    QSqlField field(QString(), clean.metaType());
    field.setValue(clean);
    if (const QSqlDriver *driver = database().driver())
        return driver->formatValue(field);
    return clean.isNull() ? QStringLiteral("NULL")
                          : u'\'' + clean.toString().replace(u'\'', QLatin1String("''")) + u'\'';
}

std::optional<QString> LinkDbConnection::plainLiteral(const QVariant &value)
{
    if (value.typeId() != QMetaType::QString || value.isNull())
        return std::nullopt;
    QString text = value.toString();
    if (text.isNull() || text.contains(u'\\'))
        return std::nullopt;
    text.remove(QChar(0)).replace(u'\'', QLatin1String("''"));
    return u'\'' + text + u'\'';
}

QString LinkDbConnection::identifier(const QString &name)
{
    // The driver's own quoting takes a name with quotes round it as quoted, and parts it at dots.
    return u'"' + QString(name).replace(u'"', QLatin1String("\"\"")) + u'"';
}

QStringList LinkDbConnection::columnsOf(const QString &table)
{
    const QString sql =
        isPostgreSQL()
            ? QStringLiteral("SELECT attname FROM pg_attribute WHERE attrelid = to_regclass(%1) "
                             "AND attnum > 0 AND NOT attisdropped ORDER BY attnum")
            : QStringLiteral("SELECT name FROM pragma_table_info(%1) ORDER BY cid");
    Result result;
    const QString statement = sql.arg(literal(table));
    const bool done = m_pending && isPostgreSQL()
                          ? inSavepoint([&] { return run(statement, &result); })
                          : run(statement, &result);
    QStringList names;
    for (const QVariantList &row : std::as_const(result.rows)) {
        if (done)
            names.append(row.first().toString());
    }
    return names;
}

bool LinkDbConnection::tableColumns(const QString &table, QStringList &columns)
{
    m_error = {};
    if (!ready())
        return false;
    columns = columnsOf(table);
    if (columns.isEmpty() && !m_error.isSet())
        fail(PString::translate("Die Tabelle %1 gibt es in der Linkdatenbank nicht", "VelkGeomCore")
                 .arg(table));
    return !columns.isEmpty();
}
