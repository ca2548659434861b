#pragma once

#include <QStyledItemDelegate>

/// Paints cells of a DifferenceModel: rows that differ in bold names, and in each cell a background
/// behind the characters that differ.
class DifferenceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
};
