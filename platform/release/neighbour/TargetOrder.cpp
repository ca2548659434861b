#include "TargetOrder.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace VelkRelease {

namespace {

constexpr double MostOrderWeight = 5;

double weightOf(int usual, int unusual)
{
    return std::clamp(std::log((usual + 0.5) / (unusual + 0.5)), 0.0, MostOrderWeight);
}

} // namespace

TargetOrder::TargetOrder(const NeighbourLines &lines, int target)
    : m_owners(lines.rows[std::size_t(target)].size())
{
    for (std::size_t i = 0; i < lines.lines.size(); ++i) {
        const NeighbourLines::Line &line = lines.lines[i];
        if (line.target != target || line.row < 0)
            continue;
        m_owners[std::size_t(line.row)].push_back(count());
        m_indexes.push_back(int(i));
        m_rows.push_back(line.row);
    }
    learn(lines);
}

void TargetOrder::learn(const NeighbourLines &lines)
{
    for (std::size_t i = 1; i < m_rows.size(); ++i) {
        m_kept += m_rows[i] > m_rows[i - 1] ? 1 : 0;
        m_broken += m_rows[i] < m_rows[i - 1] ? 1 : 0;
    }
    bool isFilled = false;
    int open = 0;
    for (const std::vector<int> &owners : m_owners) {
        if (owners.empty()) {
            open += isFilled ? 1 : 0;
        } else {
            ++m_owned;
            m_shared += owners.size() > 1 ? 1 : 0;
            m_gaps += open;
            open = 0;
        }
        isFilled = !owners.empty();
    }
    const auto without =
        std::count_if(lines.lines.begin(), lines.lines.end(),
                      [](const NeighbourLines::Line &line) { return line.row < 0; });
    m_withoutWeight = weightOf(int(lines.lines.size()) - int(without), int(without));
}

std::vector<std::pair<int, int>> TargetOrder::pairs() const
{
    std::vector<std::pair<int, int>> pairs;
    pairs.reserve(m_rows.size());
    for (std::size_t i = 0; i < m_rows.size(); ++i)
        pairs.emplace_back(m_indexes[i], m_rows[i]);
    return pairs;
}

int TargetOrder::positionOf(int index) const
{
    return int(std::lower_bound(m_indexes.begin(), m_indexes.end(), index) - m_indexes.begin());
}

double TargetOrder::gain(const std::vector<Move> &moves) const
{
    std::map<int, int> owners; // of the rows in question, after the moves
    const auto known = [&](int row) -> int & {
        return owners.try_emplace(row, int(m_owners[std::size_t(row)].size())).first->second;
    };
    for (const auto &[position, row] : moves) {
        --known(rowAt(position));
        if (row >= 0)
            ++known(row);
    }
    int lessShared = 0;
    int lessFree = 0;
    int mendedShared = 0;
    int mendedGaps = 0;
    for (const auto &[row, after] : owners) {
        const int before = int(m_owners[std::size_t(row)].size());
        lessShared += std::max(0, before - 1) - std::max(0, after - 1);
        lessFree += (before == 0 ? 1 : 0) - (after == 0 ? 1 : 0);
        mendedShared += before > 1 && after < 2 ? 1 : 0;
        mendedGaps += before == 0 && after > 0 ? 1 : 0;
    }
    int lessBroken = 0;
    int mendedSteps = 0;
    auto move = moves.begin();
    int last = -1; // the position whose step from the one before was looked at
    const auto rowAfter = [&](int position) {
        const auto at =
            std::lower_bound(moves.begin(), moves.end(), position,
                             [](const Move &some, int wanted) { return some.first < wanted; });
        return at != moves.end() && at->first == position ? at->second : rowAt(position);
    };
    for (; move != moves.end(); ++move) {
        for (const int position : {move->first, move->first + 1}) {
            if (position <= last || position < 1 || position >= count())
                continue;
            last = position;
            const int from = rowAfter(position - 1);
            const int to = rowAfter(position);
            const bool before = rowAt(position) < rowAt(position - 1);
            const bool after = from >= 0 && to >= 0 && to < from;
            lessBroken += (before ? 1 : 0) - (after ? 1 : 0);
            mendedSteps += before && !after ? 1 : 0;
        }
    }
    return orderWeight(mendedSteps) * lessBroken + sharedWeight(mendedShared) * lessShared +
           freeWeight(mendedGaps) * lessFree;
}

double TargetOrder::orderWeight(int mended) const
{
    return weightOf(m_kept, std::max(0, m_broken - mended));
}

double TargetOrder::sharedWeight(int mended) const
{
    const int shared = std::max(0, m_shared - mended);
    return weightOf(m_owned - shared, shared);
}

double TargetOrder::freeWeight(int mended) const
{
    return weightOf(m_owned, std::max(0, m_gaps - mended));
}

double TargetOrder::room(int position) const
{
    const int row = rowAt(position);
    double sum = owners(row).size() > 1 ? sharedWeight() + freeWeight() : 0;
    if (position > 0 && row < rowAt(position - 1))
        sum += orderWeight();
    if (position + 1 < count() && row > rowAt(position + 1))
        sum += orderWeight();
    return sum;
}

void TargetOrder::apply(const std::vector<Move> &moves)
{
    for (const auto &[position, row] : moves) {
        std::erase(m_owners[std::size_t(rowAt(position))], position);
        m_rows[std::size_t(position)] = row;
        std::vector<int> &owners = m_owners[std::size_t(row)];
        owners.insert(std::lower_bound(owners.begin(), owners.end(), position), position);
    }
}

} // namespace VelkRelease
