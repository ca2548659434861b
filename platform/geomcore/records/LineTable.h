#pragma once

#include "LineCounts.h"
#include "PrjMappingTargetLineC.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <QExplicitlySharedDataPointer>
#include <QSharedData>

#include <cstddef>
#include <iterator>
#include <vector>

/// What became of one line's entry between two tables.
struct LineDifference
{
    int line = 0;
    bool inBefore = false;
    bool inAfter = false;
    PrjMappingTargetLineC before; ///< if inBefore
    PrjMappingTargetLineC after;  ///< if inAfter
};

/// The entries of a target by source line id, in pages of at most 256 entries sorted by id. Copies
/// share their pages; a change copies one page and one part of the directory, whatever the size, so
/// a copy and one change cost microseconds. Ids may be sparse, negative and of any size. Appending
/// in ascending order is the fast way to fill it. Different copies may be used on different
/// threads.
class VELKGEOMCORE_EXPORT LineTable
{
    struct Row
    {
        int sourceLine;
        int targetLine;
        quint32 packed; ///< state * 2 + conflict

        friend bool operator==(const Row &, const Row &) = default;
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

public:
    /// Walks the entries in ascending order of their ids and back, without copying them. Stands for
    /// the entry itself. Valid until the table changes.
    class Iterator
    {
    public:
        using iterator_category = std::bidirectional_iterator_tag;
        using value_type = Iterator;
        using difference_type = std::ptrdiff_t;
        using pointer = const Iterator *;
        using reference = const Iterator &;

        /// The end of every table, to be compared with.
        Iterator() = default;

        // The entry; not at the end.
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
        const Iterator *operator->() const { return this; }
        /// False at the end.
        explicit operator bool() const { return m_row != nullptr; }
        Iterator &operator++()
        {
            m_extended += m_extended ? 1 : 0;
            if (++m_row == m_pageEnd)
                goToNextPage();
            return *this;
        }
        Iterator operator++(int)
        {
            Iterator before = *this;
            ++*this;
            return before;
        }
        /// Not at the first entry. From the end that the table itself gave.
        Iterator &operator--();
        Iterator operator--(int)
        {
            Iterator before = *this;
            --*this;
            return before;
        }
        friend bool operator==(const Iterator &a, const Iterator &b) { return a.m_row == b.m_row; }

    private:
        friend class LineTable;
        Iterator(const std::vector<ChunkRef> &chunks, std::size_t chunk, std::size_t page)
            : m_chunks(&chunks)
            , m_chunk(chunk)
            , m_page(page)
        {
            enterPage();
        }
        [[nodiscard]] const Row &row() const
        {
            Q_ASSERT(m_row);
            return *m_row;
        }
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
        void goToNextPage()
        {
            ++m_page;
            enterPage();
        }
        void goTo(std::size_t row)
        {
            m_extended += m_extended ? std::ptrdiff_t(row) : 0;
            m_row += row;
        }
        /// Goes on to an entry with a text, if this one has none; pages without a text are passed
        /// over.
        void seekText();
        /// Goes behind all that both have ahead in common. False if there is nothing.
        static bool skipShared(Iterator &a, Iterator &b);
        /// The same for rows of the two pages without texts.
        static bool skipSameRows(Iterator &a, Iterator &b);

        const std::vector<ChunkRef> *m_chunks = nullptr;
        std::size_t m_chunk = 0;
        std::size_t m_page = 0;
        const Row *m_row = nullptr; ///< null at the end
        const Row *m_pageEnd = nullptr;
        const ExtendedTextPtr *m_extended = nullptr; ///< of the row; null if the page has no texts
    };

    /// Walks the entries that have an extended text.
    class TextIterator
    {
    public:
        const Iterator &operator*() const { return m_at; }
        const Iterator *operator->() const { return &m_at; }
        TextIterator &operator++()
        {
            ++m_at;
            m_at.seekText();
            return *this;
        }
        friend bool operator==(const TextIterator &, const TextIterator &) = default;

