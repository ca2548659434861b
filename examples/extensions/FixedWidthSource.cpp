// A source of tables: listings in columns of fixed width, as older systems print them. The second
// row underlines the names of the columns; each run of "-" is a column's width.
//
//   NORM     D    L
//   -------- ---- ----
//   ISO 4014 M8     40

#include <core/plugin/Extensions.h>
#include <release/import/TableSource.h>

#include <QList>

namespace {

struct Column
{
    qsizetype begin;
    qsizetype length;
};

QList<Column> columnsOf(const QByteArray &underlines)
{
    QList<Column> columns;
    for (qsizetype i = 0; i < underlines.size(); ++i) {
        if (underlines[i] != '-')
            continue;
        if (i == 0 || underlines[i - 1] != '-')
            columns.append({i, 0});
        ++columns.last().length;
    }
    return columns;
}

QByteArray csvCell(QByteArray cell)
{
    cell = cell.trimmed();
    if (cell.contains(',') || cell.contains('"'))
        cell = '"' + cell.replace("\"", "\"\"") + '"';
    return cell;
}

class FixedWidthSource : public VelkRelease::TableSource
{
public:
    QStringList endings() const override { return {"lst"}; }

    QByteArray toCsv(const QByteArray &file, VKTab::TableError *error) const override
    {
        QList<QByteArray> rows = file.split('\n');
        if (rows.last().isEmpty())
            rows.removeLast();
        const QList<Column> columns = columnsOf(rows.value(1));
        if (columns.isEmpty()) {
            error->row = 2;
            error->text = "the columns are not underlined by \"-\"";
            return {};
        }
        QByteArray csv;
        rows.removeAt(1);
        for (const QByteArray &row : rows) {
            for (const Column &column : columns) {
                csv += column.begin == columns.first().begin ? "" : ",";
                csv += csvCell(row.mid(column.begin, column.length));
            }
            csv += '\n';
        }
        return csv;
    }
};

} // namespace

VELK_EXTENSION
{
    VelkRelease::TableSource::add(std::make_unique<FixedWidthSource>());
}
