#include "LineDecisions.h"

#include <geomcore/mapper/PrjMapperLineC.h>
#include <release/decide/notFoundLines.h>

namespace {

/// The mapping that a decision changes, with the target that holds the line.
struct Work
{
    PrjMappingC mapping;
    int index;
    PrjMappingTargetC target;

    [[nodiscard]] PrjMappingC written()
    {
        mapping.updateTarget(index, target);
        mapping.updateMappingState();
        return mapping;
    }
};

std::optional<Work> workOn(const PrjMapperLineC &line)
{
    const QList<PrjLineHistoryC::Entry> history = line.getHistory();
    if (!line.isValid() || history.isEmpty())
        return std::nullopt;
    const int index = history.last().first.getTargetIndex();
    const PrjMappingC &mapping = history.last().second;
    const PrjMappingTargetC target = mapping.findTarget(index);
    return target.isValid() ? std::optional(Work{mapping, index, target}) : std::nullopt;
}

std::optional<int> ifConflicted(const PrjMappingTargetC &target, int line, int accepted)
{
    return target.getLineConflicted(line) ? std::optional(accepted) : std::nullopt;
}

} // namespace

std::optional<LineDecision> LineDecisions::confirm(const PrjMapperLineC &line,
                                                   std::optional<int> targetLine)
{
    std::optional<Work> work = workOn(line);
    if (!work)
        return std::nullopt;
    const int sourceLine = line.getSourceLineId();
    const int newLine = targetLine.value_or(line.getTargetLineId());
    const QString extended = newLine == line.getTargetLineId()
                                 ? line.getTarget().getMappedLine(sourceLine).getExtended()
                                 : QString();
    const auto accepted = ifConflicted(work->target, sourceLine, sourceLine);
    work->target.addLineId(sourceLine, newLine, PRJMAPPING::Verified, extended);
    return LineDecision{work->written(), accepted};
}

std::optional<LineDecision> LineDecisions::remove(const PrjMapperLineC &line,
                                                  const VKTab::LineId &id)
{
    std::optional<Work> work = workOn(line);
    if (!work || !line.isFound() || !id.isValid())
        return std::nullopt;
    const int number = id.value(0);
    work->target.removeLineId(number);
    // Looks at the target as it is without the line.
    const auto accepted = ifConflicted(work->target, line.getSourceLineId(), number);
    work->mapping.updateTarget(work->index, work->target);
    VelkRelease::enterNotFound(work->mapping, number, PRJMAPPING::Mapped);
    work->mapping.updateMappingState();
    return LineDecision{work->mapping, accepted};
}

std::optional<PrjMappingC> LineDecisions::changeText(const PrjMappingC &mapping,
                                                     const PrjMapperLineC &line,
                                                     const QString &text)
{
    const int index = line.getTargetIndex();
    PrjMappingTargetC target = mapping.findTarget(index);
    const int sourceLine = line.getSourceLineId();
    const PrjMappingTargetLineC entry = target.getMappedLine(sourceLine);
    if (!line.isValid() || !target.isValid() || text == entry.getExtended())
        return std::nullopt;
    target.addLineId(sourceLine, entry.getTargetLineId(), entry.getState(), text);
    PrjMappingC changed = mapping;
    changed.updateTarget(index, target);
    changed.updateMappingState();
    return changed;
}
