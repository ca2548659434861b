#include "NodeIconEngine.h"

#include <QPainter>
#include <QPixmap>

namespace {

constexpr int Units = 16;

/// Colours of middle brightness, told apart from white and from dark grey alike.
constexpr QColor FolderLine(0x9a, 0x6a, 0x0c);
constexpr QColor FolderBack(0xd9, 0x98, 0x22);
constexpr QColor FolderFront(0xf2, 0xb9, 0x43);
constexpr QColor PartLine(0x2f, 0x73, 0xb5);
constexpr QColor PartTop(0xb9, 0xdc, 0xf8);
constexpr QColor PartLeft(0x7f, 0xb8, 0xea);
constexpr QColor PartRight(0x55, 0x98, 0xd6);
constexpr QColor MarkLine(0x1d, 0x6b, 0x2a);
constexpr QColor MarkFill(0x4c, 0xb8, 0x5c);

void drawShape(QPainter &painter, const QColor &fill, const QPolygonF &shape)
{
    painter.setBrush(fill);
    painter.drawPolygon(shape);
}

void drawFolder(QPainter &painter, bool open)
{
    painter.setPen(QPen(FolderLine, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawShape(painter, FolderBack,
              {{1.5, 13.5}, {1.5, 3.5}, {6.5, 3.5}, {8, 5.5}, {13.5, 5.5}, {13.5, 13.5}});
    if (open)
        drawShape(painter, FolderFront, {{1.5, 13.5}, {4, 8}, {15.5, 8}, {13.5, 13.5}});
    else
        drawShape(painter, FolderFront, {{1.5, 13.5}, {1.5, 7.5}, {14.5, 7.5}, {14.5, 13.5}});
}

/// A cube seen from above one of its edges.
void drawPart(QPainter &painter)
{
    const QPointF middle(8, 7.5);
    painter.setPen(QPen(PartLine, 1, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    drawShape(painter, PartTop, {{8, 1.5}, {14, 4.5}, middle, {2, 4.5}});
    drawShape(painter, PartLeft, {{2, 4.5}, middle, {8, 14.5}, {2, 11.5}});
    drawShape(painter, PartRight, {middle, {14, 4.5}, {14, 11.5}, {8, 14.5}});
}

/// In the lower right corner.
void drawErpMark(QPainter &painter)
{
    painter.setPen(QPen(MarkLine, 1));
    painter.setBrush(MarkFill);
    painter.drawEllipse(QPointF(12, 12), 3.2, 3.2);
}

} // namespace

NodeIconEngine::NodeIconEngine(Kind kind)
    : m_kind(kind)
{
}

NodeIconEngine::~NodeIconEngine() = default;

void NodeIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode,
                           QIcon::State state)
{
    const qreal side = std::min(rect.width(), rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(QRectF(rect).center() - QPointF(side / 2, side / 2));
    painter->scale(side / Units, side / Units);
    if (mode == QIcon::Disabled)
        painter->setOpacity(0.4);
    if (m_kind == Directory)
        drawFolder(*painter, state == QIcon::On);
    else
        drawPart(*painter);
    if (m_kind == ErpProject)
        drawErpMark(*painter);
    painter->restore();
}

QPixmap NodeIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    if (pixmap.isNull())
        return pixmap;
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}

QIconEngine *NodeIconEngine::clone() const
{
    return new NodeIconEngine(*this);
}

QString NodeIconEngine::key() const
{
    return QStringLiteral("NodeIconEngine");
}
