#include "CatalogEntries.h"

#include <geomcore/project/CatalogPlaces.h>

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace {

constexpr QDir::Filters Wanted = QDir::AllDirs | QDir::Files | QDir::NoDotAndDotDot;

/// False for an entry that does not count.
bool take(const QFileInfo &info, bool directoriesOnly, CatalogEntry &entry)
{
    entry.name = info.fileName();
    entry.isProject = !info.isDir();
    if (entry.isProject && (directoriesOnly || !isCatalogProjectName(entry.name) || !info.isFile()))
        return false;
    entry.isLink = info.isSymLink();
    return !entry.isLink || CatalogPlaces::instance().refusal(info.filePath()).isEmpty();
}

} // namespace

bool isCatalogProjectName(QStringView name)
{
    return name.size() > 4 && name.endsWith(u".prj");
}

std::vector<CatalogEntry> catalogEntries(const QString &directory, bool directoriesOnly)
{
    std::vector<CatalogEntry> found;
    CatalogEntry entry;
    QDirIterator entries(directory, Wanted);
    while (entries.hasNext()) {
        entries.next();
        if (take(entries.fileInfo(), directoriesOnly, entry))
            found.push_back(entry);
    }
    return found;
}

bool hasCatalogEntries(const QString &directory, bool directoriesOnly)
{
    CatalogEntry entry;
    QDirIterator entries(directory, Wanted);
    while (entries.hasNext()) {
        entries.next();
        if (take(entries.fileInfo(), directoriesOnly, entry))
            return true;
    }
    return false;
}

bool findCatalogEntry(const QString &directory, const QString &name, bool directoriesOnly,
                      CatalogEntry &entry)
{
    if (name.isEmpty() || name.startsWith(u'.') || name.contains(u'/') ||
        name.contains(QChar(u'\0')))
        return false;
    const QFileInfo info(directory + QDir::separator() + name);
    return info.exists() && take(info, directoriesOnly, entry);
}
