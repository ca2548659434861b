#pragma once

#include "SharedPlace.h"

#include <geomcore/repository/RepositoryClient.h>

namespace VelkRelease {

/// A file in a working copy of a Subversion repository, which nobody else changes. The revision is
/// the one that last changed the file. The user's own Subversion settings and logins hold. What a
/// client that was killed left is cleaned up; a store that it damaged is fetched anew, with all
/// files as they are, and the former one stays beside it.
class SubversionPlace : public SharedPlace
{
public:
    explicit SubversionPlace(const QString &file);

    [[nodiscard]] static bool isWorkingCopy(const QString &folder);

    /// Brings the working copy up to date. What a publishing left that was broken off is taken
    /// back; what somebody wrote into the file stays in a copy beside it.
    [[nodiscard]] ShareAnswer fetch(SharedCopy &copy) override;
    [[nodiscard]] ShareAnswer publish(const QByteArray &bytes, const QString &expected,
                                      const QString &message, QString &revision) override;
    [[nodiscard]] ShareAnswer writeNote(const QString &name, const QByteArray &bytes) override;

private:
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
    /// What the working copy is of, as far as a store has to be made anew from it.
    struct Origin
    {
        QString root;
        QString url;
        QString depth;
        QString oldest;   ///< revision of a file
        QString checkout; ///< revision as the working copy was brought up to date
    };

    /// Runs the client, again after what could be put right.
    [[nodiscard]] RepositoryAnswer svn(const QStringList &arguments);
    [[nodiscard]] RepositoryAnswer withoutWaiting(const QStringList &arguments) const;
    [[nodiscard]] RepositoryAnswer afterOthers(const QStringList &arguments);
    [[nodiscard]] bool makeStoreAnew();
    void noteOrigin();
    [[nodiscard]] bool bringUpToDate(const QString &root, const QString &formerStore) const;
    [[nodiscard]] bool originOf(const QString &root, Origin &origin);
    [[nodiscard]] bool oldestRevision(const QString &root, QString &oldest) const;
    [[nodiscard]] RepositoryAnswer entry(const QString &path, Entry &entry);
    [[nodiscard]] ShareAnswer revision(QString &revision);
    [[nodiscard]] ShareAnswer fetchAlone(SharedCopy &copy);
    [[nodiscard]] ShareAnswer fetchRevision(QString &found);
    [[nodiscard]] ShareAnswer takeBack();
    [[nodiscard]] ShareAnswer commit(const QStringList &files, const QString &message);
    [[nodiscard]] ShareAnswer putNote(const QString &note, const QByteArray &bytes);

    RepositoryClient m_client;
    bool m_isFetched = false;
};

} // namespace VelkRelease
