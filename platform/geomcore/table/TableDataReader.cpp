#include "TableDataReader.h"

#include "ComputedColumns.h"
#include "tableExpressions.h"
#include <core/access/openRegularFile.h>
#include <core/text/countText.h>
#include <core/text/PString.h>
#include <geomcore/csv/CsvCells.h>
#include <geomcore/csv/CsvScan.h>
#include <geomcore/csv/HeaderNames.h>
#include <geomcore/csv/ScanInParts.h>
#include <geomcore/csv/Utf8Check.h>
#include <geomcore/value/RangeText.h>

#include <QFile>
#include <QSet>

#include <algorithm>
#include <functional>
#include <numeric>

namespace VKTab {

namespace {

/// So much of a text stands in a message.
constexpr qsizetype MaxShown = 200;

QString shortened(const QString &text)
{
    return text.size() <= MaxShown ? text : text.left(MaxShown) + QStringLiteral("...");
}

} // namespace

static_assert(CsvScan::QuoteBit == TableContents::QuoteBit);

TableDataReader::TableDataReader(const TableDescriptor &descriptor, const QString &fileName,
                                 HeaderRule rule)
    : m_rule(rule)
{
    m_table.descriptor = descriptor;
    m_table.fileName = fileName;
}

TableReadResult TableDataReader::readFile()
{
    return open() ? readAll() : failure();
}

TableReadResult TableDataReader::readBytes(const QByteArray &csv)
{
    const auto bytes = std::make_shared<const QByteArray>(csv);
    m_table.bytes = bytes->constData();
    m_table.size = quint64(bytes->size());
    m_table.owner = bytes;
    return readAll();
}

bool TableDataReader::open()
{
    const auto file = std::make_shared<QFile>(m_table.fileName);
    QString problem;
    if (!openRegularFile(*file, problem)) {
        error(0, 0, PString::translate("lässt sich nicht öffnen: %1", "VelkGeomCore").arg(problem));
        return false;
    }
    if (const uchar *mapped = file->map(0, file->size())) {
        m_table.bytes = reinterpret_cast<const char *>(mapped);
        m_table.size = quint64(file->size());
        m_table.owner = file;
        file->close(); // the mapping stays
        return true;
    }
    const auto bytes = std::make_shared<const QByteArray>(file->readAll()); // of an empty file
    if (file->error() != QFileDevice::NoError) {
        error(0, 0,
              PString::translate("lässt sich nicht lesen: %1", "VelkGeomCore")
                  .arg(file->errorString()));
        return false;
    }
    m_table.bytes = bytes->constData();
    m_table.size = quint64(bytes->size());
    m_table.owner = bytes;
    return true;
}

TableReadResult TableDataReader::readAll()
{
    quint64 bodyBegin = 0;
    if (!readHeader(bodyBegin))
        return failure();
    readFormulas();
    if (!m_errors.isEmpty() || !scan(bodyBegin))
        return failure();
    indexIds();
    if (!m_errors.isEmpty())
        return failure();
    checkConditions();
    checkRanges();
    m_table.warnings = m_warnings.list();
    return {std::make_shared<const TableData>(std::move(m_table)), {}};
}

bool TableDataReader::readHeader(quint64 &bodyBegin)
{
    const std::string_view bytes(m_table.bytes, m_table.size);
    const quint64 begin = bytes.starts_with("\xEF\xBB\xBF") ? 3 : 0;
    if (bytes.size() == begin) {
        error(1, 0,
              PString::translate("die Datei ist leer; ihre erste Zeile muss die Spalten nennen",
                                 "VelkGeomCore"));
        return false;
    }
    const CsvRecord header = readRecord(bytes, begin);
    const char *bad = nullptr;
    if (header.bad) {
        error(1, int(header.cells.size()) + 1,
              PString::translate("die Anführungszeichen der Zelle passen nicht zueinander",
                                 "VelkGeomCore"));
        return false;
    }
    if (!checkUtf8(bytes.data() + begin, bytes.data() + header.end, bytes.data() + bytes.size(),
                   &bad)) {
        error(1, 0,
              PString::translate("die Bytes sind kein UTF-8; speichern Sie die Datei als UTF-8",
                                 "VelkGeomCore"));
        return false;
    }
    QStringList names;
    for (const std::string &cell : header.cells)
        names.append(QString::fromUtf8(cell.data(), qsizetype(cell.size())));
    m_table.header = names;
    fitFields(m_rule == HeaderRule::Repair ? uniqueColumnNames(names) : names);
    checkNames();
    bodyBegin = header.end;
    return m_errors.isEmpty();
}

void TableDataReader::fitFields(const QStringList &header)
{
    TableDescriptor descriptor = m_table.descriptor;
    const FieldIndex known(descriptor.fields);
    QList<TableField> fields;
    QSet<QString> seen;
    for (qsizetype i = 0; i < header.size(); ++i) {
        const QString &name = header.at(i);
        if (name.isEmpty())
            error(1, int(i) + 1, PString::translate("die Spalte hat keinen Namen", "VelkGeomCore"));
        else if (seen.contains(name))
            error(1, int(i) + 1,
                  PString::translate("die Spalte „%1“ gibt es zweimal", "VelkGeomCore").arg(name));
        seen.insert(name);
        const int index = known.indexOf(name);
        fields.append(index >= 0 ? known.fields().at(index) : TableField{.name = name});
    }
    for (const TableField &field : known.fields()) {
        if (seen.contains(field.name))
            continue;
        if (field.kind == FieldKind::Computed)
            fields.append(field);
        else
            error(1, 0,
                  PString::translate("die Spalte „%1“ aus dem Deskriptor fehlt", "VelkGeomCore")
                      .arg(field.name));
    }
    descriptor.fields = fields;
    m_table.columnCount = int(header.size());
    m_table.setDescriptor(descriptor);
}

void TableDataReader::checkNames()
{
    const TableDescriptor &descriptor = m_table.descriptor;
    for (const QString &name : descriptor.primaryKey)
        (void)namedColumn(QStringLiteral("primaryKey"), name);
    (void)namedColumn(QStringLiteral("lineIdField"), descriptor.lineIdField);
    (void)namedColumn(QStringLiteral("lineSubIdField"), descriptor.lineSubIdField);
    if (descriptor.lineIdField.isEmpty() && !descriptor.lineSubIdField.isEmpty())
        error(1, 0,
              PString::translate("der Deskriptor hat ein lineSubIdField ohne lineIdField",
                                 "VelkGeomCore"));
}

int TableDataReader::namedColumn(const QString &member, const QString &name)
{
    if (name.isEmpty())
        return -1;
    const int column = m_table.columnOf(name);
    if (column < 0)
        error(
            1, 0,
            PString::translate("die Spalte „%1“ fehlt, die %2 im Deskriptor nennt", "VelkGeomCore")
                .arg(name, member));
    return column;
}

void TableDataReader::readFormulas()
{
    const auto computed = std::make_shared<ComputedColumns>(m_table.fields, m_table.columnCount);
    for (const ComputedColumns::Fault &fault : computed->faults())
        descriptorWarning(
            QT_TRANSLATE_NOOP("VelkGeomCore",
                              "die Formel der berechneten Spalte „%1“ ist nicht lesbar: %2"),
            fault.column, fault.text);
    if (!computed->cycle().isEmpty())
        m_errors.add(
            {m_descriptorFile.isEmpty() ? m_table.fileName : m_descriptorFile, 0, 0,
             PString::translate("diese berechneten Spalten brauchen einander: %1", "VelkGeomCore")
                 .arg(shortened(computed->cycle().join(QStringLiteral(", "))))});
    m_table.computed = computed;
}

void TableDataReader::checkConditions()
{
    for (const TableFilterCondition &condition : m_table.descriptor.filterConditions) {
        const TableExpression parsed = parseCondition(condition.condition);
        if (!parsed.program)
            descriptorWarning(
                QT_TRANSLATE_NOOP("VelkGeomCore", "die Filterbedingung „%1“ ist nicht lesbar: %2"),
                condition.name, parsed.error);
    }
}

void TableDataReader::descriptorWarning(const char *text, const QString &name, const QString &error)
{
    m_warnings.add(
        {m_descriptorFile.isEmpty() ? m_table.fileName : m_descriptorFile, 0, 0,
         PString::translate(text, "VelkGeomCore").arg(shortened(name), shortened(error))});
}

bool TableDataReader::scan(quint64 bodyBegin)
{
    const TableDescriptor &descriptor = m_table.descriptor;
    CsvScan scan({m_table.bytes, m_table.size}, bodyBegin, m_table.columnCount, m_table.fileName);
    scan.setIdColumns(m_table.columnOf(descriptor.lineIdField),
                      m_table.columnOf(descriptor.lineSubIdField));
    const bool good = scanInParts(scan);
    for (const TableError &error : std::as_const(scan.errors))
        m_errors.add(error);
    m_table.rows = std::move(scan.rows);
    m_table.lineNumbers = std::move(scan.numbers);
    m_table.lineSubNumbers = std::move(scan.subNumbers);
    return good;
}

void TableDataReader::indexIds()
{
    std::vector<int> &numbers = m_table.lineNumbers;
    if (numbers.empty())
        return;
    const bool plain = m_table.lineSubNumbers.empty();
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
    const std::vector<int> &numbers = m_table.lineNumbers;
    m_table.rowByNumber.assign(size_t(highest) + 1, -1);
    for (size_t row = 0; row < numbers.size(); ++row) {
        int &at = m_table.rowByNumber[size_t(numbers[row])];
        if (at >= 0)
            duplicateId(at, int(row));
        at = int(row);
    }
}

void TableDataReader::indexSorted()
{
    const auto idOf = [this](int row) {
        return std::pair(m_table.lineNumber(size_t(row)), m_table.lineSubNumber(size_t(row)));
    };
    std::vector<int> &rows = m_table.rowsById;
    rows.resize(m_table.rowCount());
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
    if (m_errors.isFull()) {
        m_errors.add({});
        return;
    }
    QString id = QString::number(m_table.lineNumber(size_t(second)));
    if (m_table.lineSubNumber(size_t(second)) != 0)
        id += QLatin1Char('.') + QString::number(m_table.lineSubNumber(size_t(second)));
    error(second + 2, m_table.columnOf(m_table.descriptor.lineIdField) + 1,
          PString::translate("die Zeilennummer %1 hat schon Zeile %2", "VelkGeomCore")
              .arg(id, QString::number(first + 2)));
}

void TableDataReader::checkRanges()
{
    std::vector<int> columns;
    for (int column = 0; column < m_table.columnCount; ++column) {
        if (m_table.descriptor.fields.at(column).isRange())
            columns.push_back(column);
    }
    if (columns.empty())
        return;
    std::vector<std::string_view> cells(size_t(columns.back()) + 1);
    std::string scratch;
    for (size_t row = 0; row < m_table.rowCount(); ++row) {
        m_table.firstCells(row, cells, scratch);
        for (int column : columns)
            checkRange(int(row), column, cells[size_t(column)]);
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
    if (m_table.isMissing(cell) ||
        (RangeText::isSimple(cell) && cell.size() < RangeText::MaxValues))
        return;
    KnownRange &known = placeOf(column, cell);
    if (known.column == column && known.text == cell)
        return;
    const QString fault = rangeFault(m_table.descriptor.fields.at(column), cell);
    if (fault.isEmpty()) {
        known.column = column;
        known.text = cell;
        return;
    }
    if (m_table.markedRows.empty() || m_table.markedRows.back() != row)
        m_table.markedRows.push_back(row);
    m_warnings.add({m_table.fileName, row + 2, column + 1, fault});
}

QString TableDataReader::rangeFault(const TableField &field, std::string_view cell) const
{
    const QString text = QString::fromUtf8(cell.data(), qsizetype(cell.size()));
    QString problem;
    const auto range = RangeText::parse(text, field.decimalChar, &problem);
    if (!range)
        return PString::translate("„%1“ ist kein Wertebereich von %2: %3", "VelkGeomCore")
            .arg(shortened(text), field.name, shortened(problem));
    if (range->count() <= RangeText::MaxValues)
        return {};
    return translateCount(
               "der Wertebereich „%1“ von %2 hat zu viele Werte (%3); nur %Ln werden durchlaufen",
               "VelkGeomCore", RangeText::MaxValues)
        .arg(shortened(text), field.name, countText(range->count()));
}

void TableDataReader::error(int row, int column, const QString &text)
{
    m_errors.add({m_table.fileName, row, column, text});
}

} // namespace VKTab
