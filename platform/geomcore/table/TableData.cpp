#include "TableData.h"

#include "ComputedColumns.h"
#include "TableDataPrivate.h"
#include "TableDataReader.h"
#include <geomcore/csv/CsvCells.h>
#include <geomcore/value/LineId.h>

#include <QDir>

#include <algorithm>

namespace VKTab {

TableData::TableData() = default;
TableData::~TableData() = default;

TableReadResult TableData::read(const QString &descriptorFile)
{
    TableReadResult result;
    const auto descriptor = TableDescriptor::read(descriptorFile, result.errors);
    if (!descriptor)
        return result;
    return read(*descriptor, QDir::toNativeSeparators(descriptor->csvFile(descriptorFile)));
}

TableReadResult TableData::read(const TableDescriptor &descriptor, const QString &csvFile,
                                HeaderRule rule)
{
    return TableDataReader(descriptor, csvFile, rule).readFile();
}

TableReadResult TableData::fromMemory(const TableDescriptor &descriptor, const QByteArray &csv,
                                      const QString &name, HeaderRule rule)
{
    return TableDataReader(descriptor, name, rule).readBytes(csv);
}

int TableData::columnOf(QStringView name) const
{
    const int index = name.isEmpty() ? -1 : m_descriptor.indexOf(name);
    return index < m_columnCount ? index : -1;
}

std::string_view TableData::rawRow(int row) const
{
    const quint64 begin = rowBegin(size_t(row));
    quint64 end = rowBegin(size_t(row) + 1) - 1;
    if (end > begin && m_bytes[end - 1] == '\r')
        --end;
    return {m_bytes + begin, end - begin};
}

void TableData::firstCells(int row, std::span<std::string_view> cells, std::string &scratch) const
{
    if (hasQuotes(row))
        splitQuoted(rawRow(row), cells, scratch);
    else
        splitPlain(rawRow(row), m_bytes + m_size, cells);
}

std::string_view TableData::cell(int row, int column, std::string &scratch) const
{
    constexpr int small = 32;
    std::string_view few[small];
    if (column < small) {
        firstCells(row, {few, size_t(column) + 1}, scratch);
        return few[column];
    }
    std::vector<std::string_view> cells(size_t(column) + 1);
    firstCells(row, cells, scratch);
    return cells.back();
}

QString TableData::text(int row, int column) const
{
    std::string scratch;
    const std::string_view text = cell(row, column, scratch);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
}

void TableData::setMissing()
{
    m_emptyIsMissing = m_descriptor.isMissing({});
    m_maybeMissing[size_t(' ')] = m_maybeMissing[size_t('\t')] = true;
    for (const QString &missing : std::as_const(m_descriptor.missingValues)) {
        if (!missing.isEmpty())
            m_maybeMissing[uchar(missing.toUtf8().front())] = true;
    }
}

int TableData::lineNumber(int row) const
{
    return m_lineNumbers.empty() ? row + 1 : m_lineNumbers[size_t(row)];
}

int TableData::lineSubNumber(int row) const
{
    return m_lineSubNumbers.empty() ? 0 : m_lineSubNumbers[size_t(row)];
}

LineId TableData::lineId(int row) const
{
    return LineId(lineNumber(row), lineSubNumber(row));
}

int TableData::rowOf(const LineId &id) const
{
    return id.isValid() ? rowOf(id.value(0), id.value(1)) : -1;
}

int TableData::rowOf(int lineNumber, int lineSubNumber) const
{
    if (m_lineNumbers.empty())
        return lineSubNumber == 0 && lineNumber >= 1 && lineNumber <= rowCount() ? lineNumber - 1
                                                                                 : -1;
    if (!m_rowByNumber.empty()) {
        const bool known =
            lineSubNumber == 0 && lineNumber >= 0 && size_t(lineNumber) < m_rowByNumber.size();
        return known ? m_rowByNumber[size_t(lineNumber)] : -1;
    }
    const std::pair wanted(lineNumber, lineSubNumber);
    const auto idOf = [this](int row) {
        return std::pair(this->lineNumber(row), this->lineSubNumber(row));
    };
    const auto at = std::lower_bound(m_rowsById.begin(), m_rowsById.end(), wanted,
                                     [&idOf](int row, const auto &id) { return idOf(row) < id; });
    return at != m_rowsById.end() && idOf(*at) == wanted ? *at : -1;
}

bool TableData::isMarked(int row) const
{
    return std::binary_search(m_markedRows.begin(), m_markedRows.end(), row);
}

const ComputedColumns &TableData::computed() const
{
    std::call_once(m_computedOnce,
                   [this] { m_computed = std::make_unique<const ComputedColumns>(*this); });
    return *m_computed;
}

} // namespace VKTab
