#include "ColumnSearch.h"

#include "TableData.h"
#include <geomcore/value/CellKey.h>
#include <geomcore/value/RangeCell.h>

#include <algorithm>

namespace VKTab {

namespace {

/// Ranges of more values are not spread out but asked one by one.
constexpr qint64 MaxSpreadRange = 1024;

} // namespace

ColumnSearch::ColumnSearch(const TableData &table, int column)
    : m_table(table)
    , m_column(table.interned(column))
    , m_field(table.descriptor().fields.at(column))
{
    addTexts(m_field.isRange());
    addRows();
}

CellKey ColumnSearch::key(std::string_view text) const
{
    return {text, CompareMode::Number, m_field.decimalChar, m_table.isMissing(text)};
}

void ColumnSearch::addTexts(bool isRange)
{
    const auto count = static_cast<quint32>(m_column.values.size());
    if (isRange)
        m_isRange.resize(count);
    m_texts.reserve(count);
    for (quint32 id = 0; id < count; ++id) {
        m_texts.emplace_back(key(m_column.values[id]).hash(), id);
        if (isRange)
            m_isRange[id] = addRange(id);
    }
    std::sort(m_texts.begin(), m_texts.end());
    std::sort(m_elements.begin(), m_elements.end());
}

bool ColumnSearch::addRange(quint32 id)
{
    const std::string_view text = m_column.values[id];
    const auto range = parseRangeCell(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), m_field.decimalChar);
    if (!range)
        return false;
    if (range->count() > MaxSpreadRange) {
        m_largeRanges.push_back({id, *range});
        return true;
    }
    for (qint64 i = 0; i < range->count(); ++i)
        m_elements.emplace_back(key(range->value(i).toUtf8().toStdString()).hash(), id);
    return true;
}

void ColumnSearch::addRows()
{
    m_rowStart.assign(m_column.values.size() + 1, 0);
    for (const quint32 id : m_column.ids)
        ++m_rowStart[id + 1];
    for (size_t i = 1; i < m_rowStart.size(); ++i)
        m_rowStart[i] += m_rowStart[i - 1];
    std::vector<int> next(m_rowStart.begin(), m_rowStart.end());
    m_rows.resize(m_column.ids.size());
    for (size_t row = 0; row < m_column.ids.size(); ++row)
        m_rows[static_cast<size_t>(next[m_column.ids[row]]++)] = static_cast<int>(row);
}

std::vector<quint32> ColumnSearch::match(const QString &value, bool rangeContains) const
{
    const std::string text = value.toUtf8().toStdString();
    const CellKey wanted(text, CompareMode::Number, m_field.decimalChar, m_table.isMissing(text));
    std::vector<quint32> result;
    matchTexts(wanted, result);
    if (rangeContains && !m_isRange.empty()) {
        std::erase_if(result, [this](quint32 id) { return m_isRange[id]; });
        matchRanges(wanted, value, result);
        std::sort(result.begin(), result.end());
        result.erase(std::unique(result.begin(), result.end()), result.end());
    }
    return result;
}

void ColumnSearch::matchTexts(const CellKey &wanted, std::vector<quint32> &result) const
{
    const quint64 hash = wanted.hash();
    auto entry = std::lower_bound(m_texts.begin(), m_texts.end(), HashEntry(hash, 0));
    for (; entry != m_texts.end() && entry->first == hash; ++entry) {
        if (key(m_column.values[entry->second]) == wanted)
            result.push_back(entry->second);
    }
}

void ColumnSearch::matchRanges(const CellKey &wanted, const QString &value,
                               std::vector<quint32> &result) const
{
    const quint64 hash = wanted.hash();
    auto entry = std::lower_bound(m_elements.begin(), m_elements.end(), HashEntry(hash, 0));
    for (; entry != m_elements.end() && entry->first == hash; ++entry) {
        const std::string_view text = m_column.values[entry->second];
        const auto range =
            parseRangeCell(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())),
                           m_field.decimalChar);
        if (range && range->contains(value, m_field.decimalChar))
            result.push_back(entry->second);
    }
    for (const LargeRange &large : m_largeRanges) {
        if (large.range.contains(value, m_field.decimalChar))
            result.push_back(large.id);
    }
}

const std::vector<quint32> &ColumnSearch::ids() const
{
    return m_column.ids;
}

std::span<const int> ColumnSearch::rows(quint32 id) const
{
    const auto begin = static_cast<size_t>(m_rowStart[id]);
    return {m_rows.data() + begin, static_cast<size_t>(m_rowStart[id + 1]) - begin};
}

} // namespace VKTab
