#include "RoadScore.h"

#include "TruthFile.h"

#include <geomcore/records/ReleaseMappingC.h>

namespace {

/// "cat/a/bolt.prj" becomes "a/bolt".
QString tableName(const QString &projectPath)
{
    const qsizetype begin = projectPath.indexOf('/') + 1;
    return projectPath.mid(begin, projectPath.lastIndexOf('.') - begin);
}

struct Assignment
{
    TruthFile::Place target;
    PRJMAPPING::CheckState state = PRJMAPPING::ToCheck;
};

QHash<TruthFile::Place, Assignment> assignments(const ReleaseMappingC &release)
{
    QHash<TruthFile::Place, Assignment> all;
    for (const PrjMappingC &mapping : release.getMappingList()) {
        const QString source = tableName(mapping.getSourcePath());
        for (const PrjMappingTargetC &target : mapping.getTargets()) {
            const QString path = tableName(target.getTargetPath());
            for (const auto &line : target.lines()) {
                if (!path.isEmpty() && line.targetLine() >= 0)
                    all[{source, line.sourceLine()}] = {{path, line.targetLine()}, line.state()};
            }
        }
    }
    return all;
}

QString text(const TruthFile::Place &place)
{
    return place.first + ':' + QString::number(place.second);
}

class Scorer
{
public:
    void add(const TruthFile::Place &line, const TruthFile::Entry &entry,
             const Assignment *assignment)
    {
        const bool right = assignment && entry.places.contains(assignment->target);
        const bool mapped = assignment && assignment->state == PRJMAPPING::Mapped;
        if (entry.unknown) {
            ++m_score.unknown;
            return;
        }
        ++(entry.places.isEmpty() ? m_score.gone : m_score.known);
        if (mapped && !right) {
            ++m_score.mappedWrong;
            m_score.wrong << text(line) + " -> " + text(assignment->target);
        } else if (entry.places.isEmpty()) {
            m_score.goneProposed += assignment != nullptr;
        } else if (!assignment) {
            ++m_score.notFound;
        } else if (right) {
            ++(mapped ? m_score.mappedRight : m_score.proposedRight);
        } else {
            ++m_score.proposedWrong;
        }
    }
    [[nodiscard]] RoadScore score()
    {
        m_score.wrong.sort();
        return m_score;
    }

private:
    RoadScore m_score;
};

} // namespace

RoadScore scoreRoad(const ReleaseMappingC &release, const TruthFile &truth)
{
    const auto all = assignments(release);
    Scorer scorer;
    const auto &entries = truth.entries();
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        const auto found = all.constFind(it.key());
        scorer.add(it.key(), it.value(), found != all.cend() ? &*found : nullptr);
    }
    return scorer.score();
}
