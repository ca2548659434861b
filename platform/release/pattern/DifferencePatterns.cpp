#include "DifferencePatterns.h"

#include <geomcore/records/LineTable.h>
#include <release/assign/ParallelSteps.h>

#include <algorithm>
#include <cmath>

namespace VelkRelease {

namespace {

constexpr double ProbabilitySteps = 1e9;

/// The number of a name; \a next if the name is new.
int numberFor(QHash<QString, int> &numbers, const QString &name, int next)
{
    const auto known = numbers.constFind(name);
    return known != numbers.cend() ? *known : *numbers.insert(name, next);
}

/// Nobody has to be sure that what is not there any more is gone.
double probabilityOf(const OpenPair &pair)
{
    return pair.gone && pair.gone->isTableGone ? 1 : pair.probability;
}

bool isSure(const OpenPair &pair)
{
    return pair.comparable && !pair.gone && pair.probability >= DifferencePatterns::SureFrom;
}

bool contains(const std::vector<int> &all, const std::vector<int> &some)
{
    return std::includes(all.begin(), all.end(), some.begin(), some.end());
}

/// Lines whose entry in any target may differ between two mappings; all if targets came or went.
std::vector<int> changedLines(const PrjMappingC &before, const PrjMappingC &after)
{
    std::vector<int> lines;
    const LineTable none;
    const int targets = std::max(before.countTargets(), after.countTargets());
    for (int i = 0; i < targets; ++i) {
        const LineTable &from = i < before.countTargets() ? before.targetAt(i).lines() : none;
        const LineTable &to = i < after.countTargets() ? after.targetAt(i).lines() : none;
        const std::vector<int> changed = LineTable::changedLines(from, to);
        lines.insert(lines.end(), changed.begin(), changed.end());
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
}

/// The targets are the same, whatever their lines.
bool haveSameTargets(const PrjMappingC &a, const PrjMappingC &b)
{
    if (a.countTargets() != b.countTargets())
        return false;
    for (int i = 0; i < a.countTargets(); ++i) {
        if (a.targetAt(i).getTargetPath() != b.targetAt(i).getTargetPath())
            return false;
    }
    return true;
}

} // namespace

DifferencePatterns::DifferencePatterns(const ReleaseMappingC &release,
                                       const std::vector<Read> &pairs)
    : m_groups(release.getReplacements())
    , m_goneFamilies(release)
{
    m_projects.resize(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        m_projects[i].mapping = release.mappingAt(int(i));
        m_goneFamilies.count(pairs[i].pairs, m_projects[i].mapping);
        m_groups.count(pairs[i].pairs, m_projects[i].mapping);
    }
    std::vector<std::vector<QList<ValueChange>>> own(pairs.size());
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        for (const OpenPair &pair : pairs[i].pairs) {
            own[i].push_back(m_groups.ownOf(pair, m_projects[i].mapping));
            if (isSure(pair))
                m_groups.countTogether(own[i].back(), pair);
        }
    }
    for (std::size_t i = 0; i < pairs.size(); ++i)
        m_goneFamilies.choose(pairs[i].pairs, m_projects[i].mapping);
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        for (std::size_t j = 0; j < own[i].size(); ++j) {
            if (isSure(pairs[i].pairs[j]))
                m_groups.countShown(own[i][j], pairs[i].pairs[j]);
        }
    }
    for (std::size_t i = 0; i < pairs.size(); ++i) {
        for (std::size_t j = 0; j < own[i].size(); ++j)
            enter(m_projects[i], int(i), pairs[i].pairs[j], own[i][j]);
        m_errors += pairs[i].errors;
    }
}

std::optional<DifferencePatterns> DifferencePatterns::compute(
    const QString &sourceRoot, const ReleaseMappingC &release, const std::atomic<bool> &cancelled,
    const std::function<bool(int)> &wanted, const std::function<void(int)> &tell)
{
    std::vector<Read> pairs(size_t(release.countMappings()));
    const bool done = runParallelSteps(
        release.countMappings(),
        [&](int i) {
            if (wanted && !wanted(i))
                return;
            const PrjMappingC mapping = release.mappingAt(i);
            Read &read = pairs[size_t(i)];
            std::vector<OpenProposal> lines = openProposals(mapping);
            for (const int line : linesWithoutProposal(mapping))
                lines.push_back({line, -1, -1});
            read.pairs =
                readOpenPairs(sourceRoot, mapping, release, lines, read.errors, &cancelled);
        },
        cancelled, tell);
    if (!done)
        return std::nullopt;
    return DifferencePatterns(release, pairs);
}

/// Ascending.
std::vector<int> DifferencePatterns::changeIds(const QList<ValueChange> &changes)
{
    std::vector<int> ids;
    ids.reserve(size_t(changes.size()));
    for (const ValueChange &change : changes) {
        const int id = numberFor(m_changeOf, change.lookUpName(), int(m_having.size()));
        if (size_t(id) == m_having.size())
            m_having.emplace_back();
        ids.push_back(id);
    }
    std::sort(ids.begin(), ids.end());
    return ids;
}

