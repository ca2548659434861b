#include "setStanding.h"

namespace VelkRelease {

namespace {

int targetOf(PrjMappingC &mapping, const QString &path)
{
    if (path.isEmpty())
        return mapping.ensureNotFoundTarget();
    for (int i = 0; i < mapping.countTargets(); ++i) {
        if (mapping.targetAt(i).getTargetPath() == path)
            return i;
    }
    PrjMappingTargetC target;
    target.setTargetPath(path);
    target.setValid(true);
    const int notFound = mapping.getNotFoundTarget();
    return mapping.insertTarget(notFound == -1 ? mapping.countTargets() : notFound, target);
}

void enter(PrjMappingC &mapping, int line, const LineEntry &entry)
{
    mapping.changeTarget(targetOf(mapping, entry.target), [&](PrjMappingTargetC &target) {
        target.setMappedLine(line, PrjMappingTargetLineC(entry.line.getTargetLineId(),
                                                         entry.line.getState(), false,
                                                         entry.line.extendedText()));
    });
}

} // namespace

void setStanding(PrjMappingC &mapping, int line, const LineStanding &standing)
{
    setStandings(mapping, {{line, standing}});
}

void setStandings(PrjMappingC &mapping, const QList<QPair<int, LineStanding>> &standings)
{
    for (int i = 0; i < mapping.countTargets(); ++i) {
        for (const auto &decided : standings) {
            const int line = decided.first;
            if (mapping.targetAt(i).containsLine(line))
                mapping.changeTarget(
                    i, [line](PrjMappingTargetC &target) { target.removeLineId(line); });
        }
    }
    for (const auto &[line, standing] : standings) {
        for (const LineEntry &entry : standing)
            enter(mapping, line, entry);
        if (standing.isEmpty())
            enter(mapping, line, {});
    }
    const int notFound = mapping.getNotFoundTarget();
    if (notFound != -1 && mapping.targetAt(notFound).countLines() == 0)
        mapping.removeTarget(notFound);
    mapping.updateMappingState();
}

LineStanding standingOf(const PrjMappingC &mapping, int line)
{
    LineStanding standing;
    for (int i = 0; i < mapping.countTargets(); ++i) {
        const PrjMappingTargetC &target = mapping.targetAt(i);
        if (!target.containsLine(line))
            continue;
        const PrjMappingTargetLineC entry = target.getMappedLine(line);
        standing.append({target.getTargetPath(),
                         PrjMappingTargetLineC(entry.getTargetLineId(), entry.getState(), false,
                                               entry.extendedText())});
    }
    return standing;
}

} // namespace VelkRelease
