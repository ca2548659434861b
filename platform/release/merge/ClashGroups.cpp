#include "ClashGroups.h"

#include "mergeEntries.h"

#include <QHash>

namespace VelkRelease {

LineWay LineWay::of(const LineStanding &standing)
{
    const auto entry = mainEntry(standing);
    if (!entry)
        return {};
    const PRJMAPPING::CheckState state = entry->line.getState();
    if (entry->line.getTargetLineId() == -1)
        return {state == PRJMAPPING::Verified ? Expired : Removed, {}};
    return {state == PRJMAPPING::Verified ? Confirmed
            : state == PRJMAPPING::Mapped ? Assigned
                                          : ToCheck,
            entry->target};
}

QList<ClashGroup> groupClashes(const QList<MergeClash> &clashes)
{
    QList<ClashGroup> groups;
    QHash<QStringList, qsizetype> known;
    for (int i = 0; i < clashes.size(); ++i) {
        const MergeClash &clash = clashes[i];
        if (clash.kind != MergeClash::Line)
            continue;
        const LineWay ours = LineWay::of(clash.ours);
        const LineWay theirs = LineWay::of(clash.theirs);
        const QStringList key = {
            clash.sourcePath, clash.sourceVersion,          QString::number(ours.kind),
            ours.target,      QString::number(theirs.kind), theirs.target};
        const auto found = known.constFind(key);
        const qsizetype at = found == known.cend() ? groups.size() : *found;
        if (found == known.cend()) {
            known.insert(key, at);
            groups.append({clash.sourcePath, clash.sourceVersion, ours, theirs, {}});
        }
        groups[at].clashes << i;
    }
    return groups;
}

} // namespace VelkRelease
