#pragma once

#include "TableData.h"
#include <geomcore/value/CellKey.h>

#include <memory>
#include <mutex>
#include <span>
#include <vector>

namespace VKTab {

class KeyColumns;
struct LineKeys;

/// Hash index of a table's rows over a set of its columns. Immutable and shared between threads
/// after construction, which reads the table once.
class VELKGEOMCORE_EXPORT LineIndex
{
public:
    struct Key
    {
        int column = 0;
        CompareMode compare = CompareMode::Number;
        friend bool operator==(const Key &, const Key &) = default;
    };

    /// Without keys all rows are equal.
    LineIndex(std::shared_ptr<const TableData> table, std::vector<Key> keys);
    ~LineIndex();
    LineIndex(const LineIndex &) = delete;
    LineIndex &operator=(const LineIndex &) = delete;

    [[nodiscard]] const TableData &table() const { return *m_table; }
    [[nodiscard]] const std::vector<Key> &keys() const { return m_keys; }
    /// Number of rows that differ from each other in the columns.
    [[nodiscard]] int distinctCount() const { return m_distinct; }

    /// First row, in table order, that equals \a row of this table on the columns.
    [[nodiscard]] int firstOf(int row) const;
    /// The next row that equals \a row; -1 after the last. Walk from firstOf() or from a hit.
    [[nodiscard]] int nextOf(int row) const;
    /// Whether no other row equals \a row.
    [[nodiscard]] bool isUnique(int row) const
    {
        return m_next.empty() || (m_first[size_t(row)] == row && m_next[size_t(row)] < 0);
    }
    /// First row whose key cells equal \a cells (one for each key, in their order); -1 if none
    /// does.
    [[nodiscard]] int find(std::span<const CellKey> cells) const;

    /// Looks up the rows of another table. One for each thread; keeps references to index and
    /// table.
    class VELKGEOMCORE_EXPORT Probe
    {
    public:
        /// \a columns of \a other, one for each key of the index. A column -1 is "no value" in all
        /// rows.
        Probe(const LineIndex &index, const TableData &other, const std::vector<int> &columns);
        ~Probe();
        Probe(Probe &&other) noexcept;

        /// First row of the index's table that equals \a row of the other; -1 if there is none.
        /// Rows asked in order are fastest: the row after the last hit is tried first.
        [[nodiscard]] int find(int row);
        /// The same for rows.size() rows from \a firstRow on, with overlapping memory access.
        void find(int firstRow, std::span<int> rows);

    private:
        struct Private;
        std::unique_ptr<Private> d;
    };

private:
    struct Slot
    {
        quint32 tag = 0;
        qint32 last = -1; ///< Last of the equal rows; -1 if the slot is free.
    };

    /// Neighbouring slots, filled by one thread.
    struct Part;

    void build();
    [[nodiscard]] std::vector<quint64> hashes() const;
    void fill(Part &part, const std::vector<quint64> &hashes);
    /// False if there is no room up to \a end.
    bool insert(int row, quint64 hash, size_t end, Part &part);
    [[nodiscard]] bool equalRows(int a, int b, Part &part) const;
    void makeRings();
    /// First row in a slot of that hash for which equal(row) holds; -1 if there is none.
    template<class Equal>
    [[nodiscard]] int walk(quint64 hash, Equal equal) const;
    [[nodiscard]] size_t slotOf(quint64 hash) const { return size_t(hash) & (m_slots.size() - 1); }

    std::shared_ptr<const TableData> m_table;
    std::vector<Key> m_keys;
    std::unique_ptr<KeyColumns> m_columns;
    std::vector<Slot> m_slots; ///< A power of two, at most half of them taken.
    /// First of the rows that equal a row, and the next one or -1; both empty while all rows
    /// differ.
    std::vector<qint32> m_first;
    std::vector<qint32> m_next;
    std::once_flag m_ringsOnce;
    int m_distinct = 0;
};

} // namespace VKTab
