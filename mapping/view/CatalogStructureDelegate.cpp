#include "CatalogStructureDelegate.h"

#include "CatalogStructureDelegatePrivate.h"

#include <QApplication>
#include <QPainter>

namespace {

/// Renders icons as a row of the option's state needs them, in the pixels of the device below.
class IconRenderer
{
public:
    IconRenderer(const QStyleOptionViewItem &option, const QPainter &painter)
        : m_size(option.decorationSize)
        , m_state(option.state.testFlag(QStyle::State_Open) ? QIcon::On : QIcon::Off)
        , m_ratio(painter.device() ? painter.device()->devicePixelRatioF() : 1.0)
    {
    }
    [[nodiscard]] QPixmap render(const QIcon &icon) const
    {
        return icon.pixmap(m_size, m_ratio, QIcon::Normal, m_state);
    }
    /// A transparent pixmap of a size in logical pixels.
    [[nodiscard]] QPixmap transparent(const QSize &size) const
    {
        QPixmap pixmap(size * m_ratio);
        pixmap.setDevicePixelRatio(m_ratio);
        pixmap.fill(Qt::transparent);
        return pixmap;
    }

private:
    QSize m_size;
    QIcon::State m_state;
    qreal m_ratio;
};

QSize sizeOf(const QPixmap &pixmap)
{
    return pixmap.deviceIndependentSize().toSize();
}

/// The states in one square, the row's own icon beside it.
QPixmap compose(const QList<QIcon> &states, const QStyleOptionViewItem &option,
                const IconRenderer &renderer)
{
    const QPixmap base = renderer.render(states.first());
    QSize size = sizeOf(base);
    if (option.features.testFlag(QStyleOptionViewItem::HasDecoration)) {
        size.rwidth() += option.decorationSize.width();
        size.setHeight(std::max(size.height(), option.decorationSize.height()));
    }
    QPixmap composed = renderer.transparent(size);
    if (composed.isNull())
        return composed;
    QPainter painter(&composed);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawPixmap(0, 0, base);
    for (const QIcon &state : states.mid(1))
        painter.drawPixmap(0, 0, renderer.render(state));
    if (!option.icon.isNull())
        painter.drawPixmap(sizeOf(base).width(), 0, renderer.render(option.icon));
    return composed;
}

} // namespace

CatalogStructureDelegate::CatalogStructureDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
    , d(new CatalogStructureDelegatePrivate(this))
{
}

CatalogStructureDelegate::~CatalogStructureDelegate()
{
    delete d;
}

void CatalogStructureDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option,
                                     const QModelIndex &index) const
{
    if (!index.isValid())
        return;
    QStyleOptionViewItem item(option);
    initStyleOption(&item, index);
    const QPixmap composed = compose(d->iconsOf(index), item, IconRenderer(item, *painter));
    item.icon = QIcon(composed);
    // Styles tint icons of selected rows, which would hide the states of the very row of interest.
    item.icon.addPixmap(composed, QIcon::Selected);
    item.decorationSize = sizeOf(composed);
    const QStyle *style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);
}
