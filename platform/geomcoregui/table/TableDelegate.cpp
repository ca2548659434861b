#include "TableDelegate.h"

#include "VkTableModel.h"

#include <gui/views/Inks.h>

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int KeptTexts = 4000; // of some pictures of both tables

/// All that the style would draw is a ground and one line of text.
bool isPlainText(const QStyleOptionViewItem &option)
{
    using Option = QStyleOptionViewItem;
    return option.widget &&
           !(option.features & (Option::HasDecoration | Option::HasCheckIndicator)) &&
           !(option.state & (QStyle::State_HasFocus | QStyle::State_Editing)) &&
           option.direction == Qt::LeftToRight && option.showDecorationSelected &&
           option.textElideMode == Qt::ElideRight && !option.text.contains(QChar::LineSeparator) &&
           !option.text.contains(u'\t') && !option.text.isRightToLeft();
}

QPalette::ColorGroup groupOf(const QStyleOptionViewItem &option)
{
    if (!option.state.testFlag(QStyle::State_Enabled))
        return QPalette::Disabled;
    return option.state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

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
    , m_texts(KeptTexts)
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

void TableDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const
{
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QStyle &style = cell.widget ? *cell.widget->style() : *QApplication::style();
    if (!isPlainText(cell)) {
        style.drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
        return;
    }
    painter->save();
    painter->setClipRect(cell.rect, Qt::IntersectClip);
    style.drawPrimitive(QStyle::PE_PanelItemViewItem, &cell, painter, cell.widget);
    if (!cell.text.isEmpty())
        drawText(*painter, cell);
    painter->restore();
}

/// Where the style would draw it.
void TableDelegate::drawText(QPainter &painter, const QStyleOptionViewItem &option) const
{
    const int margin =
        option.widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, option.widget) +
        1;
    const QRect room = option.rect.adjusted(margin, 0, -margin, 0);
    const QStaticText text = laidOut(option, std::max(0, room.width()));
    const QSizeF size = text.size();
    const bool isRight = option.displayAlignment.testFlag(Qt::AlignRight);
    const int top = QStyle::alignedRect(option.direction, option.displayAlignment,
                                        QSize(room.width(), qRound(size.height())), room)
                        .top();
    painter.setFont(option.font);
    const auto role =
        option.state.testFlag(QStyle::State_Selected) ? QPalette::HighlightedText : QPalette::Text;
    painter.setPen(option.palette.color(groupOf(option), role));
    painter.drawStaticText(QPointF(room.x() + (isRight ? room.width() - size.width() : 0.0), top),
                           text);
}

QStaticText TableDelegate::laidOut(const QStyleOptionViewItem &option, int room) const
{
    QFont plain = option.font;
    plain.setItalic(false);
    plain.setUnderline(false);
    if (plain != m_font) {
        m_texts.clear();
        m_font = plain;
    }
    const QString key = option.text + (option.font.italic() ? u'i' : u' ') +
                        (option.font.underline() ? u'u' : u' ');
    LaidOut *known = m_texts.object(key);
    const bool fits =
        known && (known->room < 0 ? known->text.size().width() <= room : known->room == room);
    if (fits)
        return known->text;
    LaidOut made;
    const auto layOut = [&](const QString &text) {
        made.text.setText(text);
        made.text.setTextFormat(Qt::PlainText);
        made.text.prepare(QTransform(), option.font);
    };
    layOut(option.text);
    if (made.text.size().width() > room) {
        layOut(QFontMetricsF(option.font).elidedText(option.text, Qt::ElideRight, room));
        made.room = room;
    }
    m_texts.insert(key, new LaidOut(made));
    return made.text;
}
