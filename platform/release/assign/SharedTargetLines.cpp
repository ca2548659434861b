#include "SharedTargetLines.h"

#include <geomcore/records/ReleaseMappingC.h>

#include <QHash>
#include <QSet>

#include <unordered_map>

namespace VelkRelease {

namespace {

QString projectOf(const PrjMappingTargetC &target)
{
    return target.getTargetPath().replace(u'\\', u'/');
}

bool isClaim(const LineTable::Iterator &entry)
{
    return entry.targetLine() >= 0 && entry.state() != PRJMAPPING::ToCheck;
}

/// Who claims the lines of the projects that several mappings go to.
class Claims
{
public:
    explicit Claims(const ReleaseMappingC &release)
    {
        QHash<QString, int> firstUser;
        for (int i = 0; i < release.countMappings(); ++i) {
            for (const PrjMappingTargetC &target : release.mappingAt(i).getTargets()) {
                if (target.isNotFoundTarget())
                    continue;
                const QString project = projectOf(target);
                const auto first = firstUser.constFind(project);
                if (first == firstUser.cend())
                    firstUser.insert(project, i);
                else if (*first != i)
                    m_claims.insert(project, {});
            }
        }
        for (int i = 0; i < release.countMappings() && !m_claims.isEmpty(); ++i)
            add(release.mappingAt(i), i);
    }

    [[nodiscard]] bool isShared(const PrjMappingTargetC &target) const
    {
        return m_claims.contains(projectOf(target));
    }
    [[nodiscard]] bool isSharedLine(const PrjMappingTargetC &target, int line) const
    {
        const auto claims = m_claims.constFind(projectOf(target));
        const auto claim = claims->find(line);
        return claim != claims->end() && claim->second == Several;
    }

private:
    static constexpr int Several = -1;
    /// The position of the mapping that has a target line.
    using ClaimsOfProject = std::unordered_map<int, int>;

    void add(const PrjMappingC &mapping, int position)
    {
        for (int i = 0; i < mapping.countTargets(); ++i) {
            const auto claims = m_claims.find(projectOf(mapping.targetAt(i)));
            if (claims == m_claims.end())
                continue;
            for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
                if (!isClaim(entry))
                    continue;
                int &user = claims->try_emplace(entry.targetLine(), position).first->second;
                user = user == position ? position : Several;
            }
        }
    }

    QHash<QString, ClaimsOfProject> m_claims;
};

/// False if nothing changed.
bool doubt(PrjMappingC &mapping, const Claims &claims)
{
    bool changed = false;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (!claims.isShared(mapping.targetAt(i)))
            continue;
        PrjMappingTargetC target = mapping.findTarget(i);
        for (const LineTable::Iterator &entry : mapping.targetAt(i).lines()) {
            if (entry.state() != PRJMAPPING::Mapped || entry.targetLine() < 0 ||
                !claims.isSharedLine(target, entry.targetLine()))
                continue;
            const PrjMappingTargetLineC line = entry.line();
            target.setMappedLine(entry.sourceLine(), {line.getTargetLineId(), PRJMAPPING::ToCheck,
                                                      line.getConflict(), line.extendedText()});
            changed = true;
        }
        mapping.updateTarget(i, target);
    }
    return changed;
}

} // namespace

void doubtSharedTargetLines(ReleaseMappingC &release, const QList<int> &positions)
{
    const Claims claims(release);
    for (const int position : positions) {
        PrjMappingC mapping = release.mappingAt(position);
        if (doubt(mapping, claims))
            release.addMapping(mapping);
    }
}

} // namespace VelkRelease
