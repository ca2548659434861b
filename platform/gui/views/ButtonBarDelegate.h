#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QIcon>
#include <QList>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

class QKeyEvent;
class QMouseEvent;

/// Draws a row of buttons in each cell of a column. The cell's own text and icon are not drawn. In
/// the current cell the blank presses the first button, the digits from 1 on press each.
class VELKGUI_EXPORT ButtonBarDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit ButtonBarDelegate(QObject *parent);
    ~ButtonBarDelegate() override;

    /// Adds a button behind the others and gives its index. \a name is what tests and assistive
    /// tools call it.
    int addButton(const QString &name, const QString &toolTip, const QIcon &icon);
    [[nodiscard]] int countButtons() const { return int(m_buttons.size()); }
    [[nodiscard]] QString buttonName(int button) const;
    /// Where a button stands in a cell: the first at its left, or at its right in a layout from
    /// right to left.
    [[nodiscard]] QRect buttonRect(const QRect &cell, int button,
                                   Qt::LayoutDirection direction = Qt::LeftToRight) const;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem &option,
                                 const QModelIndex &index) const override;
    bool helpEvent(QHelpEvent *event, QAbstractItemView *view, const QStyleOptionViewItem &option,
                   const QModelIndex &index) override;

Q_SIGNALS:
    void buttonClicked(const QModelIndex &index, int button);
    /// The look of the buttons of that cell changed.
    void indexNeedsUpdate(const QModelIndex &index);

protected:
    bool editorEvent(QEvent *event, QAbstractItemModel *model, const QStyleOptionViewItem &option,
                     const QModelIndex &index) override;

private:
    struct Button
    {
        QString name;
        QString toolTip;
        QIcon icon;
    };
    [[nodiscard]] int buttonAt(const QStyleOptionViewItem &option, const QPoint &position) const;
    [[nodiscard]] int buttonOf(const QKeyEvent &event) const;
    bool mouseEvent(const QMouseEvent &event, const QStyleOptionViewItem &option,
                    const QModelIndex &index);

    QList<Button> m_buttons;
    QPersistentModelIndex m_pressedIndex;
    int m_pressed = -1;
};
