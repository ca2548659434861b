#include "CandidateLists.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>

namespace Plan {

CandidateLists::CandidateLists(const PlanTables &tables, const PlanTarget &target)
    : m_tables(tables)
    , m_target(target)
{
    if (int(target.openRows.size()) <= FewRows)
        return;
    for (size_t row = 0; row < target.openRows.size(); ++row) {
        for (size_t place = 0; place < target.variables.size(); ++place) {
            const int value = target.rows.at(row, place);
            if (value == CellValues::NoValue)
                continue;
            m_lists[key(place, value, false)].push_back(int(row));
            const std::vector<int> &tokens = tables.values.value(value).distinct;
            for (size_t i = 0; i < tokens.size() && tokens.size() > 1; ++i)
                m_lists[key(place, tokens[i], true)].push_back(int(row));
        }
    }
}

std::vector<const std::vector<int> *> CandidateLists::listsOf(size_t line) const
{
    std::vector<const std::vector<int> *> lists;
    const auto add = [&](long long wanted) {
        const auto found = m_lists.find(wanted);
        if (found != m_lists.end())
            lists.push_back(&found->second);
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
                     [](const auto *a, const auto *b) { return a->size() < b->size(); });
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
    std::map<int, double> votes;
    size_t walked = 0;
    for (const std::vector<int> *list : listsOf(line)) {
        walked += list->size();
        if (walked > MaxWalked)
            break;
        const double weight = std::log(double(count) / double(list->size()));
        for (const int row : *list)
            votes[row] += weight;
    }
    std::vector<std::pair<double, int>> best;
    best.reserve(votes.size());
    for (const auto &[row, weight] : votes)
        best.emplace_back(-weight, row);
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
