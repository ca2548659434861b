#include "SharedChanges.h"

#include "LineCells.h"

#include <core/parallel/WorkerPool.h>

#include <algorithm>
#include <map>
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
    std::map<OldAndNew, std::pair<int, const KnownLines::Pair *>>
        changes;                   ///< Lines, and the first.
    std::map<OldValue, int> cases; ///< Of those that several projects changed alike.
};

OldValue oldValue(const KnownLines &lines, int row, size_t place)
{
    return {lines.variable(place),
            lines.tables.source->cell(row, lines.match->sourceColumns()[place])};
}

Shown shownBy(const KnownLines &lines)
{
    Shown shown;
    for (const KnownLines::Pair &pair : lines.pairs) {
        for (const size_t place : pair.differing) {
            const quint32 after =
                lines.tables.target->cell(pair.targetRow, lines.match->targetColumns()[place]);
            const OldValue before = oldValue(lines, pair.sourceRow, place);
            if (before.second != 0 && after != 0)
                ++shown.changes.try_emplace({before, after}, 0, &pair).first->second.first;
        }
    }
    return shown;
}

/// Lines with one of the old values, of those whose new line is known.
void countCases(const KnownLines &lines, Shown &shown, const std::set<OldValue> &wanted)
{
    if (!lines.match || wanted.empty())
        return;
    std::vector<size_t> places; // of variables with such values
    for (size_t place = 0; place < lines.match->sourceColumns().size(); ++place) {
        const auto first = wanted.lower_bound({lines.variable(place), 0});
        if (first != wanted.end() && first->first == lines.variable(place))
            places.push_back(place);
    }
    const auto count = [&](int row) {
        for (const size_t place : places) {
            const OldValue value = oldValue(lines, row, place);
            if (wanted.contains(value))
                ++shown.cases[value];
        }
    };
    for (int row = 0; row < lines.tables.source->rowCount(); ++row) {
        if (lines.match->isEqual(row))
            count(row);
    }
    for (const KnownLines::Pair &pair : lines.pairs)
        count(pair.sourceRow);
}

/// A change that several projects show, with what all of them say of it.
struct Counted
{
    OldAndNew values;
    SharedCount count;
    SharedChanges::Change change; ///< Where it stands first.
};

/// \a all is in the order of the values.
void addCounts(const Shown &shown, int project, std::vector<Counted> &all)
{
    auto known = all.begin();
    for (const auto &[value, cases] : shown.cases) {
        known = std::ranges::lower_bound(known, all.end(), value, {},
                                         [](const Counted &at) { return at.values.first; });
        for (; known != all.end() && known->values.first == value; ++known) {
            const auto found = shown.changes.find(known->values);
            const bool shows = found != shown.changes.end();
            known->count.add(shows ? found->second.first : 0, cases);
            if (!shows)
                continue;
            known->change.project = project;
            known->change.sourceRow = found->second.second->sourceRow;
            known->change.targetRow = found->second.second->targetRow;
        }
    }
}

} // namespace

std::vector<SharedChanges::Change> SharedChanges::of(const std::vector<KnownLines> &projects)
{
    std::vector<Shown> shown(projects.size());
    WorkerPool::instance().run(int(projects.size()),
                               [&](int i) { shown[size_t(i)] = shownBy(projects[size_t(i)]); });
    std::map<OldAndNew, int> counts;
    for (const Shown &project : shown) {
        for (const auto &[change, lines] : project.changes)
            ++counts[change];
    }
    std::vector<Counted> all;
    std::set<OldValue> wanted;
    for (const auto &[values, count] : counts) {
        if (count < SharedCount::LeastProjects)
            continue;
        all.push_back({values, {}, {}});
        wanted.insert(values.first);
    }
    WorkerPool::instance().run(int(projects.size()), [&](int i) {
        countCases(projects[size_t(i)], shown[size_t(i)], wanted);
    });
    for (size_t i = projects.size(); i-- > 0;) // the first one that shows it comes last
        addCounts(shown[i], int(i), all);
    std::vector<Change> changes;
    for (Counted &counted : all) {
        if (!counted.count.isMost()) // most lines that could have changed so did not
            continue;
        counted.change.variable = counted.values.first.first;
        counted.change.supports = counted.count.supports();
        counted.change.cases = counted.count.cases();
        changes.push_back(counted.change);
    }
    return changes;
}

} // namespace VelkRelease
