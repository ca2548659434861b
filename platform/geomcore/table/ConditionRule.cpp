#include "ConditionRule.h"

#include "FilteredTable.h"
#include "LineSet.h"
#include "LineView.h"
#include "TableData.h"

#include "BoundExpression.h"
#include "tableExpressions.h"

namespace VKTab {

namespace {

/// What decides over a line if a condition reads this one column alone; -1 if it reads others.
int onlyColumn(const Program &condition, const TableData &table)
{
    int column = -1;
    for (const Program::Variable &variable : condition.variables()) {
        const int read = columnOfVariable(&table, variable.name);
        if (read < 0 || read >= table.columnCount() || (column >= 0 && read != column))
            return -1;
        column = read;
    }
    return column;
}

/// Asks the condition once for each text of the column.
void evaluateColumn(const BoundExpression &condition, const TableData &table, int column,
                    LineSet &visible)
{
    const InternedColumn &interned = table.interned(column);
    enum : char { Unknown, Holds, Fails };
    std::vector<char> answers(interned.values.size(), Unknown);
    for (int row = 0; row < visible.capacity(); ++row) {
        char &answer = answers[interned.ids[static_cast<size_t>(row)]];
        if (answer == Unknown)
            answer = condition.holds(LineView(table, row)) ? Holds : Fails;
        if (answer == Fails)
            visible.remove(row);
    }
}

void evaluateLines(const BoundExpression &condition, const FilteredTable &table, LineSet &visible)
{
    LineSet hidden(visible.capacity(), false);
    visible.forEach([&](int row) {
        if (!condition.holds(table.line(row)))
            hidden.insert(row);
    });
    hidden.forEach([&](int row) { visible.remove(row); });
}

} // namespace

ConditionRule::ConditionRule(const QList<FilterCondition> &conditions)
{
    for (const FilterCondition &condition : conditions) {
        if (auto program = parseCondition(condition.text).program)
            m_conditions.push_back(std::move(program));
    }
}

ConditionRule::~ConditionRule() = default;

QString ConditionRule::className() const
{
    return QStringLiteral("VKTab::FilterByCondition");
}

bool ConditionRule::isUsed() const
{
    return !m_conditions.empty();
}

void ConditionRule::evaluate(const FilteredTable &table, LineSet &visible) const
{
    for (const auto &condition : m_conditions) {
        const BoundExpression bound(condition, &table.data());
        const int column = table.isPlain() ? onlyColumn(*condition, table.data()) : -1;
        if (column >= 0)
            evaluateColumn(bound, table.data(), column, visible);
        else
            evaluateLines(bound, table, visible);
    }
}

} // namespace VKTab
