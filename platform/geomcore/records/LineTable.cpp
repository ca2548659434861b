#include "LineTable.h"

#include "LinePages.h"

#include <algorithm>
#include <limits>

namespace {

/// A page that shrinks below this is merged with the next one if both together stay below
/// MergedRows.
constexpr std::size_t SmallPageRows = 64;
constexpr std::size_t MergedRows = 192;

/// Position of the page or chunk in which the line stands or belongs; there must be one.
template<class Refs>
std::size_t refOf(const Refs &refs, int line)
{
    const auto behind =
        std::upper_bound(refs.begin(), refs.end(), line,
                         [](int value, const auto &ref) { return value < ref.firstLine; });
    return behind == refs.begin() ? 0 : std::size_t(behind - refs.begin()) - 1;
}

} // namespace

std::size_t LineTable::rowOf(const std::vector<Row> &rows, int line)
{
    const qint64 guess = qint64(line) - rows.front().sourceLine;
    if (guess >= 0 && guess < qint64(rows.size()) && rows[std::size_t(guess)].sourceLine == line)
        return std::size_t(guess);
    const auto at = std::lower_bound(rows.begin(), rows.end(), line, [](const Row &row, int value) {
        return row.sourceLine < value;
    });
    return std::size_t(at - rows.begin());
}

LineTable::Row LineTable::makeRow(int sourceLine, int targetLine, PRJMAPPING::CheckState state,
                                  bool conflict)
{
    return {sourceLine, targetLine, (quint32(state) << 1U) | quint32(conflict)};
}

void LineTable::count(LineCounts &counts, const Row &row, int factor)
{
    counts.add(row.targetLine, row.state(), row.conflict(), factor);
}

void LineTable::setExtended(Page &page, std::size_t row, const ExtendedTextPtr &extended)
{
    if (page.extended.empty() && extended)
        page.extended.resize(page.rows.size());
    if (!page.extended.empty())
        page.extended[row] = extended;
}

LineTable::Iterator LineTable::at(const Place &place) const
{
    Iterator found(m_chunks, place.chunk, place.page);
    found.goTo(place.row);
    return found;
}

LineTable::Iterator LineTable::find(int sourceLine) const
{
    if (isBeyondLast(sourceLine))
        return end();
    const Place place = locate(sourceLine);
    return place.found ? at(place) : end();
}

LineTable::Iterator LineTable::lowerBound(qint64 sourceLine) const
{
    constexpr qint64 least = std::numeric_limits<int>::min();
    if (sourceLine > std::numeric_limits<int>::max() ||
        isBeyondLast(int(std::max(sourceLine, least))))
        return end();
    Place place = locate(int(std::max(sourceLine, least)));
    // Where it belongs may be behind the last entry of a page: then the next page has it.
    const bool behind =
        place.row == m_chunks[place.chunk].chunk->pages[place.page].page->rows.size();
    return behind ? Iterator(m_chunks, place.chunk, place.page + 1) : at(place);
}

PrjMappingTargetLineC LineTable::value(int sourceLine) const
{
    const Iterator found = find(sourceLine);
    return found ? found.line() : PrjMappingTargetLineC();
}

void LineTable::set(int sourceLine, const PrjMappingTargetLineC &line)
{
    set(sourceLine, line.getTargetLineId(), line.getState(), line.getConflict(),
        line.extendedText());
}

void LineTable::set(int sourceLine, int targetLine, PRJMAPPING::CheckState state, bool conflict,
                    const ExtendedTextPtr &extended)
{
    const Row row = makeRow(sourceLine, targetLine, state, conflict);
    if (isBeyondLast(sourceLine)) {
        append(row, extended);
        return;
    }
    const Place place = locate(sourceLine);
    if (place.found)
        replace(place, row, extended);
    else
        insert(place, row, extended);
}

void LineTable::setConflict(int sourceLine, bool conflict)
{
    const Place place = locate(sourceLine);
    if (!place.found)
        return;
    Row &row = writablePage(place).rows[place.row];
    count(m_counts, row, -1);
    row = makeRow(row.sourceLine, row.targetLine, row.state(), conflict);
    count(m_counts, row, 1);
}

bool LineTable::remove(int sourceLine)
{
    const Place place = locate(sourceLine);
    if (!place.found)
        return false;
    Page &page = writablePage(place);
    count(m_counts, page.rows[place.row], -1);
    page.rows.erase(page.rows.begin() + std::ptrdiff_t(place.row));
    if (!page.extended.empty())
        page.extended.erase(page.extended.begin() + std::ptrdiff_t(place.row));
    if (page.rows.empty()) {
        dropPage(place);
        return true;
    }
    if (place.row == 0)
        updateFirstLines(place);
    if (page.rows.size() < SmallPageRows)
        mergeWithNext(place);
    return true;
}

void LineTable::clear()
{
    m_chunks.clear();
    m_counts = LineCounts();
}

void LineTable::removeUnverified()
{
    if (m_counts.verified() == m_counts.lines())
        return;
    LineTable kept;
    if (m_counts.verified() > 0) {
        for (const Iterator &entry : *this) {
            if (entry.state() == PRJMAPPING::Verified)
                kept.set(entry.sourceLine(), entry.line());
        }
    }
    *this = std::move(kept);
}

void LineTable::setAllStates(PRJMAPPING::CheckState state)
{
    LineCounts counts;
    for (std::size_t c = 0; c < m_chunks.size(); ++c) {
        for (std::size_t p = 0; p < m_chunks[c].chunk->pages.size(); ++p) {
            const std::vector<Row> &rows = m_chunks[c].chunk->pages[p].page->rows;
            const bool differs = std::any_of(rows.begin(), rows.end(),
                                             [&](const Row &row) { return row.state() != state; });
            if (differs) {
                for (Row &row : writablePage({c, p, 0, true}).rows)
                    row = makeRow(row.sourceLine, row.targetLine, state, row.conflict());
            }
            for (const Row &row : m_chunks[c].chunk->pages[p].page->rows)
                count(counts, row, 1);
        }
    }
    m_counts = counts;
}

