#include "CatalogRepository.h"

#include "repositoryProblems.h"

#include <core/text/PString.h>
#include <geomcore/project/CatalogPlaces.h>

#include <QDir>
#include <QUrl>

namespace {

constexpr int loginAttempts = 3;
constexpr qint64 pauseMs = 10000; ///< in which a server that gave nothing is left alone

/// What a server does not have it will not have in that revision.
QDeadlineTimer retryAfter(RepositoryAnswer::Kind kind)
{
    if (kind == RepositoryAnswer::NotThere)
        return QDeadlineTimer(QDeadlineTimer::Forever);
    return QDeadlineTimer(kind == RepositoryAnswer::Cancelled ? 0 : pauseMs);
}

} // namespace

CatalogRepository::CatalogRepository(Options options)
    : m_options(std::move(options))
    , m_cache(QDir::cleanPath(QDir().absoluteFilePath(m_options.cacheDirectory)),
              m_options.cacheBytes)
    , m_mirror(m_cache.directory() + QStringLiteral("/mirror"), m_options.cacheBytes)
{
}

QString CatalogRepository::fileOf(const QString &address)
{
    const RepositoryAddress parts = RepositoryAddress::of(address);
    if (!parts.isValid())
        return {};
    const std::scoped_lock guard(m_lock);
    const CatalogPtr catalog = seen(parts.catalog);
    return m_cache.rootOf(catalog->key, catalog->revision) + u'/' + catalog->folder + u'/' +
           parts.path;
}

bool CatalogRepository::provide(const QString &file, QString &problem)
{
    if (!file.startsWith(m_cache.directory() + u'/'))
        return true;
    const QString clean = QDir::cleanPath(file);
    if (clean.startsWith(m_cache.directory() + QStringLiteral("/mirror/")))
        return true; // nothing is fetched to there: not to wait for others
    const std::scoped_lock guard(m_lock);
    const CatalogPtr catalog = ownerOf(clean);
    if (!catalog)
        return true;
    if (catalog->revision < 0) {
        problem = catalog->problem;
        return false;
    }
    const qsizetype root = m_cache.rootOf(catalog->key, catalog->revision).size() + 1;
    const qsizetype end = clean.lastIndexOf(u'/');
    const QString path = clean.mid(root, end - root);
    if (path != catalog->folder && !path.startsWith(catalog->folder + u'/'))
        return true;
    return isKept(*catalog, path, problem);
}

/// Whether a directory of files, or of a list, is in the cache now; has it fetched if not.
bool CatalogRepository::isKept(const Catalog &catalog, const QString &place, QString &problem)
{
    if (m_cache.has(catalog.key, catalog.revision, place))
        return true;
    const QString name = m_cache.rootOf(catalog.key, catalog.revision) + u'/' + place;
    const Missing known = m_missing.value(name, {{}, QDeadlineTimer(0)});
    if (!known.until.hasExpired()) {
        problem = known.problem;
        return false;
    }
    const RepositoryAnswer::Kind kind =
        place.startsWith(RepositoryCache::listPlace())
            ? fetchList(catalog, place.mid(RepositoryCache::listPlace().size()), problem)
            : fetch(catalog, place, problem);
    if (kind == RepositoryAnswer::Done)
        return true;
    m_missing.insert(name, {problem, retryAfter(kind)});
    return false;
}

qint64 CatalogRepository::revisionOf(const QString &catalog) const
{
    const std::scoped_lock guard(m_lock);
    const auto found = m_catalogs.constFind(catalog);
    return found == m_catalogs.cend() ? -1 : (*found)->revision;
}

void CatalogRepository::refresh()
{
    const std::scoped_lock guard(m_lock);
    m_catalogs.clear();
    m_missing.clear();
}

CatalogRepository::CatalogPtr CatalogRepository::seen(const QString &name)
{
    if (CatalogPtr known = m_catalogs.value(name))
        return known;
    CatalogPtr catalog = described(name);
    m_catalogs.insert(name, catalog);
    findRevision(*catalog);
    enterRoot(*catalog);
    return catalog;
}

QString CatalogRepository::urlOf(const QString &name) const
{
    return repositoryUrlOf(name, m_options.servers.value(name));
}

CatalogRepository::CatalogPtr CatalogRepository::described(const QString &name) const
{
    auto catalog = std::make_shared<Catalog>();
    catalog->name = name;
    catalog->url = urlOf(name);
    catalog->key = RepositoryCache::keyOf(catalog->url.isEmpty() ? name : catalog->url);
    catalog->folder = folderOf(name);
    return catalog;
}

void CatalogRepository::enterRoot(const Catalog &catalog)
{
    const QString root = m_cache.rootOf(catalog.key, catalog.revision);
    m_roots.insert(root, catalog.name);
    CatalogPlaces::instance().addRoot(PPathName(root));
}

