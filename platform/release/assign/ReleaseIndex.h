#pragma once

#include <release/VelkReleaseGlobal.h>

#include "LineCells.h"

#include <QHash>
#include <QStringList>

#include <vector>

namespace VelkRelease {

/// All tables of a release by what their lines say: 4 bytes a cell and 8 for each different value
/// of a table's variable, so about 100 bytes for a line of 10 variables. Filled by add(), then
/// sorted once by finish().
class VELKRELEASE_EXPORT ReleaseIndex
{
public:
    /// \a projectPath relative to the catalog root. Gives the number of the table, from 0.
    int add(const QString &projectPath, LineCells cells);
    /// Until then holders() and withNameBegin() find nothing.
    void finish();

    [[nodiscard]] int count() const { return int(m_tables.size()); }
    [[nodiscard]] const LineCells &table(int number) const { return m_tables[size_t(number)]; }
    [[nodiscard]] const QString &path(int number) const { return m_paths[number]; }
    [[nodiscard]] const QString &name(int number) const { return m_names[number]; }

    /// Number of the table with that path below the catalog; -1 if there is none.
    [[nodiscard]] int withPath(const QString &pathInCatalog) const;
    /// Tables whose project has that folded name, in ascending order.
    [[nodiscard]] std::vector<int> withName(const QString &foldedName) const;

    /// Tables whose project has a longer name that begins so, in ascending order. A number that
    /// goes on is another number.
    [[nodiscard]] std::vector<int> withNameBegin(const QString &foldedName) const;

    /// Tables in a folder of the catalog, "" or one that ends with a slash, in ascending order;
    /// none if these are more than \a limit.
    [[nodiscard]] std::vector<int> inFolder(const QString &folderInCatalog, int limit) const;

    /// Tables that hold values of these lines, those that hold most of them first, \a limit at
    /// most. Values and lines that more than CommonLimit tables hold count for nothing; a table
    /// with less than a MinorShare-th of the best one's values is left out. Any thread.
    [[nodiscard]] std::vector<int> holders(const LineCells &cells, const std::vector<int> &rows,
                                           int limit) const;
    static constexpr int CommonLimit = 256;
    static constexpr int MinorShare = 32;

private:
    /// Upper 40 bits of a hash and the number of a table: 8 bytes for each value of a table.
    using Postings = std::vector<quint64>;

    void addPostings(int table, std::vector<quint64> &values, std::vector<quint64> &rows);
    struct Votes;
    static void vote(const Postings &postings, quint64 hash, int weight, Votes &votes);

    std::vector<LineCells> m_tables;
    QStringList m_paths;
    QStringList m_names;
    QHash<QString, int> m_byPath;
    QMultiHash<QString, int> m_byName;
    QMultiHash<QString, int> m_byFolder;
    std::vector<int> m_sortedNames; ///< Tables by their names.
    Postings m_values;
    Postings m_rows;
    Postings m_wholes;
};

} // namespace VelkRelease
