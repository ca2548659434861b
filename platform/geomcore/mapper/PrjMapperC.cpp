#include "PrjMapperC.h"

#include "PrjMapperPrivate.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <geomcore/value/ResolveRangeOptionsC.h>

using Mapper::LineInput;
using PRJMAPPING::MappingState;

PrjMapperC::PrjMapperC(const PRefPtr<IndexTreeC> &indexTree)
    : d(std::make_unique<PrjMapperPrivate>(indexTree))
{
}

PrjMapperC::~PrjMapperC() = default;

void PrjMapperC::setCreatorMode(bool creator)
{
    d->adoptNode();
    d->setCreatorMode(creator);
}

void PrjMapperC::setCancellation(std::function<bool()> isCanceled)
{
    d->adoptNode();
    d->setCancellation(std::move(isCanceled));
}

void PrjMapperC::setSourceProject(const PPathName &sourcePath)
{
    d->sourceProject = sourcePath;
}

void PrjMapperC::setSourceTable(const VKTab::Content &table)
{
    d->adoptNode();
    d->setSourceTable(table);
}

QFlags<PRJMAPPING::MappingState_> PrjMapperC::findMapping(const QString &sourcePath,
                                                          const QString &sourceVersion,
                                                          const CatalogMappingC &catalog)
{
    d->nodeHandedOut = false;
    const QList<ReleaseMappingC> releases = catalog.getReleases();
    const PrjMappingC mapping = releases.isEmpty()
                                    ? PrjMappingC()
                                    : releases.last().findMapping(sourcePath, sourceVersion, {});
    d->setWorking(mapping);
    d->agreed = Mapper::AgreedValues(releases.isEmpty() ? QList<AgreedReplacement>()
                                                        : releases.last().getReplacements(),
                                     sourcePath);
    d->learned = Mapper::LearnedValues(releases.isEmpty() ? QList<LearnedReplacement>()
                                                          : releases.last().getLearned());
    return mapping.isValid() ? mapping.getMappingState() | PRJMAPPING::StateUsable : MappingState();
}

PrjMapperLineC PrjMapperC::findLine(int lineId, const Varset &varset)
{
    d->adoptNode();
    return d->toMapperLine(d->working.mapping().findLine(lineId, varset));
}

PrjMapperLineC PrjMapperC::findLine(int lineId, const VKTab::LineView &line)
{
    d->adoptNode();
    return d->toMapperLine(d->working.mapping().findLine(lineId, line));
}

PrjMapperLineC PrjMapperC::createLine(int lineId, const Varset &varset, bool firstTargetOnly)
{
    d->adoptNode();
    return d->createLine(d->input(lineId, varset), firstTargetOnly);
}

PrjMapperLineC PrjMapperC::createLine(int lineId, const VKTab::LineView &line, bool firstTargetOnly)
{
    d->adoptNode();
    Varset converted;
    return d->createLine(d->input(lineId, line, converted), firstTargetOnly);
}

LineCandidatesC PrjMapperC::candidates(int lineId, const Varset &varset)
{
    d->adoptNode();
    return d->candidates(d->input(lineId, varset));
}

LineCandidatesC PrjMapperC::candidates(int lineId, const VKTab::LineView &line)
{
    d->adoptNode();
    Varset converted;
    return d->candidates(d->input(lineId, line, converted));
}

bool PrjMapperC::hasEqualLine(int lineId)
{
    d->adoptNode();
    return d->hasEqualLine(d->source().rowOf(lineId));
}

bool PrjMapperC::hasEqualValues(const PrjMapperLineC &line, const VKTab::LineView &view)
{
    d->adoptNode();
    Varset converted;
    return d->hasEqualValues(line, d->input(line.getSourceLineId(), view, converted));
}

QList<ComparedVariableC> PrjMapperC::compareLine(const PrjMapperLineC &line,
                                                 const VKTab::LineView &view, bool withPlan)
{
    d->adoptNode();
    Varset converted;
    return d->compareLine(line, d->input(line.getSourceLineId(), view, converted), withPlan);
}

PrjMapperC::Varset PrjMapperC::updateVarset(const PrjMapperLineC &line, const Varset &varset,
                                            QFlags<VarsetModeFlag> mode)
{
    d->adoptNode();
    return d->updateVarset(line, d->input(line.getSourceLineId(), varset), mode);
}

PrjMapperC::Varset PrjMapperC::updateVarset(const PrjMapperLineC &line, const VKTab::LineView &view,
                                            QFlags<VarsetModeFlag> mode)
{
    d->adoptNode();
    Varset converted;
    return d->updateVarset(line, d->input(line.getSourceLineId(), view, converted), mode);
}

PrjMapperCheckResultC PrjMapperC::checkMapping(const PrjMapperLineC &line,
                                               const Varset &sourceVarset,
                                               const Varset &targetVarset,
                                               QFlags<CheckModeFlag> mode, const QString &text)
{
    d->adoptNode();
    return d->check(line, d->input(line.getSourceLineId(), sourceVarset), &targetVarset, mode,
                    text);
}

PrjMapperCheckResultC PrjMapperC::checkMapping(const PrjMapperLineC &line,
                                               const VKTab::LineView &view,
                                               QFlags<CheckModeFlag> mode, const QString &text)
{
    d->adoptNode();
    Varset converted;
    const LineInput input = d->input(line.getSourceLineId(), view, converted);
    return d->check(line, input, nullptr, mode, text);
}

bool PrjMapperC::passesCheck(const PrjMapperLineC &line, const VKTab::LineView &view,
                             QFlags<CheckModeFlag> mode)
{
    d->adoptNode();
    Varset converted;
    return d->passes(line, d->input(line.getSourceLineId(), view, converted), mode);
}

PrjMapperCheckResultC PrjMapperC::checkMapping(const PrjMapperLineC &line,
                                               const VKTab::LineId &sourceLine)
{
    d->adoptNode();
    const CheckModeFlags mode = CheckValues | CheckConditions;
    const VKTab::Content &table = d->source().content();
    VKTab::Line shown = table.getLine(sourceLine, true);
    if (!line.isValid() || !line.isFound() || !shown.isValid())
        return {false, QString(), QString(), {}, {}, {}};
    PrjMapperCheckResultC result =
        checkMapping(line, VKTab::LineView(table, sourceLine), mode, QString());
    const VKTab::ResolveRangeOptionsC options;
    VKTab::ValueRangeIterator combinations(table, shown, options);
    combinations.setVariablesToResolve(d->rangesFor(line));
    while (result.isOK() && combinations.next())
        result = checkMapping(line, VKTab::LineView(shown), mode, QString());
    return result;
}

bool PrjMapperC::addLine(const PrjMapperLineC &line)
{
    d->adoptNode();
    const int index = line.getTargetIndex();
    const bool known = index >= 0 && index < d->working.mapping().countTargets() &&
                       !d->working.mapping().targetAt(index).isNotFoundTarget();
    if (!line.isValid() || !line.isFound() || !known)
        return false;
    d->enter(line);
    return true;
}

MappingNodeC &PrjMapperC::mappingNode()
{
    d->adoptNode();
    d->node.setMapping(d->working.mapping());
    d->nodeHandedOut = true;
    return d->node;
}

MappingNodeC PrjMapperC::getMappingNode()
{
    d->adoptNode();
    d->working.enterNotFound();
    MappingNodeC node = d->node;
    node.setMapping(d->working.mapping());
    return node;
}
