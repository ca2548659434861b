#include "makeSachmRelativeToCatalog.h"

#include <QDir>

namespace VKTab {

namespace {

QString slashed(QString path)
{
    path.replace(u'\\', u'/');
    while (path.startsWith(u'/'))
        path.remove(0, 1);
    return path;
}

} // namespace

void makeSachmRelativeToCatalog(const refHandle<PrjClass> &project, const QString &catalogPath)
{
    if (!project || project->tableReference().isEmpty())
        return;
    const PPathName reference(project->tableReference());
    const QString ownPath = slashed(catalogPath);
    const QString catalog = ownPath.section(u'/', 0, 0);
    QString target = project->tableReference();
    target.replace(u'\\', u'/');
    const bool fromRoot = !catalog.isEmpty() && target.startsWith(catalog + u'/');
    if (reference.isAbsolute() || !fromRoot)
        return;
    // A directory beside the project may bear the catalog's name: what is there comes first.
    if (PPathName(project->tableFile()).exists(false))
        return;
    const QDir directory(u'/' + ownPath.section(u'/', 0, -2));
    project->setTableReference(directory.relativeFilePath(u'/' + target));
}

} // namespace VKTab
