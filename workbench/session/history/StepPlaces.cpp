#include "StepPlaces.h"

#include "UndoStep.h"

#include <algorithm>

namespace {

bool isWhole(const MappingDifference &change)
{
    return change.validBefore != change.validAfter ||
           change.project.tabVersion != change.tabVersionAfter;
}

} // namespace

template<class Visit>
bool StepPlaces::visitAll(const MappingDifference &change, Visit visit)
{
    const QString &project = change.project.path;
    for (const MappingDifference::TargetPair &target : change.targets) {
        const QString &path = target.before >= 0 ? target.headBefore.path : target.headAfter.path;
        // That of the lines without target comes and goes with them.
        if (target.headDiffers && !path.isEmpty() && !visit(Place{project, path, -1}))
            return false;
        for (const LineDifference &line : target.lines) {
            if (!visit(Place{project, {}, line.line}))
                return false;
        }
    }
    return true;
}

StepPlaces::StepPlaces(const StepChanges &changes)
    : m_targetDate(changes.targetDate)
    , m_replacements(changes.replacements)
{
    for (const MappingDifference &change : changes.mappings) {
        m_projects.insert(change.project.path);
        if (isWhole(change))
            m_wholeProjects.insert(change.project.path);
        visitAll(change, [this](const Place &place) {
            m_places.insert(place);
            return true;
        });
    }
}

bool StepPlaces::isTouchedBy(const StepChanges &later) const
{
    if ((m_targetDate && later.targetDate) || (m_replacements && later.replacements))
        return true;
    return std::ranges::any_of(later.mappings, [this](const MappingDifference &change) {
        const QString &project = change.project.path;
        return m_projects.contains(project) &&
               (isWhole(change) || m_wholeProjects.contains(project) ||
                !visitAll(change,
                          [this](const Place &place) { return !m_places.contains(place); }));
    });
}
