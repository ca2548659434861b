#include "SqliteJoin.h"

#include "CsvCursor.h"
#include "MappedFile.h"

#include <algorithm>
#include <map>
#include <memory>
#include <sqlite3.h>
#include <stdexcept>

namespace velkbench {

/// Names as the file has them; the database calls column i "c<i>".
struct SqliteJoin::Columns
{
    std::vector<std::string> names;
};

namespace {

using Statement = std::unique_ptr<sqlite3_stmt, int (*)(sqlite3_stmt *)>;

Statement prepare(sqlite3 *database, const std::string &sql)
{
    sqlite3_stmt *statement = nullptr;
    if (sqlite3_prepare_v2(database, sql.c_str(), -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(database));
    return {statement, sqlite3_finalize};
}

std::string unquoted(std::string_view cell)
{
    if (cell.size() < 2 || cell.front() != '"')
        return std::string(cell);
    std::string out;
    for (size_t i = 1; i + 1 < cell.size(); ++i) {
        out += cell[i];
        i += cell[i] == '"' ? 1 : 0;
    }
    return out;
}

/// Binds a cell; \a scratch keeps the bytes of a quoted one until the statement has run.
void bind(sqlite3_stmt *statement, int index, std::string_view cell, std::string &scratch)
{
    if (!cell.empty() && cell.front() == '"') {
        scratch = unquoted(cell);
        cell = scratch;
    }
    sqlite3_bind_text(statement, index, cell.data(), int(cell.size()), SQLITE_STATIC);
}

std::string placeholders(size_t count)
{
    std::string out;
    for (size_t i = 0; i < count; ++i)
        out += i == 0 ? "?" : ",?";
    return out;
}

std::string columnList(size_t count)
{
    std::string out;
    for (size_t i = 0; i < count; ++i)
        out += (i == 0 ? "c" : ",c") + std::to_string(i);
    return out;
}

} // namespace

SqliteJoin::SqliteJoin()
{
    if (sqlite3_open(":memory:", &m_database) != SQLITE_OK)
        throw std::runtime_error("SQLite gives no database");
}

SqliteJoin::~SqliteJoin()
{
    sqlite3_close(m_database);
}

void SqliteJoin::execute(const std::string &sql)
{
    if (sqlite3_exec(m_database, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
        throw std::runtime_error(sql + ": " + sqlite3_errmsg(m_database));
}

SqliteJoin::Columns SqliteJoin::importTable(const std::string &table,
                                            const std::filesystem::path &csv)
{
    const MappedFile file(csv);
    CsvCursor cursor(file.bytes());
    std::vector<std::string_view> cells;
    Columns columns;
    if (!cursor.next(cells))
        return columns;
    for (const std::string_view cell : cells)
        columns.names.push_back(unquoted(cell));
    const size_t count = columns.names.size();
    execute("CREATE TABLE " + table + " (" + columnList(count) + ")");
    const Statement insert =
        prepare(m_database, "INSERT INTO " + table + " VALUES (" + placeholders(count) + ")");
    std::vector<std::string> scratch(count);
    while (cursor.next(cells)) {
        for (size_t i = 0; i < count; ++i)
            bind(insert.get(), int(i) + 1, i < cells.size() ? cells[i] : std::string_view(),
                 scratch[i]);
        if (sqlite3_step(insert.get()) != SQLITE_DONE)
            throw std::runtime_error(sqlite3_errmsg(m_database));
        sqlite3_reset(insert.get());
    }
    return columns;
}

size_t SqliteJoin::joinTables(const std::string &oldTable, const Columns &oldColumns,
                              const std::string &newTable, const Columns &newColumns)
{
    std::string indexed;
    std::string condition;
    for (size_t a = 0; a < oldColumns.names.size(); ++a) {
        const auto found =
            std::find(newColumns.names.begin(), newColumns.names.end(), oldColumns.names[a]);
        if (found == newColumns.names.end())
            continue;
        const std::string b = std::to_string(found - newColumns.names.begin());
        indexed += (indexed.empty() ? "c" : ",c") + b;
        condition +=
            (condition.empty() ? "" : " AND ") + ("o.c" + std::to_string(a)) + " = n.c" + b;
    }
    if (indexed.empty())
        return 0;
    execute("CREATE INDEX i_" + newTable + " ON " + newTable + " (" + indexed + ")");
    const Statement select = prepare(m_database, "SELECT o.rowid, n.rowid FROM " + oldTable +
                                                     " o JOIN " + newTable + " n ON " + condition);
    size_t hits = 0;
    while (sqlite3_step(select.get()) == SQLITE_ROW)
        hits += sqlite3_column_int64(select.get(), 1) > 0 ? 1 : 0;
    return hits;
}

size_t SqliteJoin::join(const std::filesystem::path &oldCsv, const std::filesystem::path &newCsv)
{
    execute("BEGIN");
    const Columns oldColumns = importTable("old", oldCsv);
    const Columns newColumns = importTable("new", newCsv);
    const size_t hits = joinTables("old", oldColumns, "new", newColumns);
    execute("COMMIT");
    return hits;
}

size_t SqliteJoin::joinFolders(const std::filesystem::path &oldFolder,
                               const std::filesystem::path &newFolder)
{
    struct Imported
    {
        std::string table;
        Columns columns;
    };
    const auto importAll = [this](const std::filesystem::path &folder, const std::string &prefix) {
        std::map<std::string, Imported> result;
        for (const auto &entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.path().extension() != ".csv")
                continue;
            const std::string table = prefix + std::to_string(result.size());
            const auto relative = std::filesystem::relative(entry.path(), folder).string();
            result[relative] = {table, importTable(table, entry.path())};
        }
        return result;
    };
    execute("BEGIN");
    const auto oldTables = importAll(oldFolder, "o");
    const auto newTables = importAll(newFolder, "n");
    size_t hits = 0;
    for (const auto &[path, table] : oldTables) {
        const auto found = newTables.find(path);
        if (found != newTables.end())
            hits +=
                joinTables(table.table, table.columns, found->second.table, found->second.columns);
    }
    execute("COMMIT");
    return hits;
}

} // namespace velkbench
