#include "SearchTileDelegate.h"

#include "SearchHitModel.h"

#include <QApplication>
#include <QPainter>

namespace {

/// Distances, from the font of the view.
struct TileMetrics
{
    explicit TileMetrics(const QFont &font)
        : lines(font)
        , title(bold(font))
        , gap(lines.height() / 2)
        , icon(lines.height() * 2)
    {
    }

    static QFont bold(QFont font)
    {
        font.setBold(true);
        return font;
    }

    QFontMetrics lines;
    QFontMetrics title;
    int gap;
    int icon;
};

QColor mixed(const QColor &a, const QColor &b)
{
    return QColor((2 * a.red() + b.red()) / 3, (2 * a.green() + b.green()) / 3,
                  (2 * a.blue() + b.blue()) / 3);
}

} // namespace

SearchTileDelegate::SearchTileDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

SearchTileDelegate::~SearchTileDelegate() = default;

QSize SearchTileDelegate::sizeHint(const QStyleOptionViewItem &option,
                                   const QModelIndex &index) const
{
    const TileMetrics metrics(option.font);
    const qsizetype lines = index.data(SearchHitModel::LinesRole).toStringList().size();
    const int height = metrics.title.height() + metrics.lines.height() * int(lines + 1);
    return {metrics.icon * 6, std::max(height, metrics.icon) + metrics.gap * 2};
}

void SearchTileDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                               const QModelIndex &index) const
{
    QStyleOptionViewItem background = option;
    const QWidget *const widget = option.widget;
    (widget ? widget->style() : QApplication::style())
        ->drawPrimitive(QStyle::PE_PanelItemViewItem, &background, painter, widget);
    const TileMetrics metrics(option.font);
    const bool isSelected = option.state.testFlag(QStyle::State_Selected);
    const QColor text =
        option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text);
    const QColor ground = option.palette.color(isSelected ? QPalette::Highlight : QPalette::Base);
    painter->save();
    const QRect inner = option.rect.adjusted(metrics.gap, metrics.gap, -metrics.gap, -metrics.gap);
    index.data(Qt::DecorationRole)
        .value<QIcon>()
        .paint(painter, QRect(inner.topLeft(), QSize(metrics.icon, metrics.icon)));
    QRect row = inner.adjusted(metrics.icon + metrics.gap, 0, 0, 0);
    row.setHeight(metrics.title.height());
    const QString size = index.data(SearchHitModel::SizeRole).toString();
    const int sizeWidth = size.isEmpty() ? 0 : metrics.lines.horizontalAdvance(size) + metrics.gap;
    painter->setPen(text);
    painter->setFont(TileMetrics::bold(option.font));
    painter->drawText(
        row, Qt::AlignLeft | Qt::TextSingleLine,
        metrics.title.elidedText(index.data().toString(), Qt::ElideRight, row.width() - sizeWidth));
    painter->setFont(option.font);
    painter->setPen(mixed(text, ground));
    painter->drawText(row, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, size);
    row.translate(0, row.height());
    row.setHeight(metrics.lines.height());
    painter->drawText(row, Qt::AlignLeft | Qt::TextSingleLine,
                      metrics.lines.elidedText(index.data(SearchHitModel::PathRole).toString(),
                                               Qt::ElideMiddle, row.width()));
    painter->setPen(text);
    for (const QString &line : index.data(SearchHitModel::LinesRole).toStringList()) {
        row.translate(0, row.height());
        painter->drawText(row, Qt::AlignLeft | Qt::TextSingleLine,
                          metrics.lines.elidedText(line, Qt::ElideRight, row.width()));
    }
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        QStyleOptionFocusRect focus;
        static_cast<QStyleOption &>(focus) = option;
        focus.backgroundColor = ground;
        (widget ? widget->style() : QApplication::style())
            ->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, painter, widget);
    }
    painter->restore();
}
