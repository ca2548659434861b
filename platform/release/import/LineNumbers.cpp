#include "LineNumbers.h"

#include <geomcore/value/CellKey.h>

#include <algorithm>

using namespace VKTab;

namespace VelkRelease {

namespace {

/// The key cells of each row as one text.
class RowKeys
{
public:
    RowKeys(const TableData &table, const TableDescriptor &descriptor, const QStringList &columns)
        : m_table(table)
        , m_descriptor(descriptor)
        , m_cells(size_t(table.columnCount()))
    {
        for (const QString &name : columns)
            m_columns.push_back(
                {table.columnOf(name), descriptor.fields.at(descriptor.indexOf(name)).decimalChar});
    }

    QByteArray of(int row)
    {
        m_table.cells(row, m_cells, m_scratch);
        QByteArray key;
        for (const auto &[column, decimalChar] : m_columns) {
            const std::string_view cell = m_cells[size_t(column)];
            const CellKey part(cell, CompareMode::Number, decimalChar,
                               m_descriptor.isMissing(cell));
            key += char('0' + int(part.kind()));
            key += QByteArray::number(part.number().packed());
            key.append(part.text().data(), qsizetype(part.text().size()));
            key += '\0';
        }
        return key;
    }

private:
    const TableData &m_table;
    const TableDescriptor &m_descriptor;
    std::vector<std::pair<int, char>> m_columns;
    std::vector<std::string_view> m_cells;
    std::string m_scratch;
};

} // namespace

LineNumbers::LineNumbers(TableDescriptor descriptor, QStringList keyColumns)
    : m_descriptor(std::move(descriptor))
    , m_keyColumns(std::move(keyColumns))
{
}

void LineNumbers::setFormer(const TableData &former)
{
    m_next = std::max(m_next, former.descriptor().nextLineId);
    for (int row = 0; row < former.rowCount(); ++row)
        m_next = std::max(m_next, former.lineNumber(row) + 1);
    const bool sameKey =
        std::all_of(m_keyColumns.cbegin(), m_keyColumns.cend(),
                    [&former](const QString &name) { return former.columnOf(name) >= 0; });
    if (!sameKey)
        return;
    RowKeys keys(former, m_descriptor, m_keyColumns);
    for (int row = 0; row < former.rowCount(); ++row)
        m_former[keys.of(row)].append(former.lineNumber(row));
}

std::vector<int> LineNumbers::numbersFor(const TableData &table)
{
    RowKeys keys(table, m_descriptor, m_keyColumns);
    std::vector<int> numbers;
    numbers.reserve(size_t(table.rowCount()));
    for (int row = 0; row < table.rowCount(); ++row) {
        const auto former = m_former.find(keys.of(row));
        const bool known = former != m_former.end() && !former->isEmpty();
        numbers.push_back(known ? former->takeFirst() : m_next++);
    }
    return numbers;
}

} // namespace VelkRelease
