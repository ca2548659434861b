#pragma once

#include <QSet>
#include <QString>

struct StepChanges;
class MappingDifference;

/// What a step touches: lines, targets, projects, and the release's own members. A step that took
/// effect later and touches any of it builds on it, even if the values happen to be the same again.
class StepPlaces
{
public:
    explicit StepPlaces(const StepChanges &changes);

    [[nodiscard]] bool isTouchedBy(const StepChanges &later) const;

private:
    struct Place
    {
        QString project;
        QString target; ///< of a target without regard to its lines
        int line = -1;

        friend bool operator==(const Place &, const Place &) = default;
        friend size_t qHash(const Place &place, size_t seed = 0)
        {
            return qHashMulti(seed, place.project, place.target, place.line);
        }
    };
    /// Ends with false if \a visit does.
    template<class Visit>
    static bool visitAll(const MappingDifference &change, Visit visit);

    QSet<Place> m_places;
    QSet<QString> m_projects;      ///< that have any place
    QSet<QString> m_wholeProjects; ///< that came, went or have another table version
    bool m_targetDate = false;
    bool m_replacements = false;
};
