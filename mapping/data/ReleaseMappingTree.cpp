#include "ReleaseMappingTree.h"

#include "ReleaseMappingDirectoryNode.h"
#include "ReleaseMappingProjectNode.h"

#include <QMap>

#include <boost/make_shared.hpp>

namespace {

bool isSeparator(QChar c)
{
    return c == u'/' || c == u'\\';
}

/// The component of a path that names its directory at \a depth; null if the path ends before.
QStringView directoryAt(QStringView path, int depth)
{
    const QChar *start = path.cbegin();
    for (int component = 1;; ++component) {
        const QChar *slash = std::find_if(start, path.cend(), isSeparator);
        if (slash == path.cend())
            return QStringView();
        // An empty component, as of "/a" or "a//b", is a directory of empty name.
        if (component == depth)
            return QStringView(start, slash - start);
        start = slash + 1;
    }
}

/// Sorts positions into directories. Neighbours mostly lie in the same one.
class DirectoryLists
{
public:
    void add(QStringView name, int position)
    {
        if (m_last == m_lists.end() || m_last.key() != name) {
            const QString key = name.toString();
            m_last = m_lists.find(key);
            if (m_last == m_lists.end())
                m_last = m_lists.insert(key, {});
        }
        m_last.value() += position;
    }
    [[nodiscard]] const QMap<QString, QList<int>> &lists() const { return m_lists; }

private:
    QMap<QString, QList<int>> m_lists;
    QMap<QString, QList<int>>::iterator m_last = m_lists.end();
};

} // namespace

QList<boost::shared_ptr<CatalogStructureNodeI>>
buildReleaseChildren(const QList<int> &positions, const boost::shared_ptr<WatchedRelease> &release,
                     int depth)
{
    QList<boost::shared_ptr<CatalogStructureNodeI>> projects;
    DirectoryLists directories;
    for (const int position : positions) {
        const QString path = release->release().mappingAt(position).getSourcePath();
        const QStringView directory = directoryAt(path, depth);
        if (directory.isNull())
            projects += boost::make_shared<ReleaseMappingProjectNode>(position, release);
        else
            directories.add(directory, position);
    }
    QList<boost::shared_ptr<CatalogStructureNodeI>> result;
    result.reserve(directories.lists().size() + projects.size());
    for (auto it = directories.lists().cbegin(); it != directories.lists().cend(); ++it)
        result += boost::make_shared<ReleaseMappingDirectoryNode>(it.value(), release, it.key(),
                                                                  depth + 1);
    return result + projects;
}
