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
    std::array<LineKeys, Batch> rows;
    int expected = 0; ///< Row of the index's table that may come next.
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

    int hit(int row)
    {
        expected = row + 1;
        vain = 0;
        return index.firstOf(row);
    }

    /// The row after the last hit, if it equals \a row; else -1.
    int tryExpected(int row)
    {
        if (expected >= index.m_table->rowCount() || (vain >= Patience && row % Patience != 0))
            return -1;
        if (sameRowsSuffice && columns.hasSameBytes(row, *index.m_columns, expected))
            return hit(expected);
        columns.split(row, rows[0]);
        if (equalCells(expected, rows[0]))
            return hit(expected);
        ++vain;
        return -1;
    }

    int search(const LineKeys &row)
    {
        const int found = index.walk(
            row.hash, [this, &row](int candidate) { return equalCells(candidate, row); });
        if (found >= 0)
            expected = found + 1;
        return found;
    }

    void searchBatch(int firstRow, std::span<int> out);
};

void LineIndex::Probe::Private::searchBatch(int firstRow, std::span<int> out)
{
    for (size_t i = 0; i < out.size(); ++i) {
        columns.load(firstRow + int(i), rows[i]);
        __builtin_prefetch(&index.m_slots[index.slotOf(rows[i].hash)]);
    }
    for (size_t i = 0; i < out.size(); ++i) {
        const int last = index.m_slots[index.slotOf(rows[i].hash)].last;
        if (last >= 0)
            index.m_table->prefetchOffset(last);
    }
    for (size_t i = 0; i < out.size(); ++i) {
        const int last = index.m_slots[index.slotOf(rows[i].hash)].last;
        if (last >= 0)
            index.m_table->prefetchRow(last);
    }
    for (size_t i = 0; i < out.size(); ++i)
        out[i] = search(rows[i]);
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
    const int found = d->tryExpected(row);
    if (found >= 0)
        return found;
    d->columns.load(row, d->rows[0]);
    return d->search(d->rows[0]);
}

void LineIndex::Probe::find(int firstRow, std::span<int> rows)
{
    while (!rows.empty()) {
        const int found = d->tryExpected(firstRow);
        size_t done = 1;
        if (found >= 0) {
            rows[0] = found;
        } else {
            done = std::min<size_t>(rows.size(), Batch);
            d->searchBatch(firstRow, rows.first(done));
        }
        firstRow += int(done);
        rows = rows.subspan(done);
    }
}

} // namespace VKTab
