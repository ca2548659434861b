#include "makeSachmRelativeToCatalog.h"

#include <geomcore/project/tableFileOf.h>

namespace VKTab {

void makeSachmRelativeToCatalog(const refHandle<PrjClass> &project, const QString &catalogPath)
{
    if (!project || project->tableReference().isEmpty())
        return;
    const QString own = tableReferenceOf(project->path(), project->tableReference(), catalogPath);
    if (own != project->tableReference())
        project->setTableReference(own);
}

} // namespace VKTab
