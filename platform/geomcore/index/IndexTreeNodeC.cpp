#include "IndexTreeNodeC.h"

#include "CatalogEntries.h"
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/project/PrjFile.h>

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

IndexTreeNodeC::~IndexTreeNodeC() = default;

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

QString IndexTreeNodeC::file() const
{
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
    return new IndexTreeNodeC(m_root, slash < 0 ? QString() : m_path.left(slash),
                              slash < 0 ? Root : Directory);
}

bool IndexTreeNodeC::hasChildren() const
{
    return !isProject() && hasCatalogEntries(file(), m_kind == Root);
}

QList<PRefPtr<IndexTreeNodeC>> IndexTreeNodeC::children() const
{
    if (isProject())
        return {};
    std::vector<CatalogEntry> entries = catalogEntries(file(), m_kind == Root);
    std::sort(entries.begin(), entries.end(), comesBefore);
    QList<PRefPtr<IndexTreeNodeC>> nodes;
    nodes.reserve(qsizetype(entries.size()));
    for (const CatalogEntry &entry : entries)
        nodes.append(
            new IndexTreeNodeC(m_root, pathOf(entry.name), entry.isProject ? Project : Directory));
    return nodes;
}

PRefPtr<IndexTreeNodeC> IndexTreeNodeC::child(const QString &name) const
{
    CatalogEntry entry;
    if (isProject() || !findCatalogEntry(file(), name, m_kind == Root, entry))
        return nullptr;
    return new IndexTreeNodeC(m_root, pathOf(name), entry.isProject ? Project : Directory);
}
