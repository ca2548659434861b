#include "CandidateLists.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace Plan {

namespace {

static_assert(CandidateLists::MaxWalked <= RowVotes::MaxRows);

/// A row that is so far ahead of what any that is not yet seen can have in common with the line, by
/// the logarithm of how rare that is, leaves these without a chance. If the keys should turn out to
/// say nothing, it must be ahead as well.
constexpr double FarAhead = 10;
constexpr double AheadBeyondKeys = 0;

/// Whether as many rows as are taken are ahead of all that are not yet seen, however much these
/// have of what is \a left. Asked before lists that are long for the rows that there are.
bool hasEnough(const std::vector<RowVotes::Votes> &rows, double left, size_t listSize)
{
    if (rows.size() < size_t(CandidateLists::MaxRows) || listSize < rows.size())
        return false;
    // By a hair more, for sums of the same in another order.
    const auto isAhead = [least = left * (1 + 1e-9)](const RowVotes::Votes &votes) {
        return votes.all > least;
    };
    return std::ranges::count_if(rows, isAhead) >= CandidateLists::MaxRows;
}

} // namespace

CandidateLists::CandidateLists(const PlanTables &tables, const PlanTarget &target)
    : m_tables(tables)
    , m_target(target)
{
    if (int(target.openRows.size()) <= FewRows)
        return;
    m_places.resize(target.variables.size());
    for (int size = 1; size <= MaxWalked; ++size)
        m_weights.push_back(std::log(double(target.openRows.size()) / double(size)));
    WorkerPool::instance().run(int(m_places.size()), [this](int place) { fill(size_t(place)); });
}

void CandidateLists::fill(size_t place)
{
    const CellValues &values = m_tables.values[size_t(m_target.variables[place])];
    Place &lists = m_places[place];
    lists.values = size_t(values.count());
    // First how many, behind the list's place, then where each begins, which filling makes its end.
    std::vector<int> &ends = lists.ends;
    ends.assign(lists.values + size_t(values.tokenCount()) + 1, 0);
    forEachList(place, [&](int, size_t list) { ++ends[list + 1]; });
    std::vector<bool> isFrequent(ends.size() - 1, false);
    for (size_t list = 0; list < isFrequent.size(); ++list) {
        if (ends[list + 1] <= MaxWalked)
            continue;
        isFrequent[list] = true;
        lists.frequent.emplace_back(list, std::exchange(ends[list + 1], 0));
    }
    const auto last = std::find_if(ends.rbegin(), ends.rend(), [](int size) { return size > 0; });
    ends.resize(size_t(ends.rend() - last)); // numbers have no lists of their tokens
    ends.shrink_to_fit();
    std::partial_sum(ends.begin(), ends.end(), ends.begin());
    lists.rows.resize(ends.empty() ? 0 : size_t(ends.back()));
    forEachList(place, [&](int row, size_t list) {
        if (!isFrequent[list])
            lists.rows[size_t(ends[list]++)] = row;
    });
}

/// Calls \a take with each row and each list that it is in.
template<class Take>
void CandidateLists::forEachList(size_t place, Take take) const
{
    const CellValues &values = m_tables.values[size_t(m_target.variables[place])];
    for (size_t row = 0; row < m_target.openRows.size(); ++row) {
        const int value = m_target.rows.at(row, place);
        if (value == CellValues::NoValue)
            continue;
        take(int(row), size_t(value));
        const std::span<const int> tokens = values.value(value).distinct;
        for (size_t i = 0; i < tokens.size() && tokens.size() > 1; ++i)
            take(int(row), m_places[place].values + size_t(tokens[i]));
    }
}

std::span<const int> CandidateLists::Place::of(size_t list) const
{
    if (list >= ends.size())
        return {};
    const int begin = list == 0 ? 0 : ends[list - 1];
    return std::span(rows).subspan(size_t(begin), size_t(ends[list] - begin));
}

size_t CandidateLists::Place::sizeOf(size_t list) const
{
    const auto found = std::lower_bound(frequent.begin(), frequent.end(), std::pair(list, 0));
    return found != frequent.end() && found->first == list ? size_t(found->second) : 0;
}

