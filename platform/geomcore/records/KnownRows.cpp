#include "KnownRows.h"

#include <algorithm>
#include <cstring>

namespace {

/// Looking costs about as much as reading a row; so often in vain it is given up.
constexpr int MostMisses = 256;

/// How many bytes two texts begin with alike, of \a size that both have.
std::size_t sameBytes(const char *a, const char *b, std::size_t size)
{
    constexpr std::size_t Word = sizeof(quint64);
    const auto differ = [&](std::size_t at) {
        quint64 one = 0;
        quint64 two = 0;
        std::memcpy(&one, a + at, Word);
        std::memcpy(&two, b + at, Word);
        return one ^ two;
    };
    std::size_t at = 0;
    for (; at + 4 * Word <= size; at += 4 * Word) {
        if (differ(at) | differ(at + Word) | differ(at + 2 * Word) | differ(at + 3 * Word))
            break;
    }
    while (at + Word <= size && differ(at) == 0)
        at += Word;
    while (at < size && a[at] == b[at])
        ++at;
    return at;
}

/// How often a bracket closes there.
int closingBrackets(const char *at, const char *end)
{
    // Counted in bytes the compiler takes many at once.
    constexpr std::ptrdiff_t Block = 128;
    int count = 0;
    while (at != end) {
        const char *const to = at + std::min(Block, end - at);
        quint8 inBlock = 0;
        for (; at != to; ++at)
            inBlock = quint8(inBlock + quint8(*at == ']'));
        count += inBlock;
    }
    return count;
}

/// The place behind the bracket that ends the next row; \a end if there is none.
const char *behindRow(const char *at, const char *end)
{
    bool inText = false;
    for (; at != end; ++at) {
        if (*at == '"')
            inText = !inText;
        else if (inText && *at == '\\' && at + 1 != end)
            ++at;
        else if (!inText && *at == ']')
            return at + 1;
    }
    return end;
}

} // namespace

void KnownRows::begin(const QByteArray &json)
{
    m_places.clear();
    m_json = json;
}

void KnownRows::add(const QString &target, qsizetype from, qsizetype to, const LineTable &lines)
{
    if (!m_places.contains(target))
        m_places.insert(target, {QByteArrayView(m_json).sliced(from, to - from), lines});
}

const KnownRows::Place *KnownRows::find(const QString &target) const
{
    const auto found = m_places.constFind(target);
    return found == m_places.cend() ? nullptr : &*found;
}

RowsBeside::RowsBeside(const KnownRows::Place *place)
{
    if (!place)
        return;
    m_at = place->text.begin();
    m_end = place->text.end();
    m_row = place->lines.begin();
}

int RowsBeside::take(const char *&at, const char *end, int lastLine)
{
    while (m_row && m_row.sourceLine() <= lastLine)
        skipRow();
    if (!m_row)
        return 0;
    std::size_t size = sameBytes(at, m_at, std::size_t(std::min(end - at, m_end - m_at)));
    // A text may hold brackets, too; rows with one are left to the reader.
    if (const void *quote = std::memchr(at, '"', size))
        size = std::size_t(static_cast<const char *>(quote) - at);
    while (size > 0 && at[size - 1] != ']')
        --size;
    const int rows = closingBrackets(at, at + size);
    at += size;
    m_at += size;
    m_misses = rows > 0 ? 0 : m_misses + 1;
    if (m_misses == MostMisses)
        m_row = LineTable::Iterator();
    return rows;
}

void RowsBeside::skipRow()
{
    m_at = behindRow(m_at, m_end);
    ++m_row;
}