void CatalogRepository::findRevision(Catalog &catalog)
{
    if (catalog.url.isEmpty()) {
        catalog.problem = repositoryNoServer(catalog.name);
        return;
    }
    if (m_options.revision >= 0) {
        catalog.revision = m_options.revision;
        return;
    }
    catalog.problem = repositoryNoAnswer(catalog.url, QString()); // for who asks meanwhile
    const RepositoryAnswer answer = asked(catalog.url, [&catalog](const RepositoryClient &client) {
        return client.lastRevision(catalog.url);
    });
    bool isNumber = false;
    const qint64 revision = answer.text.toLongLong(&isNumber);
    if (answer.isDone() && isNumber) {
        catalog.revision = revision;
        catalog.problem.clear();
        m_cache.setLastRevision(catalog.key, revision);
        return;
    }
    catalog.problem = repositoryNoAnswer(catalog.url, answer.text);
    const std::optional<qint64> last = m_cache.lastRevision(catalog.key);
    if (!last)
        return;
    catalog.revision = *last;
    if (m_options.tell)
        m_options.tell(PString::translate("%1. Gelesen wird Revision %2, soweit sie auf dieser "
                                          "Maschine liegt.",
                                          "VelkGeomCore")
                           .arg(catalog.problem, QString::number(*last)));
}

CatalogRepository::CatalogPtr CatalogRepository::ownerOf(const QString &file)
{
    // "CACHE/KEY/REVISION/..."
    const qsizetype key = file.indexOf(u'/', m_cache.directory().size() + 1);
    const qsizetype revision = key < 0 ? -1 : file.indexOf(u'/', key + 1);
    const QString name = revision < 0 ? QString() : m_roots.value(file.left(revision));
    return name.isEmpty() ? nullptr : seen(name);
}

RepositoryAnswer::Kind CatalogRepository::fetch(const Catalog &catalog, const QString &path,
                                                QString &problem)
{
    const QString below = path.mid(catalog.folder.size() + 1);
    const QString url = repositoryUrlBelow(catalog.url, below);
    const QString work = m_cache.workDirectory(catalog.key);
    const RepositoryAnswer answer = asked(url, [&](const RepositoryClient &client) {
        return client.exportFiles(url, catalog.revision, work);
    });
    if (answer.isDone())
        return m_cache.take(catalog.key, catalog.revision, path, work, problem)
                   ? RepositoryAnswer::Done
                   : RepositoryAnswer::Failed;
    problem = repositoryProblem(answer, url, catalog.revision);
    QDir(work).removeRecursively();
    return answer.kind;
}

RepositoryClient CatalogRepository::client() const
{
    RepositoryClient client(m_options.client, m_cache.directory() + QStringLiteral("/client"),
                            m_options.silence);
    if (m_login)
        client.setLogin(*m_login);
    return client;
}

RepositoryAnswer
CatalogRepository::asked(const QString &url,
                         const std::function<RepositoryAnswer(const RepositoryClient &)> &call)
{
    for (int attempt = 0;; ++attempt) {
        RepositoryAnswer answer = call(client());
        if (answer.kind != RepositoryAnswer::LoginNeeded || attempt == loginAttempts ||
            !m_options.askForLogin)
            return answer;
        m_login = m_options.askForLogin(url, answer.text);
        if (!m_login)
            return answer;
    }
}

QString CatalogRepository::folderOf(const QString &catalog)
{
    return RepositoryCache::folderName(catalog);
}

QString CatalogRepository::catalogOf(const QString &folder)
{
    return QUrl::fromPercentEncoding(folder.toUtf8());
}

QString CatalogRepository::mirrorRoot() const
{
    return m_mirror.root();
}

/// Asks the server without the lock, under which the window's thread may want to read.
CatalogRepository::CatalogPtr CatalogRepository::seenInBackground(const QString &name,
                                                                  const RepositoryClient &client)
{
    CatalogPtr catalog;
    {
        const std::scoped_lock guard(m_lock);
        if (CatalogPtr known = m_catalogs.value(name); known && known->revision >= 0)
            return known;
        catalog = described(name);
        catalog->revision = m_options.revision;
    }
    if (catalog->url.isEmpty()) {
        catalog->problem = repositoryNoServer(name);
        return catalog;
    }
    if (catalog->revision < 0) {
        const RepositoryAnswer answer = client.lastRevision(catalog->url);
        bool isNumber = false;
        catalog->revision = answer.text.toLongLong(&isNumber);
        if (!answer.isDone() || !isNumber) {
            catalog->revision = -1;
            catalog->problem = repositoryProblem(answer, catalog->url, -1);
            return catalog;
        }
    }
    const std::scoped_lock guard(m_lock);
    if (CatalogPtr known = m_catalogs.value(name); known && known->revision >= 0)
        return known; // somebody was quicker
    m_catalogs.insert(name, catalog);
    m_cache.setLastRevision(catalog->key, catalog->revision);
    enterRoot(*catalog);
    return catalog;
}

QStringList CatalogRepository::updateMirror(const std::function<bool()> &goOn)
{
    QStringList problems;
    QStringList folders;
    const QStringList names = catalogs();
    for (const QString &name : names)
        folders.append(folderOf(name));
    m_mirror.keepOnly(folders);
    RepositoryClient quiet = [this] {
        const std::scoped_lock guard(m_lock);
        return client();
    }();
    quiet.setGoOn([&goOn] { return !goOn || goOn(); });
    for (const QString &name : names) {
        if (goOn && !goOn())
            break;
        const CatalogPtr catalog = seenInBackground(name, quiet);
        if (catalog->revision < 0) {
            problems.append(catalog->problem);
            continue;
        }
        const RepositoryAnswer answer =
            m_mirror.update({catalog->folder, catalog->url, catalog->revision}, quiet, goOn);
        if (!answer.isDone() && answer.kind != RepositoryAnswer::Cancelled)
            problems.append(repositoryProblem(answer, catalog->url, catalog->revision));
    }
    return problems;
}
