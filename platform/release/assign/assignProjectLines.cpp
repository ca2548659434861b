#include "assignProjectLines.h"

#include "LineRun.h"

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

void assignLines(LineRun &run, const QList<VKTab::LineInfo> &lines)
{
    PProgress progress(0, double(lines.size()), 1.0, false, false);
    progress.setText(PString::translate("Zeilen werden neu zugewiesen", "VelkLinkDbGui"));
    for (const VKTab::LineInfo &line : lines) {
        progress.nextStep();
        run.assign(line.getLineId());
    }
    progress.done();
}

} // namespace

void assignProjectLines(const QString &sourcePath, PrjMappingC &mapping, VKTab::Content &table,
                        const ReleaseMappingC &release, const QStringList &conditionVariables,
                        bool force)
{
    PrjMapperC mapper(IndexTreeC::instance());
    mapper.setCreatorMode(true);
    mapper.setSourceProject(PPathName(sourcePath));
    mapper.setSourceTable(table);
    emptyNotFoundTarget(mapping);
    mapping.setMappingState(PRJMAPPING::StateUsable);
    const auto state =
        mapper.findMapping(sourcePath, mapping.getSourceVersion(), catalogOf(mapping, release));
    if (!(state & PRJMAPPING::StateUsable))
        return;
    LineRun run(mapper, table, conditionVariables, force);
    assignLines(run, table.getLineInfoList());
    mapping = mapper.getMappingNode().getMapping();
    removeEmptyNotFoundTarget(mapping);
    mapping.updateMappingState();
}

} // namespace VelkRelease
