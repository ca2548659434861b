#include "LineLookUp.h"
#include "TableMappingWidgetPrivate.h"

#include <mapping/project/tellUnreadableTargets.h>

#include <core/progress/PProgress.h>
#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/index/IndexTreeC.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <release/assign/LineRun.h>
#include <release/assign/TargetGuard.h>

#include <QPointer>

void TableMappingWidgetPrivate::remapLines()
{
    PrjMapperC mapper(IndexTreeC::instance());
    mapper.setSourceProject(PPathName(mapping.getSourcePath()));
    if (!lookUp().start(mapper))
        return;
    if (const VelkRelease::TargetGuard targets(mapping); !targets.unreadable().isEmpty()) {
        mapping.setMappingState(mapping.getMappingState() | PRJMAPPING::StateTableError);
        tellUnreadableTargets(targets.unreadable());
        publish(PrjMappingC(mapping));
        return;
    }
    const VKTab::ContentRef table = sourceTable;
    const QVector<VKTab::LineId> lines = table.getLineIdList();
    DefaultObserverDelegate observer;
    observer.activate(PProgressObserverBase::Thread);
    PProgress progress(0, double(lines.size()), 1.0, true, false);
    progress.setText(PString::translate("Zeilen werden neu zugewiesen", "VelkLinkDbGui"));
    const QPointer<TableMappingWidgetPrivate> alive = this; // the progress delivers events
    // Only a confirmed assignment survives; everything else is worked out afresh.
    LineRun run(mapper, table,
                {.conditionVariables = conditionVariables(),
                 .force = true,
                 .combinations = LineRunOptions::Combinations::All,
                 .isCanceled = [&progress] {
                     return progress.isCanceled();
                 }});
    for (const VKTab::LineId &id : lines) {
        if (progress.isCanceled())
            break;
        run.assign(id);
        progress.nextStep();
    }
    progress.done();
    if (!alive)
        return;
    mapping = mapper.getMappingNode().getMapping();
    publish(PrjMappingC(mapping));
}
