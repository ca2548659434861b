#include "CatalogRepository.h"

#include "repositoryProblems.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

/// No directory of a catalog that is listed has a name like that.
const QString listFile = QStringLiteral("/.entries");

} // namespace

QStringList CatalogRepository::catalogs() const
{
    const QStringList copied =
        m_mirror.folders([this](const QString &folder) { return urlOf(catalogOf(folder)); });
    QSet<QString> names;
    for (const QString &folder : copied)
        names.insert(catalogOf(folder));
    for (auto server = m_options.servers.cbegin(); server != m_options.servers.cend(); ++server)
        names.insert(server.key());
    {
        const std::scoped_lock guard(m_lock);
        for (const CatalogPtr &catalog : m_catalogs)
            names.insert(catalog->name);
    }
    QStringList sorted(names.cbegin(), names.cend());
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

std::optional<RepositoryListing> CatalogRepository::list(const QString &catalog,
                                                         const QString &path, QString &problem)
{
    const std::scoped_lock guard(m_lock);
    const CatalogPtr wanted = seen(catalog);
    if (wanted->revision < 0) {
        problem = wanted->problem;
        return {};
    }
    if (auto listing = listed(*wanted, path))
        return listing;
    const QString place =
        RepositoryCache::listPlace() + wanted->folder + (path.isEmpty() ? path : u'/' + path);
    if (!isKept(*wanted, place, problem))
        return {};
    auto listing = listed(*wanted, path);
    if (!listing)
        problem = place;
    return listing;
}

std::optional<RepositoryListing> CatalogRepository::known(const QString &catalog,
                                                          const QString &path)
{
    const std::scoped_lock guard(m_lock);
    const CatalogPtr wanted = m_catalogs.value(catalog);
    return wanted && wanted->revision >= 0 ? listed(*wanted, path) : std::nullopt;
}

/// What is on this machine.
std::optional<RepositoryListing> CatalogRepository::listed(const Catalog &catalog,
                                                           const QString &path)
{
    const QString below = catalog.folder + (path.isEmpty() ? path : u'/' + path);
    if (m_cache.has(catalog.key, catalog.revision, RepositoryCache::listPlace() + below)) {
        QFile file(m_cache.rootOf(catalog.key, catalog.revision) + u'/' +
                   RepositoryCache::listPlace() + below + listFile);
        if (file.open(QIODevice::ReadOnly)) {
            if (auto listing = RepositoryListing::ofBytes(file.readAll()))
                return listing;
        }
        m_cache.forget(catalog.key, catalog.revision,
                       RepositoryCache::listPlace() + below); // it is damaged
    }
    const QString copy = mirrorRoot() + u'/' + below;
    if (m_mirror.revisionOf(catalog.folder, catalog.url) == catalog.revision &&
        QFileInfo(copy).isDir())
        return RepositoryListing::ofDirectory(copy);
    return {};
}

RepositoryAnswer::Kind CatalogRepository::fetchList(const Catalog &catalog, const QString &path,
                                                    QString &problem)
{
    const QString url = repositoryUrlBelow(catalog.url, path.mid(catalog.folder.size() + 1));
    const RepositoryAnswer answer = asked(
        url, [&](const RepositoryClient &client) { return client.list(url, catalog.revision); });
    if (!answer.isDone()) {
        problem = repositoryProblem(answer, url, catalog.revision);
        return answer.kind;
    }
    const auto listing = RepositoryListing::ofClientXml(answer.text.toUtf8());
    const QString work = m_cache.workDirectory(catalog.key);
    QFile file(work + listFile);
    const QByteArray bytes = listing ? listing->bytes() : QByteArray();
    const bool written = listing && QDir().mkpath(work) && file.open(QIODevice::WriteOnly) &&
                         file.write(bytes) == bytes.size() && file.flush();
    file.close();
    if (written && m_cache.take(catalog.key, catalog.revision, RepositoryCache::listPlace() + path,
                                work, problem))
        return RepositoryAnswer::Done;
    QDir(work).removeRecursively();
    if (problem.isEmpty())
        problem = listing ? file.errorString() : url + QStringLiteral(": ") + answer.text.left(200);
    return RepositoryAnswer::Failed;
}
