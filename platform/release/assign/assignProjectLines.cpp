#include "assignProjectLines.h"

#include "LineRun.h"
#include "TargetGuard.h"

#include <core/progress/PProgress.h>
#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/CatalogMappingC.h>

namespace VelkRelease {

namespace {

void emptyNotFoundTarget(PrjMappingC &mapping)
{
    const int index = mapping.getNotFoundTarget();
    if (index == -1)
        return;
    PrjMappingTargetC target = mapping.findTarget(index);
    target.clearLines(true);
    mapping.updateTarget(index, target);
}

void removeEmptyNotFoundTarget(PrjMappingC &mapping)
{
    const int index = mapping.getNotFoundTarget();
    if (index != -1 && mapping.findTarget(index).countLines() == 0)
        mapping.removeTarget(index);
}

CatalogMappingC catalogOf(const PrjMappingC &mapping, const ReleaseMappingC &dates)
{
    ReleaseMappingC release;
    release.setSourceDate(dates.getSourceDate());
    release.setTargetDate(dates.getTargetDate());
    release.addMapping(mapping);
    CatalogMappingC catalog;
    catalog.addRelease(release);
    return catalog;
}

/// False if the work was to end.
bool assignLines(LineRun &run, const QList<VKTab::LineInfo> &lines,
                 const std::atomic<bool> *cancelled)
{
    PProgress progress(0, double(lines.size()), 1.0, false, false);
    progress.setText(PString::translate("Zeilen werden neu zugewiesen", "VelkLinkDbGui"));
    for (const VKTab::LineInfo &line : lines) {
        if (cancelled && cancelled->load(std::memory_order_relaxed))
            return false;
        progress.nextStep();
        run.assign(line.getLineId());
    }
    progress.done();
    return true;
}

void markTableError(PrjMappingC &mapping)
{
    mapping.setMappingState(mapping.getMappingState() | PRJMAPPING::StateTableError);
}

} // namespace

AssignmentOutcome assignProjectLines(const QString &sourcePath, PrjMappingC &mapping,
                                     VKTab::Content &table, const ReleaseMappingC &release,
                                     const QStringList &conditionVariables, bool force,
                                     const std::atomic<bool> *cancelled)
{
    const TargetGuard targets(mapping);
    AssignmentOutcome outcome{targets.unreadable(), false};
    if (force && !outcome.unreadableTargets.isEmpty()) {
        markTableError(mapping);
        outcome.isLeft = true;
        return outcome;
    }
    const PrjMappingC before = mapping;
    PrjMapperC mapper(IndexTreeC::instance());
    mapper.setCreatorMode(true);
    mapper.setSourceProject(PPathName(sourcePath));
    mapper.setSourceTable(table);
    emptyNotFoundTarget(mapping);
    mapping.setMappingState(PRJMAPPING::StateUsable);
    const auto state =
        mapper.findMapping(sourcePath, mapping.getSourceVersion(), catalogOf(mapping, release));
    if (!(state & PRJMAPPING::StateUsable))
        return outcome;
    LineRun run(mapper, table, conditionVariables, force);
    outcome.isLeft = !assignLines(run, table.getLineInfoList(), cancelled);
    if (outcome.isLeft) {
        mapping = before;
        return outcome;
    }
    mapping = mapper.getMappingNode().getMapping();
    removeEmptyNotFoundTarget(mapping);
    mapping.updateMappingState();
    if (!outcome.unreadableTargets.isEmpty())
        markTableError(mapping);
    return outcome;
}

} // namespace VelkRelease
