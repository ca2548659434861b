#include "readTablesAhead.h"

#include <core/text/PPathName.h>
#include <geomcore/table/readProjectTable.h>
#include <mapping/view/CatalogMappingWidget.h>
#include <workbench/session/common/BackgroundWork.h>

#include <QCoreApplication>

namespace {

void readAhead(const QString &project, const QString &catalogPath, QList<VKTab::ContentRef> &tables)
{
    VKTab::ContentRef table = VKTab::Content();
    // Whoever opens it tells what is wrong with it.
    (void)VKTab::readProjectTable(PPathName(project).native(), table,
                                  {.catalogPath = catalogPath, .tells = false});
    tables += table;
}

} // namespace

QList<VKTab::ContentRef> readTablesAhead(const ReleaseMappingC &release, const QString &sourceRoot,
                                         const QString &sourcePath, bool withTargets)
{
    QList<VKTab::ContentRef> tables;
    const QString text = QCoreApplication::translate("DocumentFile", "%1 wird gelesen");
    BackgroundWork::run(text.arg(sourcePath), [&] {
        readAhead(sourceRoot + u'/' + sourcePath, sourcePath, tables);
        for (int i = 0; i < release.countMappings() && withTargets; ++i) {
            const PrjMappingC mapping = release.mappingAt(i);
            for (int t = 0; t < mapping.countTargets() && mapping.getSourcePath() == sourcePath;
                 ++t) {
                if (const QString path = mapping.targetAt(t).getTargetPath(); !path.isEmpty())
                    readAhead(CatalogMappingWidget::buildTargetPath(true, path), {}, tables);
            }
        }
    });
    return tables;
}