void CandidateLists::findLists(size_t line, std::vector<List> &lists) const
{
    lists.clear();
    const auto add = [&](const Place &place, size_t list, bool isKey, bool leads) {
        const std::span<const int> rows = place.of(list);
        const size_t size = rows.empty() ? place.sizeOf(list) : rows.size();
        if (size == 0)
            return false;
        const double weight = weightOf(size);
        lists.push_back({rows, size, weight, leads ? weight : 0, isKey, lists.size(), -1, 0});
        return true;
    };
    for (size_t place = 0; place < m_places.size(); ++place) {
        const int value = m_target.lines.at(line, place);
        if (value == CellValues::NoValue)
            continue;
        const Place &at = m_places[place];
        const bool isKey = m_target.keys[place] != 0;
        const bool isThere = add(at, size_t(value), isKey, true);
        if (isThere) {
            lists.back().variable = int(place);
            lists.back().value = value;
        }
        const CellValues &values = m_tables.values[size_t(m_target.variables[place])];
        for (const int token : values.value(value).distinct)
            add(at, at.values + size_t(token), isKey, !isThere);
    }
    std::sort(lists.begin(), lists.end(), [](const List &a, const List &b) {
        return a.size != b.size ? a.size < b.size : a.place < b.place;
    });
}

void CandidateLists::fetch(size_t line) const
{
    if (line >= m_tables.openLines.size())
        return;
    for (size_t place = 0; place < m_places.size(); ++place) {
        const auto value = size_t(m_target.lines.at(line, place));
        m_tables.values[size_t(m_target.variables[place])].fetch(int(value));
        if (value < m_places[place].ends.size())
            __builtin_prefetch(&m_places[place].ends[value]);
    }
}

double CandidateLists::weightOf(size_t size) const
{
    return size <= m_weights.size() ? m_weights[size - 1]
                                    : std::log(double(m_target.openRows.size()) / double(size));
}

/// Of the rows that are there it is faster to ask for their values than to look for those of a long
/// list among them.
void CandidateLists::vote(const List &list, bool onlyThere, RowVotes &votes,
                          RowVotes::Votes &best) const
{
    if (onlyThere && list.variable >= 0) {
        const RowVotes::Votes *ahead = nullptr; // the first of the list, if several have as much
        for (RowVotes::Votes &row : votes.rows()) {
            if (m_target.rows.at(size_t(row.row), size_t(list.variable)) != list.value)
                continue;
            RowVotes::add(row, list.weight, list.lead, list.isKey);
            if (!ahead || row.all > ahead->all || (row.all == ahead->all && row.row < ahead->row))
                ahead = &row;
        }
        best = ahead && ahead->all > best.all ? *ahead : best;
        return;
    }
    for (const int row : list.rows) {
        const RowVotes::Votes *const now =
            onlyThere ? votes.addTo(row, list.weight, list.lead, list.isKey)
                      : &votes.add(row, list.weight, list.lead, list.isKey);
        if (now && now->all > best.all)
            best = *now;
    }
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
    thread_local std::vector<List> keptLists; // of lines before, for its room
    std::vector<List> &lists = keptLists;
    findLists(line, lists);
    // What lists that are not yet walked can still add.
    RowVotes::Votes left;
    size_t walked = 0;
    for (const List &list : lists) {
        walked += list.size;
        left.all += walked <= MaxWalked ? list.weight : 0;
        left.lead += list.lead;
        left.beyondKeys += list.isKey ? 0 : list.lead;
    }
    thread_local RowVotes keptVotes;
    RowVotes &votes = keptVotes;
    votes.clear();
    RowVotes::Votes best;
    walked = 0;
    Found result;
    for (const List &list : lists) {
        result.isFarAhead =
            best.lead - left.lead > FarAhead && best.beyondKeys - left.beyondKeys > AheadBeyondKeys;
        if (result.isFarAhead || walked + list.size > MaxWalked)
            break;
        walked += list.size;
        const bool onlyThere = hasEnough(votes.rows(), left.all, list.size);
        left.all -= list.weight;
        left.lead -= list.lead;
        left.beyondKeys -= list.isKey ? 0 : list.lead;
        vote(list, onlyThere, votes, best);
    }
    std::vector<RowVotes::Votes> &found = votes.rows();
    if (result.isFarAhead) // of those that are seen as well
        std::erase_if(found, [&](const RowVotes::Votes &row) {
            return best.lead - row.lead - left.lead > FarAhead &&
                   best.beyondKeys - row.beyondKeys - left.beyondKeys > AheadBeyondKeys;
        });
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
