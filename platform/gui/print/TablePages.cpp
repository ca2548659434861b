#include "TablePages.h"

#include <QFontMetricsF>
#include <QHeaderView>
#include <QIcon>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QTableView>
#include <QTextLayout>
#include <QTextOption>

#include <algorithm>
#include <numeric>
#include <vector>

namespace {

/// A table is made smaller by so much at most; what is wider goes on beside.
constexpr qreal smallestScale = 0.7;
/// Of the width of a page, for one column: longer texts are wrapped.
constexpr qreal widestColumn = 0.4;
/// Beside and above a text, in heights of a line.
constexpr qreal padding = 0.25;

QTextOption wrapped(Qt::Alignment alignment)
{
    QTextOption option(alignment);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    return option;
}

} // namespace

TablePages::TablePages(QPagedPaintDevice &device, const QTableView &view, const Form &form,
                       const PageHead &head)
    : PrintedPages(device, head)
    , m_device(device)
    , m_view(view)
    , m_model(*view.model())
    , m_form(form)
    , m_metrics(font(), &device)
    , m_pad(m_metrics.lineSpacing() * padding)
    , m_rowCount(form.mostRows < 0 ? m_model.rowCount()
                                   : std::min(form.mostRows, m_model.rowCount()))
{
    findColumns();
    measureColumns();
    divideColumns();
    divideRows();
}

void TablePages::findColumns()
{
    const QHeaderView &header = *m_view.horizontalHeader();
    for (int place = 0; place < header.count(); ++place) {
        const int number = header.logicalIndex(place);
        if (header.isSectionHidden(number))
            continue;
        const QVariant alignment =
            m_model.headerData(number, Qt::Horizontal, Qt::TextAlignmentRole);
        m_columns.push_back({number, m_model.headerData(number, Qt::Horizontal).toString(),
                             alignment.isValid() ? Qt::Alignment(alignment.toInt())
                                                 : Qt::Alignment(Qt::AlignLeft)});
    }
}

QString TablePages::text(int row, const Column &column) const
{
    const QModelIndex index = m_model.index(row, column.number);
    const QString whole = index.data(m_form.textRole).toString();
    return whole.isEmpty() ? index.data().toString() : whole;
}

QIcon TablePages::icon(int row, const Column &column) const
{
    return m_model.index(row, column.number).data(Qt::DecorationRole).value<QIcon>();
}

void TablePages::measureColumns()
{
    const qreal widest = body().width() * widestColumn;
    for (Column &column : m_columns) {
        qreal width = m_metrics.horizontalAdvance(column.caption);
        for (int row = 0; row < m_rowCount && width < widest; ++row) {
            width = std::max(width, m_metrics.horizontalAdvance(text(row, column)));
            if (width < m_metrics.lineSpacing() && !icon(row, column).isNull())
                width = m_metrics.lineSpacing();
        }
        // A dot more than the text: rounding is not to wrap it.
        column.width = std::min(width + 1, widest) + 2 * m_pad;
    }
}

void TablePages::divideColumns()
{
    const qreal all =
        std::accumulate(m_columns.begin(), m_columns.end(), qreal(0),
                        [](qreal sum, const Column &column) { return sum + column.width; });
    const qreal page = body().width();
    m_scale = all > page && all * smallestScale <= page ? page / all : 1;
    const qreal room = page / m_scale;

    std::vector<int> repeated;
    qreal repeatedWidth = 0;
    for (int i = 0; i < std::min(m_form.repeated, int(m_columns.size())); ++i) {
        repeatedWidth += m_columns[size_t(i)].width;
        repeated.push_back(i);
    }
    // Where they would leave too little for the others they stand on the first page alone.
    if (repeatedWidth > room / 2) {
        repeated.clear();
        repeatedWidth = 0;
    }
    m_bands.emplace_back();
    qreal used = 0;
    for (int i = 0; i < int(m_columns.size()); ++i) {
        const qreal width = m_columns[size_t(i)].width;
        if (used + width > room * (1 + 1e-9) && m_bands.back().size() > repeated.size()) {
            m_bands.push_back(repeated);
            used = repeatedWidth;
        }
        m_bands.back().push_back(i);
        used += width;
    }
}

