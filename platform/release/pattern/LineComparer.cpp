#include "LineComparer.h"

#include "LostValues.h"

#include <core/message/PStringMessageImpl.h>
#include <core/text/PPathName.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/mapper/TargetTable.h>
#include <geomcore/mapper/TargetTables.h>
#include <geomcore/table/ContentRef.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/TableData.h>
#include <release/assign/conditionVariables.h>
#include <release/assign/LinePart.h>
#include <release/assign/TargetGuard.h>
#include <release/text/releaseText.h>

namespace VelkRelease {

struct LineComparer::Private
{
    PrjMappingC mapping;
    VKTab::ContentRef table;
    QStringList errors;
    std::unique_ptr<TargetGuard> targets;
    std::unique_ptr<LinePart> part;
    std::unique_ptr<LostValues> lost; ///< made at the first need

    [[nodiscard]] VKTab::LineView view(int line) const
    {
        return VKTab::LineView(table, VKTab::LineId(line));
    }
};

LineComparer::LineComparer(const QString &sourceRoot, const PrjMappingC &mapping,
                           const ReleaseMappingC &release, const std::atomic<bool> *cancelled)
    : d(std::make_unique<Private>())
{
    d->mapping = mapping;
    PStringMessageImpl messages(PMsgReply::Cancel, false);
    const QString path = mapping.getSourcePath();
    const QString file = (PPathName(sourceRoot) + PPathName(path)).native();
    const VKTab::ProjectTable read = VKTab::readProjectTable(
        file, d->table, {.catalogPath = path, .allLines = true, .tells = false});
    for (const VKTab::TableError &error : read.errors)
        d->errors << error.toString();
    if (read) {
        d->targets = std::make_unique<TargetGuard>(mapping);
        d->errors << d->targets->errors();
        d->part = std::make_unique<LinePart>(path, mapping.getSourceVersion(),
                                             LinePart::catalogOf(mapping, release), d->table,
                                             conditionVariables(mapping), false, cancelled);
        if (!d->part->isUsable())
            d->part.reset();
    } else if (d->errors.isEmpty()) {
        d->errors << path + ": " + releaseText("die Tabelle des Projekts ist nicht lesbar");
    }
    messages.deactivate();
}

LineComparer::~LineComparer() = default;

bool LineComparer::isValid() const
{
    return d->part != nullptr;
}

const QStringList &LineComparer::errors() const
{
    return d->errors;
}

bool LineComparer::hasLine(int line) const
{
    return isValid() && d->view(line).isValid();
}

QString LineComparer::designation(int line) const
{
    if (!hasLine(line))
        return {};
    return d->table.getLine(VKTab::LineId(line), false)
        .getValue(VKTab::LineI::NormDesignation, {})
        .toString();
}

std::optional<LineComparer::Pair> LineComparer::assigned(int line)
{
    if (!hasLine(line))
        return std::nullopt;
    const VKTab::LineView view = d->view(line);
    const PrjMapperLineC assigned = d->part->mapper().findLine(line, view);
    if (!assigned.isFound())
        return std::nullopt;
    Pair pair{assigned.getTargetIndex(), assigned.getTargetLineId(), 0, {}, {}};
    const LineCandidatesC candidates = d->part->mapper().candidates(line, view);
    for (const LineCandidateC &candidate : candidates.candidates) {
        if (candidate.targetIndex != pair.target || candidate.lineId.value(0) != pair.targetLine)
            continue;
        pair.probability = candidate.probability;
        pair.reason = candidate.explanation;
        pair.variables = candidate.variables;
        return pair;
    }
    pair.variables = d->part->mapper().compareLine(assigned, view);
    if (pair.variables.isEmpty())
        return std::nullopt;
    return pair;
}

QList<ComparedVariableC> LineComparer::compared(int line)
{
    if (!hasLine(line))
        return {};
    const VKTab::LineView view = d->view(line);
    return d->part->mapper().compareLine(d->part->mapper().findLine(line, view), view, false);
}

std::vector<int> LineComparer::lines() const
{
    std::vector<int> lines;
    if (!isValid())
        return lines;
    const QVector<VKTab::LineId> ids = d->table.getLineIdList();
    lines.reserve(std::size_t(ids.size()));
    for (const VKTab::LineId &id : ids)
        lines.push_back(id.value(0));
    return lines;
}

std::vector<int> LineComparer::targetLines(int target) const
{
    std::vector<int> lines;
    if (!isValid())
        return lines;
    const PPathName file = IndexTreeC::instance()->compatiblePathToResolvedPath(
        PPathName(d->mapping.targetAt(target).getTargetPath()));
    const auto table = Mapper::TargetTables::instance().open(file.native());
    if (!table)
        return lines;
    const VKTab::TableData &data = table->data();
    lines.reserve(std::size_t(data.rowCount()));
    for (int row = 0; row < data.rowCount(); ++row)
        lines.push_back(data.lineNumber(row));
    return lines;
}

QList<ComparedVariableC> LineComparer::compared(int line, int target, int targetLine, bool withPlan)
{
    if (!hasLine(line))
        return {};
    PrjMappingLineC place;
    place.setValid(true);
    place.setSourceLineId(line);
    place.setTargetIndex(target);
    place.setTargetLineId(targetLine);
    PrjMapperLineC assigned;
    assigned.addMapping(place, d->mapping);
    return d->part->mapper().compareLine(assigned, d->view(line), withPlan);
}

LineCandidatesC LineComparer::candidates(int line)
{
    return hasLine(line) ? d->part->mapper().candidates(line, d->view(line)) : LineCandidatesC();
}

std::vector<LostValue> LineComparer::lostValues(int line)
{
    if (!hasLine(line))
        return {};
    if (!d->lost)
        d->lost = std::make_unique<LostValues>(d->table, d->mapping);
    return d->lost->of(line);
}

QStringList LineComparer::unreadableTargets() const
{
    return d->targets ? d->targets->unreadable() : QStringList();
}

RangeCoverage LineComparer::coverage(int line) const
{
    return hasLine(line) ? rangeCoverage(d->table, d->mapping, line) : RangeCoverage();
}

} // namespace VelkRelease
