#include "CandidateLists.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Plan {

CandidateLists::CandidateLists(const PlanTables &tables, const PlanTarget &target)
    : m_tables(tables)
    , m_target(target)
{
    const size_t rows = target.openRows.size();
    if (int(rows) <= FewRows)
        return;
    size_t entries = 0;
    for (size_t row = 0; row < rows; ++row)
        forEachKey(row, [&](std::uint64_t key) {
            m_counts.add(key, 1);
            ++entries;
        });
    size_t end = 0;
    m_counts.forEach([&](std::uint64_t key, double count) {
        m_ends.add(key, double(end));
        end += size_t(count);
    });
    m_rows.resize(entries);
    for (size_t row = 0; row < rows; ++row)
        forEachKey(row, [&](std::uint64_t key) {
            m_rows[size_t(m_ends.of(key))] = int(row);
            m_ends.add(key, 1);
        });
}

template<class Take>
void CandidateLists::forEachKey(size_t row, Take take) const
{
    for (size_t place = 0; place < m_target.variables.size(); ++place) {
        const int value = m_target.rows.at(row, place);
        if (value == CellValues::NoValue)
            continue;
        take(key(place, value, false));
        const std::span<const int> tokens = m_tables.values.value(value).distinct;
        for (size_t i = 0; i < tokens.size() && tokens.size() > 1; ++i)
            take(key(place, tokens[i], true));
    }
}

std::vector<CandidateLists::List> CandidateLists::listsOf(size_t line) const
{
    std::vector<List> lists;
    const auto add = [&](std::uint64_t wanted) {
        if (const auto count = size_t(m_counts.of(wanted)); count > 0)
            lists.push_back(List(m_rows).subspan(size_t(m_ends.of(wanted)) - count, count));
    };
    for (size_t place = 0; place < m_target.variables.size(); ++place) {
        const int value = m_target.lines.at(line, place);
        if (value == CellValues::NoValue)
            continue;
        add(key(place, value, false));
        for (const int token : m_tables.values.value(value).distinct)
            add(key(place, token, true));
    }
    std::stable_sort(lists.begin(), lists.end(),
                     [](List a, List b) { return a.size() < b.size(); });
    return lists;
}

std::vector<int> CandidateLists::find(size_t line) const
{
    const size_t count = m_target.openRows.size();
    if (int(count) <= FewRows) {
        std::vector<int> all(count);
        std::iota(all.begin(), all.end(), 0);
        return all;
    }
    std::vector<std::pair<int, double>> votes;
    for (const List list : listsOf(line)) {
        if (votes.size() + list.size() > MaxWalked)
            break;
        const double weight = std::log(double(count) / double(list.size()));
        for (const int row : list)
            votes.emplace_back(row, weight);
    }
    // Sums in the order of the lists, so that they are the same everywhere.
    std::stable_sort(votes.begin(), votes.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<std::pair<double, int>> best;
    for (size_t i = 0; i < votes.size();) {
        const int row = votes[i].first;
        double weight = 0;
        for (; i < votes.size() && votes[i].first == row; ++i)
            weight += votes[i].second;
        best.emplace_back(-weight, row);
    }
    if (int(best.size()) > MaxRows) {
        std::nth_element(best.begin(), best.begin() + MaxRows, best.end());
        best.resize(MaxRows);
    }
    std::vector<int> rows;
    rows.reserve(best.size());
    for (const auto &[weight, row] : best)
        rows.push_back(row);
    std::sort(rows.begin(), rows.end());
    return rows;
}

} // namespace Plan
