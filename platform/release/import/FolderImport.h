#pragma once

#include "TableImport.h"

#include <functional>

namespace VelkRelease {

/// Imports a folder tree of CSV files, and of files that an extension reads, into the catalog's
/// folder that the options name as root: each NAME.csv at the same relative path, in the order of
/// their names. Directories are walked, links
/// to them are not.
class VELKRELEASE_EXPORT FolderImport
{
public:
    enum class Outcome : quint8 {
        Done,
        Unreadable, ///< some table, or some folder; all else is imported
        Unwritable, ///< the work ended there
        Empty,      ///< there is no CSV file
        Cancelled,
    };
    struct Counts
    {
        int created = 0;
        int changed = 0;
        int unchanged = 0;
        int failed = 0;
        qint64 lines = 0;

        [[nodiscard]] int tables() const { return created + changed + unchanged; }
    };
    /// Who is told, on the calling thread.
    struct Listener
    {
        std::function<void(const QString &)> error; ///< with file and place
        /// A table that was imported, by its relative path without ending.
        std::function<void(const QString &, const TableImport &)> table;
        /// Tables that are done, of all; false ends the work.
        std::function<bool(int, int)> progress;
    };

    /// \a from is absolute.
    FolderImport(const QString &from, const ImportOptions &options, const Listener &listener);

    [[nodiscard]] Outcome run();

    [[nodiscard]] const Counts &counts() const { return m_counts; }
    /// Projects of the catalog, by relative path, that have no CSV file any more. They stay.
    [[nodiscard]] const QStringList &leftOvers() const { return m_leftOvers; }
    /// Whether one of two absolute folders is the other one or lies in it: then the catalog would
    /// be imported into itself.
    [[nodiscard]] static bool areNested(const QString &a, const QString &b);

private:
    [[nodiscard]] QStringList findTables();
    [[nodiscard]] bool importTable(const QString &table);
    void findLeftOvers(const QStringList &tables);
    void tellError(const QString &text);

    const QString m_from;
    const ImportOptions m_options;
    const Listener m_listener;
    Outcome m_outcome = Outcome::Done;
    Counts m_counts;
    QStringList m_leftOvers;
};

} // namespace VelkRelease
