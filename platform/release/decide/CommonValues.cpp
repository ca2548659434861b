#include "CommonValues.h"

#include <geomcore/binding/createVarsetFromVKTable.h>
#include <geomcore/binding/VarsetConditionC.h>
#include <geomcore/expression/MapVarValueC.h>
#include <geomcore/table/BoundExpression.h>
#include <geomcore/table/Content.h>
#include <geomcore/table/LineView.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <vector>

namespace VelkRelease {

namespace {

/// A clause that holds for all of the lines, and the lines of the table that it holds for.
struct Clause
{
    CommonValues::Entry entry;
    std::vector<bool> holds; ///< by place in the table
};

std::vector<VKTab::LineId> knownLines(const VKTab::Content &table, const QList<int> &lines)
{
    std::vector<VKTab::LineId> known;
    for (const int line : lines) {
        if (VKTab::LineView(table, VKTab::LineId(line)).isValid())
            known.emplace_back(line);
    }
    return known;
}

/// None if the clause does not parse, or not all of the lines agree.
std::unique_ptr<VarsetConditionC> conditionOf(const QString &clause)
{
    std::unique_ptr<VarsetConditionC> condition(VarsetConditionC::fromText(clause));
    return condition->error().isEmpty() ? std::move(condition) : nullptr;
}

std::vector<bool> linesOf(const VarsetConditionC &condition, const VKTab::Content &table,
                          const QVector<VKTab::LineId> &all)
{
    const VKTab::BoundExpression bound(condition.program(), table.getTableData().get());
    std::vector<bool> holds;
    holds.reserve(size_t(all.size()));
    for (const VKTab::LineId &id : all)
        holds.push_back(bound.holds(VKTab::LineView(table, id)));
    return holds;
}

std::vector<Clause> clausesOf(const VKTab::Content &table, const std::vector<VKTab::LineId> &lines)
{
    const QVector<VKTab::LineId> all = table.getLineIdList();
    const auto first = createVarsetFromVKTable(table, lines.front(), {});
    std::vector<Clause> clauses;
    for (const VKTab::VarId &id : table.getColumnMapping().getOrdered()) {
        const VKTab::Var var = table.getVar(id);
        const auto value = first.constFind(var.getName());
        if (!entersVarset(var) || var.isFW() || value == first.cend())
            continue;
        const QString text = value->getValue().toString();
        if (text.trimmed().isEmpty())
            continue;
        const QString clause = equalsClause(var.getName(), text, value->isNumeric());
        const auto condition = conditionOf(clause);
        if (!condition)
            continue;
        const VKTab::BoundExpression bound(condition->program(), table.getTableData().get());
        const auto agrees = [&](const VKTab::LineId &line) {
            return bound.holds(VKTab::LineView(table, line));
        };
        if (!std::all_of(lines.begin(), lines.end(), agrees))
            continue;
        Clause found{{var.getName(), text, clause, 0}, linesOf(*condition, table, all)};
        found.entry.lines = int(std::count(found.holds.begin(), found.holds.end(), true));
        if (found.entry.lines < all.size())
            clauses.push_back(std::move(found));
    }
    std::stable_sort(clauses.begin(), clauses.end(), [](const Clause &a, const Clause &b) {
        return a.entry.lines < b.entry.lines;
    });
    return clauses;
}

int countBoth(const std::vector<bool> &a, const std::vector<bool> &b)
{
    int count = 0;
    for (size_t i = 0; i < a.size(); ++i)
        count += a[i] && b[i] ? 1 : 0;
    return count;
}

/// The clauses that together leave fewest lines, the most telling one first, as long as each leaves
/// fewer.
void join(const std::vector<Clause> &clauses, CommonValues &common)
{
    if (clauses.empty())
        return;
    std::vector<bool> holds = clauses.front().holds;
    common.condition = clauses.front().entry.clause;
    common.taken = clauses.front().entry.lines;
    while (true) {
        const Clause *best = nullptr;
        int left = common.taken;
        for (const Clause &clause : clauses) {
            const int count = countBoth(holds, clause.holds);
            if (count < left) {
                left = count;
                best = &clause;
            }
        }
        if (!best)
            return;
        for (size_t i = 0; i < holds.size(); ++i)
            holds[i] = holds[i] && best->holds[i];
        common.condition += QStringLiteral(" .AND. ") + best->entry.clause;
        common.taken = left;
    }
}

} // namespace

QString equalsClause(const QString &name, const QString &value, bool numeric)
{
    QString text = value;
    if (!numeric)
        text = u'\'' + text.replace(u'\'', QStringLiteral("''")) + u'\'';
    return name + QStringLiteral(" .EQ. ") + text;
}

CommonValues commonValues(const VKTab::Content &table, const QList<int> &lines)
{
    CommonValues common;
    const std::vector<VKTab::LineId> known = knownLines(table, lines);
    if (known.empty())
        return common;
    const std::vector<Clause> clauses = clausesOf(table, known);
    for (const Clause &clause : clauses)
        common.entries.append(clause.entry);
    join(clauses, common);
    return common;
}

} // namespace VelkRelease
