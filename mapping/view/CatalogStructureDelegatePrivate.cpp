#include "CatalogStructureDelegatePrivate.h"

#include "CatalogStructureModel.h"

#include <geomcore/records/PRJMAPPING.h>

#include <QPixmap>

namespace {

QIcon blankIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::transparent);
    return QIcon(pixmap);
}

} // namespace

CatalogStructureDelegatePrivate::CatalogStructureDelegatePrivate(CatalogStructureDelegate *owner)
    : PPrivateData(owner)
    , iconCheck(QStringLiteral(":/bitmaps/state_check.png"))
    , iconConfirmed(QStringLiteral(":/bitmaps/state_confirmed.png"))
    , iconDeleted(QStringLiteral(":/bitmaps/state_deleted.png"))
    , iconBlank(blankIcon())
    , iconError(QStringLiteral(":/bitmaps/error.png"))
    , iconConflict(QStringLiteral(":/bitmaps/state_conflict.png"))
{
}

QList<QIcon> CatalogStructureDelegatePrivate::iconsOf(const QModelIndex &index) const
{
    using namespace PRJMAPPING;
    const int state = index.data(CatalogStructureModel::MappingStateRole).toInt();
    QList<QIcon> icons{iconBlank};
    if (state & StateTableError)
        icons += iconError;
    if (state & StateUnmapped)
        icons += iconDeleted;
    if (state & StateUnverified)
        icons += iconCheck;
    else if (state & StateVerified)
        icons += iconConfirmed;
    if (index.data(CatalogStructureModel::ConflictRole).toBool())
        icons += iconConflict;
    return icons;
}
