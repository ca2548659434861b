#pragma once

#include "LineCounts.h"
#include "PrjMappingTargetLineC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QExplicitlySharedDataPointer>
#include <QSharedData>

#include <vector>

/// The entries of a target by source line id, in pages of at most 256 entries sorted by id. Copies
/// share their pages; a change copies one page and one part of the directory, whatever the size, so
/// a copy and one change cost microseconds. Ids may be sparse, negative and of any size. Appending
/// in ascending order is the fast way to fill it. Different copies may be used on different
/// threads.
class VELKGEOMCORE_EXPORT LineTable
{
public:
    /// An entry as it lies in a page; its extended text stands beside it in the page.
    struct Row
    {
        int sourceLine;
        int targetLine;
        quint32 packed; ///< state * 2 + conflict

        [[nodiscard]] PRJMAPPING::CheckState state() const
        {
            return PRJMAPPING::CheckState(packed >> 1U);
        }
        [[nodiscard]] bool conflict() const { return (packed & 1U) != 0; }
    };
    struct Page : QSharedData
    {
        std::vector<Row> rows;
        std::vector<ExtendedTextPtr> extended; ///< empty as long as no row has a text
    };
    struct PageRef
    {
        int firstLine;
        QExplicitlySharedDataPointer<Page> page;
    };
    struct Chunk : QSharedData
    {
        std::vector<PageRef> pages;
    };
    struct ChunkRef
    {
        int firstLine;
        QExplicitlySharedDataPointer<Chunk> chunk;
    };

    /// Walks the entries in ascending order of their ids, without copying them. Valid until the
    /// table changes.
    class Iterator
    {
    public:
        /// The end of every table.
        Iterator() = default;
        explicit Iterator(const std::vector<ChunkRef> &chunks)
            : m_chunks(&chunks)
        {
            enterPage();
        }
        /// This and the others of an entry: not at the end.
        [[nodiscard]] const Row &row() const
        {
            Q_ASSERT(m_row);
            return *m_row;
        }
        [[nodiscard]] int sourceLine() const { return row().sourceLine; }
        [[nodiscard]] int targetLine() const { return row().targetLine; }
        [[nodiscard]] PRJMAPPING::CheckState state() const { return row().state(); }
        [[nodiscard]] bool conflict() const { return row().conflict(); }
        /// Null for the empty text.
        [[nodiscard]] const ExtendedText *extended() const
        {
            return m_extended ? m_extended->data() : nullptr;
        }
        [[nodiscard]] PrjMappingTargetLineC line() const
        {
            return PrjMappingTargetLineC(targetLine(), state(), conflict(),
                                         m_extended ? *m_extended : ExtendedTextPtr());
        }
        const Iterator &operator*() const { return *this; }
        Iterator &operator++()
        {
            m_extended += m_extended ? 1 : 0;
            if (++m_row == m_pageEnd) {
                ++m_page;
                enterPage();
            }
            return *this;
        }
        friend bool operator==(const Iterator &a, const Iterator &b) { return a.m_row == b.m_row; }

    private:
        void enterPage()
        {
            if (m_chunk < m_chunks->size() && m_page == (*m_chunks)[m_chunk].chunk->pages.size()) {
                m_page = 0;
                ++m_chunk;
            }
            m_row = nullptr;
            m_extended = nullptr;
            if (m_chunk == m_chunks->size())
                return;
            const Page &page = *(*m_chunks)[m_chunk].chunk->pages[m_page].page;
            m_row = page.rows.data();
            m_pageEnd = m_row + page.rows.size();
            m_extended = page.extended.empty() ? nullptr : page.extended.data();
        }

        const std::vector<ChunkRef> *m_chunks = nullptr;
        std::size_t m_chunk = 0;
        std::size_t m_page = 0;
        const Row *m_row = nullptr; ///< null at the end
        const Row *m_pageEnd = nullptr;
        const ExtendedTextPtr *m_extended = nullptr; ///< of the row; null if the page has no texts
    };

    [[nodiscard]] Iterator begin() const { return Iterator(m_chunks); }
    [[nodiscard]] Iterator end() const { return Iterator(); }

    /// The pages themselves, for comparing two tables without walking what they share. Valid until
    /// the table changes.
    [[nodiscard]] const std::vector<ChunkRef> &chunks() const { return m_chunks; }

    [[nodiscard]] bool isEmpty() const { return m_chunks.empty(); }
    [[nodiscard]] const LineCounts &counts() const { return m_counts; }
    [[nodiscard]] bool contains(int sourceLine) const { return findRow(sourceLine) != nullptr; }
    /// The entry as it lies in its page, or null. Valid until the table changes.
    [[nodiscard]] const Row *findRow(int sourceLine) const;
    /// The entry, or PrjMappingTargetLineC(-1, ToCheck, "") for an unknown id.
    [[nodiscard]] PrjMappingTargetLineC value(int sourceLine) const;

    /// Adds or replaces the entry as a whole.
    void set(int sourceLine, const PrjMappingTargetLineC &line);
    void set(int sourceLine, int targetLine, PRJMAPPING::CheckState state, bool conflict,
             const ExtendedTextPtr &extended);
    /// Does nothing for an unknown id.
    void setConflict(int sourceLine, bool conflict);
    /// False for an unknown id.
    bool remove(int sourceLine);
    void clear();
    void removeUnverified();
    /// Gives every entry the state, keeping all else.
    void setAllStates(PRJMAPPING::CheckState state);

    /// The entries of a table up to and including an id.
    struct Slice
    {
        const LineTable *table;
        int last;
    };
    /// A table of the entries of \a slices, each from behind the slice before it; their last ids
    /// ascend. Pages that lie in one slice are shared.
    [[nodiscard]] static LineTable joined(const std::vector<Slice> &slices);

    /// Ids of the entries that are in one table only or differ, ascending. Costs next to nothing
    /// for the pages that both share, as a table and its changed copy do.
    [[nodiscard]] static std::vector<int> changedLines(const LineTable &before,
                                                       const LineTable &after);

private:
    struct Place
    {
        std::size_t chunk;
        std::size_t page;
        std::size_t row; ///< where the id stands or belongs
        bool found;
    };
    [[nodiscard]] bool isBeyondLast(int sourceLine) const;
    [[nodiscard]] Place locate(int sourceLine) const;
    Page &writablePage(const Place &place);
    Chunk &writableChunk(std::size_t chunk);
    void append(const Row &row, const ExtendedTextPtr &extended);
    void appendPage(const PageRef &page);
    void appendRows(const LineTable &from, qint64 after, int last);
    void insert(Place place, const Row &row, const ExtendedTextPtr &extended);
    void replace(const Place &place, const Row &row, const ExtendedTextPtr &extended);
    Place splitPage(const Place &place);
    std::size_t splitChunk(std::size_t chunk);
    void updateFirstLines(const Place &place);
    void dropPage(const Place &place);
    void mergeWithNext(const Place &place);

    std::vector<ChunkRef> m_chunks;
    LineCounts m_counts;
};
