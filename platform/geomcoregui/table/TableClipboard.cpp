#include "TableClipboard.h"

#include "TableGrid.h"
#include "VkTableModel.h"

#include <QHeaderView>
#include <QMimeData>

namespace {

QString quoted(const QString &text)
{
    if (!text.contains(u'\t') && !text.contains(u'\n') && !text.contains(u'\r') &&
        !text.contains(u'"'))
        return text;
    return u'"' + QString(text).replace(u'"', QStringLiteral("\"\"")) + u'"';
}

/// Collects cells as text and as HTML.
class TableWriter
{
public:
    void beginRow() { m_html += QStringLiteral("<tr>"); }
    void addCell(const QString &text, const QString &tag, bool right)
    {
        if (!m_isFirst)
            m_text += u'\t';
        m_isFirst = false;
        m_text += quoted(text);
        const QString style = right ? QStringLiteral(" align=\"right\"") : QString();
        m_html +=
            u'<' + tag + style + u'>' + text.toHtmlEscaped() + QStringLiteral("</") + tag + u'>';
    }
    void endRow()
    {
        m_text += u'\n';
        m_html += QStringLiteral("</tr>\n");
        m_isFirst = true;
    }
    [[nodiscard]] QMimeData *mimeData() const
    {
        auto *const data = new QMimeData;
        data->setText(m_text);
        data->setHtml(QStringLiteral("<table border=\"1\">\n%1</table>").arg(m_html));
        return data;
    }

private:
    QString m_text;
    QString m_html;
    bool m_isFirst = true;
};

QList<int> shownColumns(const QHeaderView &header, const VkTableModel &model)
{
    QList<int> columns;
    for (int place = 0; place < header.count(); ++place) {
        const int column = header.logicalIndex(place);
        if (column >= model.statusColumnCount() && !header.isSectionHidden(column))
            columns.append(column);
    }
    return columns;
}

} // namespace

QMimeData *tableMimeData(const TableGrid &grid, const QList<int> &rows)
{
    const auto *const model = qobject_cast<VkTableModel *>(grid.model());
    const QList<int> columns = shownColumns(*grid.horizontalHeader(), *model);
    const auto isRight = [model](int column) {
        return (model->headerData(column, Qt::Horizontal, Qt::TextAlignmentRole).toInt() &
                Qt::AlignRight) != 0;
    };
    TableWriter writer;
    writer.beginRow();
    for (const int column : columns)
        writer.addCell(model->headerData(column, Qt::Horizontal).toString(), QStringLiteral("th"),
                       isRight(column));
    writer.endRow();
    for (const int row : rows) {
        writer.beginRow();
        for (const int column : columns)
            writer.addCell(model->index(row, column).data(VkTableModel::WholeTextRole).toString(),
                           QStringLiteral("td"), isRight(column));
        writer.endRow();
    }
    return writer.mimeData();
}
