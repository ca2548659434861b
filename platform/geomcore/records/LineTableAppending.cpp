// The part of LineTable that fills a table in ascending order, row by row or with pages of others.
#include "LinePages.h"
#include "LineTable.h"

#include <algorithm>
#include <limits>

namespace {

/// Room that a new page begins with, enough for most of the many small tables.
constexpr std::size_t FirstRows = 16;

} // namespace

LineTable::PageRef LineTable::newPage(int firstLine)
{
    PageRef ref{firstLine, QExplicitlySharedDataPointer<Page>(new Page)};
    ref.page->rows.reserve(FirstRows);
    return ref;
}

LineTable LineTable::joined(const std::vector<Slice> &slices)
{
    LineTable table;
    qint64 after = std::numeric_limits<qint64>::min();
    for (const Slice &slice : slices) {
        table.appendRows(*slice.table, after, slice.last);
        after = slice.last;
    }
    return table;
}

void LineTable::appendRows(const LineTable &from, qint64 after, int last)
{
    for (const ChunkRef &chunk : from.m_chunks) {
        for (const PageRef &ref : chunk.chunk->pages) {
            const Page &page = *ref.page;
            if (page.rows.back().sourceLine <= after || page.rows.front().sourceLine > last)
                continue;
            if (page.rows.front().sourceLine > after && page.rows.back().sourceLine <= last) {
                appendPage(ref);
                continue;
            }
            for (std::size_t i = 0; i < page.rows.size(); ++i) {
                const Row &row = page.rows[i];
                if (row.sourceLine > after && row.sourceLine <= last)
                    append(row, page.extended.empty() ? ExtendedTextPtr() : page.extended[i]);
            }
        }
    }
}

void LineTable::appendPage(const PageRef &page)
{
    if (isEmpty() || m_chunks.back().chunk->pages.size() == LinePages::ChunkPages)
        m_chunks.push_back({page.firstLine, QExplicitlySharedDataPointer<Chunk>(new Chunk)});
    writableChunk(m_chunks.size() - 1).pages.push_back(page);
    for (const Row &row : page.page->rows)
        count(m_counts, row, 1);
}

bool LineTable::lastPageIsFull() const
{
    return m_chunks.back().chunk->pages.back().page->rows.size() == LinePages::PageRows;
}

LineTable::Page &LineTable::lastPageWithRoom(int firstLine)
{
    if (isEmpty() ||
        (m_chunks.back().chunk->pages.size() == LinePages::ChunkPages && lastPageIsFull()))
        m_chunks.push_back({firstLine, QExplicitlySharedDataPointer<Chunk>(new Chunk)});
    Chunk &chunk = writableChunk(m_chunks.size() - 1);
    if (chunk.pages.empty() || chunk.pages.back().page->rows.size() == LinePages::PageRows)
        chunk.pages.push_back(newPage(firstLine));
    PageRef &ref = chunk.pages.back();
    ref.page.detach();
    return *ref.page;
}

void LineTable::append(const Row &row, const ExtendedTextPtr &extended)
{
    Page &page = lastPageWithRoom(row.sourceLine);
    page.rows.push_back(row);
    if (!page.extended.empty())
        page.extended.emplace_back();
    setExtended(page, page.rows.size() - 1, extended);
    count(m_counts, row, 1);
}

void LineTable::append(Iterator &from, int count)
{
    Q_ASSERT(count == 0 || isBeyondLast(from.sourceLine()));
    while (count > 0) {
        const PageRef &source = (*from.m_chunks)[from.m_chunk].chunk->pages[from.m_page];
        const std::vector<Row> &rows = source.page->rows;
        if (from.m_row == rows.data() && count >= int(rows.size()) &&
            (isEmpty() || lastPageIsFull())) {
            appendPage(source);
            count -= int(rows.size());
            from.goToNextPage();
        } else {
            count -= appendPart(from, count);
        }
    }
}

int LineTable::appendPart(Iterator &from, int most)
{
    Page &page = lastPageWithRoom(from.sourceLine());
    const std::size_t size = std::min({std::size_t(most), std::size_t(from.m_pageEnd - from.m_row),
                                       LinePages::PageRows - page.rows.size()});
    const std::size_t before = page.rows.size();
    const Row *const end = from.m_row + size;
    page.rows.reserve(LinePages::PageRows);
    page.rows.insert(page.rows.end(), from.m_row, end);
    if (!page.extended.empty())
        page.extended.resize(page.rows.size());
    for (std::size_t i = 0; from.m_extended && i < size; ++i) {
        if (from.m_extended[i])
            setExtended(page, before + i, from.m_extended[i]);
    }
    for (const Row *row = from.m_row; row != end; ++row)
        count(m_counts, *row, 1);
    if (end == from.m_pageEnd)
        from.goToNextPage();
    else
        from.goTo(size);
    return int(size);
}
