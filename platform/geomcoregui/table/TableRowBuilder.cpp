#include "TableRowBuilder.h"

#include "QuickFilter.h"
#include "TableColumnValues.h"

#include <geomcore/table/BaseLayer.h>
#include <geomcore/table/TableData.h>

#include <algorithm>
#include <numeric>

TableRowBuilder::TableRowBuilder(const VKTab::Content &table)
    : m_table(table)
    , m_mapping(table.getLineMapping())
    , m_data(table.getTableData())
    , m_isWholeFile(m_data && m_mapping.count() == m_data->rowCount())
{
}

int TableRowBuilder::fileRow(int place) const
{
    return m_isWholeFile ? place : m_data->rowOf(m_mapping.getLineId(place));
}

void TableRowBuilder::takeAll()
{
    if (!m_isAll)
        return;
    m_isAll = false;
    m_places.resize(size_t(m_mapping.count()));
    std::iota(m_places.begin(), m_places.end(), 0);
}

void TableRowBuilder::filter(const TableColumnValues &values, const QString &quickFilter)
{
    const std::vector<char> passing = QuickFilter(quickFilter).passing(values);
    const std::vector<quint32> &ids = values.ids();
    takeAll();
    std::erase_if(m_places, [&](int place) {
        const int row = fileRow(place);
        return row < 0 || !passing[ids[size_t(row)]];
    });
}

std::vector<int> TableRowBuilder::count(const TableColumnValues &values)
{
    takeAll();
    std::vector<int> counts(values.texts().size(), 0);
    for (const int place : m_places) {
        const int row = fileRow(place);
        if (row >= 0)
            ++counts[values.ids()[size_t(row)]];
    }
    return counts;
}

void TableRowBuilder::sort(const TableColumnValues &values, const std::vector<quint32> &ranks,
                           Qt::SortOrder order)
{
    takeAll();
    std::vector<quint32> rankByPlace(size_t(m_mapping.count()), TableColumnValues::Missing);
    for (const int place : m_places) {
        const int row = fileRow(place);
        if (row >= 0)
            rankByPlace[size_t(place)] = ranks[values.ids()[size_t(row)]];
    }
    sortPlaces(rankByPlace, quint32(ranks.size()), order);
}

void TableRowBuilder::sort(const VKTab::StatusKey &key, Qt::SortOrder order)
{
    const auto modify = m_table.getModifyLayer();
    if (!modify)
        return;
    takeAll();
    const auto &states = key.getValues();
    const auto count = quint32(states.size());
    std::vector<quint32> rankByPlace(size_t(m_mapping.count()), TableColumnValues::Missing);
    for (const int place : m_places) {
        const QString text =
            modify->getLineKeyValue(m_mapping.getLineId(place), key.getName()).toString();
        if (text.isEmpty())
            continue;
        const auto state =
            std::find_if(states.begin(), states.end(),
                         [&](const VKTab::StatusValue &value) { return value.getText() == text; });
        rankByPlace[size_t(place)] = quint32(state - states.begin());
    }
    sortPlaces(rankByPlace, count + 1, order);
}

void TableRowBuilder::sortPlaces(const std::vector<quint32> &rankByPlace, quint32 ranks,
                                 Qt::SortOrder order)
{
    const auto bucketOf = [&](int place) -> size_t {
        const quint32 rank = rankByPlace[size_t(place)];
        if (rank == TableColumnValues::Missing)
            return ranks;
        return order == Qt::AscendingOrder ? rank : ranks - 1 - rank;
    };
    std::vector<size_t> begins(size_t(ranks) + 2, 0);
    for (const int place : m_places)
        ++begins[bucketOf(place) + 1];
    std::partial_sum(begins.begin(), begins.end(), begins.begin());
    std::vector<int> sorted(m_places.size());
    for (const int place : m_places)
        sorted[begins[bucketOf(place)]++] = place;
    m_places = std::move(sorted);
}

TableRows TableRowBuilder::rows()
{
    return m_isAll ? TableRows(m_mapping) : TableRows(m_mapping, std::move(m_places));
}
