#include "TableDataReader.h"

#include "TableDataPrivate.h"
#include <geomcore/csv/CsvCells.h>
#include <geomcore/csv/CsvScan.h>
#include <geomcore/csv/HeaderNames.h>
#include <geomcore/csv/ScanInParts.h>
#include <geomcore/csv/Utf8Check.h>
#include <geomcore/value/RangeText.h>

#include <QSet>

#include <algorithm>
#include <functional>
#include <numeric>

namespace VKTab {

static_assert(CsvScan::QuoteBit == quint64(1) << 63);

TableDataReader::TableDataReader(TableDescriptor descriptor, QString fileName, HeaderRule rule)
    : m_data(new TableData)
    , m_rule(rule)
{
    m_data->m_descriptor = std::move(descriptor);
    m_data->m_fileName = std::move(fileName);
    m_data->m_source = std::make_unique<TableData::Source>();
}

TableReadResult TableDataReader::readFile()
{
    if (!open())
        return {nullptr, m_errors};
    return readAll();
}

TableReadResult TableDataReader::readBytes(const QByteArray &csv)
{
    m_data->m_source->bytes = csv;
    m_data->m_bytes = m_data->m_source->bytes.constData();
    m_data->m_size = quint64(csv.size());
    return readAll();
}

bool TableDataReader::open()
{
    QFile &file = m_data->m_source->file;
    file.setFileName(m_data->m_fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        error(0, 0, QStringLiteral("cannot be opened: ") + file.errorString());
        return false;
    }
    m_data->m_size = quint64(file.size());
    if (const uchar *mapped = file.map(0, file.size())) {
        m_data->m_bytes = reinterpret_cast<const char *>(mapped);
        return true;
    }
    QByteArray &bytes = m_data->m_source->bytes; // empty files and devices cannot be mapped
    bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        error(0, 0, QStringLiteral("cannot be read: ") + file.errorString());
        return false;
    }
    m_data->m_bytes = bytes.constData();
    m_data->m_size = quint64(bytes.size());
    return true;
}

TableReadResult TableDataReader::readAll()
{
    quint64 bodyBegin = 0;
    if (!readHeader(bodyBegin) || !scan(bodyBegin))
        return {nullptr, m_errors};
    indexIds();
    if (!m_errors.isEmpty())
        return {nullptr, m_errors};
    checkRanges();
    m_data->m_source->file.close(); // the mapping stays
    return {m_data, {}};
}

bool TableDataReader::readHeader(quint64 &bodyBegin)
{
    const std::string_view bytes(m_data->m_bytes, m_data->m_size);
    const quint64 begin = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    if (bytes.size() == begin) {
        error(1, 0, QStringLiteral("the file is empty; its first row must name the columns"));
        return false;
    }
    const CsvRecord header = readRecord(bytes, begin);
    const char *bad = nullptr;
    if (header.bad) {
        error(1, int(header.cells.size()) + 1,
              QStringLiteral("the quotes of the cell do not pair"));
        return false;
    }
    if (!checkUtf8(bytes.data() + begin, bytes.data() + header.end, bytes.data() + bytes.size(),
                   &bad)) {
        error(1, 0, QStringLiteral("the bytes are no UTF-8; save the file as UTF-8"));
        return false;
    }
    QStringList names;
    for (const std::string &cell : header.cells)
        names.append(QString::fromUtf8(cell.data(), qsizetype(cell.size())));
    m_data->m_header = names;
    fitFields(m_rule == HeaderRule::Repair ? uniqueColumnNames(names) : names);
    checkNames();
    bodyBegin = header.end;
    return m_errors.isEmpty();
}

void TableDataReader::fitFields(const QStringList &header)
{
    TableDescriptor &descriptor = m_data->m_descriptor;
    m_data->m_columnCount = int(header.size());
    QList<TableField> fields;
    QSet<QString> seen;
    for (qsizetype i = 0; i < header.size(); ++i) {
        const QString &name = header.at(i);
        if (name.isEmpty())
            error(1, int(i) + 1, QStringLiteral("the column has no name"));
        else if (seen.contains(name))
            error(1, int(i) + 1, QStringLiteral("the column \"%1\" stands twice").arg(name));
        seen.insert(name);
        const int known = descriptor.indexOf(name);
        fields.append(known >= 0 ? descriptor.fields.at(known) : TableField{.name = name});
    }
    for (const TableField &field : std::as_const(descriptor.fields)) {
        if (seen.contains(field.name))
            continue;
        if (field.kind == FieldKind::Computed)
            fields.append(field);
        else
            error(1, 0,
                  QStringLiteral("the column \"%1\" is missing, which the descriptor has")
                      .arg(field.name));
    }
    descriptor.fields = fields;
}

void TableDataReader::checkNames()
{
    const TableDescriptor &descriptor = m_data->m_descriptor;
    for (const QString &name : descriptor.primaryKey)
        (void)namedColumn(QStringLiteral("primaryKey"), name);
    (void)namedColumn(QStringLiteral("lineIdField"), descriptor.lineIdField);
    (void)namedColumn(QStringLiteral("lineSubIdField"), descriptor.lineSubIdField);
    if (descriptor.lineIdField.isEmpty() && !descriptor.lineSubIdField.isEmpty())
        error(1, 0, QStringLiteral("the descriptor has a lineSubIdField without a lineIdField"));
}

