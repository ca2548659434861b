#include "TargetTable.h"

#include "DesignationIndex.h"
#include "ElementIndex.h"
#include "ExactSearch.h"
#include "PairJoin.h"
#include "SourceTable.h"

#include <geomcore/table/LineMapping.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/readProjectTable.h>
#include <geomcore/table/TableData.h>

namespace Mapper {

using VKTab::LineIndex;
using VKTab::LineSet;
using VKTab::LineView;
using VKTab::TableField;

TargetTable::TargetTable(const VKTab::Content &content)
    : m_content(content)
    , m_data(content.getTableData())
{
    const QList<TableField> &fields = m_data->descriptor().fields;
    for (int column = 0; column < int(fields.size()); ++column) {
        const TableField &field = fields[column];
        if (field.isCompared()) {
            if (!m_variableOf.contains(field.name))
                m_variableOf.insert(field.name, int(m_variables.size()));
            m_variables.push_back({field.name, column, field.isRange(),
                                   column < m_data->columnCount(), field.decimalChar,
                                   !field.isNumeric()});
        }
    }
    takeFilterConditions();
}

TargetTable::~TargetTable() = default;

void TargetTable::takeFilterConditions()
{
    const VKTab::LineMapping shown = m_content.getLineMapping();
    if (shown.count() != m_data->rowCount()) {
        auto rows = std::make_unique<LineSet>(m_data->rowCount(), false);
        for (int i = 0; i < shown.count(); ++i)
            rows->insert(m_data->rowOf(shown.getLineId(i)));
        m_shown = std::move(rows);
    }
    VKTab::removeProjectFilters(m_content);
}

int TargetTable::variableOf(const QString &name) const
{
    return m_variableOf.value(name, -1);
}

std::string_view TargetTable::text(int row, int variable, std::string &scratch) const
{
    const TargetVariable &target = m_variables[size_t(variable)];
    if (!target.stored)
        return LineView(*m_data, row).text(target.column, scratch);
    const std::string_view cell = m_data->cell(row, target.column, scratch);
    return m_data->isMissing(cell) ? std::string_view() : VKTab::trimmedCell(cell);
}

void TargetTable::split(int row, Row &out) const
{
    out.row = row;
    out.cells.resize(size_t(m_data->columnCount()));
    m_data->cells(row, out.cells, out.scratch);
}

std::string_view TargetTable::text(const Row &row, int variable, std::string &scratch) const
{
    const TargetVariable &target = m_variables[size_t(variable)];
    if (!target.stored)
        return LineView(*m_data, row.row).text(target.column, scratch);
    const std::string_view cell = row.cells[size_t(target.column)];
    return m_data->isMissing(cell) ? std::string_view() : VKTab::trimmedCell(cell);
}

std::string TargetTable::normDesignation(int row) const
{
    std::string scratch;
    return DesignationPattern::ofDesignation(m_data->descriptor()).text([&](const QString &name) {
        const int variable = variableOf(name);
        return variable < 0 ? std::string() : std::string(text(row, variable, scratch));
    });
}

std::shared_ptr<const ExactSearch> TargetTable::exactSearch(const std::vector<int> &variables) const
{
    return m_exact.get(variables, [&] { return std::make_shared<ExactSearch>(*this, variables); });
}

std::shared_ptr<const LineIndex> TargetTable::lineIndex(const std::vector<int> &variables) const
{
    return m_indexes.get(variables, [&] {
        std::vector<LineIndex::Key> keys;
        keys.reserve(variables.size());
        for (int variable : variables) {
            keys.push_back({m_variables[size_t(variable)].column, VKTab::CompareMode::Number});
        }
        return std::make_shared<LineIndex>(m_data, std::move(keys));
    });
}

std::shared_ptr<const ElementIndex> TargetTable::elementIndex(int variable) const
{
    return m_elements.get(variable,
                          [&] { return std::make_shared<ElementIndex>(*this, variable); });
}

std::shared_ptr<const DesignationIndex> TargetTable::designations() const
{
    return m_designations.get(0, [&] { return std::make_shared<DesignationIndex>(*this); });
}

std::shared_ptr<const std::vector<int>> TargetTable::keyVariables() const
{
    return m_keyVariables.get(0, [&] {
        auto variables = std::make_shared<std::vector<int>>();
        for (int column : keyColumnsOf(m_data)) {
            const int variable = variableOf(m_data->descriptor().fields[column].name);
            if (variable < 0 || m_variables[size_t(variable)].range)
                return std::make_shared<std::vector<int>>();
            variables->push_back(variable);
        }
        return variables;
    });
}

} // namespace Mapper
