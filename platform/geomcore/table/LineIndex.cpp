#include "LineIndex.h"

#include "KeyColumns.h"
#include "LineIndexWalk.h"

#include <algorithm>
#include <bit>
#include <numeric>

namespace VKTab {

LineIndex::LineIndex(std::shared_ptr<const TableData> table, std::vector<Key> keys)
    : m_table(std::move(table))
    , m_keys(std::move(keys))
{
    std::vector<int> columns;
    for (const Key &key : m_keys)
        columns.push_back(key.column);
    m_columns = std::make_unique<KeyColumns>(*m_table, columns, m_keys);
    build();
}

LineIndex::~LineIndex() = default;

void LineIndex::build()
{
    m_slots.resize(std::bit_ceil(std::max<size_t>(size_t(m_table->rowCount()) * 2, 16)));
    constexpr int batch = 16; // rows whose slots are fetched at once
    std::vector<LineKeys> keys(batch);
    LineKeys other;
    for (int first = 0; first < m_table->rowCount(); first += batch) {
        const int count = std::min(batch, m_table->rowCount() - first);
        for (int i = 0; i < count; ++i) {
            m_columns->load(first + i, keys[size_t(i)]);
            __builtin_prefetch(&m_slots[slotOf(keys[size_t(i)].hash)], 1);
        }
        for (int i = 0; i < count; ++i)
            insert(first + i, keys[size_t(i)], other);
    }
}

void LineIndex::insert(int row, const LineKeys &keys, LineKeys &other)
{
    const quint32 tag = quint32(keys.hash >> 32);
    size_t slot = slotOf(keys.hash);
    for (; m_slots[slot].last >= 0; slot = (slot + 1) & (m_slots.size() - 1)) {
        if (m_slots[slot].tag != tag)
            continue;
        const int last = m_slots[slot].last;
        m_columns->load(last, other);
        if (other.keys != keys.keys)
            continue;
        if (m_next.empty()) {
            m_next.assign(size_t(m_table->rowCount()), -1);
            m_first.resize(m_next.size());
            std::iota(m_first.begin(), m_first.end(), 0);
        }
        m_next[size_t(last)] = row;
        m_first[size_t(row)] = m_first[size_t(last)];
        m_slots[slot].last = row;
        return;
    }
    m_slots[slot] = {tag, row};
    ++m_distinct;
}

int LineIndex::firstOf(int row) const
{
    return m_first.empty() ? row : m_first[size_t(row)];
}

int LineIndex::nextOf(int row) const
{
    return m_next.empty() ? -1 : m_next[size_t(row)];
}

int LineIndex::find(std::span<const CellKey> cells) const
{
    LineKeys row;
    return walk(hashOf(cells), [this, &row, cells](int candidate) {
        m_columns->load(candidate, row);
        return std::equal(cells.begin(), cells.end(), row.keys.begin(), row.keys.end());
    });
}

} // namespace VKTab
