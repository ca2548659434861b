#include "ScanInParts.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <climits>
#include <numeric>

namespace VKTab {

namespace {

/// Where the first row begins behind \a from. \a quoted: whether that byte is inside quotes. In a
/// file whose quotes do not pair as they should, the answer may be wrong; the part in which that
/// begins is scanned from a right place and finds it.
size_t nextRow(std::string_view bytes, size_t from, bool quoted)
{
    for (; from < bytes.size(); ++from) {
        if (bytes[from] == '"')
            quoted = !quoted;
        else if (bytes[from] == '\n' && !quoted)
            return from + 1;
    }
    return bytes.size();
}

/// Begins of the parts and the end of the last one.
std::vector<size_t> partsOf(std::string_view bytes, size_t begin, int count)
{
    std::vector<size_t> at(size_t(count) + 1, bytes.size());
    for (int i = 0; i < count; ++i)
        at[size_t(i)] = begin + (bytes.size() - begin) / size_t(count) * size_t(i);
    std::vector<size_t> quotes(size_t(count), 0);
    WorkerPool::instance().run(count, [&](int i) {
        const std::string_view part =
            bytes.substr(at[size_t(i)], at[size_t(i) + 1] - at[size_t(i)]);
        quotes[size_t(i)] = size_t(std::count(part.begin(), part.end(), '"'));
    });
    std::partial_sum(quotes.begin(), quotes.end(), quotes.begin());
    for (int i = 1; i < count; ++i)
        at[size_t(i)] = nextRow(bytes, at[size_t(i)], quotes[size_t(i) - 1] % 2 != 0);
    return at;
}

template<class T>
void append(std::vector<T> &to, std::vector<T> &from)
{
    if (to.empty())
        to = std::move(from);
    else
        to.insert(to.end(), from.begin(), from.end());
    from = {};
}

bool join(std::vector<CsvScan> &parts, CsvScan &scan)
{
    size_t rows = 1;
    for (const CsvScan &part : parts) {
        if (!part.errors.isEmpty())
            return false;
        rows += part.rows.size() - 1;
    }
    if (rows >= size_t(INT_MAX) - 2)
        return false;
    scan.rows.reserve(rows);
    for (CsvScan &part : parts) {
        if (!scan.rows.empty())
            scan.rows.pop_back(); // the end of the part before is the begin of this one
        scan.rows.insert(scan.rows.end(), part.rows.begin(), part.rows.end());
        part.rows = {};
        append(scan.numbers, part.numbers);
        append(scan.subNumbers, part.subNumbers);
    }
    return true;
}

} // namespace

bool scanInParts(CsvScan &scan, qsizetype partSize)
{
    const std::string_view bytes = scan.bytes();
    const size_t size = bytes.size() - scan.begin();
    const int threads = WorkerPool::instance().threads();
    const int count = int(std::min(size_t(threads) * 2, size / size_t(partSize)));
    if (threads < 2 || count < 2)
        return scan.run();
    const std::vector<size_t> at = partsOf(bytes, scan.begin(), count);
    std::vector<CsvScan> parts;
    for (int i = 0; i < count; ++i)
        parts.push_back(scan.part(at[size_t(i)], at[size_t(i) + 1]));
    WorkerPool::instance().run(count, [&parts](int i) { (void)parts[size_t(i)].run(); });
    // Whatever is wrong is told with rows counted from the first one.
    return join(parts, scan) || scan.run();
}

} // namespace VKTab