    private:
        friend class LineTable;
        explicit TextIterator(const Iterator &at)
            : m_at(at)
        {
            m_at.seekText();
        }
        Iterator m_at;
    };
    /// A range of them, for range-based loops.
    class Texts
    {
    public:
        [[nodiscard]] TextIterator begin() const { return m_begin; }
        [[nodiscard]] TextIterator end() const { return TextIterator(Iterator()); }

    private:
        friend class LineTable;
        explicit Texts(const TextIterator &begin)
            : m_begin(begin)
        {
        }
        TextIterator m_begin;
    };

    [[nodiscard]] Iterator begin() const { return Iterator(m_chunks, 0, 0); }
    [[nodiscard]] Iterator end() const { return Iterator(m_chunks, m_chunks.size(), 0); }
    /// The entry of the line, or the end.
    [[nodiscard]] Iterator find(int sourceLine) const;
    /// The first entry that does not stand before the line, or the end.
    [[nodiscard]] Iterator lowerBound(qint64 sourceLine) const;
    /// The entries with an extended text; costs next to nothing if there are none.
    [[nodiscard]] Texts texts() const & { return Texts(TextIterator(begin())); }
    Texts texts() const && = delete; // it would outlive the table

    [[nodiscard]] bool isEmpty() const { return m_chunks.empty(); }
    [[nodiscard]] const LineCounts &counts() const { return m_counts; }
    [[nodiscard]] bool contains(int sourceLine) const { return bool(find(sourceLine)); }
    /// The entry, or PrjMappingTargetLineC(-1, ToCheck, "") for an unknown id.
    [[nodiscard]] PrjMappingTargetLineC value(int sourceLine) const;

    /// Adds or replaces the entry as a whole.
    void set(int sourceLine, const PrjMappingTargetLineC &line);
    void set(int sourceLine, int targetLine, PRJMAPPING::CheckState state, bool conflict,
             const ExtendedTextPtr &extended);
    /// Adds \a count entries of another table from \a from on, which goes behind them. They stand
    /// behind all that are there. Pages that are taken as a whole are shared.
    void append(Iterator &from, int count);
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

    /// Entries that are in one table only or differ, in ascending order of lines. Costs next to
    /// nothing for the pages that both share, as a table and its changed copy do.
    [[nodiscard]] static std::vector<LineDifference> differences(const LineTable &before,
                                                                 const LineTable &after);
    /// Whether there are none; ends at the first one.
    [[nodiscard]] static bool isSame(const LineTable &a, const LineTable &b);
    /// Their ids only.
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
    /// Calls visit with the iterators of what differs; that of a table without the line is the end.
    template<class Visit>
    static void walkDifferences(const LineTable &before, const LineTable &after, Visit visit);
    /// Position of the line in a page, or where it belongs. Ids without gaps are found at once.
    [[nodiscard]] static std::size_t rowOf(const std::vector<Row> &rows, int line);
    [[nodiscard]] static Row makeRow(int sourceLine, int targetLine, PRJMAPPING::CheckState state,
                                     bool conflict);
    static void count(LineCounts &counts, const Row &row, int factor);
    static void setExtended(Page &page, std::size_t row, const ExtendedTextPtr &extended);
    [[nodiscard]] static PageRef newPage(int firstLine);
    [[nodiscard]] Iterator at(const Place &place) const;
    [[nodiscard]] bool isBeyondLast(int sourceLine) const;
    [[nodiscard]] Place locate(int sourceLine) const;
    Page &writablePage(const Place &place);
    Chunk &writableChunk(std::size_t chunk);
    void append(const Row &row, const ExtendedTextPtr &extended);
    [[nodiscard]] int appendPart(Iterator &from, int most);
    [[nodiscard]] bool lastPageIsFull() const;
    [[nodiscard]] Page &lastPageWithRoom(int firstLine);
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
