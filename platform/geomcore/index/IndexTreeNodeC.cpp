#include "IndexTreeNodeC.h"

#include "CatalogPlaces.h"
#include <geomcore/project/PrjFile.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

#include <algorithm>
#include <array>

namespace {

/// A directory's entry that the tree shows.
struct Entry
{
    QString name;
    bool isProject = false;
};

bool isName(const QString &name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && !name.contains(u'/') &&
           !name.contains(QChar(u'\0'));
}

/// Nothing for an entry that the tree does not show.
std::optional<Entry> entryOf(const QFileInfo &info, bool directoriesOnly)
{
    const bool isProject = !info.isDir();
    if (isProject &&
        (directoriesOnly || !info.isFile() || !IndexTreeNodeC::isProjectName(info.fileName())))
        return std::nullopt;
    if (info.isSymLink() && !CatalogPlaces::instance().refusal(info.filePath()).isEmpty())
        return std::nullopt;
    return Entry{info.fileName(), isProject};
}

bool comesBefore(const Entry &a, const Entry &b)
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

bool IndexTreeNodeC::isProjectName(QStringView name)
{
    return name.size() > 4 && name.endsWith(u".prj");
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
    if (isProject())
        return false;
    QDirIterator entries(file(), QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (entryOf(entries.fileInfo(), m_kind == Root))
            return true;
    }
    return false;
}

QList<PRefPtr<IndexTreeNodeC>> IndexTreeNodeC::children() const
{
    QList<PRefPtr<IndexTreeNodeC>> nodes;
    if (isProject())
        return nodes;
    std::vector<Entry> found;
    QDirIterator entries(file(), QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot);
    while (entries.hasNext()) {
        entries.next();
        if (auto entry = entryOf(entries.fileInfo(), m_kind == Root))
            found.push_back(*std::move(entry));
    }
    std::sort(found.begin(), found.end(), comesBefore);
    nodes.reserve(qsizetype(found.size()));
    for (const Entry &entry : found)
        nodes.append(
            new IndexTreeNodeC(m_root, pathOf(entry.name), entry.isProject ? Project : Directory));
    return nodes;
}

PRefPtr<IndexTreeNodeC> IndexTreeNodeC::child(const QString &name) const
{
    if (isProject() || !isName(name))
        return nullptr;
    const QFileInfo info(file() + QDir::separator() + name);
    const auto entry = info.exists() ? entryOf(info, m_kind == Root) : std::nullopt;
    if (!entry)
        return nullptr;
    return new IndexTreeNodeC(m_root, pathOf(name), entry->isProject ? Project : Directory);
}