bool LineTable::isBeyondLast(int sourceLine) const
{
    return isEmpty() ||
           sourceLine > m_chunks.back().chunk->pages.back().page->rows.back().sourceLine;
}

LineTable::Place LineTable::locate(int sourceLine) const
{
    if (isEmpty())
        return {0, 0, 0, false};
    const std::size_t chunk = refOf(m_chunks, sourceLine);
    const std::vector<PageRef> &pages = m_chunks[chunk].chunk->pages;
    const std::size_t page = refOf(pages, sourceLine);
    const std::vector<Row> &rows = pages[page].page->rows;
    const std::size_t row = rowOf(rows, sourceLine);
    return {chunk, page, row, row < rows.size() && rows[row].sourceLine == sourceLine};
}

LineTable::Chunk &LineTable::writableChunk(std::size_t chunk)
{
    m_chunks[chunk].chunk.detach();
    return *m_chunks[chunk].chunk;
}

LineTable::Page &LineTable::writablePage(const Place &place)
{
    PageRef &ref = writableChunk(place.chunk).pages[place.page];
    ref.page.detach();
    return *ref.page;
}

void LineTable::insert(Place place, const Row &row, const ExtendedTextPtr &extended)
{
    if (m_chunks[place.chunk].chunk->pages[place.page].page->rows.size() == LinePages::PageRows)
        place = splitPage(place);
    Page &page = writablePage(place);
    page.rows.insert(page.rows.begin() + std::ptrdiff_t(place.row), row);
    if (!page.extended.empty())
        page.extended.emplace(page.extended.begin() + std::ptrdiff_t(place.row));
    setExtended(page, place.row, extended);
    count(m_counts, row, 1);
    if (place.row == 0)
        updateFirstLines(place);
}

void LineTable::replace(const Place &place, const Row &row, const ExtendedTextPtr &extended)
{
    Page &page = writablePage(place);
    count(m_counts, page.rows[place.row], -1);
    page.rows[place.row] = row;
    setExtended(page, place.row, extended);
    count(m_counts, row, 1);
}

LineTable::Place LineTable::splitPage(const Place &place)
{
    Page &lower = writablePage(place);
    const auto half = std::ptrdiff_t(lower.rows.size() / 2);
    PageRef ref = newPage(lower.rows[std::size_t(half)].sourceLine);
    ref.page->rows.assign(lower.rows.begin() + half, lower.rows.end());
    lower.rows.resize(std::size_t(half));
    if (!lower.extended.empty()) {
        ref.page->extended.assign(lower.extended.begin() + half, lower.extended.end());
        lower.extended.resize(std::size_t(half));
    }
    Place result = place;
    if (place.row > std::size_t(half)) {
        ++result.page;
        result.row -= std::size_t(half);
    }
    std::vector<PageRef> &pages = m_chunks[place.chunk].chunk->pages;
    pages.insert(pages.begin() + std::ptrdiff_t(place.page) + 1, ref);
    if (pages.size() > LinePages::ChunkPages) {
        const std::size_t lowerPages = splitChunk(place.chunk);
        if (result.page >= lowerPages) {
            ++result.chunk;
            result.page -= lowerPages;
        }
    }
    return result;
}

std::size_t LineTable::splitChunk(std::size_t chunk)
{
    std::vector<PageRef> &lower = writableChunk(chunk).pages;
    const auto half = std::ptrdiff_t(lower.size() / 2);
    ChunkRef upper{lower[std::size_t(half)].firstLine,
                   QExplicitlySharedDataPointer<Chunk>(new Chunk)};
    upper.chunk->pages.assign(lower.begin() + half, lower.end());
    lower.erase(lower.begin() + half, lower.end());
    m_chunks.insert(m_chunks.begin() + std::ptrdiff_t(chunk) + 1, upper);
    return std::size_t(half);
}

void LineTable::updateFirstLines(const Place &place)
{
    PageRef &ref = m_chunks[place.chunk].chunk->pages[place.page];
    ref.firstLine = ref.page->rows.front().sourceLine;
    if (place.page == 0)
        m_chunks[place.chunk].firstLine = ref.firstLine;
}

void LineTable::dropPage(const Place &place)
{
    std::vector<PageRef> &pages = writableChunk(place.chunk).pages;
    pages.erase(pages.begin() + std::ptrdiff_t(place.page));
    if (pages.empty())
        m_chunks.erase(m_chunks.begin() + std::ptrdiff_t(place.chunk));
    else if (place.page == 0)
        m_chunks[place.chunk].firstLine = pages.front().firstLine;
}

void LineTable::mergeWithNext(const Place &place)
{
    std::vector<PageRef> &pages = writableChunk(place.chunk).pages;
    if (place.page + 1 == pages.size())
        return;
    Page &page = *pages[place.page].page;
    const Page &next = *pages[place.page + 1].page;
    if (page.rows.size() + next.rows.size() > MergedRows)
        return;
    if (!page.extended.empty() || !next.extended.empty()) {
        page.extended.resize(page.rows.size());
        page.extended.insert(page.extended.end(), next.extended.begin(), next.extended.end());
        page.extended.resize(page.rows.size() + next.rows.size());
    }
    page.rows.insert(page.rows.end(), next.rows.begin(), next.rows.end());
    pages.erase(pages.begin() + std::ptrdiff_t(place.page) + 1);
}
