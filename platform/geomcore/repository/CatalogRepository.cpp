#include "CatalogRepository.h"

#include <core/text/PString.h>
#include <geomcore/project/CatalogPlaces.h>

#include <QDir>

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

QString noAnswer(const QString &url, const QString &text)
{
    return PString::translate("Das Repository %1 antwortet nicht: %2", "VelkGeomCore")
        .arg(url, text);
}

} // namespace

CatalogRepository::CatalogRepository(Options options)
    : m_options(std::move(options))
    , m_cache(QDir::cleanPath(QDir().absoluteFilePath(m_options.cacheDirectory)),
              m_options.cacheBytes)
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
    if (m_cache.has(catalog->key, catalog->revision, path))
        return true;
    const Missing known = m_missing.value(clean.left(end), {{}, QDeadlineTimer(0)});
    if (!known.until.hasExpired()) {
        problem = known.problem;
        return false;
    }
    const RepositoryAnswer::Kind kind = fetch(*catalog, path, problem);
    if (kind == RepositoryAnswer::Done)
        return true;
    m_missing.insert(clean.left(end), {problem, retryAfter(kind)});
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
    auto catalog = std::make_shared<Catalog>();
    m_catalogs.insert(name, catalog);
    catalog->name = name;
    catalog->url = repositoryUrlOf(name, m_options.servers.value(name));
    catalog->key = RepositoryCache::keyOf(catalog->url.isEmpty() ? name : catalog->url);
    catalog->folder = RepositoryCache::folderName(name);
    findRevision(*catalog);
    const QString root = m_cache.rootOf(catalog->key, catalog->revision);
    m_roots.insert(root, name);
    CatalogPlaces::instance().addRoot(PPathName(root));
    return catalog;
}

void CatalogRepository::findRevision(Catalog &catalog)
{
    if (catalog.url.isEmpty()) {
        catalog.problem =
            PString::translate("Für den Katalog \"%1\" ist kein Repository eingestellt; aus seinem "
                               "Namen wird keine Adresse",
                               "VelkGeomCore")
                .arg(catalog.name);
        return;
    }
    if (m_options.revision >= 0) {
        catalog.revision = m_options.revision;
        return;
    }
    catalog.problem = noAnswer(catalog.url, QString()); // for who asks meanwhile
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
    catalog.problem = noAnswer(catalog.url, answer.text);
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
    switch (answer.kind) {
    case RepositoryAnswer::Done:
        return m_cache.take(catalog.key, catalog.revision, path, work, problem)
                   ? RepositoryAnswer::Done
                   : RepositoryAnswer::Failed;
    case RepositoryAnswer::NotThere:
        problem = PString::translate("%1 gibt es in Revision %2 nicht", "VelkGeomCore")
                      .arg(url, QString::number(catalog.revision));
        break;
    case RepositoryAnswer::NoServer:
        problem = noAnswer(url, answer.text);
        break;
    case RepositoryAnswer::LoginNeeded:
        problem =
            PString::translate("Das Repository %1 verlangt eine Anmeldung: %2", "VelkGeomCore")
                .arg(url, answer.text);
        break;
    case RepositoryAnswer::Cancelled:
    case RepositoryAnswer::OutOfDate:
    case RepositoryAnswer::InUse:
    case RepositoryAnswer::Damaged:
    case RepositoryAnswer::Failed:
        problem = answer.text;
        break;
    }
    QDir(work).removeRecursively();
    return answer.kind;
}

template<typename Call>
RepositoryAnswer CatalogRepository::asked(const QString &url, Call call)
{
    RepositoryClient client(m_options.client, m_cache.directory() + QStringLiteral("/client"),
                            m_options.silence);
    for (int attempt = 0;; ++attempt) {
        if (m_login)
            client.setLogin(*m_login);
        RepositoryAnswer answer = call(client);
        if (answer.kind != RepositoryAnswer::LoginNeeded || attempt == loginAttempts ||
            !m_options.askForLogin)
            return answer;
        m_login = m_options.askForLogin(url, answer.text);
        if (!m_login)
            return answer;
    }
}
