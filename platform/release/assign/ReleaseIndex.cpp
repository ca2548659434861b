#include "ReleaseIndex.h"

#include "ProjectName.h"

#include <algorithm>
#include <utility>

namespace VelkRelease {

namespace {

constexpr int TableBits = 24;
constexpr quint64 TableMask = (quint64(1) << TableBits) - 1;

quint64 posting(quint64 hash, int table)
{
    return (hash & ~TableMask) | quint64(table);
}

void sortUnique(std::vector<quint64> &values)
{
    std::ranges::sort(values);
    values.erase(std::unique(values.begin(), values.end()), values.end());
}

void post(std::vector<quint64> &hashes, int table, std::vector<quint64> &postings)
{
    sortUnique(hashes);
    for (const quint64 hash : hashes)
        postings.push_back(posting(hash, table));
    hashes.clear();
}

} // namespace

int ReleaseIndex::add(const QString &projectPath, LineCells cells)
{
    const int number = count();
    m_tables.push_back(std::move(cells));
    m_paths << projectPath;
    m_names << foldedName(projectPath);
    m_byPath.insert(pathInCatalog(projectPath), number);
    m_byName.insert(m_names.last(), number);
    return number;
}

void ReleaseIndex::finish()
{
    std::vector<quint64> values;
    std::vector<quint64> rows;
    for (int table = 0; table < count(); ++table)
        addPostings(table, values, rows);
    std::ranges::sort(m_values);
    std::ranges::sort(m_rows);
    std::ranges::sort(m_wholes);
    m_votes.assign(m_tables.size(), 0);
}

void ReleaseIndex::addPostings(int table, std::vector<quint64> &values, std::vector<quint64> &rows)
{
    const LineCells &cells = m_tables[size_t(table)];
    for (int row = 0; row < cells.rowCount(); ++row) {
        quint64 sum = 0;
        for (int column = 0; column < int(cells.variables().size()); ++column) {
            if (const quint64 hash = cells.valueHash(row, column)) {
                values.push_back(hash);
                sum += hash;
            }
        }
        if (sum)
            rows.push_back(sum);
    }
    post(values, table, m_values);
    post(rows, table, m_rows);
    m_wholes.push_back(posting(cells.tableHash(), table));
}

int ReleaseIndex::withPath(const QString &pathInCatalog) const
{
    return m_byPath.value(pathInCatalog, -1);
}

std::vector<int> ReleaseIndex::withName(const QString &foldedName) const
{
    std::vector<int> tables;
    const auto [begin, end] = m_byName.equal_range(foldedName);
    for (auto it = begin; it != end; ++it)
        tables.push_back(*it);
    std::ranges::sort(tables);
    return tables;
}

void ReleaseIndex::vote(const Postings &postings, quint64 hash, int weight,
                        std::vector<int> &touched) const
{
    const auto begin = std::ranges::lower_bound(postings, posting(hash, 0));
    auto end = begin;
    while (end != postings.end() && (*end & ~TableMask) == (hash & ~TableMask)) {
        if (++end - begin > CommonLimit)
            return;
    }
    for (auto it = begin; it != end; ++it) {
        const int table = int(*it & TableMask);
        int &votes = m_votes[size_t(table)];
        if (votes == 0)
            touched.push_back(table);
        votes += weight;
    }
}

std::vector<int> ReleaseIndex::holders(const LineCells &cells, const std::vector<int> &rows,
                                       int limit) const
{
    std::vector<int> touched;
    const int columns = int(cells.variables().size());
    for (const int row : rows) {
        quint64 sum = 0;
        for (int column = 0; column < columns; ++column) {
            if (const quint64 hash = cells.valueHash(row, column)) {
                vote(m_values, hash, 1, touched);
                sum += hash;
            }
        }
        if (sum)
            vote(m_rows, sum, columns, touched);
    }
    vote(m_wholes, cells.tableHash(), columns * cells.rowCount() + 1, touched);
    const auto better = [this](int a, int b) {
        return std::pair(-m_votes[size_t(a)], a) < std::pair(-m_votes[size_t(b)], b);
    };
    const auto kept = touched.begin() + std::min<std::ptrdiff_t>(limit, std::ssize(touched));
    std::ranges::partial_sort(touched, kept, better);
    std::vector<int> tables(touched.begin(), kept);
    const int fewest = tables.empty() ? 0 : m_votes[size_t(tables.front())] / MinorShare;
    std::erase_if(tables, [&](int table) { return m_votes[size_t(table)] < fewest; });
    for (const int table : touched)
        m_votes[size_t(table)] = 0;
    return tables;
}

} // namespace VelkRelease