int DifferencePatterns::patternFor(const OpenPair &pair, const QList<ValueChange> &changes)
{
    const std::vector<int> ids = changeIds(changes);
    const bool doubtful = pair.comparable && pair.probability < SureFrom;
    QString name = !pair.comparable ? QStringLiteral("-")
                   : doubtful       ? QStringLiteral("?")
                                    : QString();
    for (const int id : ids)
        name += QString::number(id) + u' ';
    const int next = count();
    const int pattern = numberFor(m_patternOf, name, next);
    if (pattern < next)
        return pattern;
    m_patterns.push_back({changes, pair.comparable, doubtful, {}, {}, 0, 0, {}});
    m_changesOf.push_back(ids);
    noteLarger(next);
    for (const int id : ids)
        m_having[size_t(id)].push_back(next);
    return next;
}

int DifferencePatterns::goneFor(const OpenPair &pair, const PrjMappingC &mapping)
{
    const GoneGroup group = m_goneFamilies.groupOf(pair, mapping);
    const bool doubtful = probabilityOf(pair) < SureFrom;
    const QString name = QStringList{QStringLiteral("gone"),
                                     doubtful ? QStringLiteral("?") : QString(),
                                     group.key(),
                                     group.place,
                                     group.variable,
                                     group.value}
                             .join(QChar(0x1f));
    const int next = count();
    const int pattern = numberFor(m_patternOf, name, next);
    if (pattern == next) {
        m_patterns.push_back({{}, true, doubtful, group, {}, 0, 0, {}});
        m_changesOf.emplace_back();
    }
    return pattern;
}

/// Finds the patterns that have all changes of a new one, and those all of whose changes it has.
void DifferencePatterns::noteLarger(int pattern)
{
    const std::vector<int> &own = m_changesOf[size_t(pattern)];
    std::vector<int> others;
    for (const int id : own)
        others.insert(others.end(), m_having[size_t(id)].begin(), m_having[size_t(id)].end());
    std::sort(others.begin(), others.end());
    others.erase(std::unique(others.begin(), others.end()), others.end());
    for (const int other : others) {
        const std::vector<int> &its = m_changesOf[size_t(other)];
        if (its.size() == own.size())
            continue;
        if (contains(its, own))
            m_patterns[size_t(pattern)].larger.push_back(other);
        else if (contains(own, its))
            m_patterns[size_t(other)].larger.push_back(pattern);
    }
}

void DifferencePatterns::enter(Project &project, int position, const OpenPair &pair,
                               const QList<ValueChange> &own)
{
    Known &known = project.lines[pair.line];
    known.target = pair.target;
    known.targetLine = pair.targetLine;
    const QList<ValueChange> shown = isSure(pair) ? m_groups.shownFor(own, pair) : own;
    known.pattern = pair.gone ? goneFor(pair, project.mapping) : patternFor(pair, shown);
    if (shown == own)
        m_own.erase({position, pair.line});
    else
        m_own[{position, pair.line}] = own;
    known.probability = probabilityOf(pair);
    known.open = false;
    setOpen(project, position, pair.line, known, true);
}

/// Of a line that is no longer, or again, as it was.
void DifferencePatterns::setOpen(Project &project, int position, int line, Known &known, bool open)
{
    if (known.open == open)
        return;
    known.open = open;
    const int step = open ? 1 : -1;
    if (known.pattern < 0) {
        project.pending += step;
        m_pendingLines += step;
        m_pendingGone += known.targetLine == -1 ? step : 0;
        return;
    }
    (m_patterns[size_t(known.pattern)].gone ? m_goneLines : m_openLines) += step;
    Pattern &pattern = m_patterns[size_t(known.pattern)];
    pattern.lines += step;
    pattern.sum += step * qint64(std::llround(known.probability * ProbabilitySteps));
    if (open) {
        pattern.open[position][line] = known.probability;
        return;
    }
    const auto lines = pattern.open.find(position);
    lines->second.erase(line);
    if (lines->second.empty())
        pattern.open.erase(lines);
}

void DifferencePatterns::setMapping(int position, const PrjMappingC &mapping)
{
    if (position < 0)
        return;
    if (size_t(position) >= m_projects.size())
        m_projects.resize(size_t(position) + 1);
    Project &project = m_projects[size_t(position)];
    const PrjMappingC before = project.mapping;
    project.mapping = mapping;
    const bool kept = haveSameTargets(before, mapping);
    for (const int line : changedLines(before, mapping)) {
        OpenProposal proposal = openProposal(mapping, line);
        if (proposal.line < 0 && isWithoutProposal(mapping, line))
            proposal.line = line;
        const auto found = project.lines.find(line);
        const bool isKnown = found != project.lines.end();
        if (proposal.line < 0) {
            if (isKnown)
                setOpen(project, position, line, found->second, false);
            continue;
        }
        if (isKnown && kept && found->second.target == proposal.target &&
            found->second.targetLine == proposal.targetLine) {
            setOpen(project, position, line, found->second, true);
            continue;
        }
        if (isKnown)
            setOpen(project, position, line, found->second, false);
        Known &fresh = project.lines[line];
        fresh = {proposal.target, proposal.targetLine, -1, false, 0};
        setOpen(project, position, line, fresh, true);
    }
}