qreal TablePages::textHeight(const QString &text, const Column &column) const
{
    const qreal room = column.width - 2 * m_pad;
    if (m_metrics.horizontalAdvance(text) <= room && !text.contains(u'\n'))
        return m_metrics.lineSpacing();
    QTextLayout layout(QString(text).replace(u'\n', QChar::LineSeparator), font(), &m_device);
    layout.setTextOption(wrapped(Qt::AlignLeft));
    layout.beginLayout();
    qreal height = 0;
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(room);
        height += line.height();
    }
    layout.endLayout();
    return height;
}

qreal TablePages::rowHeight(int row) const
{
    qreal height = m_metrics.lineSpacing();
    for (const Column &column : m_columns)
        height = std::max(height, textHeight(text(row, column), column));
    return height + 2 * m_pad;
}

void TablePages::divideRows()
{
    for (const Column &column : m_columns)
        m_captionHeight = std::max(m_captionHeight, textHeight(column.caption, column) + 2 * m_pad);
    const qreal room = body().height() / m_scale - m_captionHeight;
    m_slices.push_back({});
    qreal used = 0;
    for (int row = 0; row < m_rowCount; ++row) {
        const qreal height = rowHeight(row);
        // The last row keeps room for the line below it.
        const qreal below = row + 1 == m_rowCount && m_rowCount < m_model.rowCount()
                                ? m_metrics.lineSpacing() + 2 * m_pad
                                : 0;
        if (used + height + below > room && m_slices.back().count > 0) {
            m_slices.push_back({row, 0});
            used = 0;
        }
        ++m_slices.back().count;
        used += height;
    }
}

void TablePages::paintCell(QPainter &painter, const QRectF &cell, const Column &column,
                           const QString &text) const
{
    painter.drawRect(cell);
    painter.drawText(cell.adjusted(m_pad, m_pad, -m_pad, -m_pad), text,
                     wrapped((column.alignment & Qt::AlignHorizontal_Mask) | Qt::AlignTop));
}

void TablePages::paintBody(QPainter &painter, int page) const
{
    const Rows rows = m_slices[size_t(page) / m_bands.size()];
    const std::vector<int> &columns = m_bands[size_t(page) % m_bands.size()];
    painter.translate(body().topLeft());
    painter.scale(m_scale, m_scale);
    painter.setPen(QPen(Qt::black, m_metrics.lineWidth() / 2));
    qreal x = 0;
    painter.setBrush(QColor(0xe4, 0xe8, 0xec));
    for (const int i : columns) {
        const Column &column = m_columns[size_t(i)];
        paintCell(painter, QRectF(x, 0, column.width, m_captionHeight), column, column.caption);
        x += column.width;
    }
    painter.setBrush(Qt::NoBrush);
    qreal y = m_captionHeight;
    for (int row = rows.first; row < rows.first + rows.count; ++row) {
        const qreal height = rowHeight(row);
        x = 0;
        for (const int i : columns) {
            const Column &column = m_columns[size_t(i)];
            const QRectF cell(x, y, column.width, height);
            const QIcon sign = icon(row, column);
            paintCell(painter, cell, column, text(row, column));
            if (!sign.isNull()) {
                const qreal size = m_metrics.lineSpacing();
                const QRectF place(cell.center().x() - size / 2, cell.top() + m_pad, size, size);
                sign.paint(&painter, place.toRect());
            }
            x += column.width;
        }
        y += height;
    }
    if (rows.first + rows.count == m_rowCount && m_rowCount < m_model.rowCount())
        painter.drawText(QPointF(0, y + m_pad + m_metrics.ascent()), m_form.more);
}
