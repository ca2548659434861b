#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QStyledItemDelegate>

QT_BEGIN_NAMESPACE
class QTreeView;
QT_END_NAMESPACE

/// Breaks the text of a tree's column into as many lines as it takes to be read as a whole, long
/// words too. Not for trees of many thousand rows that scroll by pixels: each row has a height of
/// its own.
class VELKGUI_EXPORT WrappingDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// Becomes the delegate of that column; the rows follow its width.
    WrappingDelegate(QTreeView *view, int column);
    ~WrappingDelegate() override;

    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    QTreeView *const m_view;
    const int m_column;
};
