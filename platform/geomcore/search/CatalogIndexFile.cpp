#include "CatalogIndexFile.h"

#include <core/files/DurableFile.h>
#include <core/text/PString.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSqlError>

#include <atomic>

namespace {

/// In the head of the file, by which ours are known.
constexpr int ApplicationId = 0x56434958;
/// Raised with every change of what the tables hold.
constexpr int Version = 1;
constexpr int HeadSize = 100;
constexpr int ApplicationIdAt = 68;

const char *const Schema[] = {
    "CREATE TABLE meta(key TEXT PRIMARY KEY, value) WITHOUT ROWID",
    "CREATE TABLE dirs(id INTEGER PRIMARY KEY, parent INTEGER NOT NULL, path TEXT NOT NULL UNIQUE,"
    " time INTEGER NOT NULL)",
    "CREATE TABLE projects(id INTEGER PRIMARY KEY, dir INTEGER NOT NULL, path TEXT NOT NULL UNIQUE,"
    " title TEXT NOT NULL, norm TEXT NOT NULL, lines INTEGER NOT NULL, head TEXT NOT NULL,"
    " time INTEGER NOT NULL, size INTEGER NOT NULL,"
    " table_file TEXT NOT NULL, table_time INTEGER NOT NULL, table_size INTEGER NOT NULL,"
    " lines_file TEXT NOT NULL, lines_time INTEGER NOT NULL, lines_size INTEGER NOT NULL)",
    "CREATE INDEX projects_dir ON projects(dir)",
    "CREATE TABLE columns(project INTEGER NOT NULL, name TEXT NOT NULL, unit TEXT NOT NULL,"
    " is_range INTEGER NOT NULL, decimal TEXT NOT NULL, least REAL, greatest REAL, vals BLOB)",
    "CREATE INDEX columns_name ON columns(name, project)",
    "CREATE INDEX columns_project ON columns(project)",
    "CREATE VIRTUAL TABLE words USING fts5(head, lines, tokenize='ascii', detail=column,"
    " columnsize=0, prefix='1 2 3')",
};

enum class Kind { Empty, Ours, Database, Other };

/// By the first bytes of a file, whatever became of the others.
Kind kindOf(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() == 0)
        return Kind::Empty;
    const QByteArray head = file.read(HeadSize);
    if (!head.startsWith("SQLite format 3"))
        return Kind::Other;
    quint32 id = 0;
    for (int i = 0; i < 4 && head.size() == HeadSize; ++i)
        id = id << 8 | uchar(head.at(ApplicationIdAt + i));
    return id == quint32(ApplicationId) ? Kind::Ours : Kind::Database;
}

QString nextConnection()
{
    static std::atomic<quint64> count = 0;
    return QStringLiteral("velk-catalog-index-%1").arg(++count);
}

QVariant firstValue(const QSqlDatabase &database, const QString &sql, QSqlError &error)
{
    QSqlQuery query(database);
    if (query.exec(sql))
        return query.next() ? query.value(0) : QVariant();
    error = query.lastError();
    return {};
}

} // namespace

CatalogIndexFile::CatalogIndexFile(const QString &file, const QString &root)
    : m_file(file)
    , m_root(root)
    , m_connection(nextConnection())
{
}

CatalogIndexFile::~CatalogIndexFile()
{
    close();
}

QSqlDatabase CatalogIndexFile::database() const
{
    return QSqlDatabase::database(m_connection, false);
}

void CatalogIndexFile::close()
{
    if (!QSqlDatabase::contains(m_connection))
        return;
    database().close();
    QSqlDatabase::removeDatabase(m_connection);
}

bool CatalogIndexFile::note(const QSqlError &error)
{
    constexpr int corrupt = 11;
    constexpr int notADatabase = 26;
    const int code = error.nativeErrorCode().toInt() & 0xff;
    m_damaged = m_damaged || code == corrupt || code == notADatabase;
    m_errorText = m_file + QStringLiteral(": ") + error.text();
    return false;
}

bool CatalogIndexFile::run(const QString &sql)
{
    QSqlQuery query(database());
    return query.exec(sql) || note(query.lastError());
}

bool CatalogIndexFile::run(QSqlQuery &query)
{
    if (query.exec())
        return true;
    // Of a query that could not be prepared it is known why.
    const QSqlError error = query.lastError();
    return error.nativeErrorCode().isEmpty() && !m_errorText.isEmpty() ? false : note(error);
}

QSqlQuery CatalogIndexFile::prepared(const QString &sql)
{
    QSqlQuery query(database());
    query.setForwardOnly(true);
    if (!query.prepare(sql))
        note(query.lastError());
    return query;
}

