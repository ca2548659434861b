#include "NeighbourSearch.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>

namespace VelkRelease {

namespace {

/// Rows by which lines are sought to be shifted.
constexpr int MostSteps = 3;
/// Of a line that has no row there.
constexpr double NoRow = -4;
constexpr int MostPasses = 3;
/// Lines of a change that are judged by what the others teach, of a table of so many: in a larger
/// one a few teach hardly anything.
constexpr std::size_t MostDoubted = 2;
constexpr int MostTeachers = 500;

} // namespace

NeighbourSearch::NeighbourSearch(TargetOrder &order, PairLikeness &likeness)
    : m_order(order)
    , m_likeness(likeness)
    , m_room(std::size_t(order.count()), std::numeric_limits<double>::quiet_NaN())
    , m_own(std::size_t(order.count()), std::numeric_limits<double>::quiet_NaN())
    , m_moved(std::size_t(order.count()))
{
    m_likeness.learnBeside(m_order.pairs(), MostSteps);
}

double NeighbourSearch::likenessAt(int position)
{
    double &own = m_own[std::size_t(position)];
    if (std::isnan(own))
        own = m_likeness.of(m_order.indexAt(position), m_order.rowAt(position), true);
    return own;
}

bool NeighbourSearch::isContent(int position)
{
    double &room = m_room[std::size_t(position)];
    if (std::isnan(room))
        room = m_likeness.room(m_order.indexAt(position), m_order.rowAt(position));
    return room + m_order.room(position) < LeastRoom;
}

double NeighbourSearch::gain(int position, int row)
{
    if (row < 0 || row >= m_order.rowCount())
        return NoRow;
    if (m_likeness.areAlike(row, m_order.rowAt(position)))
        return 0;
    return m_likeness.of(m_order.indexAt(position), row, false) - likenessAt(position);
}

/// How far most of the lines are from their rows.
int NeighbourSearch::stepsOf(const std::vector<TargetOrder::Move> &moves) const
{
    std::map<int, int> counts;
    for (const auto &[position, row] : moves)
        ++counts[m_order.rowAt(position) - row];
    return std::max_element(counts.begin(), counts.end(),
                            [](const auto &a, const auto &b) { return a.second < b.second; })
        ->first;
}

double NeighbourSearch::total(const std::vector<TargetOrder::Move> &moves)
{
    const double order = m_order.gain(moves);
    double sum = 0;
    std::vector<PairLikeness::Move> others;
    for (const auto &[position, row] : moves) {
        sum += row < 0 ? -likenessAt(position) : gain(position, row);
        others.push_back({m_order.indexAt(position), m_order.rowAt(position), row});
    }
    if (sum > 0 && sum + order < LeastGain && moves.size() <= MostDoubted &&
        moves.back().second >= 0 && m_order.count() <= MostTeachers)
        sum = std::max(sum, m_likeness.gainByOthers(others));
    return sum + order;
}

void NeighbourSearch::add(std::vector<Change> &changes, NeighbourFinding::Kind kind,
                          std::vector<TargetOrder::Move> moves)
{
    if (std::any_of(moves.begin(), moves.end(), [this](const TargetOrder::Move &move) {
            return bool(m_moved[std::size_t(move.first)]);
        }))
        return;
    const double sum = total(moves);
    if (sum < LeastGain)
        return;
    const int steps =
        moves.back().second < 0 || kind == NeighbourFinding::Swapped ? 0 : stepsOf(moves);
    changes.push_back({kind, std::move(moves), sum, steps});
}

/// Lines beside a run that suit its rows about as well as their own belong to it if it leaves fewer
/// rows shared or free then.
void NeighbourSearch::extend(std::vector<TargetOrder::Move> &moves, const std::vector<int> &rows,
                             int step)
{
    std::vector<TargetOrder::Move> longer = moves;
    double most = total(moves);
    if (most < LeastGain / 2)
        return;
    for (int i = 0; i < Reach; ++i) {
        const int position = (step < 0 ? longer.front() : longer.back()).first + step;
        if (position < 0 || position >= m_order.count() || m_moved[std::size_t(position)] ||
            rows[std::size_t(position)] < 0 ||
            rows[std::size_t(position)] == m_order.rowAt(position))
            return;
        longer.insert(step < 0 ? longer.begin() : longer.end(),
                      {position, rows[std::size_t(position)]});
        if (const double sum = total(longer); sum > most) {
            most = sum;
            moves = longer;
        }
    }
}

/// Runs of consecutive lines that are better placed at \a rows, one for each position; -1: nowhere.
void NeighbourSearch::addRuns(std::vector<Change> &changes, const std::vector<int> &rows)
{
    double sum = 0;
    double best = 0;
    int first = 0;
    int last = -1;
    const auto end = [&] {
        std::vector<TargetOrder::Move> moves;
        for (int i = first; i <= last; ++i) {
            if (rows[std::size_t(i)] >= 0 && rows[std::size_t(i)] != m_order.rowAt(i))
                moves.emplace_back(i, rows[std::size_t(i)]);
        }
        if (!moves.empty()) {
            for (const int step : {-1, 1})
                extend(moves, rows, step);
        }
        if (moves.size() > 1)
            add(changes, NeighbourFinding::Shifted, std::move(moves));
        sum = 0;
        best = 0;
        last = -1;
    };
    for (int i = 0; i < m_order.count(); ++i) {
        const int row = rows[std::size_t(i)];
        // A line that fits is not asked for anything else unless a run leads to it.
        double more = NoRow;
        if (row >= 0 && row != m_order.rowAt(i) && !m_moved[std::size_t(i)] &&
            (sum > 0 || !isContent(i)))
            more = gain(i, row);
        if (sum <= 0)
            first = i;
        sum += more;
        if (sum > best) {
            best = sum;
            last = i;
        }
        if (sum <= 0 || best - sum > MostLoss)
            end();
    }
    end();
}

void NeighbourSearch::addShifts(std::vector<Change> &changes)
{
    std::vector<int> rows(std::size_t(m_order.count()));
    for (int steps = 1; steps <= MostSteps; ++steps) {
        for (const int by : {-steps, steps}) {
            for (int i = 0; i < m_order.count(); ++i) {
                const int row = m_order.rowAt(i) + by;
                rows[std::size_t(i)] = row >= 0 && row < m_order.rowCount() ? row : -1;
            }
            addRuns(changes, rows);
        }
    }
    addChain(changes, -1);
    addChain(changes, 1);
}

int NeighbourSearch::bestFree(int index, int after, int before)
{
    int best = -1;
    double most = -std::numeric_limits<double>::infinity();
    const int from = std::max({0, after + 1, before - 2 * Reach});
    for (int row = from; row < std::min(before, m_order.rowCount()); ++row) {
        if (!m_order.isFree(row) || m_filled.contains(row))
            continue;
        const double likeness = m_likeness.of(index, row, false);
        if (likeness > most) {
            most = likeness;
            best = row;
        }
    }
    return best;
}

/// Each line to the row of the one before, or behind, and the first to a free row on that side.
void NeighbourSearch::addChain(std::vector<Change> &changes, int step)
{
    std::vector<int> rows(std::size_t(m_order.count()), -1);
    for (int i = 0; i < m_order.count(); ++i) {
        const int own = m_order.rowAt(i);
        const int beside = i + step >= 0 && i + step < m_order.count()
                               ? m_order.rowAt(i + step)
                               : (step < 0 ? -1 : m_order.rowCount());
        if (std::abs(beside - own) <= 1 || (beside < own) != (step < 0)) {
            rows[std::size_t(i)] = beside < 0 || beside >= m_order.rowCount() ? -1 : beside;
            continue;
        }
        if (isContent(i))
            continue;
        const int free = step < 0 ? bestFree(m_order.indexAt(i), beside, own)
                                  : bestFree(m_order.indexAt(i), own, beside);
        const bool besideIsBetter = beside >= 0 && beside < m_order.rowCount() &&
                                    (free < 0 || gain(i, beside) > gain(i, free));
        rows[std::size_t(i)] = besideIsBetter ? beside : free;
    }
    addRuns(changes, rows);
}

std::vector<int> NeighbourSearch::rowsNear(int position) const
{
    std::set<int> rows;
    const auto addAround = [&](int row, int reach) {
        for (int at = std::max(0, row - reach); at <= std::min(row + reach, m_order.rowCount() - 1);
             ++at)
            rows.insert(at);
    };
    addAround(m_order.rowAt(position), Reach);
    for (int beside = std::max(0, position - Reach);
         beside <= std::min(position + Reach, m_order.count() - 1); ++beside)
        addAround(m_order.rowAt(beside), 1);
    rows.erase(m_order.rowAt(position));
    return {rows.begin(), rows.end()};
}

/// To a free row, or to that of another line, which gets its own.
void NeighbourSearch::addMoves(std::vector<Change> &changes, int position)
{
    for (const int row : rowsNear(position)) {
        if (m_order.isFree(row)) {
            if (m_likeness.of(m_order.indexAt(position), row, false) > 0)
                add(changes, NeighbourFinding::Misplaced, {{position, row}});
            continue;
        }
        for (const int other : m_order.owners(row)) {
            if (isContent(other) && gain(position, row) <= 0)
                continue;
            std::vector<TargetOrder::Move> moves{{position, row}, {other, m_order.rowAt(position)}};
            std::sort(moves.begin(), moves.end());
            add(changes, NeighbourFinding::Swapped, std::move(moves));
        }
    }
}

/// Lines that share a row with one that it suits, while it does not suit them.
void NeighbourSearch::addShared(std::vector<Change> &changes)
{
    for (int row = 0; row < m_order.rowCount(); ++row) {
        const std::vector<int> &owners = m_order.owners(row);
        if (owners.size() < 2)
            continue;
        const auto best = std::max_element(owners.begin(), owners.end(), [this](int a, int b) {
            return likenessAt(a) < likenessAt(b);
        });
        for (const int owner : owners) {
            if (owner != *best && likenessAt(owner) < 0)
                add(changes, NeighbourFinding::TakenTwice, {{owner, -1}});
        }
    }
}

std::vector<NeighbourSearch::Change> NeighbourSearch::changes()
{
    std::vector<Change> changes;
    addShifts(changes);
    for (int i = 0; i < m_order.count(); ++i) {
        if (!isContent(i) && !m_moved[std::size_t(i)])
            addMoves(changes, i);
    }
    return changes;
}

std::vector<NeighbourSearch::Change> NeighbourSearch::run()
{
    std::vector<Change> made;
    for (int pass = 0; pass <= MostPasses; ++pass) {
        std::vector<Change> found;
        bool applied = false;
        if (pass < MostPasses)
            found = changes();
        // What nothing else explains.
        if (found.empty()) {
            addShared(found);
            pass = MostPasses;
        }
        std::stable_sort(found.begin(), found.end(),
                         [](const Change &a, const Change &b) { return a.gain > b.gain; });
        for (Change &change : found) {
            const bool over =
                std::any_of(change.moves.begin(), change.moves.end(), [this](const auto &move) {
                    return bool(m_moved[std::size_t(move.first)]);
                });
            if (over)
                continue;
            // One before it may have taken its rows.
            if (total(change.moves) < LeastGain)
                continue;
            for (const auto &[position, row] : change.moves)
                m_moved[std::size_t(position)] = true;
            if (change.kind != NeighbourFinding::TakenTwice)
                apply(change.moves);
            made.push_back(std::move(change));
            applied = true;
        }
        if (applied)
            learnAnew();
    }
    return joined(std::move(made));
}

/// With the changes that were made; they may have hidden others.
void NeighbourSearch::learnAnew()
{
    m_likeness.learn(m_order.pairs());
    std::fill(m_own.begin(), m_own.end(), std::numeric_limits<double>::quiet_NaN());
    std::fill(m_room.begin(), m_room.end(), std::numeric_limits<double>::quiet_NaN());
}

/// Neighbouring shifts by as many rows are one.
std::vector<NeighbourSearch::Change> NeighbourSearch::joined(std::vector<Change> made)
{
    std::stable_sort(made.begin(), made.end(), [](const Change &a, const Change &b) {
        return a.moves.front().first < b.moves.front().first;
    });
    std::vector<Change> result;
    for (Change &change : made) {
        Change *const last = result.empty() ? nullptr : &result.back();
        const bool continues = last && change.kind == last->kind &&
                               change.kind == NeighbourFinding::Shifted &&
                               change.moves.front().first == last->moves.back().first + 1 &&
                               change.steps == last->steps;
        if (!continues) {
            result.push_back(std::move(change));
            continue;
        }
        last->gain += change.gain;
        last->moves.insert(last->moves.end(), change.moves.begin(), change.moves.end());
    }
    return result;
}

void NeighbourSearch::apply(const std::vector<TargetOrder::Move> &moves)
{
    for (const auto &[position, row] : moves)
        m_left.insert(m_order.rowAt(position));
    m_order.apply(moves);
    for (const auto &[position, row] : moves) {
        m_own[std::size_t(position)] = std::numeric_limits<double>::quiet_NaN();
        m_room[std::size_t(position)] = std::numeric_limits<double>::quiet_NaN();
    }
}

} // namespace VelkRelease
