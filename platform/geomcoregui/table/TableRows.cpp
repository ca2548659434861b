#include "TableRows.h"

TableRows::TableRows(const VKTab::LineMapping &mapping)
    : m_mapping(mapping)
    , m_count(mapping.count())
{
}

TableRows::TableRows(const VKTab::LineMapping &mapping, std::vector<int> places)
    : m_mapping(mapping)
    , m_count(int(places.size()))
    , m_isAll(false)
    , m_places(std::move(places))
    , m_rows(size_t(mapping.count()), -1)
{
    for (int row = 0; row < m_count; ++row)
        m_rows[size_t(m_places[size_t(row)])] = row;
}

int TableRows::placeAt(int row) const
{
    if (row < 0 || row >= m_count)
        return -1;
    return m_isAll ? row : m_places[size_t(row)];
}

VKTab::LineId TableRows::lineId(int row) const
{
    const int place = placeAt(row);
    return place < 0 ? VKTab::LineId() : m_mapping.getLineId(place);
}

int TableRows::rowOf(const VKTab::LineId &line) const
{
    const int place = line.isValid() ? m_mapping.getRow(line) : -1;
    return place < 0 || m_isAll ? place : m_rows[size_t(place)];
}

bool TableRows::sameLines(const TableRows &other) const
{
    if (m_count != other.m_count)
        return false;
    for (int row = 0; row < m_count; ++row) {
        if (lineId(row) != other.lineId(row))
            return false;
    }
    return true;
}