CatalogIndexFile::State CatalogIndexFile::open()
{
    close();
    m_damaged = false;
    QSqlDatabase connection = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connection);
    connection.setDatabaseName(m_file);
    connection.setConnectOptions(QStringLiteral("QSQLITE_BUSY_TIMEOUT=10000"));
    if (connection.open())
        return Opened;
    note(connection.lastError());
    return Failed;
}

CatalogIndexFile::State CatalogIndexFile::check()
{
    QSqlError error;
    const int id = firstValue(database(), QStringLiteral("PRAGMA application_id"), error).toInt();
    const int version =
        firstValue(database(), QStringLiteral("PRAGMA user_version"), error).toInt();
    const int tables =
        firstValue(database(), QStringLiteral("SELECT count(*) FROM sqlite_master"), error).toInt();
    if (!error.isValid() && tables == 0)
        return Missing;
    if (!error.isValid() && id != ApplicationId) {
        m_errorText =
            PString::translate("%1 ist die Datenbank eines anderen Programms", "VelkGeomCore")
                .arg(m_file);
        return Failed;
    }
    const QString root =
        firstValue(database(), QStringLiteral("SELECT value FROM meta WHERE key = 'root'"), error)
            .toString();
    if (error.isValid()) {
        note(error);
        return m_damaged || version != Version || tables > 0 ? Broken : Failed;
    }
    return version == Version && root == m_root ? Opened : Broken;
}

CatalogIndexFile::State CatalogIndexFile::openToRead()
{
    const QFileInfo info(m_file);
    if (!info.exists() || (info.isFile() && info.size() == 0))
        return Missing;
    if (!info.isFile()) {
        m_errorText = m_file + QStringLiteral(": ") +
                      PString::translate("Das ist keine gewöhnliche Datei.", "VelkCore");
        return Failed;
    }
    if (kindOf(m_file) == Kind::Other)
        return Broken;
    const State opened = open();
    return opened == Opened ? check() : opened;
}

CatalogIndexFile::State CatalogIndexFile::openToWrite()
{
    State state = openToRead();
    if (state == Failed)
        return state;
    if (state == Broken) {
        if (!discard())
            return Failed;
        state = Missing;
    }
    if (state == Missing) {
        if (!QDir().mkpath(QFileInfo(m_file).absolutePath()) || open() != Opened || !makeSchema())
            return Failed;
    }
    return run(QStringLiteral("PRAGMA synchronous = NORMAL")) &&
                   run(QStringLiteral("PRAGMA cache_size = -65536")) &&
                   run(QStringLiteral("PRAGMA wal_autocheckpoint = 8000"))
               ? Opened
               : Failed;
}

bool CatalogIndexFile::discard()
{
    close();
    bool done = true;
    if (kindOf(m_file) == Kind::Ours)
        done = QFile::remove(m_file);
    else if (QFileInfo::exists(m_file))
        done = QFile::rename(m_file, DurableFile::stampedName(m_file, QStringLiteral("broken")));
    QFile::remove(m_file + QStringLiteral("-wal"));
    QFile::remove(m_file + QStringLiteral("-shm"));
    if (!done)
        m_errorText = PString::translate("%1 ist kein Suchindex und kann nicht ersetzt werden",
                                         "VelkGeomCore")
                          .arg(m_file);
    return done;
}

bool CatalogIndexFile::makeSchema()
{
    // Where the file system has no shared memory the former kind of journal stays.
    if (!run(QStringLiteral("PRAGMA application_id = %1").arg(ApplicationId)) ||
        !run(QStringLiteral("PRAGMA journal_mode = WAL")) ||
        !run(QStringLiteral("BEGIN IMMEDIATE")) ||
        !run(QStringLiteral("PRAGMA user_version = %1").arg(Version)))
        return false;
    for (const char *statement : Schema) {
        if (!run(QLatin1String(statement)))
            return false;
    }
    // More is gathered in memory before a part of the word index is written: fewer parts to merge.
    if (!run(QStringLiteral("INSERT INTO words(words, rank) VALUES('hashsize', 16777216)")))
        return false;
    QSqlQuery root = prepared(QStringLiteral("INSERT INTO meta VALUES('root', ?)"));
    root.addBindValue(m_root);
    return run(root) && run(QStringLiteral("COMMIT"));
}

bool CatalogIndexFile::isComplete()
{
    QSqlError error;
    return firstValue(database(), QStringLiteral("SELECT 1 FROM meta WHERE key = 'complete'"),
                      error)
               .toInt() == 1;
}

bool CatalogIndexFile::setComplete()
{
    return run(QStringLiteral("INSERT OR REPLACE INTO meta VALUES('complete', 1)"));
}
