#include "WrappingDelegate.h"

#include <QHeaderView>
#include <QPainter>
#include <QTextLayout>
#include <QTreeView>

#include <cmath>

namespace {

/// Above and below, so that one row's last line and the next row's first one are told apart.
constexpr int Gap = 2;

/// The lines in that width. Their height.
double layOut(QTextLayout &layout, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        line.setPosition({0, height});
        height += line.height();
    }
    layout.endLayout();
    return height;
}

/// As the style's own texts: the margin on both sides.
int marginOf(const QTreeView *view)
{
    return view->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, view) + 1;
}

QPalette::ColorGroup groupOf(QStyle::State state)
{
    if (!(state & QStyle::State_Enabled))
        return QPalette::Disabled;
    return state & QStyle::State_Active ? QPalette::Active : QPalette::Inactive;
}

} // namespace

WrappingDelegate::WrappingDelegate(QTreeView *view, int column)
    : QStyledItemDelegate(view)
    , m_view(view)
    , m_column(column)
{
    view->setUniformRowHeights(false);
    view->setAlternatingRowColors(true);
    view->setItemDelegateForColumn(column, this);
    connect(view->header(), &QHeaderView::sectionResized, this, [this](int section) {
        if (section == m_column)
            Q_EMIT sizeHintChanged({});
    });
}

WrappingDelegate::~WrappingDelegate() = default;

QSize WrappingDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    const int width = m_view->columnWidth(m_column) - 2 * marginOf(m_view);
    QTextLayout layout(shown.text, shown.font);
    const int height = int(std::ceil(layOut(layout, std::max(1, width))));
    const QSize one = QStyledItemDelegate::sizeHint(option, index);
    return {one.width(),
            2 * Gap + std::max(one.height(), one.height() - shown.fontMetrics.height() + height)};
}

void WrappingDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                             const QModelIndex &index) const
{
    QStyleOptionViewItem shown = option;
    initStyleOption(&shown, index);
    QTextLayout layout(shown.text, shown.font);
    shown.text.clear();
    m_view->style()->drawControl(QStyle::CE_ItemViewItem, &shown, painter, m_view);
    const int margin = marginOf(m_view);
    const QRect place = shown.rect.adjusted(margin, 0, -margin, 0);
    const double height = layOut(layout, std::max(1, place.width()));
    painter->save();
    painter->setClipRect(place);
    painter->setPen(shown.palette.color(groupOf(shown.state), shown.state & QStyle::State_Selected
                                                                  ? QPalette::HighlightedText
                                                                  : QPalette::Text));
    layout.draw(painter,
                {double(place.x()), place.y() + std::floor((place.height() - height) / 2)});
    painter->restore();
}
