#include "ButtonBarDelegate.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOptionToolButton>
#include <QToolTip>

namespace {

constexpr int buttonSide = 20;
constexpr int iconSide = 16;

} // namespace

ButtonBarDelegate::ButtonBarDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

ButtonBarDelegate::~ButtonBarDelegate() = default;

int ButtonBarDelegate::addButton(const QString &name, const QString &toolTip, const QIcon &icon)
{
    m_buttons.append({name, toolTip, icon});
    return int(m_buttons.size()) - 1;
}

QString ButtonBarDelegate::buttonName(int button) const
{
    return m_buttons.value(button).name;
}

QRect ButtonBarDelegate::buttonRect(const QRect &cell, int button,
                                    Qt::LayoutDirection direction) const
{
    const int side = std::min(buttonSide, cell.height());
    const QRect rect(cell.left() + button * buttonSide, cell.top() + (cell.height() - side) / 2,
                     buttonSide, side);
    return QStyle::visualRect(direction, cell, rect);
}

int ButtonBarDelegate::buttonAt(const QStyleOptionViewItem &option, const QPoint &position) const
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (buttonRect(option.rect, i, option.direction).contains(position))
            return i;
    }
    return -1;
}

int ButtonBarDelegate::buttonOf(const QKeyEvent &event) const
{
    const bool plain = (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!plain || event.isAutoRepeat())
        return -1;
    const int button = event.key() == Qt::Key_Space ? 0 : event.key() - Qt::Key_1;
    return button >= 0 && button < m_buttons.size() ? button : -1;
}

void ButtonBarDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const
{
    QStyleOptionViewItem background(option);
    initStyleOption(&background, index);
    background.text.clear();
    background.icon = QIcon();
    const QStyle *style = option.widget ? option.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &background, painter, option.widget);
    for (int i = 0; i < m_buttons.size(); ++i) {
        QStyleOptionToolButton button;
        button.rect = buttonRect(option.rect, i, option.direction);
        button.direction = option.direction;
        button.palette = option.palette;
        button.fontMetrics = option.fontMetrics;
        button.icon = m_buttons.at(i).icon;
        button.iconSize = QSize(iconSide, iconSide);
        button.subControls = QStyle::SC_ToolButton;
        button.toolButtonStyle = Qt::ToolButtonIconOnly;
        const bool pressed = m_pressed == i && m_pressedIndex == index;
        button.state = QStyle::State_Enabled | QStyle::State_AutoRaise |
                       (pressed ? QStyle::State_Sunken : QStyle::State_None);
        button.state.setFlag(QStyle::State_Enabled, option.state & QStyle::State_Enabled);
        style->drawComplexControl(QStyle::CC_ToolButton, &button, painter, option.widget);
    }
}

QSize ButtonBarDelegate::sizeHint(const QStyleOptionViewItem &option,
                                  const QModelIndex &index) const
{
    return QStyledItemDelegate::sizeHint(option, index)
        .expandedTo(QSize(int(m_buttons.size()) * buttonSide, buttonSide));
}

bool ButtonBarDelegate::helpEvent(QHelpEvent *event, QAbstractItemView *view,
                                  const QStyleOptionViewItem &option, const QModelIndex &index)
{
    const int button = buttonAt(option, event->pos());
    if (event->type() != QEvent::ToolTip || button < 0)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    QToolTip::showText(event->globalPos(), m_buttons.at(button).toolTip, view->viewport(),
                       buttonRect(option.rect, button, option.direction));
    return true;
}

bool ButtonBarDelegate::editorEvent(QEvent *event, QAbstractItemModel *model,
                                    const QStyleOptionViewItem &option, const QModelIndex &index)
{
    if (event->type() == QEvent::KeyPress) {
        const int button = buttonOf(*static_cast<QKeyEvent *>(event));
        if (button >= 0)
            Q_EMIT buttonClicked(index, button);
        return button >= 0;
    }
    const bool mouse =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease;
    if (mouse && static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
        return mouseEvent(*static_cast<QMouseEvent *>(event), option, index);
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}

bool ButtonBarDelegate::mouseEvent(const QMouseEvent &event, const QStyleOptionViewItem &option,
                                   const QModelIndex &index)
{
    const int button = buttonAt(option, event.position().toPoint());
    const QPersistentModelIndex former = m_pressedIndex;
    const bool click = event.type() == QEvent::MouseButtonRelease && button >= 0 &&
                       m_pressed == button && former == index;
    const bool press = event.type() == QEvent::MouseButtonPress && button >= 0;
    m_pressed = press ? button : -1;
    m_pressedIndex = press ? QPersistentModelIndex(index) : QPersistentModelIndex();
    if (former.isValid() && former != index)
        Q_EMIT indexNeedsUpdate(former);
    if (press || former == index)
        Q_EMIT indexNeedsUpdate(index);
    if (click)
        Q_EMIT buttonClicked(index, button);
    return button >= 0;
}
