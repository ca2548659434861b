#include "FolderLevel.h"

#include <QStringView>

#include <algorithm>

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

void addInOrder(const ReleaseMappingC &release, const QList<int> &positions, int depth,
                QList<int> &order)
{
    const FolderLevel level(release, positions, depth);
    for (const QList<int> &below : level.folders)
        addInOrder(release, below, depth + 1, order);
    order += level.projects;
}

} // namespace

FolderLevel::FolderLevel(const ReleaseMappingC &release, const QList<int> &positions, int depth)
{
    auto last = folders.end(); // neighbours mostly lie in the same one
    for (const int position : positions) {
        const QString path = release.mappingAt(position).getSourcePath();
        const QStringView name = directoryAt(path, depth);
        if (name.isNull()) {
            projects += position;
            continue;
        }
        if (last == folders.end() || last.key() != name) {
            const QString key = name.toString();
            last = folders.find(key);
            if (last == folders.end())
                last = folders.insert(key, {});
        }
        last.value() += position;
    }
}

QList<QStringView> foldersOf(QStringView path)
{
    QList<QStringView> folders;
    const QChar *start = path.cbegin();
    for (;;) {
        const QChar *slash = std::find_if(start, path.cend(), isSeparator);
        if (slash == path.cend())
            return folders;
        folders += QStringView(start, slash - start);
        start = slash + 1;
    }
}

QList<int> folderOrder(const ReleaseMappingC &release)
{
    QList<int> firsts = release.firstPositions();
    int position = 0;
    firsts.removeIf([&position](int first) { return first != position++; });
    QList<int> order;
    order.reserve(firsts.size());
    addInOrder(release, firsts, 1, order);
    return order;
}
