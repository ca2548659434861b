#include "tableFileOf.h"

#include "CatalogPlaces.h"

#include <QDir>

namespace {

QString slashed(QString path)
{
    path.replace(u'\\', u'/');
    while (path.startsWith(u'/'))
        path.remove(0, 1);
    return path;
}

PPathName joined(const QString &projectFile, const QString &reference)
{
    return PPathName::MergeDirAndFile(PPathName(projectFile).directory(), PPathName(reference),
                                      true);
}

} // namespace

QString tableReferenceOf(const QString &projectFile, const QString &reference,
                         const QString &catalogPath)
{
    const QString ownPath = slashed(catalogPath);
    const QString catalog = ownPath.section(u'/', 0, 0);
    QString target = reference;
    target.replace(u'\\', u'/');
    const bool fromRoot = !catalog.isEmpty() && target.startsWith(catalog + u'/');
    if (PPathName(reference).isAbsolute() || !fromRoot)
        return reference;
    // A directory beside the project may bear the catalog's name: what is there comes first.
    if (joined(projectFile, reference).exists(false))
        return reference;
    const QDir directory(u'/' + ownPath.section(u'/', 0, -2));
    return directory.relativeFilePath(u'/' + target);
}

QString tableFileOf(const QString &projectFile, const QString &reference,
                    const QString &catalogPath)
{
    if (reference.isEmpty())
        return {};
    const QString file = joined(projectFile, reference).native();
    // Of a name with a NUL the system would ask for the part before it.
    if (PPathName(reference).isAbsolute() || file.contains(QChar(u'\0')) ||
        PPathName(file).exists(false))
        return file;
    const QString path =
        catalogPath.isEmpty() ? CatalogPlaces::instance().catalogPathOf(projectFile) : catalogPath;
    return joined(projectFile, tableReferenceOf(projectFile, reference, path)).native();
}
