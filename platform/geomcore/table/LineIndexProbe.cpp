#include "KeyColumns.h"
#include "LineIndex.h"
#include "LineIndexWalk.h"

#include <algorithm>
#include <array>

namespace VKTab {

namespace {

/// Rows that are looked up together.
constexpr int Batch = 16;
/// After so many vain tries the next row is tried only once in so many rows.
constexpr int Patience = 16;

} // namespace

struct LineIndex::Probe::Private
{
    const LineIndex &index;
    KeyColumns columns;
    bool sameRowsSuffice;
    std::vector<bool> sameBytesSuffice;
    LineKeys indexRow;
    std::array<LineKeys, Batch> rows; ///< Those that wait to be looked up, split,
    std::array<int, Batch> waiting{}; ///< and which ones they are.
    size_t waitingCount = 0;
    int lastHit = -1; ///< The row that was found where it was expected.
    int expected = 0; ///< Row of the index's table that may come next,
    int missed = 0;   ///< or behind it, after so many that were not there.
    int vain = 0;

    Private(const LineIndex &lines, const TableData &other, const std::vector<int> &otherColumns)
        : index(lines)
        , columns(other, otherColumns, lines.m_keys)
        , sameRowsSuffice(columns.sameRowsSuffice(*lines.m_columns))
    {
        for (size_t i = 0; i < columns.count(); ++i)
            sameBytesSuffice.push_back(columns.sameBytesSuffice(i, *lines.m_columns));
    }

    /// Whether the row of the index equals a row that is split; keys are made where bytes differ.
    bool equalCells(int candidate, const LineKeys &row)
    {
        index.m_columns->split(candidate, indexRow);
        for (size_t i = 0; i < columns.count(); ++i) {
            if (sameBytesSuffice[i] && columns.cell(i, row) == index.m_columns->cell(i, indexRow))
                continue;
            if (columns.key(i, row) != index.m_columns->key(i, indexRow))
                return false;
        }
        return true;
    }

    int hit(int row, int found)
    {
        lastHit = row;
        expected = found + 1;
        missed = 0;
        vain = 0;
        return index.firstOf(found);
    }

    [[nodiscard]] bool isThere(int row) const { return row < index.m_table->rowCount(); }

    /// The row after the last hit, if it equals \a row; else -1, and \a row is split. Where rows
    /// before were not there, they were taken out or changed in their place.
    int tryExpected(int row, LineKeys &keys)
    {
        const bool tries = isThere(expected) && (vain < Patience || row % Patience == 0);
        for (const int next : {expected, expected + missed}) {
            if (tries && sameRowsSuffice && isThere(next) &&
                columns.hasSameBytes(row, *index.m_columns, next))
                return hit(row, next);
        }
        columns.split(row, keys);
        if (tries && equalCells(expected, keys))
            return hit(row, expected);
        vain += tries ? 1 : 0;
        ++missed;
        return -1;
    }

    /// Of a row that was not where it was expected, and not \a before so many others.
    int search(int row, const LineKeys &keys, size_t before)
    {
        const int found = index.walk(
            keys.hash, [this, &keys](int candidate) { return equalCells(candidate, keys); });
        if (found >= 0 && row > lastHit) {
            expected = found + 1;
            missed = int(before);
        }
        return found;
    }

    void searchWaiting(int firstRow, std::span<int> out);
};

void LineIndex::Probe::Private::searchWaiting(int firstRow, std::span<int> out)
{
    for (size_t i = 0; i < waitingCount; ++i) {
        columns.makeKeys(rows[i]);
        __builtin_prefetch(&index.m_slots[index.slotOf(rows[i].hash)]);
    }
    for (size_t i = 0; i < waitingCount; ++i) {
        const int last = index.m_slots[index.slotOf(rows[i].hash)].last;
        if (last >= 0)
            index.m_table->prefetchOffset(last);
    }
    for (size_t i = 0; i < waitingCount; ++i) {
        const int last = index.m_slots[index.slotOf(rows[i].hash)].last;
        if (last >= 0)
            index.m_table->prefetchRow(last);
    }
    for (size_t i = 0; i < waitingCount; ++i)
        out[size_t(waiting[i] - firstRow)] = search(waiting[i], rows[i], waitingCount - 1 - i);
    waitingCount = 0;
}

LineIndex::Probe::Probe(const LineIndex &index, const TableData &other,
                        const std::vector<int> &columns)
    : d(std::make_unique<Private>(index, other, columns))
{
}

LineIndex::Probe::~Probe() = default;
LineIndex::Probe::Probe(Probe &&other) noexcept = default;

int LineIndex::Probe::find(int row)
{
    const int found = d->tryExpected(row, d->rows[0]);
    if (found >= 0)
        return found;
    d->columns.makeKeys(d->rows[0]);
    return d->search(row, d->rows[0], 0);
}

/// Rows that are where they are expected need no look-up, and of the others as many as are looked
/// up together wait for each other.
void LineIndex::Probe::find(int firstRow, std::span<int> rows)
{
    for (size_t i = 0; i < rows.size(); ++i) {
        const int row = firstRow + int(i);
        rows[i] = d->tryExpected(row, d->rows[d->waitingCount]);
        if (rows[i] >= 0)
            continue;
        d->waiting[d->waitingCount++] = row;
        if (d->waitingCount == Batch)
            d->searchWaiting(firstRow, rows);
    }
    d->searchWaiting(firstRow, rows);
}

} // namespace VKTab
