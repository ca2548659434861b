#include "LineRun.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/table/Line.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>
#include <geomcore/table/ValueRangeIterator.h>

namespace {

constexpr CheckModeFlags automaticCheck = CheckModeFlags(CheckValues) | CheckConditions;

} // namespace

LineRun::LineRun(PrjMapperC &mapper, const VKTab::Content &table, const LineRunOptions &options)
    : m_mapper(mapper)
    , m_table(table)
    , m_runOptions(options)
    , m_data(table.isPlain() ? table.getTableData() : nullptr)
{
    for (const VKTab::Var &var : table.getVarList()) {
        if (var.isFW() && options.conditionVariables.contains(var.getName()))
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
    const bool all = m_runOptions.combinations == LineRunOptions::Combinations::All;
    VKTab::Line line = m_table.getLine(id, !all);
    VKTab::ValueRangeIterator combinations(m_table, line, m_options);
    combinations.setVariablesToResolve(m_ranges);
    const bool hasRange = combinations.next();
    do {
        const bool settled = hasRange ? assignShown(id.value(0), line) : assignStored(id);
        if ((settled && !all) || isCanceled())
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
    if (m_runOptions.combinations == LineRunOptions::Combinations::All)
        return settle(lineId, createVarsetFromVKTable(line, {}));
    const VKTab::LineView view(line);
    return m_viewsSuffice && view.isValid() ? settle(lineId, view)
                                            : settle(lineId, shownVarset(line));
}

LineRun::Varset LineRun::shownVarset(const VKTab::Line &line) const
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
    if (!line.isValid() || (m_runOptions.force && line.getCheckState() != PRJMAPPING::Verified)) {
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
