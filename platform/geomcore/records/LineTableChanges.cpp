#include "LineTable.h"

#include <algorithm>

namespace {

bool haveSameText(const ExtendedText *a, const ExtendedText *b)
{
    return a == b || (a && b && a->text == b->text);
}

bool areSame(const LineTable::Iterator &a, const LineTable::Iterator &b)
{
    return a.targetLine() == b.targetLine() && a.state() == b.state() &&
           a.conflict() == b.conflict() && haveSameText(a.extended(), b.extended());
}

} // namespace

LineTable::Iterator &LineTable::Iterator::operator--()
{
    const bool pageBegins =
        !m_row || m_row == (*m_chunks)[m_chunk].chunk->pages[m_page].page->rows.data();
    if (!pageBegins) {
        m_extended -= m_extended ? 1 : 0;
        --m_row;
        return *this;
    }
    if (m_page == 0)
        m_page = (*m_chunks)[--m_chunk].chunk->pages.size();
    --m_page;
    enterPage();
    goTo(std::size_t(m_pageEnd - m_row) - 1);
    return *this;
}

void LineTable::Iterator::seekText()
{
    while (m_row && !extended()) {
        if (m_extended) {
            ++*this;
        } else {
            ++m_page;
            enterPage();
        }
    }
}

bool LineTable::Iterator::skipShared(Iterator &a, Iterator &b)
{
    if (!a || !b || a.m_pageEnd != b.m_pageEnd || a.m_row != b.m_row)
        return false;
    const Chunk *shared = (*a.m_chunks)[a.m_chunk].chunk.data();
    const bool wholeChunk = shared == (*b.m_chunks)[b.m_chunk].chunk.data();
    for (Iterator *at : {&a, &b}) {
        at->m_page = wholeChunk ? shared->pages.size() : at->m_page + 1;
        at->enterPage();
    }
    return true;
}

bool LineTable::Iterator::skipSameRows(Iterator &a, Iterator &b)
{
    if (!a || !b || a.m_extended || b.m_extended)
        return false;
    const auto most = std::min(a.m_pageEnd - a.m_row, b.m_pageEnd - b.m_row);
    const auto same = std::mismatch(a.m_row, a.m_row + most, b.m_row).first - a.m_row;
    for (Iterator *at : {&a, &b}) {
        at->m_row += same;
        if (at->m_row == at->m_pageEnd)
            at->goToNextPage();
    }
    return same > 0;
}

template<class Visit>
void LineTable::walkDifferences(const LineTable &before, const LineTable &after, Visit visit)
{
    Iterator a = before.begin();
    Iterator b = after.begin();
    while (a || b) {
        if (Iterator::skipShared(a, b) || Iterator::skipSameRows(a, b))
            continue;
        const bool inBefore = a && (!b || a.sourceLine() <= b.sourceLine());
        const bool inAfter = b && (!a || b.sourceLine() <= a.sourceLine());
        if (!inBefore || !inAfter || !areSame(a, b))
            visit(inBefore ? a : Iterator(), inAfter ? b : Iterator());
        if (inBefore)
            ++a;
        if (inAfter)
            ++b;
    }
}

std::vector<LineDifference> LineTable::differences(const LineTable &before, const LineTable &after)
{
    std::vector<LineDifference> result;
    walkDifferences(before, after, [&](const Iterator &a, const Iterator &b) {
        LineDifference difference;
        difference.line = a ? a.sourceLine() : b.sourceLine();
        difference.inBefore = bool(a);
        difference.inAfter = bool(b);
        if (a)
            difference.before = a.line();
        if (b)
            difference.after = b.line();
        result.push_back(std::move(difference));
    });
    return result;
}

std::vector<int> LineTable::changedLines(const LineTable &before, const LineTable &after)
{
    std::vector<int> changed;
    walkDifferences(before, after, [&](const Iterator &a, const Iterator &b) {
        changed.push_back(a ? a.sourceLine() : b.sourceLine());
    });
    return changed;
}

bool LineTable::isSame(const LineTable &a, const LineTable &b)
{
    if (!(a.counts() == b.counts()))
        return false;
    Iterator x = a.begin();
    Iterator y = b.begin();
    while (x && y) {
        if (Iterator::skipShared(x, y) || Iterator::skipSameRows(x, y))
            continue;
        if (x.sourceLine() != y.sourceLine() || !areSame(x, y))
            return false;
        ++x;
        ++y;
    }
    return !x && !y;
}
