#include "LineIndex.h"

#include "KeyColumns.h"
#include "LineIndexWalk.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <array>
#include <bit>
#include <numeric>

namespace VKTab {

namespace {

/// A table of fewer rows is indexed by one thread.
constexpr int SmallTable = 20000;
constexpr int RowsAStep = 8192;

} // namespace

struct LineIndex::Part
{
    size_t begin = 0;
    size_t end = 0;
    int distinct = 0;
    std::vector<int> beyond; ///< Rows that found no room before the end, ascending.
    LineKeys keys;           ///< Of two rows that are compared.
    LineKeys otherKeys;
};

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
    const std::vector<quint64> hashes = this->hashes();
    // Threads take neighbouring slots, each all rows that belong there. Equal rows have one hash
    // and stay together: with one thread, or behind its part, each finds those before it.
    const auto threads = size_t(WorkerPool::instance().threads());
    const size_t count =
        m_table->rowCount() < SmallTable ? 1 : std::min<size_t>(std::bit_ceil(threads), 64);
    std::vector<Part> parts(count);
    for (size_t i = 0; i < count; ++i) {
        parts[i].begin = m_slots.size() / count * i;
        parts[i].end = m_slots.size() / count * (i + 1);
    }
    WorkerPool::instance().run(int(count), [&](int i) { fill(parts[size_t(i)], hashes); });
    for (Part &part : parts) {
        m_distinct += part.distinct;
        Part rest;
        for (const int row : part.beyond)
            insert(row, hashes[size_t(row)], SIZE_MAX, rest);
        m_distinct += rest.distinct;
    }
}

std::vector<quint64> LineIndex::hashes() const
{
    std::vector<quint64> hashes(size_t(m_table->rowCount()));
    const int rows = m_table->rowCount();
    WorkerPool::instance().run((rows + RowsAStep - 1) / RowsAStep, [&](int step) {
        LineKeys keys;
        for (int row = step * RowsAStep; row < std::min(rows, (step + 1) * RowsAStep); ++row) {
            m_columns->load(row, keys);
            hashes[size_t(row)] = keys.hash;
        }
    });
    return hashes;
}

void LineIndex::fill(Part &part, const std::vector<quint64> &hashes)
{
    constexpr size_t batch = 16; // rows whose slots are fetched at once
    std::array<int, batch> rows{};
    size_t waiting = 0;
    const auto insertWaiting = [&] {
        for (size_t i = 0; i < waiting; ++i) {
            const int row = rows[i];
            if (!insert(row, hashes[size_t(row)], part.end, part))
                part.beyond.push_back(row);
        }
        waiting = 0;
    };
    for (size_t row = 0; row < hashes.size(); ++row) {
        const size_t slot = slotOf(hashes[row]);
        if (slot < part.begin || slot >= part.end)
            continue;
        __builtin_prefetch(&m_slots[slot], 1);
        rows[waiting++] = int(row);
        if (waiting == batch)
            insertWaiting();
    }
    insertWaiting();
}

bool LineIndex::insert(int row, quint64 hash, size_t end, Part &part)
{
    const auto tag = quint32(hash >> 32);
    size_t slot = slotOf(hash);
    for (; m_slots[slot].last >= 0; slot = (slot + 1) & (m_slots.size() - 1)) {
        if (m_slots[slot].tag == tag) {
            const int last = m_slots[slot].last;
            if (equalRows(last, row, part)) {
                std::call_once(m_ringsOnce, [this] { makeRings(); });
                m_next[size_t(last)] = row;
                m_first[size_t(row)] = m_first[size_t(last)];
                m_slots[slot].last = row;
                return true;
            }
        }
        if (slot + 1 == end)
            return false;
    }
    m_slots[slot] = {tag, row};
    ++part.distinct;
    return true;
}

bool LineIndex::equalRows(int a, int b, Part &part) const
{
    m_columns->load(a, part.keys);
    m_columns->load(b, part.otherKeys);
    return part.keys.keys == part.otherKeys.keys;
}

void LineIndex::makeRings()
{
    m_next.assign(size_t(m_table->rowCount()), -1);
    m_first.resize(m_next.size());
    std::iota(m_first.begin(), m_first.end(), 0);
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
