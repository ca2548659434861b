#include "readProjectTable.h"

#include "Content.h"
#include "FileLayer.h"
#include "makeSachmRelativeToCatalog.h"
#include "Reader.h"
#include "tellTableErrors.h"

namespace VKTab {

ProjectTable readProjectTable(const QString &nativeProjectPath, Content &content,
                              const ProjectTableOptions &options)
{
    const bool keepsReference = !options.catalogPath.isEmpty();
    const refHandle<PrjClass> project(new PrjClass(keepsReference, false, false));
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
