#include "ReferenceJoin.h"

#include "CsvCursor.h"
#include "MappedFile.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdio>
#include <memory>
#include <stdexcept>

namespace velkbench {

namespace {

constexpr size_t BatchSize = 16;

std::uint64_t hashOf(std::string_view cell, std::uint64_t hash)
{
    constexpr std::uint64_t Factor = 0x9e3779b97f4a7c15ULL;
    const char *at = cell.data();
    size_t left = cell.size();
    hash ^= left;
    for (; left >= 8; left -= 8, at += 8) {
        std::uint64_t word = 0;
        memcpy(&word, at, 8);
        hash = (std::rotl(hash, 5) ^ word) * Factor;
    }
    std::uint64_t tail = 0;
    memcpy(&tail, at, left);
    hash = (std::rotl(hash, 5) ^ tail) * Factor;
    return hash ^ (hash >> 29);
}

using Cells = std::vector<std::string_view>;

std::uint64_t hashOf(const Cells &cells, const std::vector<int> &columns)
{
    std::uint64_t hash = 0;
    for (const int column : columns)
        hash = hashOf(cells[size_t(column)], hash);
    return hash;
}

struct Row
{
    const char *begin;
    std::uint64_t hash;
};

/// Open addressing over the rows of the new table; a slot holds a row + 1 and bits of its hash.
class RowHash
{
public:
    explicit RowHash(const std::vector<Row> &rows)
        : m_slots(std::bit_ceil(rows.size() * 2 + 2))
        , m_mask(m_slots.size() - 1)
    {
        for (size_t row = 0; row < rows.size(); ++row) {
            size_t at = rows[row].hash & m_mask;
            while (m_slots[at].row != 0)
                at = (at + 1) & m_mask;
            m_slots[at] = {std::uint32_t(row) + 1, std::uint32_t(rows[row].hash >> 32)};
        }
    }

    void prefetch(std::uint64_t hash) const { __builtin_prefetch(&m_slots[hash & m_mask]); }

    template<class Equals>
    std::int32_t find(std::uint64_t hash, Equals &&equals) const
    {
        for (size_t at = hash & m_mask; m_slots[at].row != 0; at = (at + 1) & m_mask) {
            if (m_slots[at].tag == std::uint32_t(hash >> 32) && equals(m_slots[at].row - 1))
                return std::int32_t(m_slots[at].row - 1);
        }
        return -1;
    }

private:
    struct Slot
    {
        std::uint32_t row = 0;
        std::uint32_t tag = 0;
    };
    std::vector<Slot> m_slots;
    size_t m_mask;
};

struct Columns
{
    std::vector<int> oldOnes;
    std::vector<int> newOnes;
};

Columns commonColumns(const Cells &oldHeader, const Cells &newHeader)
{
    Columns result;
    for (size_t a = 0; a < oldHeader.size(); ++a) {
        for (size_t b = 0; b < newHeader.size(); ++b) {
            if (oldHeader[a] == newHeader[b]) {
                result.oldOnes.push_back(int(a));
                result.newOnes.push_back(int(b));
            }
        }
    }
    return result;
}

std::vector<Row> readRows(CsvCursor cursor, const std::vector<int> &columns)
{
    std::vector<Row> rows;
    Cells cells;
    for (const char *begin = cursor.position(); cursor.next(cells); begin = cursor.position())
        rows.push_back({begin, hashOf(cells, columns)});
    return rows;
}

/// Looks up rows in batches, so that the cache misses of one batch overlap.
class Prober
{
public:
    Prober(const Columns &columns, const std::vector<Row> &rows, const RowHash &hash,
           std::string_view newBytes)
        : m_columns(columns)
        , m_rows(rows)
        , m_hash(hash)
        , m_newEnd(newBytes.data() + newBytes.size())
    {
    }

    void run(CsvCursor cursor, JoinResult &result)
    {
        size_t filled = 0;
        do {
            for (filled = 0; filled < BatchSize && cursor.next(m_cells[filled]); ++filled) {
                m_hashes[filled] = hashOf(m_cells[filled], m_columns.oldOnes);
                m_hash.prefetch(m_hashes[filled]);
            }
            for (size_t i = 0; i < filled; ++i) {
                const auto row = m_hash.find(m_hashes[i], [&](size_t at) { return equals(i, at); });
                result.newRowOf.push_back(row);
                result.hits += row >= 0 ? 1 : 0;
            }
        } while (filled == BatchSize);
    }

private:
    bool equals(size_t batchRow, size_t newRow)
    {
        const char *begin = m_rows[newRow].begin;
        CsvCursor(std::string_view(begin, size_t(m_newEnd - begin))).next(m_newCells);
        for (size_t i = 0; i < m_columns.oldOnes.size(); ++i) {
            if (m_cells[batchRow][size_t(m_columns.oldOnes[i])] !=
                m_newCells[size_t(m_columns.newOnes[i])])
                return false;
        }
        return true;
    }

    const Columns &m_columns;
    const std::vector<Row> &m_rows;
    const RowHash &m_hash;
    const char *m_newEnd;
    std::array<Cells, BatchSize> m_cells;
    std::array<std::uint64_t, BatchSize> m_hashes{};
    Cells m_newCells;
};

} // namespace

JoinResult referenceJoin(const std::filesystem::path &oldCsv, const std::filesystem::path &newCsv)
{
    const MappedFile oldFile(oldCsv);
    const MappedFile newFile(newCsv);
    CsvCursor oldCursor(oldFile.bytes());
    CsvCursor newCursor(newFile.bytes());
    Cells oldHeader;
    Cells newHeader;
    if (!oldCursor.next(oldHeader) || !newCursor.next(newHeader))
        throw std::runtime_error("a table without header row");
    const Columns columns = commonColumns(oldHeader, newHeader);
    const std::vector<Row> rows = readRows(newCursor, columns.newOnes);
    const RowHash hash(rows);
    JoinResult result;
    Prober(columns, rows, hash, newFile.bytes()).run(oldCursor, result);
    return result;
}

void writeMinimalMapping(const JoinResult &result, const std::filesystem::path &file)
{
    const std::unique_ptr<FILE, int (*)(FILE *)> out(fopen(file.c_str(), "wb"), fclose);
    if (!out)
        throw std::runtime_error("cannot write " + file.string());
    std::vector<char> buffer(1 << 16);
    char *at = buffer.data();
    *at++ = '[';
    for (size_t row = 0; row < result.newRowOf.size(); ++row) {
        if (buffer.data() + buffer.size() - at < 64) {
            fwrite(buffer.data(), 1, size_t(at - buffer.data()), out.get());
            at = buffer.data();
        }
        const std::int32_t hit = result.newRowOf[row];
        *at++ = '[';
        at = std::to_chars(at, at + 12, row + 1).ptr;
        *at++ = ',';
        at = std::to_chars(at, at + 12, hit < 0 ? -1 : hit + 1).ptr;
        memcpy(at, hit < 0 ? ",0],\n" : ",1],\n", 5);
        at += 5;
    }
    memcpy(at, "[]]\n", 4);
    fwrite(buffer.data(), 1, size_t(at + 4 - buffer.data()), out.get());
}

} // namespace velkbench
