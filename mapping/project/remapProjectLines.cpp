#include "remapProjectLines.h"

#include <core/progress/PProgress.h>
#include <core/text/PPathName.h>
#include <core/text/PString.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/index/IndexTreeC.h>
#include <geomcore/mapper/PrjMapperC.h>
#include <geomcore/records/CatalogMappingC.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/createVarsetFromVKTable.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/ResolveRangeOptionsC.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/ValueRangeIterator.h>
#include <gui/progress/DefaultObserverDelegate.h>

#include <algorithm>

namespace {

using Varset = QHash<QString, MapVarValueC>;

constexpr CheckModeFlags automaticCheck = CheckModeFlags(CheckValues) | CheckConditions;

/// Assigns one line after the other. What depends on the table alone is worked out once.
class LineRun
{
public:
    LineRun(PrjMapperC &mapper, const VKTab::Content &table, const QStringList &conditionVariables,
            bool force);

    void assign(const VKTab::LineId &id);

private:
    void assignCombinations(const VKTab::LineId &id);
    bool assignStored(const VKTab::LineId &id);
    bool assignShown(int lineId, const VKTab::Line &line);
    /// True if the values settle the line.
    template<class Values>
    bool settle(int lineId, const Values &values);
    [[nodiscard]] bool passesCheck(const PrjMapperLineC &line, const VKTab::LineView &view);
    [[nodiscard]] bool passesCheck(const PrjMapperLineC &line, const Varset &varset);
    [[nodiscard]] Varset shownVarset(const VKTab::Line &line) const;

    PrjMapperC &m_mapper;
    const VKTab::Content &m_table;
    const bool m_force;
    /// The lines themselves, if the table shows nothing else.
    std::shared_ptr<const VKTab::TableData> m_data;
    QStringList m_ranges;
    QList<VKTab::Var> m_variables;
    /// All variables are columns of the file, so that a view of a line has them all.
    bool m_viewsSuffice = true;
    const VKTab::ResolveRangeOptionsC m_options;
};

LineRun::LineRun(PrjMapperC &mapper, const VKTab::Content &table,
                 const QStringList &conditionVariables, bool force)
    : m_mapper(mapper)
    , m_table(table)
    , m_force(force)
    , m_data(table.isPlain() ? table.getTableData() : nullptr)
{
    for (const VKTab::Var &var : table.getVarList()) {
        if (var.isFW() && conditionVariables.contains(var.getName()))
            m_ranges.append(var.getName());
    }
    for (const VKTab::VarId &id : table.getColumnMapping().getOrdered()) {
        const VKTab::Var var = table.getVar(id);
        const int type = var.getVarType();
        if (type < VKTab::VarTypePlain || type > VKTab::VarTypeComputed)
            continue;
        m_variables.append(var);
        m_viewsSuffice = m_viewsSuffice && VKTab::LineView::columnOf(id) >= 0;
    }
}

void LineRun::assign(const VKTab::LineId &id)
{
    if (!id.isValid())
        return;
    if (m_ranges.isEmpty()) // then no line has a combination to walk
        assignStored(id);
    else
        assignCombinations(id);
}

void LineRun::assignCombinations(const VKTab::LineId &id)
{
    VKTab::Line line = m_table.getLine(id, true);
    VKTab::ValueRangeIterator combinations(m_table, line, m_options);
    combinations.setVariablesToResolve(m_ranges);
    const bool hasRange = combinations.next();
    do {
        if (hasRange ? assignShown(id.value(0), line) : assignStored(id))
            return;
    } while (combinations.next());
}

bool LineRun::assignStored(const VKTab::LineId &id)
{
    const int row = m_data ? m_data->rowOf(id) : -1;
    if (row >= 0)
        return settle(id.value(0), VKTab::LineView(*m_data, row));
    const VKTab::LineView view(m_table, id);
    if (view.isValid())
        return settle(id.value(0), view);
    return settle(id.value(0), createVarsetFromVKTable(m_table, id, {}));
}

bool LineRun::assignShown(int lineId, const VKTab::Line &line)
{
    const VKTab::LineView view(line);
    return m_viewsSuffice && view.isValid() ? settle(lineId, view)
                                            : settle(lineId, shownVarset(line));
}

Varset LineRun::shownVarset(const VKTab::Line &line) const
{
    const VKTab::FormatFlags format = VKTab::FormatPlain | VKTab::FormatUntranslated;
    Varset varset;
    for (const VKTab::Var &var : m_variables) {
        MapVarValueC value;
        value.setName(var.getName());
        value.setValue(VKTab::Value(line.getValue(var, format, {}).toString()));
        value.setNumeric(var.isNumeric());
        varset.insert(var.getName(), value);
    }
    return varset;
}

template<class Values>
bool LineRun::settle(int lineId, const Values &values)
{
    PrjMapperLineC line = m_mapper.findLine(lineId, values);
    if (!line.isValid() || (m_force && line.getCheckState() != PRJMAPPING::Verified)) {
        line = PrjMapperLineC(); // lets go of the mapping that is about to change
        line = m_mapper.createLine(lineId, values, false);
    }
    if (!line.isFound())
        return false;
    if (line.getCheckState() == PRJMAPPING::ToCheck && passesCheck(line, values))
        line.setCheckState(PRJMAPPING::Mapped);
    return line.isValid() && m_mapper.addLine(line);
}

bool LineRun::passesCheck(const PrjMapperLineC &line, const VKTab::LineView &view)
{
    return m_mapper.passesCheck(line, view, automaticCheck);
}

bool LineRun::passesCheck(const PrjMapperLineC &line, const Varset &varset)
{
    const Varset targetVarset = m_mapper.updateVarset(line, varset, {});
    return m_mapper.checkMapping(line, varset, targetVarset, automaticCheck, QString()).isOK();
}

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
    DefaultObserverDelegate observer;
    observer.activate(1);
    PProgress progress(0, double(lines.size()), 1.0, false, false);
    progress.setText(PString::translate("Zeilen werden neu zugewiesen", "VelkLinkDbGui"));
    for (const VKTab::LineInfo &line : lines) {
        progress.nextStep();
        run.assign(line.getLineId());
    }
    progress.done();
}

} // namespace

void remapProjectLines(const QString &sourcePath, PrjMappingC &mapping, VKTab::Content &table,
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
