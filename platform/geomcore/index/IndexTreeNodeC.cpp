#include "IndexTreeNodeC.h"

#include "CatalogEntries.h"
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/project/PrjFile.h>
#include <geomcore/repository/CatalogRepository.h>

#include <QDir>

#include <algorithm>

namespace {

bool comesBefore(const CatalogEntry &a, const CatalogEntry &b)
{
    if (a.isProject != b.isProject)
        return !a.isProject;
    const int order = a.name.compare(b.name, Qt::CaseInsensitive);
    return order != 0 ? order < 0 : a.name < b.name;
}

} // namespace

IndexTreeNodeC::IndexTreeNodeC(const PPathName &catalogRoot, const QString &catalogPath, Kind kind)
    : m_root(catalogRoot)
    , m_path(catalogPath)
    , m_kind(kind)
{
}

IndexTreeNodeC::IndexTreeNodeC(const std::shared_ptr<CatalogRepository> &repository,
                               const QString &catalogPath, Kind kind)
    : m_repository(repository)
    , m_path(catalogPath)
    , m_kind(kind)
{
}

IndexTreeNodeC::~IndexTreeNodeC() = default;

QString IndexTreeNodeC::problem() const
{
    const std::scoped_lock guard(m_lock);
    return m_problem;
}

PString IndexTreeNodeC::getType() const
{
    return isProject() ? PString("VIEW3D/") : PString("DIRECTORY/");
}

QString IndexTreeNodeC::treePath() const
{
    return m_path.isEmpty() ? QStringLiteral("cat") : QStringLiteral("cat/") + m_path;
}

QString IndexTreeNodeC::name() const
{
    return m_path.section(u'/', -1);
}

QString IndexTreeNodeC::catalogName() const
{
    return m_path.section(u'/', 0, 0);
}

QString IndexTreeNodeC::pathBelowCatalog() const
{
    return m_path.section(u'/', 1);
}

QString IndexTreeNodeC::file() const
{
    if (m_repository) {
        const QString address = QStringLiteral("svn://") + catalogName() +
                                QStringLiteral("/trunk/catalog/") + pathBelowCatalog();
        const QString place = m_repository->fileOf(address);
        return place.isEmpty() ? address : place;
    }
    const QString root = m_root.native();
    return m_path.isEmpty() ? root : root + QDir::separator() + QDir::toNativeSeparators(m_path);
}

QString IndexTreeNodeC::description() const
{
    if (!isProject())
        return name();
    const std::scoped_lock guard(m_lock);
    if (!m_description) {
        PrjFile project;
        const bool allowed = CatalogPlaces::instance().refusal(file()).isEmpty();
        if (allowed && project.Load(file(), false) == 1)
            m_description = project.GetLexemValue(QStringLiteral("NAME"));
        if (!m_description || m_description->isEmpty())
            m_description = name();
    }
    return *m_description;
}

QString IndexTreeNodeC::pathOf(const QString &name) const
{
    return m_path.isEmpty() ? name : m_path + u'/' + name;
}

PRefPtr<IndexTreeNodeC> IndexTreeNodeC::parent() const
{
    if (m_kind == Root)
        return nullptr;
    const qsizetype slash = m_path.lastIndexOf(u'/');
    return made(slash < 0 ? QString() : m_path.left(slash), slash < 0 ? Root : Directory);
}

PRefPtr<IndexTreeNodeC> IndexTreeNodeC::made(const QString &path, Kind kind) const
{
    return m_repository ? new IndexTreeNodeC(m_repository, path, kind)
                        : new IndexTreeNodeC(m_root, path, kind);
}

/// Catalogs have no projects beside them.
std::vector<CatalogEntry> IndexTreeNodeC::remoteEntries() const
{
    std::vector<CatalogEntry> entries;
    QString problem;
    if (m_kind == Root) {
        for (const QString &catalog : m_repository->catalogs())
            entries.push_back({catalog, false, false});
    } else if (const auto listing =
                   m_repository->list(catalogName(), pathBelowCatalog(), problem)) {
        for (const QString &name : listing->directories)
            entries.push_back({name, false, false});
        for (const QString &name : listing->projects)
            entries.push_back({name, true, false});
    }
    const std::scoped_lock guard(m_lock);
    m_problem = problem;
    return entries;
}

bool IndexTreeNodeC::hasRemoteEntries() const
{
    if (m_kind == Root)
        return !m_repository->catalogs().isEmpty();
    const auto listing = m_repository->known(catalogName(), pathBelowCatalog());
    return !listing || !listing->directories.isEmpty() || !listing->projects.isEmpty();
}

bool IndexTreeNodeC::hasChildren() const
{
    if (isProject())
        return false;
    return m_repository ? hasRemoteEntries() : hasCatalogEntries(file(), m_kind == Root);
}

QList<PRefPtr<IndexTreeNodeC>> IndexTreeNodeC::children() const
{
    if (isProject())
        return {};
    std::vector<CatalogEntry> entries =
        m_repository ? remoteEntries() : catalogEntries(file(), m_kind == Root);
    std::sort(entries.begin(), entries.end(), comesBefore);
    QList<PRefPtr<IndexTreeNodeC>> nodes;
    nodes.reserve(qsizetype(entries.size()));
    for (const CatalogEntry &entry : entries)
        nodes.append(made(pathOf(entry.name), entry.isProject ? Project : Directory));
    return nodes;
}

PRefPtr<IndexTreeNodeC> IndexTreeNodeC::child(const QString &name) const
{
    CatalogEntry entry;
    if (m_repository) {
        if (isProject())
            return nullptr;
        for (const CatalogEntry &found : remoteEntries()) {
            if (found.name == name)
                return made(pathOf(name), found.isProject ? Project : Directory);
        }
        return nullptr;
    }
    if (isProject() || !findCatalogEntry(file(), name, m_kind == Root, entry))
        return nullptr;
    return made(pathOf(name), entry.isProject ? Project : Directory);
}
