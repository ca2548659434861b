#pragma once

#include <gui/VelkGuiGlobal.h>

#include <QIcon>
#include <QList>
#include <QPersistentModelIndex>
#include <QStyledItemDelegate>

/// Draws a row of buttons in each cell of a column. The cell's own text and icon are not drawn.
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
    /// Where a button stands in a cell.
    [[nodiscard]] QRect buttonRect(const QRect &cell, int button) const;

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
    [[nodiscard]] int buttonAt(const QRect &cell, const QPoint &position) const;

    QList<Button> m_buttons;
    QPersistentModelIndex m_pressedIndex;
    int m_pressed = -1;
};
