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
    int kept = 0;
    int broken = 0;
    for (std::size_t i = 1; i < m_rows.size(); ++i) {
        kept += m_rows[i] > m_rows[i - 1] ? 1 : 0;
        broken += m_rows[i] < m_rows[i - 1] ? 1 : 0;
    }
    int single = 0;
    int shared = 0;
    int free = 0; // places where rows between those of the lines are
    bool isFilled = false;
    int open = 0;
    for (const std::vector<int> &owners : m_owners) {
        single += owners.size() == 1 ? 1 : 0;
        shared += owners.size() > 1 ? 1 : 0;
        if (owners.empty()) {
            open += isFilled && single + shared > 0 ? 1 : 0;
        } else {
            free += open;
            open = 0;
        }
        isFilled = !owners.empty();
    }
    m_orderWeight = weightOf(kept, broken);
    m_sharedWeight = weightOf(single, shared);
    m_freeWeight = weightOf(single + shared, free);
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
    double sum = 0;
    for (const auto &[row, after] : owners) {
        const int before = int(m_owners[std::size_t(row)].size());
        sum += m_sharedWeight * (std::max(0, before - 1) - std::max(0, after - 1));
        sum += m_freeWeight * ((before == 0 ? 1 : 0) - (after == 0 ? 1 : 0));
    }
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
            sum += m_orderWeight * ((before ? 1 : 0) - (after ? 1 : 0));
        }
    }
    return sum;
}

double TargetOrder::room(int position) const
{
    const int row = rowAt(position);
    double sum = owners(row).size() > 1 ? m_sharedWeight + m_freeWeight : 0;
    if (position > 0 && row < rowAt(position - 1))
        sum += m_orderWeight;
    if (position + 1 < count() && row > rowAt(position + 1))
        sum += m_orderWeight;
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
