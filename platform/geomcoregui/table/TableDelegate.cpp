#include "TableDelegate.h"

#include "VkTableModel.h"

#include <gui/views/Inks.h>

namespace {

/// An icon on the full colour of a selection, tinted by the style, could hardly be told from
/// others.
void keepIconsClear(QStyleOptionViewItem *option)
{
    if (!option->state.testFlag(QStyle::State_Selected))
        return;
    option->state &= ~QStyle::State_Selected;
    const QColor base = option->palette.color(QPalette::Base);
    const QColor highlight = option->palette.color(QPalette::Highlight);
    const auto mixed = [](int a, int b) {
        return (3 * a + b) / 4;
    };
    option->backgroundBrush =
        QColor(mixed(base.red(), highlight.red()), mixed(base.green(), highlight.green()),
               mixed(base.blue(), highlight.blue()));
}

/// Told by more than the colour, and on the selected line too.
void markDifference(QStyleOptionViewItem *option)
{
    option->state &= ~QStyle::State_Selected;
    option->backgroundBrush = Inks::differenceGround(option->palette);
    option->palette.setBrush(QPalette::Text, Inks::differenceText(option->palette));
    option->font.setUnderline(true);
}

/// A number at the right edge of its cell and a text at the left one of the next would read as one.
void keepTextsApart(QStyleOptionViewItem *option)
{
    constexpr QChar blank(0x2009); // thin
    if (option->text.isEmpty())
        return;
    if (option->displayAlignment & Qt::AlignRight)
        option->text.append(blank);
    else
        option->text.prepend(blank);
}

} // namespace

TableDelegate::TableDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , m_marked(QString())
{
}

TableDelegate::~TableDelegate() = default;

void TableDelegate::setMarkedCells(const VKTab::LineId &line, const QSet<int> &variables)
{
    m_markedLine = line;
    m_markedVariables = variables;
}

bool TableDelegate::isMarkedCell(const QModelIndex &index) const
{
    return m_markedVariables.contains(index.data(VkTableModel::VarIdRole).toInt()) &&
           index.data(VkTableModel::LineIdRole).value<VKTab::LineId>() == m_markedLine;
}

void TableDelegate::initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const
{
    QStyledItemDelegate::initStyleOption(option, index);
    if (!index.data(VkTableModel::StatusKeyRole).toString().isEmpty()) {
        option->decorationAlignment = Qt::AlignCenter;
        keepIconsClear(option);
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
    if (isMarkedCell(index))
        markDifference(option);
    keepTextsApart(option);
}
