#pragma once

#include "SharedPlace.h"

#include <geomcore/repository/RepositoryClient.h>

#include <functional>

namespace VelkRelease {

/// The client of a Subversion working copy and the store in which it keeps what it knows of it. The
/// user's own Subversion settings and logins hold. What a client that was killed left is cleaned
/// up; a store that it damaged is fetched anew, with all files as they are, and the former one
/// stays beside it.
class SubversionStore
{
public:
    /// What the client knows of a path in the working copy.
    struct Entry
    {
        bool exists = false;
        QString url;
        QString root;     ///< of the working copy
        QString checkout; ///< revision as it was brought up to date
        QString revision; ///< that last changed it; empty if it was never committed
        QString depth;
    };
    /// \a file is in the working copy; \a repaired is told what was put right.
    SubversionStore(const QString &file, std::function<void(const ShareRepair &)> repaired);

    /// The folder of the store that the folder is in; empty if there is none.
    [[nodiscard]] static QString workingCopy(const QString &folder);
    /// A path as an argument: one with "@" would be taken for one with a revision.
    [[nodiscard]] static QString peg(const QString &path) { return path + u'@'; }

    /// Runs the client, again after what could be put right; waits while another client works.
    [[nodiscard]] RepositoryAnswer run(const QStringList &arguments);
    [[nodiscard]] RepositoryAnswer entry(const QString &path, Entry &entry) const;
    /// For the day on which the store's database cannot be read any more; after an update.
    void noteOrigin() const;

private:
    /// What the working copy is of, as far as a store has to be made anew from it.
    struct Origin
    {
        QString root;
        QString url;
        QString depth;
        QString oldest;   ///< revision of a file
        QString checkout; ///< revision as the working copy was brought up to date
    };

    [[nodiscard]] QString root() const;
    [[nodiscard]] RepositoryAnswer withoutWaiting(const QStringList &arguments) const;
    [[nodiscard]] RepositoryAnswer afterOthers(const QStringList &arguments) const;
    [[nodiscard]] bool makeAnew();
    [[nodiscard]] bool bringUpToDate(const QString &root, const QString &former) const;
    [[nodiscard]] bool originOf(const Entry &top, Origin &origin) const;
    [[nodiscard]] bool oldestRevision(const QString &root, QString &oldest) const;

    const QString m_file;
    const std::function<void(const ShareRepair &)> m_repaired;
    RepositoryClient m_client;
};

} // namespace VelkRelease
