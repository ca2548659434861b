#include "PlantedMistakes.h"

#include <algorithm>
#include <map>

using VelkRelease::NeighbourFinding;
using VelkRelease::NeighbourLines;
using VelkRelease::NeighbourValues;

namespace {

int pick(std::mt19937 &random, int below)
{
    return int(random() % unsigned(below));
}

} // namespace

bool PlantedMistakes::shift(NeighbourLines &lines, int target, int count, int steps,
                            std::mt19937 &random)
{
    std::vector<NeighbourLines::Line *> assigned;
    for (NeighbourLines::Line &line : lines.lines) {
        if (line.target == target && line.row >= 0)
            assigned.push_back(&line);
    }
    if (int(assigned.size()) <= count)
        return false;
    const int first = pick(random, int(assigned.size()) - count);
    const bool lastIsLeft = pick(random, 2) == 0;
    const int rows = int(lines.rows[std::size_t(target)].size());
    for (int i = first; i < first + count; ++i) {
        const int row = assigned[std::size_t(i)]->row + steps;
        if (row < 0 || row >= rows)
            return false;
    }
    for (int i = first; i < first + count; ++i)
        assigned[std::size_t(i)]->row += steps;
    if (lastIsLeft) {
        // Whoever has the row at the end of the lines is left without one.
        const std::size_t beside = steps > 0 ? std::size_t(first + count) : std::size_t(first - 1);
        const std::size_t end = steps > 0 ? std::size_t(first + count - 1) : std::size_t(first);
        if (beside < assigned.size() && assigned[beside]->row == assigned[end]->row) {
            assigned[beside]->row = -1;
            assigned[beside]->target = -1;
        }
    }
    return true;
}

bool PlantedMistakes::swap(NeighbourLines &lines, int distance, std::mt19937 &random)
{
    if (int(lines.lines.size()) <= distance)
        return false;
    const int first = pick(random, int(lines.lines.size()) - distance);
    NeighbourLines::Line &a = lines.lines[std::size_t(first)];
    NeighbourLines::Line &b = lines.lines[std::size_t(first + distance)];
    if (a.row < 0 || b.row < 0 || a.target != b.target || a.row == b.row)
        return false;
    std::swap(a.row, b.row);
    return true;
}

void PlantedMistakes::Score::add(const Score &other)
{
    lines += other.lines;
    planted += other.planted;
    found += other.found;
    falseAlarms += other.falseAlarms;
    spoilt += other.spoilt;
    wrong += other.wrong;
    mended += other.mended;
}

std::set<int> PlantedMistakes::changedPlaces(const NeighbourLines &truth,
                                             const NeighbourLines &lines)
{
    std::set<int> changed;
    for (std::size_t i = 0; i < lines.lines.size(); ++i) {
        const NeighbourLines::Line &is = lines.lines[i];
        const NeighbourLines::Line &was = truth.lines[i];
        if (is.target != was.target || is.row != was.row)
            changed.insert(int(i));
    }
    return changed;
}

PlantedMistakes::Score PlantedMistakes::scoreOf(const NeighbourLines &truth,
                                                const NeighbourLines &lines,
                                                const NeighbourValues &values)
{
    Score score;
    std::map<int, int> placeOf; // by source line
    for (std::size_t i = 0; i < truth.lines.size(); ++i) {
        placeOf.emplace(truth.lines[i].line, int(i));
        score.lines += truth.lines[i].row >= 0 ? 1 : 0;
    }
    const auto isAsGood = [&](int place, int target, int row) {
        const NeighbourLines::Line &was = truth.lines[std::size_t(place)];
        return target == was.target &&
               (row == was.row || (row >= 0 && was.row >= 0 &&
                                   values.ofRow(target, row) == values.ofRow(target, was.row)));
    };
    const std::set<int> changed = changedPlaces(truth, lines);
    std::set<int> wrong;
    for (const int place : changed) {
        const NeighbourLines::Line &is = lines.lines[std::size_t(place)];
        const NeighbourLines::Line &was = truth.lines[std::size_t(place)];
        const bool isCompared = was.row >= 0 && !values.ofRow(was.target, was.row).isEmpty();
        if (isCompared && !isAsGood(place, is.target, is.row))
            wrong.insert(place);
    }
    std::set<int> mended;
    for (const NeighbourFinding &finding : checkNeighbours(lines, values)) {
        bool touches = false;
        int spoilt = 0;
        for (const NeighbourFinding::Repair &repair : finding.repairs) {
            const int place = placeOf.at(repair.line);
            touches = touches || changed.contains(place);
            ++spoilt;
            if (repair.targetLine < 0)
                continue;
            const std::vector<int> &rows = truth.rows[std::size_t(repair.target)];
            const int row =
                int(std::find(rows.begin(), rows.end(), repair.targetLine) - rows.begin());
            if (!isAsGood(place, repair.target, row))
                continue;
            mended.insert(place);
            --spoilt;
        }
        score.falseAlarms += touches ? 0 : 1;
        score.spoilt += touches ? spoilt : 0;
    }
    if (wrong.empty())
        return score;
    score.planted = 1;
    score.wrong = int(wrong.size());
    score.mended = int(std::count_if(wrong.begin(), wrong.end(),
                                     [&](int place) { return mended.contains(place); }));
    score.found = score.mended == score.wrong ? 1 : 0;
    return score;
}
