#include "PrintedPages.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPagedPaintDevice>
#include <QPageRanges>
#include <QPainter>

namespace {

constexpr qreal fontPoints = 8;
/// Between head and body, in heights of a line.
constexpr qreal gap = 0.6;

} // namespace

PrintedPages::PrintedPages(QPagedPaintDevice &device, const PageHead &head)
    : m_device(device)
    , m_head(head)
    , m_headHeight(QFontMetricsF(font(), &device).lineSpacing())
    , m_body(0, m_headHeight * (1 + gap), device.width(),
             device.height() - m_headHeight * (1 + gap))
{
}

QFont PrintedPages::font()
{
    QFont font;
    font.setPointSizeF(fontPoints);
    return font;
}

bool PrintedPages::print() const
{
    QPainter painter;
    if (!painter.begin(&m_device))
        return false;
    const QPageRanges ranges = m_device.pageRanges();
    bool isFirst = true;
    for (int page = 0; page < count(); ++page) {
        if (!ranges.isEmpty() && !ranges.contains(page + 1))
            continue;
        if (!isFirst && !m_device.newPage())
            return false;
        isFirst = false;
        paintPage(painter, page);
    }
    return painter.end();
}

void PrintedPages::paintPage(QPainter &painter, int page) const
{
    painter.save();
    paintHead(painter, page);
    painter.restore();
    painter.save();
    painter.setFont(font());
    painter.setClipRect(m_body);
    paintBody(painter, page);
    painter.restore();
}

void PrintedPages::paintHead(QPainter &painter, int page) const
{
    painter.setFont(font());
    painter.setPen(Qt::black);
    const QFontMetricsF metrics(font(), &m_device);
    const QString number = m_head.number.isEmpty() ? QString()
                                                   : m_head.number.arg(QString::number(page + 1),
                                                                       QString::number(count()));
    const QRectF line(0, 0, m_body.width(), m_headHeight);
    const qreal room =
        line.width() - metrics.horizontalAdvance(number) - 2 * metrics.averageCharWidth();
    painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     metrics.elidedText(m_head.text, Qt::ElideMiddle, room));
    painter.drawText(line, Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine, number);
    const qreal y = m_headHeight * (1 + gap / 4);
    painter.setPen(QPen(Qt::black, metrics.lineWidth()));
    painter.drawLine(QPointF(0, y), QPointF(line.width(), y));
}
