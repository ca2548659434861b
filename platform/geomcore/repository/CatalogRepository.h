#pragma once

#include "CatalogMirror.h"
#include "RepositoryAddress.h"
#include "RepositoryCache.h"
#include "RepositoryClient.h"
#include "RepositoryListing.h"

#include <core/access/AddressedFiles.h>

#include <QDeadlineTimer>
#include <QHash>

#include <functional>
#include <memory>
#include <mutex>

/// Catalogs in Subversion repositories, for addresses "svn://CATALOG/trunk/catalog/PATH". A file is
/// read from a cache on the disk, to which the files of its directory are brought when one of them
/// is asked for; so are the lists of what its directories have. All of a catalog is seen in one
/// revision until refresh(). For the search there are copies of whole catalogs beside.
///
/// A server that does not answer hinders nobody who reads what the cache has. Waiting can be
/// cancelled by the progress that is told meanwhile. Operations may be called on any thread; calls
/// for different files wait for one another.
class VELKGEOMCORE_EXPORT CatalogRepository : public AddressedFiles
{
public:
    struct Options
    {
        QString cacheDirectory;
        qint64 cacheBytes = qint64(1) << 30; ///< as much again for the copies of whole catalogs
        std::chrono::milliseconds silence{30000}; ///< after which a server counts as gone
        /// URL "svn://SERVER[:PORT][/PATH]" of the repositories by catalog; else the catalog's name
        /// is the server's.
        QHash<QString, QString> servers;
        qint64 revision = -1; ///< of all catalogs; -1: the last one
        /// Called on the thread that reads, at most three times for one answer; gets the URL and
        /// what the server said. Nothing if nobody can be asked there, or does not want to say.
        std::function<std::optional<RepositoryLogin>(const QString &, const QString &)> askForLogin;
        /// Gets what is worth telling though the work goes on; any thread.
        std::function<void(const QString &)> tell;
        QString client = QStringLiteral("svn");
    };

    explicit CatalogRepository(Options options);

    /// Asks the server for the catalog's revision if that is not known. Empty for other addresses.
    [[nodiscard]] QString fileOf(const QString &address) override;
    [[nodiscard]] bool provide(const QString &file, QString &problem) override;

    /// Names of the catalogs: those that have a server by the options, those that were asked for,
    /// and those that there are copies of. Asks no server.
    [[nodiscard]] QStringList catalogs() const;
    /// What a directory of a catalog has; an empty \a path is that of the catalog. Nothing if that
    /// cannot be told, with the reason in \a problem. Asks the server, and waits for it, for what
    /// was not asked for in that revision before.
    [[nodiscard]] std::optional<RepositoryListing> list(const QString &catalog, const QString &path,
                                                        QString &problem);
    /// The same as far as it is known without a server.
    [[nodiscard]] std::optional<RepositoryListing> known(const QString &catalog,
                                                         const QString &path);

    /// Directory of the copies of whole catalogs, each below the folderOf() its name; made if it
    /// is missing.
    [[nodiscard]] QString mirrorRoot() const;
    [[nodiscard]] static QString folderOf(const QString &catalog);
    [[nodiscard]] static QString catalogOf(const QString &folder);
    /// Brings the copies of all catalogs to the revisions in which these are seen. Returns what
    /// stands against that for some of them; then their copies stay as they are. For a thread in
    /// the background: nobody is asked for a login but an earlier one is used, no progress is
    /// told, and \a goOn ends it by false. Who reads files meanwhile does not wait for it.
    [[nodiscard]] QStringList updateMirror(const std::function<bool()> &goOn);

    /// Revision in which a catalog is seen; -1 while it is not known.
    [[nodiscard]] qint64 revisionOf(const QString &catalog) const;
    /// The servers are asked for their last revision when the next file is asked for, and again for
    /// what they did not have or give.
    void refresh();

private:
    /// A catalog as it is seen.
    struct Catalog
    {
        QString name;
        QString url;
        QString key;
        QString folder;
        qint64 revision = -1;
        QString problem; ///< why there is no revision
    };

    using CatalogPtr = std::shared_ptr<Catalog>;
    /// A directory that could not be had, and until when it is not asked for again.
    struct Missing
    {
        QString problem;
        QDeadlineTimer until;
    };

    [[nodiscard]] CatalogPtr seen(const QString &name);
    [[nodiscard]] CatalogPtr described(const QString &name) const;
    [[nodiscard]] CatalogPtr seenInBackground(const QString &name, const RepositoryClient &client);
    [[nodiscard]] QString urlOf(const QString &name) const;
    void findRevision(Catalog &catalog);
    void enterRoot(const Catalog &catalog);
    [[nodiscard]] std::optional<RepositoryListing> listed(const Catalog &catalog,
                                                          const QString &path);
    [[nodiscard]] bool isKept(const Catalog &catalog, const QString &place, QString &problem);
    [[nodiscard]] RepositoryAnswer::Kind fetchList(const Catalog &catalog, const QString &path,
                                                   QString &problem);
    [[nodiscard]] RepositoryClient client() const;
    [[nodiscard]] CatalogPtr ownerOf(const QString &file);
    [[nodiscard]] RepositoryAnswer::Kind fetch(const Catalog &catalog, const QString &path,
                                               QString &problem);
    RepositoryAnswer asked(const QString &url,
                           const std::function<RepositoryAnswer(const RepositoryClient &)> &call);

    const Options m_options;
    /// Guards all that follows. The display of a progress may deliver events by which its thread
    /// asks for another file.
    mutable std::recursive_mutex m_lock;
    RepositoryCache m_cache;
    CatalogMirror m_mirror;                ///< has a lock of its own
    QHash<QString, CatalogPtr> m_catalogs; ///< by name
    QHash<QString, QString> m_roots;       ///< name by catalog root in the cache
    QHash<QString, Missing> m_missing;
    std::optional<RepositoryLogin> m_login;
};
