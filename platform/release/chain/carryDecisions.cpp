#include "carryDecisions.h"

#include "chainReleases.h"

#include <geomcore/records/MappingFile.h>
#include <release/assign/ReleaseAssigner.h>
#include <release/assign/ReleaseMappingBuilder.h>

#include <QHash>
#include <QSet>

#include <algorithm>
#include <utility>

namespace VelkRelease {

namespace {

/// A target line of a release, by its project's path.
using TargetLine = std::pair<QString, int>;

QString catalogOf(const QString &path)
{
    return QString(path).replace(u'\\', u'/').section(u'/', 0, 0, QString::SectionSkipEmpty);
}

/// Catalogs that a release leads to, in the order of their first projects.
QStringList targetCatalogs(const ReleaseMappingC &release)
{
    QStringList catalogs;
    for (int i = 0; i < release.countMappings(); ++i) {
        for (const PrjMappingTargetC &target : release.mappingAt(i).getTargets()) {
            const QString catalog = catalogOf(target.getTargetPath());
            if (!target.isNotFoundTarget() && !catalogs.contains(catalog))
                catalogs.append(catalog);
        }
    }
    return catalogs;
}

QStringList targetPaths(const ReleaseMappingC &release)
{
    QSet<QString> paths;
    for (int i = 0; i < release.countMappings(); ++i) {
        for (const PrjMappingTargetC &target : release.mappingAt(i).getTargets()) {
            if (!target.isNotFoundTarget())
                paths.insert(target.getTargetPath());
        }
    }
    return {paths.cbegin(), paths.cend()};
}

/// Only what somebody confirmed to have a line.
PrjMappingC settledOf(PrjMappingC mapping)
{
    for (int index = 0; index < mapping.countTargets(); ++index) {
        const PrjMappingTargetC before = mapping.targetAt(index);
        mapping.changeTarget(index, [&](PrjMappingTargetC &target) {
            for (const LineTable::Iterator &entry : before.lines()) {
                if (entry.state() != PRJMAPPING::Verified || entry.targetLine() < 0 ||
                    entry.conflict() || before.isNotFoundTarget())
                    target.removeLineId(entry.sourceLine());
            }
        });
    }
    return mapping;
}

bool mayBeReplaced(const PrjMappingC &mapping, int line)
{
    for (int index = 0; index < mapping.countTargets(); ++index) {
        const LineTable::Iterator entry = mapping.targetAt(index).lines().find(line);
        if (entry && (entry.state() != PRJMAPPING::ToCheck || entry.conflict() || entry.extended()))
            return false;
    }
    return true;
}

int indexOfTarget(PrjMappingC &mapping, const PrjMappingTargetC &wanted)
{
    for (int index = 0; index < mapping.countTargets(); ++index) {
        if (mapping.targetAt(index).getTargetPath() == wanted.getTargetPath())
            return index;
    }
    PrjMappingTargetC added;
    added.setValid(wanted.isValid());
    added.setTargetPath(wanted.getTargetPath());
    added.setTargetVersion(wanted.getTargetVersion());
    added.setTabVersion(wanted.getTabVersion());
    const int notFound = mapping.getNotFoundTarget(); // stays last
    return notFound < 0 ? mapping.addTarget(added) : mapping.insertTarget(notFound, added);
}

/// How many lines have a target line, proposals left out.
class Claims
{
public:
    explicit Claims(const ReleaseMappingC &release)
    {
        for (int i = 0; i < release.countMappings(); ++i) {
            for (const PrjMappingTargetC &target : release.mappingAt(i).getTargets()) {
                for (const LineTable::Iterator &entry : target.lines()) {
                    if (entry.state() != PRJMAPPING::ToCheck && entry.targetLine() >= 0)
                        add({target.getTargetPath(), entry.targetLine()});
                }
            }
        }
    }
    void add(const TargetLine &line) { ++m_counts[line]; }
    [[nodiscard]] bool isShared(const TargetLine &line) const { return m_counts.value(line) > 1; }

private:
    QHash<TargetLine, int> m_counts;
};

/// Everything about what was confirmed but what depends on the later release.
void countConfirmed(const PrjMappingC &from, const ReleaseMappingC &release, CarryOutcome &outcome)
{
    const int position =
        release.findPosition(from.getSourcePath(), from.getSourceVersion(), QString());
    const PrjMappingC mapping = position < 0 ? PrjMappingC() : release.mappingAt(position);
    for (const PrjMappingTargetC &target : from.getTargets()) {
        for (const LineTable::Iterator &entry : target.lines()) {
            if (entry.state() != PRJMAPPING::Verified)
                continue;
            ++outcome.confirmed;
            if (entry.conflict())
                ++outcome.clashing;
            else if (entry.targetLine() < 0 || target.isNotFoundTarget())
                ++outcome.expired;
            else if (position < 0)
                ++outcome.unknown;
            else if (!mayBeReplaced(mapping, entry.sourceLine()))
                ++outcome.settled;
        }
    }
}

/// Lines of one project that a chain proposes.
struct Proposal
{
    int position;
    int line;
    PrjMappingTargetC target;
    int targetLine;
    bool isCertain;
};

void addProposals(std::vector<Proposal> &proposals, const PrjMappingC &mapping, int position,
                  const PrjMappingC &chained)
{
    for (const PrjMappingTargetC &target : chained.getTargets()) {
        if (target.isNotFoundTarget())
            continue;
        for (const LineTable::Iterator &entry : target.lines()) {
            if (entry.targetLine() >= 0 && mayBeReplaced(mapping, entry.sourceLine()))
                proposals.push_back({position, entry.sourceLine(), target, entry.targetLine(),
                                     entry.state() != PRJMAPPING::ToCheck});
        }
    }
}

} // namespace

FormerMapping readFormerMapping(const QString &file, const ReleaseMappingC &release)
{
    FormerMapping former;
    const QString date = release.getSourceDate();
    MappingFile reader;
    if (!reader.read(file, date, &former.error)) {
        former.fault = FormerFault::Unreadable;
    } else if (!reader.contains(date)) {
        former.fault = FormerFault::OtherSource;
    } else {
        former.release = reader.release(date);
        if (former.release.getTargetDate() == release.getTargetDate())
            former.fault = FormerFault::SameTarget;
    }
    return former;
}

std::optional<ReleaseMappingC> followingRelease(const ReleaseMappingC &former,
                                                const ReleaseMappingC &release,
                                                const FollowingOptions &options,
                                                QStringList &errors)
{
    static const std::atomic<bool> never = false;
    const std::atomic<bool> &cancelled = options.cancelled ? *options.cancelled : never;
    const QStringList wanted = targetPaths(former);
    const QStringList catalogs = targetCatalogs(release);
    ReleaseMappingC following;
    following.setSourceDate(former.getTargetDate());
    following.setTargetDate(release.getTargetDate());
    for (const QString &catalog : targetCatalogs(former)) {
        if (cancelled)
            return std::nullopt;
        if (catalogs.isEmpty())
            break;
        ReleaseMappingBuilder builder({options.formerRoot, options.targetRoot, catalog,
                                       catalogs.contains(catalog) ? catalog : catalogs.first(),
                                       former.getTargetDate(), release.getTargetDate(),
                                       options.progressText});
        if (builder.build() == ReleaseMappingBuilder::Outcome::Cancelled)
            return std::nullopt;
        errors += builder.messages();
        const ReleaseMappingC &built = builder.release();
        for (int i = 0; i < built.countMappings(); ++i) {
            if (wanted.contains(built.mappingAt(i).getSourcePath()))
                following.appendMapping(built.mappingAt(i));
        }
    }
    ReleaseAssigner assigner(options.formerRoot);
    assigner.setObserver([&options](const ReleaseAssigner::Progress &now) {
        if (options.tell)
            options.tell(now.projects, now.totalProjects);
    });
    (void)assigner.run(following, cancelled);
    errors += assigner.errors();
    if (cancelled)
        return std::nullopt;
    return following;
}

CarryOutcome carryDecisions(ReleaseMappingC &release, const ReleaseMappingC &former,
                            const ReleaseMappingC &following)
{
    CarryOutcome outcome;
    for (int i = 0; i < former.countMappings(); ++i)
        countConfirmed(former.mappingAt(i), release, outcome);
    ReleaseMappingC settled = former.head();
    for (int i = 0; i < former.countMappings(); ++i)
        settled.appendMapping(settledOf(former.mappingAt(i)));
    const ReleaseMappingC chained = chainReleases(settled, following);
    std::vector<Proposal> proposals;
    for (int i = 0; i < chained.countMappings(); ++i) {
        const PrjMappingC from = chained.mappingAt(i);
        const int position =
            release.findPosition(from.getSourcePath(), from.getSourceVersion(), QString());
        if (position >= 0)
            addProposals(proposals, release.mappingAt(position), position, from);
    }
    Claims claims(release);
    for (const Proposal &proposal : proposals)
        claims.add({proposal.target.getTargetPath(), proposal.targetLine});
    std::stable_sort(proposals.begin(), proposals.end(), [](const Proposal &a, const Proposal &b) {
        return std::pair(a.position, a.line) < std::pair(b.position, b.line);
    });
    outcome.lines.reserve(proposals.size());
    for (const Proposal &proposal : proposals) {
        PrjMappingC mapping = release.mappingAt(proposal.position);
        const int index = indexOfTarget(mapping, proposal.target);
        const QString path = proposal.target.getTargetPath();
        const bool isCertain = proposal.isCertain &&
                               mapping.targetAt(index).getConditions().isEmpty() &&
                               !claims.isShared({path, proposal.targetLine});
        for (int other = 0; other < mapping.countTargets(); ++other)
            mapping.changeTarget(
                other, [&](PrjMappingTargetC &target) { target.removeLineId(proposal.line); });
        mapping.changeTarget(index, [&](PrjMappingTargetC &target) {
            target.addLineId(proposal.line, proposal.targetLine,
                             isCertain ? PRJMAPPING::Mapped : PRJMAPPING::ToCheck, QString());
        });
        const int notFound = mapping.getNotFoundTarget();
        if (notFound >= 0 && mapping.targetAt(notFound).countLines() == 0)
            mapping.removeTarget(notFound);
        mapping.updateMappingState();
        release.addMapping(mapping);
        outcome.lines.push_back({mapping.getSourcePath(), mapping.getSourceVersion(), proposal.line,
                                 path, proposal.targetLine, isCertain});
    }
    outcome.unfollowed = outcome.confirmed - int(outcome.lines.size()) - outcome.expired -
                         outcome.clashing - outcome.unknown - outcome.settled;
    return outcome;
}

} // namespace VelkRelease
