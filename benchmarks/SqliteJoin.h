#pragma once

#include <filesystem>
#include <string>

struct sqlite3;

namespace velkbench {

/// An in-memory SQLite database that imports CSV files and joins them: the everyday way to find
/// equal lines of two tables. Throws std::runtime_error with SQLite's message.
class SqliteJoin
{
public:
    SqliteJoin();
    ~SqliteJoin();
    SqliteJoin(const SqliteJoin &) = delete;
    SqliteJoin &operator=(const SqliteJoin &) = delete;

    /// Imports both files in one transaction with prepared statements, makes an index over all
    /// common columns of the new table and joins. Gives the number of hits.
    size_t join(const std::filesystem::path &oldCsv, const std::filesystem::path &newCsv);
    /// Imports all CSV files below both folders in one transaction and joins tables of the same
    /// relative path on their common columns, through an index each. Gives the number of hits.
    size_t joinFolders(const std::filesystem::path &oldFolder,
                       const std::filesystem::path &newFolder);

private:
    struct Columns;
    void execute(const std::string &sql);
    Columns importTable(const std::string &table, const std::filesystem::path &csv);
    size_t joinTables(const std::string &oldTable, const Columns &oldColumns,
                      const std::string &newTable, const Columns &newColumns);

    sqlite3 *m_database = nullptr;
};

} // namespace velkbench
