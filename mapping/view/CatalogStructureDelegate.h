#pragma once

#include <QStyledItemDelegate>

class CatalogStructureDelegatePrivate;

/// Draws the state of a catalog row as small icons, one above the other in one place before the
/// row's own icon. The size of a row stays what it is without them.
class CatalogStructureDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// \a parent is the view.
    explicit CatalogStructureDelegate(QObject *parent);
    ~CatalogStructureDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    CatalogStructureDelegatePrivate *const d;
};
