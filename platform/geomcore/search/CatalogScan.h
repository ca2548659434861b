#pragma once

#include "CatalogIndexFile.h"
#include "IndexedProject.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <vector>

/// Compares the directories below a catalog root with what an index knows of them. Within a
/// transaction of the caller's; enters new directories in the index and takes out those that are
/// gone, with their projects.
class CatalogScan
{
public:
    /// A project to be read.
    struct Work
    {
        QString path;
        qint64 directory = 0;
        qint64 known = 0; ///< Its id in the index; 0 for a new one.
    };

    /// \a goOn is asked now and then.
    CatalogScan(CatalogIndexFile &file, const QString &root, std::function<bool()> goOn);

    /// False if it was broken off or the index cannot be read or written.
    [[nodiscard]] bool run(bool checkFiles);

    [[nodiscard]] const std::vector<Work> &work() const { return m_work; }
    /// Ids of projects that are gone.
    [[nodiscard]] const std::vector<qint64> &gone() const { return m_gone; }
    [[nodiscard]] const QStringList &unreadable() const { return m_unreadable; }
    /// Enters the times of the directories: to be called when all of work() is done.
    [[nodiscard]] bool keepTimes();
    /// The directory and those above it, innermost first.
    [[nodiscard]] QList<qint64> chainOf(qint64 directory) const;
    [[nodiscard]] bool isBrokenOff() const { return m_brokenOff; }

private:
    /// A project of a directory that is as it was; its files may not be.
    struct Kept
    {
        Work project;
        QString directory; ///< Native path.
        IndexedFiles files;
    };
    struct Directory
    {
        qint64 id = 0;
        qint64 parent = 0;
        QString path;
        qint64 time = 0;
    };

    [[nodiscard]] bool loadDirectories();
    [[nodiscard]] bool walk(const Directory &directory);
    [[nodiscard]] bool readAnew(const Directory &directory, qint64 time,
                                QList<Directory> &children);
    [[nodiscard]] bool compareProjects(const Directory &directory, QSet<QString> found);
    [[nodiscard]] bool compareFiles(const Directory &directory);
    void lookAtFiles();
    [[nodiscard]] bool enter(Directory &directory);
    [[nodiscard]] bool remove(qint64 directory);
    [[nodiscard]] bool follows(const QString &link);
    [[nodiscard]] QString nativeOf(const QString &path) const;

    CatalogIndexFile &m_file;
    const QString m_root;
    const std::function<bool()> m_goOn;
    bool m_brokenOff = false;
    QHash<qint64, Directory> m_directories;
    QHash<qint64, QList<qint64>> m_children;
    QHash<QString, qint64> m_byPath;
    QHash<qint64, qint64> m_times; // to be kept
    QSet<QString> m_followed;
    QSqlQuery m_keptProjects;
    std::vector<Kept> m_kept; // not looked at yet
    std::vector<Work> m_work;
    std::vector<qint64> m_gone;
    QStringList m_unreadable;
};
