#include "LineLookUp.h"
#include "TableMappingWidgetPrivate.h"

#include <mapping/project/tellUnreadableTargets.h>

#include <core/progress/PProgress.h>
#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/ResolveRangeOptionsC.h>
#include <gui/progress/DefaultObserverDelegate.h>
#include <release/assign/TargetGuard.h>

#include <QPointer>

namespace {

using Varset = QHash<QString, MapVarValueC>;

constexpr CheckModeFlags automaticCheck = CheckModeFlags(CheckValues) | CheckConditions;

bool passesCheck(PrjMapperC &mapper, const PrjMapperLineC &line, const VKTab::LineView &values)
{
    return mapper.passesCheck(line, values, automaticCheck);
}

bool passesCheck(PrjMapperC &mapper, const PrjMapperLineC &line, const Varset &varset)
{
    const Varset seen = mapper.updateVarset(line, varset, {});
    return mapper.checkMapping(line, varset, seen, automaticCheck, QString()).isOK();
}

/// Only a confirmed assignment survives; everything else is worked out afresh.
template<class Values>
void assign(PrjMapperC &mapper, int number, const Values &values)
{
    PrjMapperLineC line = mapper.findLine(number, values);
    if (!line.isValid() || line.getCheckState() != PRJMAPPING::Verified) {
        line = PrjMapperLineC(); // lets go of the mapping that is about to change
        line = mapper.createLine(number, values, false);
    }
    if (line.isFound() && line.getCheckState() == PRJMAPPING::ToCheck &&
        passesCheck(mapper, line, values))
        line.setCheckState(PRJMAPPING::Mapped);
    if (line.isValid() && line.isFound())
        mapper.addLine(line);
}

/// The line as the table has it.
void assignStored(PrjMapperC &mapper, const VKTab::Content &table, const VKTab::LineId &id)
{
    const VKTab::LineView view(table, id);
    if (view.isValid())
        assign(mapper, id.value(0), view);
    else
        assign(mapper, id.value(0), createVarsetFromVKTable(table, id, {}));
}

void assignCombinations(PrjMapperC &mapper, const VKTab::Content &table, const VKTab::LineId &id,
                        const QStringList &variables)
{
    VKTab::Line line = table.getLine(id, false);
    const VKTab::ResolveRangeOptionsC options;
    VKTab::ValueRangeIterator combinations(table, line, options);
    combinations.setVariablesToResolve(variables);
    const bool hasRanges = combinations.next();
    do {
        if (hasRanges)
            assign(mapper, id.value(0), createVarsetFromVKTable(line, {}));
        else
            assignStored(mapper, table, id);
    } while (combinations.next());
}

} // namespace

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
    observer.activate(1);
    PProgress progress(0, double(lines.size()), 1.0, true, false);
    progress.setText(PString::translate("Zeilen werden neu zugewiesen", "VelkLinkDbGui"));
    const QPointer<TableMappingWidgetPrivate> alive = this; // the progress delivers events
    const QStringList read = conditionVariables();
    QStringList variables = valueRangeVariables(table);
    variables.removeIf([&](const QString &name) { return !read.contains(name); });
    for (const VKTab::LineId &id : lines) {
        if (progress.isCanceled())
            break;
        if (variables.isEmpty()) // then no line has a combination to walk
            assignStored(mapper, table, id);
        else
            assignCombinations(mapper, table, id, variables);
        progress.nextStep();
    }
    progress.done();
    if (!alive)
        return;
    mapping = mapper.getMappingNode().getMapping();
    publish(PrjMappingC(mapping));
}
