#pragma once

#include <QStyledItemDelegate>

/// Draws a hit as a tile: icon, title and size of the table, below them the path and the lines that
/// match. Sizes follow the view's font.
class SearchTileDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit SearchTileDelegate(QObject *parent = nullptr);
    ~SearchTileDelegate() override;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
};
