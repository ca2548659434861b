#include "DifferenceDelegate.h"

#include "DifferenceModel.h"

#include <gui/views/Inks.h>

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTableView>
#include <QTextLayout>

namespace {

using Marks = QList<QPair<int, int>>;

QList<QTextLayout::FormatRange> formatsOf(const Marks &marks, const QPalette &palette)
{
    QTextCharFormat marked;
    marked.setBackground(Inks::differenceGround(palette));
    marked.setForeground(Inks::differenceText(palette));
    marked.setFontUnderline(true); // told by more than the colour
    QList<QTextLayout::FormatRange> formats;
    for (const auto &[begin, length] : marks)
        formats.append({begin, length, marked});
    return formats;
}

void drawMarked(QPainter *painter, const QStyleOptionViewItem &option, const QRect &place,
                const Marks &marks)
{
    QTextLayout layout(option.text, option.font);
    QTextOption text(Qt::AlignLeft | Qt::AlignVCenter);
    text.setWrapMode(QTextOption::NoWrap);
    layout.setTextOption(text);
    layout.setFormats(formatsOf(marks, option.palette));
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(place.width());
    layout.endLayout();
    painter->save();
    painter->setClipRect(place);
    painter->setPen(option.palette.color(
        option.state & QStyle::State_Selected ? QPalette::HighlightedText : QPalette::Text));
    layout.draw(painter, QPointF(place.x(), place.y() + (place.height() - line.height()) / 2));
    painter->restore();
}

bool isBold(const QModelIndex &index)
{
    return index.column() == DifferenceModel::Variable &&
           index.data(DifferenceModel::OutcomeRole).toInt() != ComparedVariableC::Equal;
}

} // namespace

QSize DifferenceDelegate::sizeHint(const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    QStyleOptionViewItem shown = option;
    shown.font.setBold(isBold(index));
    return QStyledItemDelegate::sizeHint(shown, index);
}

void DifferenceDelegate::prepare(QTableView *view, int nameColumn)
{
    view->setItemDelegate(new DifferenceDelegate(view));
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setTabKeyNavigation(false); // Tab goes on
    QHeaderView *const rows = view->verticalHeader();
    rows->hide();
    rows->setSectionResizeMode(QHeaderView::Fixed);
    rows->setDefaultSectionSize(view->fontMetrics().height() + 6);
    view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    view->horizontalHeader()->setSectionResizeMode(nameColumn, QHeaderView::ResizeToContents);
}

void DifferenceDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    shown.font.setBold(isBold(index));
    const auto marks = index.data(DifferenceModel::MarksRole).value<Marks>();
    const QStyle *const style = shown.widget ? shown.widget->style() : QApplication::style();
    if (marks.isEmpty()) {
        style->drawControl(QStyle::CE_ItemViewItem, &shown, painter, shown.widget);
        return;
    }
    QStyleOptionViewItem frame = shown;
    frame.text.clear();
    style->drawControl(QStyle::CE_ItemViewItem, &frame, painter, frame.widget);
    const QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &shown, shown.widget);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, shown.widget) + 1;
    drawMarked(painter, shown, place.adjusted(margin, 0, -margin, 0), marks);
}
