#include "assignProjectLines.h"

#include "LinePart.h"
#include "TargetGuard.h"

#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/table/Content.h>
#include <release/decide/notFoundLines.h>

#include <optional>

namespace VelkRelease {

namespace {

void removeEmptyNotFoundTarget(PrjMappingC &mapping)
{
    const int index = mapping.getNotFoundTarget();
    if (index != -1 && mapping.findTarget(index).countLines() == 0)
        mapping.removeTarget(index);
}

/// False if the work was to end.
bool assignOneByOne(LinePart &part, const std::vector<VKTab::LineId> &lines,
                    const std::atomic<bool> *cancelled, const LineSteps &steps)
{
    steps.begin(int(lines.size()));
    for (const VKTab::LineId &line : lines) {
        if (cancelled && cancelled->load(std::memory_order_relaxed))
            return false;
        steps.beforeLine();
        part.assign(line);
    }
    return !cancelled || !cancelled->load();
}

std::vector<VKTab::LineId> shownLines(const VKTab::Content &table)
{
    const QList<VKTab::LineInfo> shown = table.getLineInfoList();
    std::vector<VKTab::LineId> lines;
    lines.reserve(std::size_t(shown.size()));
    for (const VKTab::LineInfo &line : shown)
        lines.push_back(line.getLineId());
    return lines;
}

void markTableError(PrjMappingC &mapping)
{
    mapping.setMappingState(mapping.getMappingState() | PRJMAPPING::StateTableError);
}

} // namespace

AssignmentOutcome assignProjectLines(const QString &sourcePath, PrjMappingC &mapping,
                                     VKTab::Content &table, const ReleaseMappingC &release,
                                     const QStringList &conditionVariables, bool force,
                                     const std::atomic<bool> *cancelled, const LineSteps *steps)
{
    const TargetGuard targets(mapping);
    AssignmentOutcome outcome{targets.unreadable(), targets.errors(), false};
    if (force && !outcome.unreadableTargets.isEmpty()) {
        markTableError(mapping);
        outcome.isLeft = true;
        return outcome;
    }
    const PrjMappingC before = mapping;
    forgetNotFound(mapping);
    mapping.setMappingState(PRJMAPPING::StateUsable);
    const CatalogMappingC catalog = LinePart::catalogOf(mapping, release);
    const auto makePart = [&] {
        return std::make_unique<LinePart>(sourcePath, mapping.getSourceVersion(), catalog, table,
                                          conditionVariables, force, cancelled);
    };
    const std::unique_ptr<LinePart> first = makePart();
    if (!first->isUsable())
        return outcome;
    std::optional<PrjMappingC> result;
    if (!steps)
        result = assignInParts(*first, makePart, shownLines(table), cancelled);
    else if (assignOneByOne(*first, shownLines(table), cancelled, *steps))
        result = first->mapping();
    outcome.isLeft = !result;
    if (outcome.isLeft) {
        mapping = before;
        return outcome;
    }
    mapping = *result;
    removeEmptyNotFoundTarget(mapping);
    mapping.updateMappingState();
    if (!outcome.unreadableTargets.isEmpty())
        markTableError(mapping);
    return outcome;
}

} // namespace VelkRelease
