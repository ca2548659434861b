#include "TableData.h"

#include "TableDataPrivate.h"
#include "TableDataReader.h"
#include <geomcore/project/CatalogPlaces.h>
#include <geomcore/value/LineId.h>

#include <QDir>

#include <algorithm>

namespace VKTab {

namespace {

/// A row without quotes from behind its first \a before cells up to its last \a behind cells.
std::string_view withoutCells(std::string_view row, int before, int behind)
{
    for (; before > 0; --before)
        row.remove_prefix(row.find(',') + 1);
    for (; behind > 0; --behind)
        row = row.substr(0, row.rfind(','));
    return row;
}

} // namespace

TableData::TableData(TableContents contents)
    : m(std::move(contents))
    , m_interned(std::make_unique<Interned[]>(size_t(m.columnCount)))
{
}

TableData::~TableData() = default;

TableReadResult TableData::read(const QString &descriptorFile)
{
    TableReadResult result;
    const auto descriptor = TableDescriptor::read(descriptorFile, result.errors);
    if (!descriptor)
        return result;
    const QString csvFile = QDir::toNativeSeparators(descriptor->csvFile(descriptorFile));
    const QString refusal = CatalogPlaces::instance().refusal(csvFile, descriptorFile);
    if (!refusal.isEmpty())
        return {nullptr, {{descriptorFile, 0, 0, refusal}}};
    TableDataReader reader(*descriptor, csvFile);
    reader.setDescriptorFile(descriptorFile);
    return reader.readFile();
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

bool TableData::hasSameBytes(int row, const TableData &other, int otherRow, int first,
                             int last) const
{
    std::string_view bytes = rawRow(row);
    std::string_view otherBytes = other.rawRow(otherRow);
    const int behind = columnCount() - 1 - last;
    if (first > 0 || behind > 0) {
        if (hasQuotes(row) || other.hasQuotes(otherRow))
            return false;
        bytes = withoutCells(bytes, first, behind);
        otherBytes = withoutCells(otherBytes, first, behind);
    }
    return bytes == otherBytes;
}

QString TableData::text(int row, int column) const
{
    std::string scratch;
    const std::string_view text = cell(row, column, scratch);
    return QString::fromUtf8(text.data(), qsizetype(text.size()));
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
    if (m.lineNumbers.empty())
        return lineSubNumber == 0 && lineNumber >= 1 && lineNumber <= rowCount() ? lineNumber - 1
                                                                                 : -1;
    if (!m.rowByNumber.empty()) {
        const bool known =
            lineSubNumber == 0 && lineNumber >= 0 && size_t(lineNumber) < m.rowByNumber.size();
        return known ? m.rowByNumber[size_t(lineNumber)] : -1;
    }
    const std::pair wanted(lineNumber, lineSubNumber);
    const auto idOf = [this](int row) {
        return std::pair(this->lineNumber(row), this->lineSubNumber(row));
    };
    const auto at = std::lower_bound(m.rowsById.begin(), m.rowsById.end(), wanted,
                                     [&idOf](int row, const auto &id) { return idOf(row) < id; });
    return at != m.rowsById.end() && idOf(*at) == wanted ? *at : -1;
}

} // namespace VKTab
