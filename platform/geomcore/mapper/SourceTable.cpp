#include "SourceTable.h"

#include "CertaintyRules.h"

#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/LineIndex.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <QSet>

namespace Mapper {

using VKTab::FieldKind;
using VKTab::LineView;
using VKTab::TableData;
using VKTab::TableField;

namespace {

std::string valueText(const QHash<QString, MapVarValueC> &varset, const QString &name)
{
    return varset.value(name).getValue().toString().trimmed().toStdString();
}

} // namespace

SourceTable::SourceTable(const VKTab::Content &content)
    : m_content(content)
    , m_data(content.getTableData())
{
    if (!m_data)
        return;
    const QList<TableField> &fields = m_data->descriptor().fields;
    for (int column = 0; column < int(fields.size()); ++column) {
        if (!fields[column].isCompared())
            continue;
        m_columns.push_back(column);
        if (!m_columnOf.contains(fields[column].name))
            m_columnOf.insert(fields[column].name, column);
    }
    m_pattern = DesignationPattern(m_data->descriptor());
    m_designation = DesignationPattern::ofDesignation(m_data->descriptor());
}

int SourceTable::rowOf(int lineId) const
{
    return m_data ? m_data->rowOf(lineId) : -1;
}

int SourceTable::columnOf(const QString &name) const
{
    return m_columnOf.value(name, -1);
}

char SourceTable::decimalChar(int column) const
{
    return column < 0 ? '.' : m_data->descriptor().fields[column].decimalChar;
}

QStringList SourceTable::rangesAmong(const QStringList &names) const
{
    const QSet<QString> wanted(names.begin(), names.end());
    QStringList ranges;
    for (int column : m_columns) {
        const TableField &field = m_data->descriptor().fields[column];
        if (field.isRange() && wanted.contains(field.name))
            ranges.append(field.name);
    }
    return ranges;
}

int SourceTable::countValues(const LineView &line) const
{
    int used = 0;
    return countValues(line, std::vector<int>(m_data->descriptor().fields.size()), used);
}

int SourceTable::countValues(const LineView &line, const std::vector<int> &uses, int &used) const
{
    thread_local std::vector<std::string_view> cells;
    thread_local std::string scratch;
    const int stored = line.isPlain() && line.table() == m_data.get() ? m_data->columnCount() : 0;
    cells.resize(size_t(stored));
    if (stored > 0)
        m_data->cells(line.row(), cells, scratch);
    int count = 0;
    used = 0;
    for (int column : m_columns) {
        const bool missing = column < stored ? m_data->isMissing(cells[size_t(column)])
                                             : line.text(column, scratch).empty();
        count += missing ? 0 : 1;
        used += missing ? 0 : uses[size_t(column)];
    }
    return count;
}

std::string SourceTable::textOf(const DesignationPattern &pattern, const LineView &line) const
{
    std::string scratch;
    return pattern.text([&](const QString &name) {
        const int column = columnOf(name);
        return column < 0 ? std::string() : std::string(line.text(column, scratch));
    });
}

std::string SourceTable::designation(const LineView &line) const
{
    return textOf(m_pattern, line);
}

std::string SourceTable::normDesignation(const LineView &line) const
{
    return textOf(m_designation, line);
}

std::string SourceTable::designation(const QHash<QString, MapVarValueC> &varset) const
{
    return m_pattern.text([&](const QString &name) { return valueText(varset, name); });
}

std::string SourceTable::normDesignation(const QHash<QString, MapVarValueC> &varset) const
{
    return m_designation.text([&](const QString &name) { return valueText(varset, name); });
}

const std::vector<int> &SourceTable::keyColumns() const
{
    if (!m_keyColumns)
        m_keyColumns = keyColumnsOf(m_data);
    return *m_keyColumns;
}

std::vector<int> keyColumnsOf(const std::shared_ptr<const TableData> &data)
{
    std::vector<int> columns;
    if (!data || data->rowCount() == 0 || data->columnCount() == 0)
        return columns;
    for (const QString &name : data->descriptor().primaryKey) {
        const int column = data->columnOf(name);
        if (column < 0)
            return {};
        columns.push_back(column);
    }
    if (!columns.empty() || data->descriptor().fields[0].kind != FieldKind::Plain)
        return columns;
    std::string scratch;
    for (int row = 0; row < data->rowCount(); ++row) {
        if (data->isMissing(data->cell(row, 0, scratch)))
            return {};
    }
    const VKTab::LineIndex index(data, {{0, VKTab::CompareMode::Number}});
    if (index.distinctCount() >= KeyDistinctness * data->rowCount())
        columns.push_back(0);
    return columns;
}

QHash<QString, MapVarValueC> varsetOf(const LineView &line)
{
    QHash<QString, MapVarValueC> varset;
    if (!line.isValid())
        return varset;
    const QList<TableField> &fields = line.table()->descriptor().fields;
    for (int column = 0; column < int(fields.size()); ++column) {
        if (!fields[column].isCompared())
            continue;
        MapVarValueC value;
        value.setName(fields[column].name);
        value.setValue(line.value(column));
        value.setNumeric(fields[column].isNumeric());
        varset.insert(fields[column].name, value);
    }
    return varset;
}

} // namespace Mapper
