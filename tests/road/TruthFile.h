#pragma once

#include <QHash>
#include <QList>
#include <QPair>
#include <QString>

/// Where the lines of an old release went, as a CSV file tells it that stands beside the tables:
/// old_table, old_line, new_table, new_line, how and perhaps a note. Tables are paths of files,
/// lines are line numbers. "several: 7;8" as how names equal lines of the new table.
class TruthFile
{
public:
    /// Project path below the catalog without its ending, and line.
    using Place = QPair<QString, int>;

    struct Entry
    {
        QList<Place> places;  ///< Where the line went; several if it was split; none: it is gone.
        bool unknown = false; ///< Nobody knows; leave it out of any score.
    };

    enum class Paths { BelowCatalog, WithCatalog };

    /// False if the file cannot be read.
    [[nodiscard]] bool read(const QString &path, Paths paths = Paths::BelowCatalog);

    [[nodiscard]] const QHash<Place, Entry> &entries() const { return m_entries; }

private:
    QHash<Place, Entry> m_entries;
};
