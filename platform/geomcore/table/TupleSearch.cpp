#include "TupleSearch.h"

#include "ColumnSearch.h"

#include <geomcore/value/CellHash.h>

#include <algorithm>

namespace VKTab {

namespace {

quint64 added(quint64 hash, quint32 text)
{
    return mixHash(hash + text + 0x5851F42D4C957F2DULL, 0x9E3779B97F4A7C15ULL);
}

} // namespace

TupleSearch::TupleSearch(std::vector<const ColumnSearch *> columns)
    : m_columns(std::move(columns))
{
    const size_t count = m_columns.empty() ? 0 : m_columns.front()->ids().size();
    m_rows.reserve(count);
    for (size_t row = 0; row < count; ++row) {
        quint64 hash = 0;
        for (const ColumnSearch *column : m_columns)
            hash = added(hash, column->ids()[row]);
        m_rows.emplace_back(hash, int(row));
    }
    std::ranges::sort(m_rows);
}

void TupleSearch::addRows(std::span<const quint32> texts, std::vector<int> &rows) const
{
    quint64 hash = 0;
    for (const quint32 text : texts)
        hash = added(hash, text);
    const auto hasTexts = [&](int row) {
        for (size_t i = 0; i < m_columns.size(); ++i) {
            if (m_columns[i]->ids()[size_t(row)] != texts[i])
                return false;
        }
        return true;
    };
    auto at = std::ranges::lower_bound(m_rows, hash, {}, &HashEntry::first);
    for (; at != m_rows.end() && at->first == hash; ++at) {
        if (hasTexts(at->second))
            rows.push_back(at->second);
    }
}

} // namespace VKTab
