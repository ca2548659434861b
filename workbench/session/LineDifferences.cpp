#include "LineDifferences.h"

#include <limits>

namespace {

/// Walks the rows of a table, and can pass over what it shares with another one.
class Cursor
{
public:
    explicit Cursor(const LineTable &table)
        : m_chunks(table.chunks())
    {
    }

    [[nodiscard]] bool atEnd() const { return m_chunk == m_chunks.size(); }
    /// Larger than any line at the end.
    [[nodiscard]] qint64 line() const
    {
        return atEnd() ? std::numeric_limits<qint64>::max() : row().sourceLine;
    }
    [[nodiscard]] const LineTable::Row &row() const { return page().rows[m_row]; }
    [[nodiscard]] const ExtendedTextPtr &extended() const
    {
        static const ExtendedTextPtr none;
        return page().extended.empty() ? none : page().extended[m_row];
    }
    [[nodiscard]] PrjMappingTargetLineC entry() const
    {
        return PrjMappingTargetLineC(row().targetLine, row().state(), row().conflict(), extended());
    }
    void next()
    {
        if (++m_row == page().rows.size())
            nextPage();
    }

    /// Goes behind all that both cursors have ahead in common. False if there is nothing.
    static bool skipShared(Cursor &a, Cursor &b)
    {
        if (a.atEnd() || b.atEnd() || a.m_row != 0 || b.m_row != 0)
            return false;
        if (a.m_page == 0 && b.m_page == 0 && a.chunk() == b.chunk()) {
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

private:
    [[nodiscard]] const LineTable::Chunk *chunk() const { return m_chunks[m_chunk].chunk.data(); }
    [[nodiscard]] const LineTable::Page &page() const { return *chunk()->pages[m_page].page; }
    void nextPage()
    {
        m_row = 0;
        if (++m_page == chunk()->pages.size())
            nextChunk();
    }
    void nextChunk()
    {
        m_page = 0;
        ++m_chunk;
    }

    const std::vector<LineTable::ChunkRef> &m_chunks;
    std::size_t m_chunk = 0;
    std::size_t m_page = 0;
    std::size_t m_row = 0;
};

bool sameText(const ExtendedTextPtr &a, const ExtendedTextPtr &b)
{
    return a == b || (a && b && a->text == b->text);
}

bool sameEntry(const Cursor &a, const Cursor &b)
{
    return a.row().targetLine == b.row().targetLine && a.row().packed == b.row().packed &&
           sameText(a.extended(), b.extended());
}

} // namespace

std::vector<LineDifference> lineDifferences(const LineTable &before, const LineTable &after)
{
    std::vector<LineDifference> result;
    Cursor b(before);
    Cursor a(after);
    while (!b.atEnd() || !a.atEnd()) {
        if (Cursor::skipShared(b, a))
            continue;
        LineDifference difference;
        difference.line = int(qMin(b.line(), a.line()));
        difference.inBefore = b.line() == difference.line;
        difference.inAfter = a.line() == difference.line;
        if (difference.inBefore && difference.inAfter && sameEntry(b, a)) {
            b.next();
            a.next();
            continue;
        }
        if (difference.inBefore) {
            difference.before = b.entry();
            b.next();
        }
        if (difference.inAfter) {
            difference.after = a.entry();
            a.next();
        }
        result.push_back(std::move(difference));
    }
    return result;
}
