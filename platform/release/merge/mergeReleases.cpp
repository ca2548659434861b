#include "mergeReleases.h"

#include "matchThree.h"
#include "mergeOrder.h"
#include "ProjectMerge.h"
#include "threeWay.h"

#include <geomcore/records/MappingChangeType.h>
#include <geomcore/records/sameTargetHead.h>

namespace VelkRelease {

namespace {

MatchKeys keysOf(const ReleaseMappingC &release)
{
    MatchKeys keys;
    keys.exact.reserve(release.countMappings());
    keys.loose.reserve(release.countMappings());
    for (int i = 0; i < release.countMappings(); ++i) {
        const PrjMappingC mapping = release.mappingAt(i);
        const QString path = mapping.getSourcePath();
        keys.exact << path + QChar(u'\0') + mapping.getSourceVersion() + QChar(u'\0') +
                          mapping.getTabVersion();
        keys.loose << path;
    }
    return keys;
}

/// The merge of three releases, project by project.
class ReleaseMerge
{
public:
    ReleaseMerge(const ReleaseMappingC &base, const ReleaseMappingC &ours,
                 const ReleaseMappingC &theirs, const MergeOptions &options)
        : m_base(base)
        , m_ours(ours)
        , m_theirs(theirs)
        , m_options(options)
        , m_slots(matchThree(keysOf(base), keysOf(ours), keysOf(theirs)))
    {
    }

    MergeResult run();

private:
    void mergeDates();
    void mergeReplacements();
    [[nodiscard]] PrjMappingC merged(const ThreePlaces &at);
    [[nodiscard]] PrjMappingC left(const PrjMappingC &base, const PrjMappingC &side, bool isOurs);
    [[nodiscard]] MergedOrder order(const std::vector<PrjMappingC> &mappings) const;
    void tell(MappingChangeMap &map, const QString &path, MappingChange change) const;

    const ReleaseMappingC &m_base;
    const ReleaseMappingC &m_ours;
    const ReleaseMappingC &m_theirs;
    const MergeOptions &m_options;
    std::vector<ThreePlaces> m_slots;
    MergeResult m_result;
};

MergeResult ReleaseMerge::run()
{
    mergeDates();
    mergeReplacements();
    // It changes only with a release that is created anew.
    m_result.release.setLearned(
        m_theirs.getLearned() == m_base.getLearned() ? m_ours.getLearned() : m_theirs.getLearned());
    std::vector<PrjMappingC> mappings(m_slots.size());
    for (size_t slot = 0; slot < m_slots.size(); ++slot)
        mappings[slot] = merged(m_slots[slot]);
    for (const int slot : order(mappings).order)
        m_result.release.appendMapping(mappings[size_t(slot)]);
    return std::move(m_result);
}

void ReleaseMerge::mergeDates()
{
    m_result.release.setSourceDate(m_theirs.getSourceDate());
    const auto date =
        threeWay(m_base.getTargetDate(), m_ours.getTargetDate(), m_theirs.getTargetDate());
    m_result.release.setTargetDate(date.value_or(m_theirs.getTargetDate()));
    if (date)
        return;
    MergeClash clash;
    clash.kind = MergeClash::TargetDate;
    m_result.clashes.append(clash);
}

/// What either side agreed to or withdrew, theirs first. That both agreed to different new values
/// for one old value is no clash: it makes proposals only, and either can be withdrawn.
void ReleaseMerge::mergeReplacements()
{
    const QList<AgreedReplacement> base = m_base.getReplacements();
    const QList<AgreedReplacement> ours = m_ours.getReplacements();
    const QList<AgreedReplacement> theirs = m_theirs.getReplacements();
    QList<AgreedReplacement> merged;
    for (const AgreedReplacement &replacement : theirs) {
        if (ours.contains(replacement) || !base.contains(replacement))
            merged.append(replacement);
    }
    for (const AgreedReplacement &replacement : ours) {
        if (!theirs.contains(replacement) && !base.contains(replacement))
            merged.append(replacement);
    }
    m_result.release.setReplacements(merged);
}

PrjMappingC ReleaseMerge::merged(const ThreePlaces &at)
{
    const PrjMappingC base = m_base.mappingAt(at.base);
    PrjMappingC ours = m_ours.mappingAt(at.ours);
    const PrjMappingC theirs = m_theirs.mappingAt(at.theirs);
    if (!ours.isValid() && !theirs.isValid())
        return {};
    if (!ours.isValid())
        return left(base, theirs, false);
    if (!theirs.isValid())
        return left(base, ours, true);
    if (sameMapping(base, theirs))
        return ours;
    ProjectMerge merge(base, ours, theirs, m_options);
    const PrjMappingC result = merge.run(m_theirs.getSourceDate(), m_result);
    return sameMapping(base, ours) || sameMapping(ours, theirs) ? theirs : result;
}

/// A mapping that one side alone has: it came, or the other side removed it.
PrjMappingC ReleaseMerge::left(const PrjMappingC &base, const PrjMappingC &side, bool isOurs)
{
    const QString path = side.getSourcePath();
    MappingChange removed;
    removed.type = MappingChangeType::MappingRemoved;
    removed.removedMapping = base;
    if (!base.isValid()) {
        MappingChange added;
        added.type = MappingChangeType::MappingAdded;
        added.addedMapping = side;
        if (!isOurs)
            tell(m_result.online, path, added);
        return side;
    }
    if (isOurs)
        tell(m_result.online, path, removed);
    if (sameMapping(base, side))
        return {};
    MergeClash clash;
    clash.kind = MergeClash::ProjectRemoved;
    clash.sourcePath = path;
    clash.sourceVersion = side.getSourceVersion();
    clash.removedByOurs = !isOurs;
    m_result.clashes.append(clash);
    if (!isOurs) {
        tell(m_result.local, path, removed);
        ProjectMerge merge(base, base, side, m_options);
        (void)merge.run(m_theirs.getSourceDate(), m_result);
    }
    return side;
}

MergedOrder ReleaseMerge::order(const std::vector<PrjMappingC> &mappings) const
{
    OrderInput input;
    const auto sequence = [&](const ReleaseMappingC &release, int ThreePlaces::*place) {
        std::vector<int> slots(size_t(release.countMappings()));
        for (size_t slot = 0; slot < m_slots.size(); ++slot) {
            if (const int at = m_slots[slot].*place; at != -1)
                slots[size_t(at)] = int(slot);
        }
        return slots;
    };
    input.base = sequence(m_base, &ThreePlaces::base);
    input.ours = sequence(m_ours, &ThreePlaces::ours);
    input.theirs = sequence(m_theirs, &ThreePlaces::theirs);
    return mergeOrder(
        input, [&](int slot) { return mappings[size_t(slot)].isValid(); },
        [&](int slot) { return mappings[size_t(slot)].getSourcePath(); });
}

void ReleaseMerge::tell(MappingChangeMap &map, const QString &path, MappingChange change) const
{
    change.text1 = m_options.author;
    change.text2 = m_options.time;
    map.insert({m_theirs.getSourceDate(), path}, change);
}

} // namespace

MergeResult mergeReleases(const ReleaseMappingC &base, const ReleaseMappingC &ours,
                          const ReleaseMappingC &theirs, const MergeOptions &options)
{
    return ReleaseMerge(base, ours, theirs, options).run();
}

} // namespace VelkRelease
