#include "DifferencePatterns.h"

#include <geomcore/records/LineTable.h>
#include <release/assign/ParallelSteps.h>

#include <algorithm>

namespace VelkRelease {

namespace {

/// Nobody has to be sure that what is not there any more is gone.
double probabilityOf(const OpenPair &pair)
{
    return pair.gone && pair.gone->isTableGone ? 1 : pair.probability;
}

bool isSure(const OpenPair &pair)
{
    return pair.comparable && !pair.gone && pair.probability >= DifferencePatterns::SureFrom;
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
    m_mixture = m_groups.mixture();
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

void DifferencePatterns::enter(Project &project, int position, const OpenPair &pair,
                               const QList<ValueChange> &own)
{
    Known &known = project.lines[pair.line];
    known.target = pair.target;
    known.targetLine = pair.targetLine;
    const ChangeGroups::Shown shown =
        isSure(pair) ? m_groups.shownFor(own, pair) : ChangeGroups::Shown{own};
    known.probability = probabilityOf(pair);
    const bool doubtful = known.probability < SureFrom;
    known.pattern = pair.gone
                        ? m_table.goneFor(m_goneFamilies.groupOf(pair, project.mapping), doubtful)
                    : shown.isUsual ? m_table.partFor(m_mixture, shown.changes)
                                    : m_table.patternFor(shown.changes, pair.comparable, doubtful);
    if (shown.changes == own && !shown.isUsual)
        m_own.erase({position, pair.line});
    else
        m_own[{position, pair.line}] = own;
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
    (gone(known.pattern) ? m_goneLines : m_openLines) += step;
    if (open)
        m_table.add(known.pattern, {position, line}, known.probability);
    else
        m_table.remove(known.pattern, {position, line});
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

int DifferencePatterns::patternOf(const Place &place) const
{
    if (place.project < 0 || size_t(place.project) >= m_projects.size())
        return -1;
    const auto &lines = m_projects[size_t(place.project)].lines;
    const auto found = lines.find(place.line);
    return found == lines.end() || !found->second.open || found->second.pattern < 0
               ? -1
               : m_table.wholeOf(found->second.pattern);
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

} // namespace VelkRelease
