#pragma once

#include "RepositoryAddress.h"
#include "RepositoryCache.h"
#include "RepositoryClient.h"

#include <core/file/AddressedFiles.h>

#include <QDeadlineTimer>
#include <QHash>

#include <functional>
#include <memory>
#include <mutex>

/// Catalogs in Subversion repositories, for addresses "svn://CATALOG/trunk/catalog/PATH". A file is
/// read from a cache on the disk, to which the files of its directory are brought when one of them
/// is asked for. All of a catalog is seen in one revision until refresh().
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
        qint64 cacheBytes = qint64(1) << 30;
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
    void findRevision(Catalog &catalog);
    [[nodiscard]] CatalogPtr ownerOf(const QString &file);
    [[nodiscard]] RepositoryAnswer::Kind fetch(const Catalog &catalog, const QString &path,
                                               QString &problem);
    template<typename Call>
    RepositoryAnswer asked(const QString &url, Call call);

    const Options m_options;
    /// Guards all that follows. The display of a progress may deliver events by which its thread
    /// asks for another file.
    mutable std::recursive_mutex m_lock;
    RepositoryCache m_cache;
    QHash<QString, CatalogPtr> m_catalogs; ///< by name
    QHash<QString, QString> m_roots;       ///< name by catalog root in the cache
    QHash<QString, Missing> m_missing;
    std::optional<RepositoryLogin> m_login;
};