int TableDataReader::namedColumn(const QString &member, const QString &name)
{
    if (name.isEmpty())
        return -1;
    const int column = m_data->columnOf(name);
    if (column < 0)
        error(1, 0,
              QStringLiteral("the column \"%1\" is missing, which the descriptor's %2 names")
                  .arg(name, member));
    return column;
}

bool TableDataReader::scan(quint64 bodyBegin)
{
    const TableDescriptor &descriptor = m_data->m_descriptor;
    CsvScan scan({m_data->m_bytes, m_data->m_size}, bodyBegin, m_data->m_columnCount,
                 m_data->m_fileName);
    scan.setIdColumns(m_data->columnOf(descriptor.lineIdField),
                      m_data->columnOf(descriptor.lineSubIdField));
    if (!scanInParts(scan)) {
        m_errors += scan.errors;
        return false;
    }
    m_data->m_rows = std::move(scan.rows);
    m_data->m_rowCount = m_data->m_rows.size() - 1;
    m_data->m_lineNumbers = std::move(scan.numbers);
    m_data->m_lineSubNumbers = std::move(scan.subNumbers);
    m_data->setMissing();
    m_data->m_interned = std::make_unique<TableData::Interned[]>(size_t(m_data->m_columnCount));
    return true;
}

void TableDataReader::indexIds()
{
    std::vector<int> &numbers = m_data->m_lineNumbers;
    if (numbers.empty())
        return;
    const bool plain = m_data->m_lineSubNumbers.empty();
    bool ordinal = plain;
    for (size_t row = 0; ordinal && row < numbers.size(); ++row)
        ordinal = numbers[row] == int(row) + 1;
    if (ordinal) {
        numbers = {};
        return;
    }
    const int highest = *std::max_element(numbers.begin(), numbers.end());
    if (plain && size_t(highest) <= numbers.size() * 4 + 1024)
        indexDense(highest);
    else
        indexSorted();
}

void TableDataReader::indexDense(int highest)
{
    const std::vector<int> &numbers = m_data->m_lineNumbers;
    m_data->m_rowByNumber.assign(size_t(highest) + 1, -1);
    for (size_t row = 0; row < numbers.size(); ++row) {
        int &at = m_data->m_rowByNumber[size_t(numbers[row])];
        if (at >= 0)
            duplicateId(at, int(row));
        at = int(row);
    }
}

void TableDataReader::indexSorted()
{
    const auto idOf = [this](int row) {
        return std::pair(m_data->lineNumber(row), m_data->lineSubNumber(row));
    };
    std::vector<int> &rows = m_data->m_rowsById;
    rows.resize(m_data->m_rowCount);
    std::iota(rows.begin(), rows.end(), 0);
    std::sort(rows.begin(), rows.end(),
              [&idOf](int a, int b) { return std::pair(idOf(a), a) < std::pair(idOf(b), b); });
    for (size_t i = 1; i < rows.size(); ++i) {
        if (idOf(rows[i - 1]) == idOf(rows[i]))
            duplicateId(rows[i - 1], rows[i]);
    }
}

void TableDataReader::duplicateId(int first, int second)
{
    if (m_errors.size() >= CsvScan::MaxErrors)
        return;
    QString id = QString::number(m_data->lineNumber(second));
    if (m_data->lineSubNumber(second) != 0)
        id += QLatin1Char('.') + QString::number(m_data->lineSubNumber(second));
    error(second + 2, m_data->columnOf(m_data->m_descriptor.lineIdField) + 1,
          QStringLiteral("the line id %1 is that of row %2 already").arg(id).arg(first + 2));
}

void TableDataReader::checkRanges()
{
    std::vector<int> columns;
    for (int column = 0; column < m_data->m_columnCount; ++column) {
        if (m_data->m_descriptor.fields.at(column).isRange())
            columns.push_back(column);
    }
    if (columns.empty())
        return;
    std::vector<std::string_view> cells(size_t(columns.back()) + 1);
    std::string scratch;
    for (int row = 0; row < m_data->rowCount(); ++row) {
        m_data->firstCells(row, cells, scratch);
        for (int column : columns)
            checkRange(row, column, cells[size_t(column)]);
    }
}

TableDataReader::KnownRange &TableDataReader::placeOf(int column, std::string_view cell)
{
    constexpr size_t places = 4096;
    m_knownRanges.resize(places);
    const size_t hash = std::hash<std::string_view>()(cell) + size_t(column);
    return m_knownRanges[hash % places];
}

void TableDataReader::checkRange(int row, int column, std::string_view cell)
{
    if (m_data->isMissing(cell) || RangeText::isSimple(cell))
        return;
    KnownRange &known = placeOf(column, cell);
    if (known.column == column && known.text == cell)
        return;
    const TableField &field = m_data->m_descriptor.fields.at(column);
    QString problem;
    const QString text = QString::fromUtf8(cell.data(), qsizetype(cell.size()));
    if (RangeText::parse(text, field.decimalChar, &problem)) {
        known.column = column;
        known.text = cell;
        return;
    }
    if (m_data->m_markedRows.empty() || m_data->m_markedRows.back() != row)
        m_data->m_markedRows.push_back(row);
    if (m_data->m_warnings.size() < TableData::MaxWarnings)
        m_data->m_warnings.append(
            {m_data->m_fileName, row + 2, column + 1,
             QStringLiteral("\"%1\" is no value range of %2: %3").arg(text, field.name, problem)});
}

void TableDataReader::error(int row, int column, const QString &text)
{
    m_errors.append({m_data->m_fileName, row, column, text});
}

} // namespace VKTab
