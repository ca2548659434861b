#include "CandidateLists.h"

#include "RowVotes.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace Plan {

namespace {

static_assert(CandidateLists::MaxWalked <= RowVotes::MaxRows);

/// A row that is so far ahead of what any that is not yet seen can have in common with the line, by
/// the logarithm of how rare that is, leaves these without a chance. If the keys should turn out to
/// say nothing, it must be ahead as well.
constexpr double FarAhead = 10;
constexpr double AheadBeyondKeys = 0;

} // namespace

CandidateLists::CandidateLists(const PlanTables &tables, const PlanTarget &target)
    : m_tables(tables)
    , m_target(target)
{
    const size_t rows = target.openRows.size();
    if (int(rows) <= FewRows)
        return;
    size_t lists = 0;
    for (const int variable : target.variables) {
        const CellValues &values = tables.values[size_t(variable)];
        m_firstValues.push_back(lists);
        m_firstTokens.push_back(lists + size_t(values.count()));
        lists = m_firstTokens.back() + size_t(values.tokenCount());
    }
    // First how many, behind the list's place, then where each begins, which filling makes its end.
    m_ends.assign(lists + 1, 0);
    for (size_t row = 0; row < rows; ++row)
        forEachList(row, [this](size_t list) { ++m_ends[list + 1]; });
    std::partial_sum(m_ends.begin(), m_ends.end(), m_ends.begin());
    m_rows.resize(size_t(m_ends.back()));
    for (size_t row = 0; row < rows; ++row)
        forEachList(row, [&](size_t list) { m_rows[size_t(m_ends[list]++)] = int(row); });
}

template<class Take>
void CandidateLists::forEachList(size_t row, Take take) const
{
    for (size_t place = 0; place < m_target.variables.size(); ++place) {
        const int value = m_target.rows.at(row, place);
        if (value == CellValues::NoValue)
            continue;
        take(m_firstValues[place] + size_t(value));
        const std::span<const int> tokens =
            m_tables.values[size_t(m_target.variables[place])].value(value).distinct;
        for (size_t i = 0; i < tokens.size() && tokens.size() > 1; ++i)
            take(m_firstTokens[place] + size_t(tokens[i]));
    }
}

void CandidateLists::findLists(size_t line, std::vector<List> &lists) const
{
    lists.clear();
    const auto count = double(m_target.openRows.size());
    const auto add = [&](size_t list, bool isKey, bool leads) {
        const int begin = list == 0 ? 0 : m_ends[list - 1];
        const auto size = size_t(m_ends[list] - begin);
        if (size == 0)
            return false;
        const double weight = std::log(count / double(size));
        lists.push_back(
            {std::span(m_rows).subspan(size_t(begin), size), weight, leads ? weight : 0, isKey});
        return true;
    };
    for (size_t place = 0; place < m_target.variables.size(); ++place) {
        const int value = m_target.lines.at(line, place);
        if (value == CellValues::NoValue)
            continue;
        const bool isKey = m_target.keys[place] != 0;
        const bool isThere = add(m_firstValues[place] + size_t(value), isKey, true);
        const CellValues &values = m_tables.values[size_t(m_target.variables[place])];
        for (const int token : values.value(value).distinct)
            add(m_firstTokens[place] + size_t(token), isKey, !isThere);
    }
    std::stable_sort(lists.begin(), lists.end(),
                     [](const List &a, const List &b) { return a.rows.size() < b.rows.size(); });
}

CandidateLists::Found CandidateLists::find(size_t line) const
{
    const size_t count = m_target.openRows.size();
    if (int(count) <= FewRows) {
        Found all;
        all.rows.resize(count);
        std::iota(all.rows.begin(), all.rows.end(), 0);
        return all;
    }
    thread_local std::vector<List> lists;
    findLists(line, lists);
    // What lists that are not yet walked can still add.
    RowVotes::Votes left;
    for (const List &list : lists) {
        left.lead += list.lead;
        left.beyondKeys += list.isKey ? 0 : list.lead;
    }
    thread_local RowVotes votes;
    votes.clear();
    RowVotes::Votes best;
    size_t walked = 0;
    Found result;
    for (const List &list : lists) {
        result.isFarAhead =
            best.lead - left.lead > FarAhead && best.beyondKeys - left.beyondKeys > AheadBeyondKeys;
        if (result.isFarAhead || walked + list.rows.size() > MaxWalked)
            break;
        walked += list.rows.size();
        left.lead -= list.lead;
        left.beyondKeys -= list.isKey ? 0 : list.lead;
        for (const int row : list.rows) {
            const RowVotes::Votes &now = votes.add(row, list.weight, list.lead, list.isKey);
            if (now.all > best.all)
                best = now;
        }
    }
    std::vector<RowVotes::Votes> &found = votes.rows();
    const auto isBetter = [](const RowVotes::Votes &a, const RowVotes::Votes &b) {
        return a.all != b.all ? a.all > b.all : a.row < b.row;
    };
    if (int(found.size()) > MaxRows) {
        std::nth_element(found.begin(), found.begin() + MaxRows, found.end(), isBetter);
        found.resize(MaxRows);
    }
    result.rows.reserve(found.size());
    for (const RowVotes::Votes &candidate : found)
        result.rows.push_back(candidate.row);
    std::sort(result.rows.begin(), result.rows.end());
    return result;
}

} // namespace Plan
