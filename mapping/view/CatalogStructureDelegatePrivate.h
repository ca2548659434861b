#pragma once

#include <core/text/PPrivateData.h>

#include <QIcon>
#include <QList>

class CatalogStructureDelegate;
class QModelIndex;

/// State of a CatalogStructureDelegate.
class CatalogStructureDelegatePrivate : public PPrivateData<CatalogStructureDelegate>
{
public:
    explicit CatalogStructureDelegatePrivate(CatalogStructureDelegate *owner);

    /// What is drawn on the row's first square, from bottom to top; the blank one comes first.
    [[nodiscard]] QList<QIcon> iconsOf(const QModelIndex &index) const;

    QIcon iconCheck;
    QIcon iconConfirmed;
    QIcon iconDeleted;
    QIcon iconBlank;
    QIcon iconError;
    QIcon iconConflict;
};
