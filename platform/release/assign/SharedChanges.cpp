#include "SharedChanges.h"

#include "LineCells.h"

#include <core/parallel/WorkerPool.h>

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
    const auto count = [&](int row) {
        for (size_t place = 0; place < lines.match->sourceColumns().size(); ++place) {
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

int casesOf(const Shown &shown, const OldValue &value)
{
    const auto found = shown.cases.find(value);
    return found == shown.cases.end() ? 0 : found->second;
}

/// What is kept of a change, if most lines that could have changed so did.
void addCounted(const std::vector<Shown> &projects, const OldAndNew &change,
                std::vector<SharedChanges::Change> &changes)
{
    SharedChanges::Change result;
    result.variable = change.first.first;
    SharedCount count;
    for (size_t i = projects.size(); i-- > 0;) {
        const auto found = projects[i].changes.find(change);
        const bool shows = found != projects[i].changes.end();
        count.add(shows ? found->second.first : 0, casesOf(projects[i], change.first));
        if (!shows)
            continue;
        result.project = int(i);
        result.sourceRow = found->second.second->sourceRow;
        result.targetRow = found->second.second->targetRow;
    }
    if (!count.isMost())
        return;
    result.supports = count.supports();
    result.cases = count.cases();
    changes.push_back(result);
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
    std::erase_if(counts,
                  [](const auto &entry) { return entry.second < SharedCount::LeastProjects; });
    std::set<OldValue> wanted;
    for (const auto &[change, count] : counts)
        wanted.insert(change.first);
    WorkerPool::instance().run(int(projects.size()), [&](int i) {
        countCases(projects[size_t(i)], shown[size_t(i)], wanted);
    });
    std::vector<Change> changes;
    for (const auto &[change, count] : counts)
        addCounted(shown, change, changes);
    return changes;
}

} // namespace VelkRelease
