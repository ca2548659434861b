#include "ProjectName.h"

#include <algorithm>
#include <vector>

namespace VelkRelease {

QString pathInCatalog(const QString &projectPath)
{
    return projectPath.mid(projectPath.indexOf('/') + 1);
}

QString folderInCatalog(const QString &projectPath)
{
    return folderOf(pathInCatalog(projectPath));
}

QString folderOf(const QString &pathInCatalog)
{
    return pathInCatalog.left(pathInCatalog.lastIndexOf('/') + 1);
}

QString foldedName(QStringView projectPath)
{
    QStringView name = projectPath.mid(projectPath.lastIndexOf('/') + 1);
    if (const qsizetype dot = name.lastIndexOf('.'); dot > 0)
        name = name.left(dot);
    QString folded;
    folded.reserve(name.size());
    for (const QChar c : name) {
        if (c.isLetterOrNumber())
            folded += c.toLower();
    }
    return folded;
}

double nameLikeness(QStringView a, QStringView b)
{
    if (a.isEmpty() || b.isEmpty())
        return 0;
    std::vector<int> lengths(size_t(b.size()) + 1, 0);
    for (const QChar c : a) {
        int diagonal = 0;
        for (qsizetype i = 0; i < b.size(); ++i) {
            const int above = lengths[size_t(i) + 1];
            lengths[size_t(i) + 1] = c == b[i] ? diagonal + 1 : std::max(above, lengths[size_t(i)]);
            diagonal = above;
        }
    }
    return 2.0 * lengths.back() / double(a.size() + b.size());
}

} // namespace VelkRelease
