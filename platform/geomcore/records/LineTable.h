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
        explicit Iterator(const std::vector<ChunkRef> &chunks, std::size_t chunk = 0)
            : m_chunks(&chunks)
            , m_chunk(chunk)
        {
        }
        [[nodiscard]] int sourceLine() const { return row().sourceLine; }
        [[nodiscard]] int targetLine() const { return row().targetLine; }
        [[nodiscard]] PRJMAPPING::CheckState state() const { return row().state(); }
        [[nodiscard]] bool conflict() const { return row().conflict(); }
        /// Null for the empty text.
        [[nodiscard]] const ExtendedText *extended() const
        {
            const Page &at = page();
            return at.extended.empty() ? nullptr : at.extended[m_row].data();
        }
        [[nodiscard]] PrjMappingTargetLineC line() const
        {
            const Page &at = page();
            return PrjMappingTargetLineC(targetLine(), state(), conflict(),
                                         at.extended.empty() ? ExtendedTextPtr()
                                                             : at.extended[m_row]);
        }
        const Iterator &operator*() const { return *this; }
        Iterator &operator++()
        {
            if (++m_row == page().rows.size())
                nextPage();
            return *this;
        }
        friend bool operator==(const Iterator &a, const Iterator &b)
        {
            return a.m_chunk == b.m_chunk && a.m_page == b.m_page && a.m_row == b.m_row;
        }

    private:
        [[nodiscard]] const Page &page() const
        {
            return *(*m_chunks)[m_chunk].chunk->pages[m_page].page;
        }
        [[nodiscard]] const Row &row() const { return page().rows[m_row]; }
        void nextPage()
        {
            m_row = 0;
            if (++m_page == (*m_chunks)[m_chunk].chunk->pages.size()) {
                m_page = 0;
                ++m_chunk;
            }
        }

        const std::vector<ChunkRef> *m_chunks;
        std::size_t m_chunk;
        std::size_t m_page = 0;
        std::size_t m_row = 0;
    };

    [[nodiscard]] Iterator begin() const { return Iterator(m_chunks); }
    [[nodiscard]] Iterator end() const { return Iterator(m_chunks, m_chunks.size()); }

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

private:
    struct Place
    {
        std::size_t chunk;
        std::size_t page;
        std::size_t row; ///< where the id stands or belongs
        bool found;
    };
    [[nodiscard]] Place locate(int sourceLine) const;
    Page &writablePage(const Place &place);
    Chunk &writableChunk(std::size_t chunk);
    void append(const Row &row, const ExtendedTextPtr &extended);
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
