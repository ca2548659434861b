#include "NeighbourScore.h"

#include <algorithm>

using VelkRelease::NeighbourFinding;
using VelkRelease::NeighbourLines;
using VelkRelease::NeighbourValues;

namespace {

/// Of so many lines one is where a mistake of each kind begins.
constexpr int LinesOfMistake = 2;
constexpr unsigned Seed = 20'260'630;

/// A line's values in the columns of a table of the other release, in its order.
QStringList valuesOf(const SampleTable &table, std::size_t line,
                     const std::vector<std::string> &names)
{
    QStringList values;
    for (const std::string &name : names) {
        const auto column = std::find(table.names.begin(), table.names.end(), name);
        if (column != table.names.end())
            values << QString::fromStdString(
                table.lines[line][std::size_t(column - table.names.begin())]);
    }
    return values;
}

std::vector<std::string> commonNames(const SampleTable &a, const SampleTable &b)
{
    std::vector<std::string> names;
    for (const std::string &name : a.names) {
        if (std::find(b.names.begin(), b.names.end(), name) != b.names.end())
            names.push_back(name);
    }
    return names;
}

/// A table of the old release with the true assignments of its lines. Those that are gone are not
/// confirmed to be; those of which nothing is known are, so that nothing is said about them.
class TrueTable
{
public:
    TrueTable(const SampleSet &set, const QString &name)
        : m_table(*set.olds.constFind(name))
    {
        for (int line = 1; line <= int(m_table.lines.size()); ++line) {
            const auto entry = set.truth.constFind({name, line});
            const bool known = entry != set.truth.cend() && !entry->unknown;
            NeighbourLines::Line standing{line, -1, -1, !known};
            if (known && !entry->places.isEmpty() &&
                set.news.contains(entry->places.first().first)) {
                standing.target = targetOf(set, entry->places.first().first);
                standing.row = entry->places.first().second - 1;
            }
            m_truth.lines.push_back(standing);
        }
    }

    [[nodiscard]] const NeighbourLines &truth() const { return m_truth; }
    [[nodiscard]] NeighbourValues values() const
    {
        return {[this](int index, int target) {
                    return valuesOf(m_table, std::size_t(index), m_names[std::size_t(target)]);
                },
                [this](int target, int row) {
                    return valuesOf(*m_targets[std::size_t(target)], std::size_t(row),
                                    m_names[std::size_t(target)]);
                }};
    }

private:
    int targetOf(const SampleSet &set, const QString &name)
    {
        const SampleTable *const table = &*set.news.constFind(name);
        const auto known = std::find(m_targets.begin(), m_targets.end(), table);
        if (known != m_targets.end())
            return int(known - m_targets.begin());
        m_targets.push_back(table);
        m_names.push_back(commonNames(m_table, *table));
        std::vector<int> &rows = m_truth.rows.emplace_back();
        for (int row = 1; row <= int(table->lines.size()); ++row)
            rows.push_back(row);
        return int(m_targets.size()) - 1;
    }

    const SampleTable &m_table;
    NeighbourLines m_truth;
    std::vector<const SampleTable *> m_targets;
    std::vector<std::vector<std::string>> m_names; ///< By target.
};

QString textOf(const NeighbourLines &truth, const NeighbourLines &lines,
               const NeighbourValues &values)
{
    static const char *const kinds[] = {"shifted", "swapped", "misplaced", "twice", "skipped"};
    QStringList texts;
    for (const int place : PlantedMistakes::changedPlaces(truth, lines)) {
        const NeighbourLines::Line &is = lines.lines[std::size_t(place)];
        const NeighbourLines::Line &was = truth.lines[std::size_t(place)];
        texts
            << QStringLiteral("%1>%2 instead of %3").arg(is.line).arg(is.row + 1).arg(was.row + 1);
    }
    for (const NeighbourFinding &finding : VelkRelease::checkNeighbours(lines, values)) {
        texts << QStringLiteral("found %1 by %2:").arg(kinds[finding.kind]).arg(finding.steps);
        for (const NeighbourFinding::Repair &repair : finding.repairs)
            texts << QStringLiteral("%1>%2").arg(repair.line).arg(repair.targetLine);
    }
    return texts.join(' ');
}

} // namespace

void NeighbourScore::add(const NeighbourScore &other)
{
    shifts.add(other.shifts);
    swaps.add(other.swaps);
    untouched.add(other.untouched);
}

NeighbourScore NeighbourScore::of(const SampleSet &set)
{
    NeighbourScore score;
    std::mt19937 random(Seed);
    for (auto table = set.olds.begin(); table != set.olds.end(); ++table) {
        const TrueTable tables(set, table.key());
        const NeighbourLines &truth = tables.truth();
        const NeighbourValues values = tables.values();
        const auto check = [&](const NeighbourLines &lines, PlantedMistakes::Score &of) {
            const PlantedMistakes::Score found = PlantedMistakes::scoreOf(truth, lines, values);
            of.add(found);
            if (found.found < found.planted || found.falseAlarms + found.spoilt > 0)
                score.misses << table.key() + ": " + textOf(truth, lines, values);
        };
        check(truth, score.untouched);
        for (int i = 0; i * LinesOfMistake < int(truth.lines.size()) && !truth.rows.empty(); ++i) {
            NeighbourLines shifted = truth;
            const int target = int(random() % truth.rows.size());
            const int steps = random() % 4 == 0 ? 2 : 1;
            const int count = 2 + int(random() % 25);
            if (PlantedMistakes::shift(shifted, target, count, random() % 2 == 0 ? steps : -steps,
                                       random))
                check(shifted, score.shifts);
            NeighbourLines swapped = truth;
            if (PlantedMistakes::swap(swapped, 1 + int(random() % 4), random))
                check(swapped, score.swaps);
        }
    }
    return score;
}
