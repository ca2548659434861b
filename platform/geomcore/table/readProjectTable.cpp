#include "readProjectTable.h"

#include "Content.h"
#include "FileLayer.h"
#include "makeSachmRelativeToCatalog.h"
#include "Reader.h"
#include "tellTableErrors.h"
#include <geomcore/project/CatalogPlaces.h>

#include <QDir>

namespace VKTab {

namespace {

/// The root is what is left of the file's path before the part that it shares with the catalog
/// path; hosts may leave out the first components of that.
void addRootOf(const QString &file, const QString &catalogPath)
{
    QStringList root = QDir::fromNativeSeparators(file).split(u'/');
    QStringList shared = QString(catalogPath).replace(u'\\', u'/').split(u'/', Qt::SkipEmptyParts);
    while (root.size() > 2 && !shared.isEmpty() && root.last() == shared.takeLast())
        root.removeLast();
    if (root.first().isEmpty() && QDir::fromNativeSeparators(file) != root.join(u'/'))
        CatalogPlaces::instance().addRoot(PPathName(root.join(u'/')));
}

} // namespace

ProjectTable readProjectTable(const QString &nativeProjectPath, Content &content,
                              const ProjectTableOptions &options)
{
    const bool keepsReference = !options.catalogPath.isEmpty();
    const refHandle<PrjClass> project(new PrjClass(keepsReference, false, false));
    if (keepsReference)
        addRootOf(nativeProjectPath, options.catalogPath);
    project->read(nativeProjectPath, PrjClass::ReadAll);
    if (keepsReference)
        makeSachmRelativeToCatalog(project, options.catalogPath);
    Reader reader;
    ProjectTable result;
    if (options.options)
        content.setOptions(options.options);
    result.isRead = reader.readByProject(project, content, true) == 1;
    result.errors = reader.errors();
    if (options.tells)
        tellTableErrors(nativeProjectPath, result.errors);
    result.file = project->tableFile();
    if (result.isRead && options.allLines) {
        removeProjectFilters(content);
        content.invalidate(Content::InvalidateFilter, true);
    }
    return result;
}

void removeProjectFilters(const Content &content)
{
    const boost::shared_ptr<FileLayer> layer = content.getFileLayer();
    if (!layer)
        return;
    layer->removeFilterCondition(QStringLiteral("PRJLINECOND"));
    layer->removeFilterCondition(QStringLiteral("BYPRJ"));
}

} // namespace VKTab