std::vector<std::pair<int, std::vector<OpenProposal>>> DifferencePatterns::pending() const
{
    std::vector<std::pair<int, std::vector<OpenProposal>>> result;
    for (std::size_t i = 0; i < m_projects.size(); ++i) {
        if (m_projects[i].pending == 0)
            continue;
        std::vector<OpenProposal> lines;
        for (const auto &[line, known] : m_projects[i].lines) {
            if (known.open && known.pattern < 0)
                lines.push_back({line, known.target, known.targetLine});
        }
        result.emplace_back(int(i), std::move(lines));
    }
    return result;
}

void DifferencePatterns::add(int position, const std::vector<OpenPair> &pairs)
{
    if (position < 0 || size_t(position) >= m_projects.size())
        return;
    Project &project = m_projects[size_t(position)];
    for (const OpenPair &pair : pairs) {
        const auto found = project.lines.find(pair.line);
        if (found == project.lines.end() || !found->second.open ||
            found->second.target != pair.target || found->second.targetLine != pair.targetLine)
            continue;
        setOpen(project, position, pair.line, found->second, false);
        enter(project, position, pair, m_groups.ownOf(pair, project.mapping));
    }
}

DifferencePatterns::Numbers DifferencePatterns::numbers(int index) const
{
    const Pattern &pattern = m_patterns[size_t(index)];
    Numbers numbers{pattern.lines, int(pattern.open.size()), 0, 0};
    if (pattern.lines > 0)
        numbers.probability = double(pattern.sum) / (ProbabilitySteps * pattern.lines);
    for (const int other : pattern.larger)
        numbers.exceptions += m_patterns[size_t(other)].lines;
    return numbers;
}

std::vector<int> DifferencePatterns::ranked(bool gone) const
{
    std::vector<int> ranked;
    for (int i = 0; i < count(); ++i) {
        if (m_patterns[size_t(i)].lines > 0 && m_patterns[size_t(i)].gone.has_value() == gone)
            ranked.push_back(i);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [this](int a, int b) {
        return m_patterns[size_t(a)].lines > m_patterns[size_t(b)].lines;
    });
    return ranked;
}

std::vector<DifferencePatterns::Place> DifferencePatterns::places(int pattern, int most) const
{
    std::vector<Place> places;
    for (const auto &[project, lines] : m_patterns[size_t(pattern)].open) {
        for (const auto &[line, probability] : lines) {
            if (most >= 0 && int(places.size()) == most)
                return places;
            places.push_back({project, line});
        }
    }
    return places;
}

std::vector<int> DifferencePatterns::lines(int pattern, int project) const
{
    std::vector<int> lines;
    const auto &open = m_patterns[size_t(pattern)].open;
    const auto found = open.find(project);
    if (found == open.end())
        return lines;
    lines.reserve(found->second.size());
    for (const auto &[line, probability] : found->second)
        lines.push_back(line);
    return lines;
}

std::vector<DifferencePatterns::Place> DifferencePatterns::exceptions(int pattern, int most) const
{
    std::vector<Place> found;
    for (const int other : m_patterns[size_t(pattern)].larger) {
        const std::vector<Place> some = places(other, most);
        found.insert(found.end(), some.begin(), some.end());
    }
    std::sort(found.begin(), found.end());
    if (most >= 0 && int(found.size()) > most)
        found.resize(size_t(most));
    return found;
}

int DifferencePatterns::patternOf(const Place &place) const
{
    if (place.project < 0 || size_t(place.project) >= m_projects.size())
        return -1;
    const auto &lines = m_projects[size_t(place.project)].lines;
    const auto found = lines.find(place.line);
    return found == lines.end() || !found->second.open ? -1 : found->second.pattern;
}

QList<ValueChange> DifferencePatterns::changesAt(const Place &place) const
{
    const auto own = m_own.find(place);
    if (own != m_own.end())
        return own->second;
    const int pattern = patternOf(place);
    return pattern < 0 ? QList<ValueChange>() : changes(pattern);
}

std::optional<double> DifferencePatterns::probability(const Place &place) const
{
    if (patternOf(place) < 0)
        return std::nullopt;
    return m_projects[size_t(place.project)].lines.at(place.line).probability;
}

std::vector<DifferencePatterns::Place> DifferencePatterns::leastSure() const
{
    std::vector<std::pair<double, Place>> sorted;
    sorted.reserve(size_t(m_openLines));
    for (const Pattern &pattern : m_patterns) {
        if (pattern.gone)
            continue;
        for (const auto &[project, lines] : pattern.open) {
            for (const auto &[line, probability] : lines)
                sorted.push_back({probability, {project, line}});
        }
    }
    std::sort(sorted.begin(), sorted.end());
    std::vector<Place> places;
    places.reserve(sorted.size());
    for (const auto &[probability, place] : sorted)
        places.push_back(place);
    return places;
}

} // namespace VelkRelease
