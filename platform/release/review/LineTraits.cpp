#include "LineTraits.h"

#include <geomcore/records/LineTable.h>
#include <release/history/DecisionHistory.h>
#include <release/pattern/DifferencePatterns.h>

#include <algorithm>
#include <limits>
#include <set>

namespace VelkRelease {

namespace {

/// Empty for what is no difference of a value.
QString changeKey(ValueChange::Kind kind)
{
    switch (kind) {
    case ValueChange::Replacement:
        return QStringLiteral("replacement");
    case ValueChange::NumberMap:
        return QStringLiteral("numberMap");
    case ValueChange::NearNumber:
        return QStringLiteral("nearNumber");
    case ValueChange::OtherNumber:
        return QStringLiteral("otherNumber");
    case ValueChange::Wording:
        return QStringLiteral("wording");
    case ValueChange::Notation:
        return QStringLiteral("notation");
    case ValueChange::Added:
        return QStringLiteral("added");
    case ValueChange::Missing:
        return QStringLiteral("missing");
    case ValueChange::Project:
    case ValueChange::Changed:
    case ValueChange::AnyOf:
        break;
    }
    return {};
}

} // namespace

/// A filter, worked out for each list of values that occurs.
class LineTraits::Sieve
{
public:
    Sieve(const LineTraits &traits, const LineFilter &filter)
        : m_traits(traits)
    {
        for (std::size_t trait = 0; trait < LineTraitCount; ++trait) {
            for (const QStringList &values : traits.m_sets[trait])
                m_accepted[trait].push_back(filter.choices[trait].accepts(values));
        }
    }
    [[nodiscard]] bool accepts(const Row &row) const
    {
        const Sets sets = m_traits.shown(row);
        for (std::size_t trait = 0; trait < LineTraitCount; ++trait) {
            if (!m_accepted[trait][sets[trait]])
                return false;
        }
        return true;
    }

private:
    const LineTraits &m_traits;
    std::array<std::vector<bool>, LineTraitCount> m_accepted;
};

LineTraits::LineTraits(const ReleaseMappingC &release)
{
    for (std::size_t trait = 0; trait < LineTraitCount; ++trait)
        (void)setOf(LineTrait(trait), {});
    for (int state = 0; state < LineStateCount; ++state)
        m_states[std::size_t(state)] = setOf(LineTrait::State, {lineStateKey(LineState(state))});
    m_projects.resize(std::size_t(release.countMappings()));
    for (int i = 0; i < release.countMappings(); ++i) {
        m_projects[std::size_t(i)].mapping = release.mappingAt(i);
        readStates(m_projects[std::size_t(i)]);
    }
}

std::optional<LineTraits> LineTraits::compute(const ReleaseMappingC &release,
                                              const OpenReasonOptions &options,
                                              const QString &mappingFile, QStringList *errors)
{
    const auto reasons = openReasons(release, options);
    if (!reasons)
        return std::nullopt;
    static const std::atomic<bool> never = false;
    const auto patterns = DifferencePatterns::compute(
        options.sourceRoot, release, options.cancelled ? *options.cancelled : never);
    if (!patterns)
        return std::nullopt;
    LineTraits traits(release);
    std::set<QString> told;
    const auto tell = [&](const QString &error) {
        if (told.insert(error).second)
            *errors += error;
    };
    for (std::size_t i = 0; i < reasons->size(); ++i) {
        traits.addReasons(traits.m_projects[i], (*reasons)[i]);
        std::ranges::for_each((*reasons)[i].errors, tell);
    }
    traits.addDifferences(*patterns);
    if (!mappingFile.isEmpty())
        traits.addAuthors(release, mappingFile, errors);
    return traits;
}

quint16 LineTraits::setOf(LineTrait trait, const QStringList &values)
{
    QHash<QStringList, quint16> &numbers = m_numbers[std::size_t(trait)];
    std::vector<QStringList> &sets = m_sets[std::size_t(trait)];
    const auto known = numbers.constFind(values);
    if (known != numbers.cend())
        return *known;
    // More than any release has; the rest counts as without a value.
    if (sets.size() > std::numeric_limits<quint16>::max())
        return 0;
    const auto number = quint16(sets.size());
    numbers.insert(values, number);
    sets.push_back(values);
    return number;
}

/// Of several entries of a line the first state counts. What else is known of lines stays.
void LineTraits::readStates(Project &project)
{
    std::vector<std::pair<int, quint16>> entries;
    for (int i = 0; i < project.mapping.countTargets(); ++i) {
        for (const LineTable::Iterator &entry : project.mapping.targetAt(i).lines()) {
            const LineState state = lineState(entry.targetLine(), entry.state(), entry.conflict());
            entries.emplace_back(entry.sourceLine(), m_states[std::size_t(state)]);
        }
    }
    std::ranges::sort(entries);
    std::vector<Row> rows;
    rows.reserve(entries.size());
    for (const auto &[line, state] : entries) {
        if (!rows.empty() && rows.back().line == line)
            continue;
        const Row *const known = find(project, line);
        Row row = known ? *known : Row{line, {}};
        row.sets[std::size_t(LineTrait::State)] = state;
        rows.push_back(row);
    }
    project.rows = std::move(rows);
}

LineTraits::Row *LineTraits::find(Project &project, int line)
{
    const auto row = std::ranges::lower_bound(project.rows, line, {}, &Row::line);
    return row != project.rows.end() && row->line == line ? &*row : nullptr;
}

void LineTraits::addReasons(Project &project, const ProjectOpenReasons &reasons)
{
    for (const OpenLineReason &reason : reasons.lines) {
        if (Row *const row = find(project, reason.line))
            row->sets[std::size_t(LineTrait::Reason)] =
                setOf(LineTrait::Reason, {openReasonKey(reason.reason)});
    }
}

void LineTraits::addDifferences(const DifferencePatterns &patterns)
{
    std::vector<std::pair<QList<ValueChange>, std::array<quint16, 2>>> known; // of one pattern
    const auto setsOf = [&](const QList<ValueChange> &changes, bool comparable) {
        const auto same = std::ranges::find(known, changes, [](const auto &k) { return k.first; });
        if (same != known.end())
            return same->second;
        QStringList kinds;
        QStringList columns;
        for (const ValueChange &change : changes) {
            const QString key = changeKey(change.kind);
            if (key.isEmpty())
                continue;
            kinds += key;
            columns += change.variable;
        }
        if (!comparable)
            kinds += QStringLiteral("incomparable");
        for (QStringList *const list : {&kinds, &columns}) {
            list->removeDuplicates();
            list->sort();
        }
        known.push_back(
            {changes, {setOf(LineTrait::Difference, kinds), setOf(LineTrait::Column, columns)}});
        return known.back().second;
    };
    for (const int pattern : patterns.ranked()) {
        known.clear();
        for (const DifferencePatterns::Place &place : patterns.places(pattern)) {
            Row *const row = find(m_projects[std::size_t(place.project)], place.line);
            if (!row)
                continue;
            const auto sets = setsOf(patterns.changesAt(place), patterns.isComparable(pattern));
            row->sets[std::size_t(LineTrait::Difference)] = sets[0];
            row->sets[std::size_t(LineTrait::Column)] = sets[1];
        }
    }
}

void LineTraits::addAuthors(const ReleaseMappingC &release, const QString &mappingFile,
                            QStringList *errors)
{
    DecisionHistory history;
    QString error;
    if (!history.read(mappingFile, &error)) {
        *errors += error;
        return;
    }
    for (const DecisionHistory::Decision &decision : history.decisions()) {
        if (decision.release != release.getSourceDate())
            continue;
        const int position = release.findPosition(decision.path, decision.version, QString());
        Row *const row =
            position < 0 ? nullptr : find(m_projects[std::size_t(position)], decision.line);
        if (row)
            row->sets[std::size_t(LineTrait::Author)] = setOf(LineTrait::Author, {decision.author});
    }
}

void LineTraits::setCarried(const CarriedLines &carried)
{
    m_carried = carried;
    for (Project &project : m_projects)
        readOrigins(project);
}

/// A line that leads elsewhere by now is carried over no longer.
void LineTraits::readOrigins(Project &project)
{
    for (Row &row : project.rows)
        row.sets[std::size_t(LineTrait::Origin)] = 0;
    const quint16 carried = setOf(LineTrait::Origin, {QStringLiteral("carried")});
    for (const int line : m_carried.linesOf(project.mapping)) {
        if (Row *const row = find(project, line))
            row->sets[std::size_t(LineTrait::Origin)] = carried;
    }
}

void LineTraits::setMapping(int position, const PrjMappingC &mapping, const QString &author)
{
    Project &project = m_projects[std::size_t(position)];
    const PrjMappingC former = project.mapping;
    project.mapping = mapping;
    readStates(project);
    if (!m_carried.isEmpty())
        readOrigins(project);
    static const PrjMappingTargetC none;
    const quint16 set = setOf(LineTrait::Author, {author});
    for (int i = 0; i < qMax(former.countTargets(), mapping.countTargets()); ++i) {
        const PrjMappingTargetC &before = i < former.countTargets() ? former.targetAt(i) : none;
        const PrjMappingTargetC &after = i < mapping.countTargets() ? mapping.targetAt(i) : none;
        for (const int line : LineTable::changedLines(before.lines(), after.lines())) {
            if (Row *const row = find(project, line))
                row->sets[std::size_t(LineTrait::Author)] = set;
        }
    }
}

LineTraits::Sets LineTraits::shown(const Row &row) const
{
    Sets sets = row.sets;
    if (sets[std::size_t(LineTrait::State)] <= m_states[std::size_t(LineState::NotFound)])
        return sets;
    for (const LineTrait trait : {LineTrait::Reason, LineTrait::Difference, LineTrait::Column})
        sets[std::size_t(trait)] = 0;
    return sets;
}

std::vector<int> LineTraits::linesOf(int project, const LineFilter &filter) const
{
    const Sieve sieve(*this, filter);
    std::vector<int> lines;
    for (const Row &row : m_projects[std::size_t(project)].rows) {
        if (sieve.accepts(row))
            lines.push_back(row.line);
    }
    return lines;
}

int LineTraits::count(int project, const LineFilter &filter) const
{
    const Sieve sieve(*this, filter);
    return int(std::ranges::count_if(m_projects[std::size_t(project)].rows,
                                     [&](const Row &row) { return sieve.accepts(row); }));
}

bool LineTraits::accepts(int project, int line, const LineFilter &filter) const
{
    const auto &rows = m_projects[std::size_t(project)].rows;
    const auto row = std::ranges::lower_bound(rows, line, {}, &Row::line);
    return row != rows.end() && row->line == line && Sieve(*this, filter).accepts(*row);
}

QHash<QString, int> LineTraits::counts(LineTrait trait, const LineFilter &filter) const
{
    LineFilter others = filter;
    others.of(trait) = {};
    const Sieve sieve(*this, others);
    std::vector<int> bySet(m_sets[std::size_t(trait)].size(), 0);
    for (const Project &project : m_projects) {
        for (const Row &row : project.rows) {
            if (sieve.accepts(row))
                ++bySet[shown(row)[std::size_t(trait)]];
        }
    }
    QHash<QString, int> result;
    for (std::size_t set = 0; set < bySet.size(); ++set) {
        if (bySet[set] == 0)
            continue;
        const QStringList &values = m_sets[std::size_t(trait)][set];
        for (const QString &value : values)
            result[value] += bySet[set];
        if (values.isEmpty())
            result[QString()] += bySet[set];
    }
    return result;
}

} // namespace VelkRelease
