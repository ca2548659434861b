#include "SharedChanges.h"

#include "LineCells.h"
#include "TableMatch.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace VelkRelease {

namespace {

/// Variable and hash of a value.
using OldValue = std::pair<int, quint32>;
/// And that of the new one.
using OldAndNew = std::pair<OldValue, quint32>;

/// What one project shows.
struct Shown
{
    std::optional<TableMatch> match;
    std::vector<TableMatch::NearPair> pairs;
    std::map<OldAndNew, std::pair<int, TableMatch::NearPair>> changes; ///< Lines, and the first.
    std::map<OldValue, int> cases; ///< Of those that several projects changed alike.
};

OldValue oldValue(const SharedChanges::Tables &tables, const TableMatch &match, int row,
                  size_t place)
{
    const int column = match.sourceColumns()[place];
    return {tables.source->variables()[size_t(column)], tables.source->cell(row, column)};
}

Shown shownBy(const SharedChanges::Tables &tables)
{
    Shown shown;
    if (!tables.source || !tables.target ||
        std::max(tables.source->rowCount(), tables.target->rowCount()) > SharedChanges::MostLines)
        return shown;
    shown.match.emplace(*tables.source, *tables.target);
    shown.pairs = shown.match->nearPairs();
    for (const TableMatch::NearPair &pair : shown.pairs) {
        const quint32 after =
            tables.target->cell(pair.targetRow, shown.match->targetColumns()[pair.differing]);
        const OldValue before = oldValue(tables, *shown.match, pair.sourceRow, pair.differing);
        ++shown.changes.try_emplace({before, after}, 0, pair).first->second.first;
    }
    return shown;
}

/// Lines with one of the old values, of those whose new line is known.
void countCases(const SharedChanges::Tables &tables, Shown &shown, const std::set<OldValue> &wanted)
{
    if (!shown.match || wanted.empty())
        return;
    const auto count = [&](int row) {
        for (size_t place = 0; place < shown.match->sourceColumns().size(); ++place) {
            const OldValue value = oldValue(tables, *shown.match, row, place);
            if (wanted.contains(value))
                ++shown.cases[value];
        }
    };
    for (int row = 0; row < tables.source->rowCount(); ++row) {
        if (shown.match->isEqual(row))
            count(row);
    }
    for (const TableMatch::NearPair &pair : shown.pairs)
        count(pair.sourceRow);
}

int casesOf(const Shown &shown, const OldValue &value)
{
    const auto found = shown.cases.find(value);
    return found == shown.cases.end() ? 0 : found->second;
}

/// Supports and cases of all projects, none of them counting for more than it may.
SharedChanges::Change counted(const std::vector<Shown> &projects, const OldAndNew &change)
{
    SharedChanges::Change result;
    result.variable = change.first.first;
    double supports = 0;
    double cases = 0;
    for (size_t i = projects.size(); i-- > 0;) {
        const int all = casesOf(projects[i], change.first);
        if (all == 0)
            continue;
        const double weight = std::min(1.0, double(SharedChanges::MostOfProject) / all);
        cases += weight * all;
        const auto found = projects[i].changes.find(change);
        if (found == projects[i].changes.end())
            continue;
        supports += weight * found->second.first;
        result.project = int(i);
        result.sourceRow = found->second.second.sourceRow;
        result.targetRow = found->second.second.targetRow;
    }
    result.supports = int(std::lround(supports));
    result.cases = int(std::lround(cases));
    return result;
}

} // namespace

std::vector<SharedChanges::Change> SharedChanges::of(const std::vector<Tables> &projects)
{
    std::vector<Shown> shown(projects.size());
    WorkerPool::instance().run(int(projects.size()),
                               [&](int i) { shown[size_t(i)] = shownBy(projects[size_t(i)]); });
    std::map<OldAndNew, int> counts;
    for (const Shown &project : shown) {
        for (const auto &[change, lines] : project.changes)
            ++counts[change];
    }
    std::erase_if(counts, [](const auto &entry) { return entry.second < LeastProjects; });
    std::set<OldValue> wanted;
    for (const auto &[change, count] : counts)
        wanted.insert(change.first);
    WorkerPool::instance().run(int(projects.size()), [&](int i) {
        countCases(projects[size_t(i)], shown[size_t(i)], wanted);
    });
    std::vector<Change> changes;
    for (const auto &[change, count] : counts) {
        changes.push_back(counted(shown, change));
        if (2 * changes.back().supports <= changes.back().cases) // the old value says more
            changes.pop_back();
    }
    return changes;
}

} // namespace VelkRelease
