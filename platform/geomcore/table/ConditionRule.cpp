#include "ConditionRule.h"

#include "Content.h"
#include "LineSet.h"
#include "LineView.h"
#include "TableData.h"

#include "BoundExpression.h"
#include <geomcore/expression/ExpressionText.h>

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

void evaluateLines(const BoundExpression &condition, const Content &content, const TableData &table,
                   LineSet &visible)
{
    const bool plain = content.isPlain();
    LineSet hidden(visible.capacity(), false);
    visible.forEach([&](int row) {
        const LineView line = plain ? LineView(table, row) : LineView(content, table.lineId(row));
        if (!condition.holds(line))
            hidden.insert(row);
    });
    hidden.forEach([&](int row) { visible.remove(row); });
}

} // namespace

ConditionRule::ConditionRule(const QList<FilterCondition> &conditions)
{
    for (const FilterCondition &condition : conditions) {
        if (auto program = ExpressionText(ExpressionUse::Condition, condition.text).program())
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

void ConditionRule::evaluate(const Content &content, LineSet &visible) const
{
    const auto table = content.getTableData();
    for (const auto &condition : m_conditions) {
        const BoundExpression bound(condition, table.get());
        const int column = content.isPlain() ? onlyColumn(*condition, *table) : -1;
        if (column >= 0)
            evaluateColumn(bound, *table, column, visible);
        else
            evaluateLines(bound, content, *table, visible);
    }
}

} // namespace VKTab
