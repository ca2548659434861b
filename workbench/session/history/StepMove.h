#pragma once

#include "UndoStep.h"

#include <QSet>

/// Takes a step back, or again, on a release that may have gone on since; nothing changes by
/// itself.
class StepMove
{
public:
    StepMove(const ReleaseMappingC &now, const UndoStep &step, bool back);

    [[nodiscard]] bool fits() const
    {
        return !m_dateBlocks && !m_replacementsBlock && m_blocked.isEmpty();
    }
    /// If it fits.
    [[nodiscard]] const ReleaseMappingC &result() const { return m_result; }
    /// What that changes, one for each project.
    [[nodiscard]] const QList<MappingChangePair> &changes() const { return m_changes; }
    /// The release's own members, or its list of projects, change too.
    [[nodiscard]] bool changesRelease() const { return m_changesRelease; }
    /// Whether these changes touch what stands in the way.
    [[nodiscard]] bool isBlockedBy(const StepChanges &changes) const;

private:
    /// A line of a project; -1: its targets.
    using Place = QPair<QString, int>;

    [[nodiscard]] bool isQuick(const UndoStep &step, bool back);
    void apply(const StepChanges &changes);
    void apply(const MappingDifference &change);
    void noteChange(const PrjMappingC &before, const PrjMappingC &after);

    ReleaseMappingC m_result;
    QList<MappingChangePair> m_changes;
    QSet<Place> m_blocked;
    bool m_dateBlocks = false;
    bool m_replacementsBlock = false;
    bool m_changesRelease = false;
};
