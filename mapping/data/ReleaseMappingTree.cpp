#include "ReleaseMappingTree.h"

#include "ReleaseMappingDirectoryNode.h"
#include "ReleaseMappingProjectNode.h"

#include <QMap>

#include <boost/make_shared.hpp>

namespace {

/// The component of a path that names its directory at \a depth; null if the path ends before.
QString directoryAt(QString path, int depth)
{
    path.replace(u'\\', u'/');
    qsizetype start = 0;
    qsizetype slash = -1;
    for (int i = 0; i < depth; ++i) {
        start = slash + 1;
        slash = path.indexOf(u'/', start);
        if (slash < 0)
            return QString();
    }
    // An empty component, as of "/a" or "a//b", is a directory of empty name.
    return slash == start ? QStringLiteral("") : path.mid(start, slash - start);
}

} // namespace

QList<boost::shared_ptr<CatalogStructureNodeI>>
buildReleaseChildren(const QList<ProjectKey> &keys,
                     const boost::shared_ptr<ReleaseMappingC> &release, int depth)
{
    QList<boost::shared_ptr<CatalogStructureNodeI>> projects;
    QMap<QString, QList<ProjectKey>> directories;
    for (const ProjectKey &key : keys) {
        const QString directory = directoryAt(key.first, depth);
        if (directory.isNull())
            projects +=
                boost::make_shared<ReleaseMappingProjectNode>(key.first, key.second, release);
        else
            directories[directory] += key;
    }
    QList<boost::shared_ptr<CatalogStructureNodeI>> result;
    result.reserve(directories.size() + projects.size());
    for (auto it = directories.cbegin(); it != directories.cend(); ++it)
        result += boost::make_shared<ReleaseMappingDirectoryNode>(it.value(), release, it.key(),
                                                                  depth + 1);
    return result + projects;
}
