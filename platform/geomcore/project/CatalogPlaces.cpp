#include "CatalogPlaces.h"

#include <core/text/PString.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

/// Absolute, without "." and "..", links followed as far as the path exists.
QString realPath(const QString &path)
{
    QString clean = QDir::cleanPath(QDir().absoluteFilePath(path));
    QString missing;
    QString there = clean;
    for (;;) {
        const QString real = QFileInfo(there).canonicalFilePath();
        if (!real.isEmpty())
            return QDir::cleanPath(real + missing);
        const qsizetype slash = there.lastIndexOf(u'/');
        if (slash <= 0)
            return clean;
        missing.prepend(there.mid(slash));
        there.truncate(slash);
    }
}

/// Whether both stand in one directory and neither is a link: then a root that has one has the
/// other, without a walk along the whole path of each root.
bool areNeighbours(const QString &file, const QString &other)
{
    const QFileInfo first(QDir::cleanPath(QDir().absoluteFilePath(file)));
    const QFileInfo second(QDir::cleanPath(QDir().absoluteFilePath(other)));
    return first.path() == second.path() && !first.isSymLink() && !second.isSymLink();
}

bool isBelow(const QString &path, const QString &directory)
{
    return !directory.isEmpty() &&
           (directory == u"/" || path == directory || path.startsWith(directory + u'/'));
}

/// An environment variable that is not there leaves its name: no place.
bool isPlace(const QString &path)
{
    return !path.isEmpty() && !path.contains(u'$') && QDir::isAbsolutePath(path);
}

QString resolved(const PPathName &path)
{
    return path.isAddress() ? QString() : QString(path.normalized());
}

QString isAnAddress(const QString &file)
{
    return PString::translate("„%1“ ist eine Adresse; nur Dateien werden gelesen", "VelkGeomCore")
        .arg(file);
}

QString leavesRoot(const QString &file, const QString &root)
{
    return PString::translate("„%1“ liegt außerhalb von „%2“; verschieben Sie es dorthin, oder "
                              "erlauben Sie sein Verzeichnis",
                              "VelkGeomCore")
        .arg(QDir::toNativeSeparators(file), QDir::toNativeSeparators(root));
}

} // namespace

CatalogPlaces &CatalogPlaces::instance()
{
    static CatalogPlaces places;
    return places;
}

void CatalogPlaces::addRoot(const PPathName &directory)
{
    const std::lock_guard guard(m_lock);
    if (!directory.isEmpty() && !m_roots.contains(directory))
        m_roots.append(directory);
}

void CatalogPlaces::setAllowed(const QStringList &directories)
{
    const std::lock_guard guard(m_lock);
    m_allowed.clear();
    for (const QString &directory : directories)
        m_allowed.append(PPathName(directory));
}

QStringList CatalogPlaces::roots() const
{
    QList<PPathName> known;
    {
        const std::lock_guard guard(m_lock);
        known = m_roots;
    }
    QStringList paths;
    for (const PPathName &root : std::as_const(known)) {
        const QString path = resolved(root);
        if (!path.isEmpty() && !path.contains(u'$'))
            paths.append(QDir().absoluteFilePath(path));
    }
    return paths;
}

QString CatalogPlaces::rootOf(const QString &file) const
{
    const QString real = realPath(file);
    QString innermost;
    qsizetype length = -1;
    for (const QString &root : roots()) {
        const QString realRoot = realPath(root);
        if (isBelow(real, realRoot) && realRoot.size() > length) {
            innermost = root;
            length = realRoot.size();
        }
    }
    return innermost;
}

QString CatalogPlaces::catalogPathOf(const QString &file) const
{
    const QString root = rootOf(file);
    return root.isEmpty() ? QString() : realPath(file).mid(realPath(root).size() + 1);
}

bool CatalogPlaces::isAllowed(const QString &file) const
{
    QList<PPathName> places{PPathName("$TORMEVA_DATA")};
    {
        const std::lock_guard guard(m_lock);
        places += m_allowed;
    }
    return std::any_of(places.cbegin(), places.cend(), [&file](const PPathName &place) {
        const QString path = resolved(place);
        return isPlace(path) && isBelow(file, realPath(path));
    });
}

QString CatalogPlaces::refusalOfTarget(const QString &file) const
{
    if (PPathName(file).isAddress())
        return isAnAddress(file);
    const QString real = realPath(file);
    const QStringList known = roots();
    const bool inRoot = std::any_of(known.begin(), known.end(), [&real](const QString &root) {
        return isBelow(real, realPath(root));
    });
    if (inRoot || isAllowed(real))
        return {};
    return PString::translate("„%1“ liegt außerhalb der Kataloge; verschieben Sie es dorthin, oder "
                              "erlauben Sie sein Verzeichnis",
                              "VelkGeomCore")
        .arg(QDir::toNativeSeparators(file));
}

QString CatalogPlaces::refusal(const QString &file, const QString &namedBy) const
{
    if (PPathName(file).isAddress())
        return isAnAddress(file);
    if (file.contains(QChar(u'\0')))
        return PString::translate("der Name der Datei enthält ein NUL-Zeichen", "VelkGeomCore");
    if (areNeighbours(file, namedBy))
        return {};
    const QString real = realPath(file);
    QString root = rootOf(namedBy);
    if (root.isEmpty())
        root = QFileInfo(QDir().absoluteFilePath(namedBy)).path();
    return isBelow(real, realPath(root)) || isAllowed(real) ? QString() : leavesRoot(file, root);
}

QString CatalogPlaces::refusal(const QString &joinedPath) const
{
    const QString real = realPath(joinedPath);
    const QString given = QDir::fromNativeSeparators(joinedPath);
    for (const QString &root : roots()) {
        if (given.startsWith(root + u'/') && !isBelow(real, realPath(root)) && !isAllowed(real))
            return leavesRoot(joinedPath, root);
    }
    return {};
}
