#include "TargetFaults.h"

#include <geomcore/binding/VarsetConditionI.h>
#include <geomcore/binding/VarsetValueMappingC.h>
#include <geomcore/mapper/SourceTable.h>
#include <geomcore/mapper/TargetTable.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <algorithm>

namespace VelkRelease {

using Origin = VKTab::BoundModifiers::Origin;

namespace {

bool readsRange(const VarsetConditionI &condition, const VKTab::TableData &source)
{
    const QStringList names = condition.usedVariables();
    return std::any_of(names.begin(), names.end(), [&](const QString &name) {
        const int column = VKTab::columnOfVariable(&source, name);
        return column >= 0 && source.descriptor().fields[column].isRange();
    });
}

bool hasValue(const VKTab::LineView &line, int column, std::string &scratch)
{
    return !line.text(column, scratch).empty();
}

} // namespace

TargetFaults::TargetFaults(const PrjMappingTargetC &target,
                           const std::shared_ptr<const VKTab::TableData> &source,
                           const std::shared_ptr<const Mapper::TargetTable> &table)
    : m_source(source)
    , m_table(table)
    , m_conditions(target.getConditions(), source.get())
    , m_modifiers(target.getVarsetModifier(), source.get())
{
    for (const VarsetConditionI *condition : target.getConditions()) {
        m_faultyCondition = m_faultyCondition || !condition->program();
        m_readsRanges = m_readsRanges || (source && readsRange(*condition, *source));
    }
    for (const VarsetModifierI *modifier : target.getVarsetModifier()) {
        const auto *formula = dynamic_cast<const VarsetValueMappingC *>(modifier);
        m_faultyFormula = m_faultyFormula || (formula && !formula->error().isEmpty());
    }
    if (m_source && m_table)
        bindColumns();
}

void TargetFaults::bindColumns()
{
    m_reaches.assign(size_t(m_source->descriptor().fields.size()), false);
    bool lacksTargetKey = false;
    const std::vector<int> targetKeys = Mapper::keyColumnsOf(m_table->content().getTableData());
    for (const Mapper::TargetVariable &variable : m_table->variables()) {
        const Origin origin = m_modifiers.origin(variable.name);
        if (origin.kind == Origin::Column)
            m_reaches[size_t(origin.index)] = true;
        if (origin.kind == Origin::Formula) {
            for (const int column : m_modifiers.formulaColumns(origin.index))
                m_reaches[size_t(column)] = true;
        }
        const bool isKey = std::ranges::find(targetKeys, variable.column) != targetKeys.end();
        const bool isMade = origin.kind == Origin::Column || origin.kind == Origin::Formula;
        lacksTargetKey = lacksTargetKey || (isKey && !isMade);
    }
    const std::vector<int> keys = Mapper::keyColumnsOf(m_source);
    const bool lacksOwnKey =
        std::ranges::any_of(keys, [this](int column) { return !m_reaches[size_t(column)]; });
    m_lacksKeys = lacksTargetKey || lacksOwnKey;
}

bool TargetFaults::takes(const VKTab::LineView &line) const
{
    return m_readsRanges || m_conditions.holds(line);
}

bool TargetFaults::formulaFails(const VKTab::LineView &line)
{
    if (m_faultyFormula)
        return true;
    m_modifiers.evaluate(line, m_results);
    std::string scratch;
    for (int i = 0; i < m_modifiers.formulaCount(); ++i) {
        if (!m_results[size_t(i)].text.empty())
            continue;
        const std::vector<int> &columns = m_modifiers.formulaColumns(i);
        if (std::ranges::all_of(columns,
                                [&](int column) { return hasValue(line, column, scratch); }))
            return true;
    }
    return false;
}

/// As the check of an assignment has it: half of the values, and two of them, have to be compared
/// unless all are.
bool TargetFaults::lacksColumns(const VKTab::LineView &line) const
{
    if (m_lacksKeys)
        return true;
    int values = 0;
    int compared = 0;
    std::string scratch;
    for (size_t column = 0; column < m_reaches.size(); ++column) {
        if (!m_source->descriptor().fields[qsizetype(column)].isCompared() ||
            !hasValue(line, int(column), scratch))
            continue;
        ++values;
        compared += m_reaches[column] ? 1 : 0;
    }
    return compared == 0 || (compared < values && (compared < 2 || 2 * compared < values));
}

} // namespace VelkRelease
