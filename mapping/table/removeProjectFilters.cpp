#include "removeProjectFilters.h"

#include <geomcore/table/Content.h>
#include <geomcore/table/FileLayer.h>

void removeProjectFilters(const VKTab::Content &table)
{
    const boost::shared_ptr<VKTab::FileLayer> layer = table.getFileLayer();
    if (!layer)
        return;
    layer->removeFilterCondition(QStringLiteral("PRJLINECOND"));
    layer->removeFilterCondition(QStringLiteral("BYPRJ"));
}
