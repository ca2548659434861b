#pragma once

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QHash>
#include <QSet>
#include <QString>

#include <optional>

/// Directories of catalogs as their repositories have them in one revision, on the disk:
///
///     KEY/revision                 the last revision that was used, a number
///     KEY/REVISION/CATALOG/...     the files of the directories that were fetched
///     KEY/REVISION/.list/CATALOG/...  the same of what is known about them, one file each
///     KEY/done/REVISION-HASH       one for each of these: its files' bytes, a space and its path
///
/// KEY is made of the repository's URL, HASH of the path; CATALOG is the catalog's name. Several
/// programs may use one cache. One thread at a time.
class VELKGEOMCORE_EXPORT RepositoryCache
{
public:
    /// When more than \a limit bytes are there, the directories that were not used for the longest
    /// time go until a tenth of that is free.
    RepositoryCache(QString directory, qint64 limit);

    /// A directory that is a catalog root: below it, by its name, lies the catalog.
    [[nodiscard]] QString rootOf(const QString &key, qint64 revision) const;
    [[nodiscard]] static QString keyOf(const QString &url);
    /// A name of a catalog as that of a directory.
    [[nodiscard]] static QString folderName(const QString &catalog);

    /// ".list/": below it, hidden in a catalog root, what is known about directories.
    [[nodiscard]] static const QString &listPlace();

    [[nodiscard]] std::optional<qint64> lastRevision(const QString &key) const;
    void setLastRevision(const QString &key, qint64 revision) const;

    /// Whether the files of a directory are there; \a path begins with the
    /// catalog's folder, or with ".list/" and that.
    [[nodiscard]] bool has(const QString &key, qint64 revision, const QString &path);
    /// Has a directory count as not there.
    void forget(const QString &key, qint64 revision, const QString &path);
    /// A name for a directory beside the others that is not yet there.
    [[nodiscard]] QString workDirectory(const QString &key) const;
    /// Takes the regular files of \a fetched, links left out, and removes it. False with the
    /// \a problem if the disk refuses.
    [[nodiscard]] bool take(const QString &key, qint64 revision, const QString &path,
                            const QString &fetched, QString &problem);

    [[nodiscard]] const QString &directory() const { return m_directory; }

private:
    struct Entry;

    [[nodiscard]] QString doneFile(const QString &key, qint64 revision, const QString &path) const;
    [[nodiscard]] QList<Entry> entries() const;
    void shrink(const QString &kept);

    QString m_directory;
    qint64 m_limit;
    qint64 m_size = -1;   ///< of all, as far as this knows; -1: not yet counted
    QSet<QString> m_seen; ///< done files of directories that this has used
};
