#pragma once

#include <QStyledItemDelegate>

class QTableView;

/// Paints cells of a DifferenceModel: rows that differ in bold names, and in each cell a background
/// behind the characters that differ.
class DifferenceDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Lets view, whose model is set, show values side by side: rows as high as a line of text,
    /// nameColumn as wide as its names, the values sharing the rest. The delegate belongs to view.
    static void prepare(QTableView *view, int nameColumn);
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
};
