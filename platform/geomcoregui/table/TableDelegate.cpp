#include "TableDelegate.h"

#include "VkTableModel.h"

TableDelegate::TableDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_marked(QString())
{
}

TableDelegate::~TableDelegate() = default;

void TableDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(VkTableModel::StatusKeyRole).toString().isEmpty()) {
        option->decorationAlignment = Qt::AlignCenter;
        return;
    }
    if (!index.data(VkTableModel::RangeRole).toString().isEmpty()) {
        option->font.setItalic(true);
        option->palette.setBrush(QPalette::Text, option->palette.brush(QPalette::Link));
    }
    if (!m_marked.isEmpty() && m_marked.isIn(option->text)) {
        const bool dark = option->palette.color(QPalette::Base).lightness() < 128;
        option->backgroundBrush = QColor(dark ? 0xff5c5200 : 0xfffff3a0);
    }
}
