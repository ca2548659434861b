#include "ComputedColumns.h"

#include "LineView.h"
#include "TableData.h"

#include "BoundExpression.h"
#include <geomcore/expression/ExpressionText.h>

namespace VKTab {

namespace {

/// Variables may need others, but not endlessly so.
constexpr int MaxDepth = 32;
thread_local int depth = 0;

struct DepthGuard
{
    DepthGuard() { ++depth; }
    ~DepthGuard() { --depth; }
};

/// A formula is an expression, or an assignment of one to the variable itself.
std::shared_ptr<const Program> programOf(const TableField &field)
{
    const ExpressionText assigned(ExpressionUse::Formula, field.formula);
    if (field.formula.contains(u'=')) {
        if (auto program = assigned.program())
            return program;
    }
    return ExpressionText(ExpressionUse::Formula, field.name + " = " + field.formula).program();
}

} // namespace

ComputedColumns::ComputedColumns(const TableData &table)
    : m_firstColumn(table.columnCount())
{
    const QList<TableField> &fields = table.descriptor().fields;
    for (int column = m_firstColumn; column < fields.size(); ++column)
        m_formulas.push_back(
            std::make_unique<const BoundExpression>(programOf(fields[column]), &table));
}

ComputedColumns::~ComputedColumns() = default;

void ComputedColumns::evaluate(const LineView &line, int column, std::string &result) const
{
    result.clear();
    const auto index = static_cast<size_t>(column - m_firstColumn);
    if (depth >= MaxDepth || index >= m_formulas.size())
        return;
    const DepthGuard guard;
    ExpressionValue value;
    m_formulas[index]->evaluate(line, value);
    result = std::move(value.text);
}

} // namespace VKTab
