#include "ReleaseIndex.h"

#include "ProjectName.h"

#include <algorithm>
#include <numeric>
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
    m_byFolder.insert(folderInCatalog(projectPath), number);
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
    m_sortedNames.resize(m_tables.size());
    std::iota(m_sortedNames.begin(), m_sortedNames.end(), 0);
    std::ranges::stable_sort(m_sortedNames, {}, [this](int table) { return m_names[table]; });
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

std::vector<int> ReleaseIndex::inFolder(const QString &folderInCatalog, int limit) const
{
    std::vector<int> tables;
    const auto [begin, end] = m_byFolder.equal_range(folderInCatalog);
    for (auto it = begin; it != end; ++it) {
        if (int(tables.size()) == limit)
            return {};
        tables.push_back(*it);
    }
    std::ranges::sort(tables);
    return tables;
}

std::vector<int> ReleaseIndex::withNameBegin(const QString &foldedName) const
{
    std::vector<int> tables;
    if (foldedName.isEmpty())
        return tables;
    auto at = std::ranges::upper_bound(m_sortedNames, foldedName, {},
                                       [this](int table) { return m_names[table]; });
    for (; at != m_sortedNames.end() && m_names[*at].startsWith(foldedName); ++at) {
        if (!foldedName.back().isDigit() || !m_names[*at][foldedName.size()].isDigit())
            tables.push_back(*at);
    }
    std::ranges::sort(tables);
    return tables;
}

/// What the tables got in one search. The place for it is kept for the thread's next one.
struct ReleaseIndex::Votes
{
    explicit Votes(size_t tables)
    {
        if (byTable.size() < tables)
            byTable.resize(tables, 0);
    }
    ~Votes()
    {
        for (const int table : touched)
            byTable[size_t(table)] = 0;
    }
    Votes(const Votes &) = delete;
    Votes &operator=(const Votes &) = delete;

    void add(int table, int weight)
    {
        int &votes = byTable[size_t(table)];
        if (votes == 0)
            touched.push_back(table);
        votes += weight;
    }
    [[nodiscard]] int of(int table) const { return byTable[size_t(table)]; }

    static thread_local std::vector<int> byTable; ///< All 0 between two searches.
    std::vector<int> touched;
};

thread_local std::vector<int> ReleaseIndex::Votes::byTable;

void ReleaseIndex::vote(const Postings &postings, quint64 hash, int weight, Votes &votes)
{
    const auto begin = std::ranges::lower_bound(postings, posting(hash, 0));
    auto end = begin;
    while (end != postings.end() && (*end & ~TableMask) == (hash & ~TableMask)) {
        if (++end - begin > CommonLimit)
            return;
    }
    for (auto it = begin; it != end; ++it)
        votes.add(int(*it & TableMask), weight);
}

std::vector<int> ReleaseIndex::holders(const LineCells &cells, const std::vector<int> &rows,
                                       int limit) const
{
    Votes votes(m_tables.size());
    const int columns = int(cells.variables().size());
    for (const int row : rows) {
        quint64 sum = 0;
        for (int column = 0; column < columns; ++column) {
            if (const quint64 hash = cells.valueHash(row, column)) {
                vote(m_values, hash, 1, votes);
                sum += hash;
            }
        }
        if (sum)
            vote(m_rows, sum, columns, votes);
    }
    vote(m_wholes, cells.tableHash(), columns * cells.rowCount() + 1, votes);
    const auto better = [&votes](int a, int b) {
        return std::pair(-votes.of(a), a) < std::pair(-votes.of(b), b);
    };
    std::vector<int> tables(std::min<size_t>(size_t(limit), votes.touched.size()));
    std::ranges::partial_sort_copy(votes.touched, tables, better);
    const int fewest = tables.empty() ? 0 : votes.of(tables.front()) / MinorShare;
    std::erase_if(tables, [&](int table) { return votes.of(table) < fewest; });
    return tables;
}

} // namespace VelkRelease
