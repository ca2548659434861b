#include "LineTable.h"

#include <algorithm>

namespace {

/// A place among the rows of a table, which knows where pages and chunks begin.
class RowCursor
{
public:
    explicit RowCursor(const std::vector<LineTable::ChunkRef> &chunks)
        : m_chunks(chunks)
    {
    }

    [[nodiscard]] bool isAtEnd() const { return m_chunk == m_chunks.size(); }
    [[nodiscard]] const LineTable::Row &row() const { return page().rows[m_row]; }
    [[nodiscard]] QString extended() const
    {
        const ExtendedTextPtr text =
            page().extended.empty() ? ExtendedTextPtr() : page().extended[m_row];
        return text ? text->text : QString();
    }
    /// Steps over a chunk or page that begins here in both tables. False if there is none.
    static bool skipShared(RowCursor &a, RowCursor &b)
    {
        if (a.m_row != 0 || b.m_row != 0)
            return false;
        if (a.m_page == 0 && b.m_page == 0 && &a.chunk() == &b.chunk()) {
            a.nextChunk();
            b.nextChunk();
            return true;
        }
        if (&a.page() != &b.page())
            return false;
        a.nextPage();
        b.nextPage();
        return true;
    }
    void next()
    {
        if (++m_row == page().rows.size())
            nextPage();
    }

private:
    [[nodiscard]] const LineTable::Chunk &chunk() const { return *m_chunks[m_chunk].chunk; }
    [[nodiscard]] const LineTable::Page &page() const { return *chunk().pages[m_page].page; }
    void nextPage()
    {
        m_row = 0;
        if (++m_page == chunk().pages.size())
            nextChunk();
    }
    void nextChunk()
    {
        m_page = m_row = 0;
        ++m_chunk;
    }

    const std::vector<LineTable::ChunkRef> &m_chunks;
    std::size_t m_chunk = 0;
    std::size_t m_page = 0;
    std::size_t m_row = 0;
};

bool sameEntry(const RowCursor &a, const RowCursor &b)
{
    return a.row().targetLine == b.row().targetLine && a.row().packed == b.row().packed &&
           a.extended() == b.extended();
}

} // namespace

std::vector<int> LineTable::changedLines(const LineTable &before, const LineTable &after)
{
    std::vector<int> changed;
    RowCursor a(before.m_chunks);
    RowCursor b(after.m_chunks);
    while (!a.isAtEnd() && !b.isAtEnd()) {
        if (RowCursor::skipShared(a, b))
            continue;
        const int first = a.row().sourceLine;
        const int second = b.row().sourceLine;
        if (first != second || !sameEntry(a, b))
            changed.push_back(std::min(first, second));
        if (first <= second)
            a.next();
        if (second <= first)
            b.next();
    }
    for (; !a.isAtEnd(); a.next())
        changed.push_back(a.row().sourceLine);
    for (; !b.isAtEnd(); b.next())
        changed.push_back(b.row().sourceLine);
    return changed;
}
