// The part of LinePlan that gives the cells of its tables their numbers.
#include "CellNumbering.h"
#include "DesignationIndex.h"
#include "LinePlan.h"
#include "PairJoin.h"
#include "TargetTable.h"

#include <geomcore/plan/ValueRule.h>
#include <geomcore/table/LineView.h>
#include <geomcore/table/TableData.h>

#include <algorithm>

namespace Mapper {

namespace {

/// Rows of a target's table from which it is learned how often values occur.
constexpr int MaxSampled = 20'000;
/// So many open lines and rows are many: their variables are numbered in several passes, unless
/// they are a small part of the tables.
constexpr size_t ManyLines = 20'000;
constexpr int Passes = 3;

/// Rows so far ahead are fetched while others are split: where few are open, they are far apart.
constexpr size_t RowsAhead = 8;

void fetchAhead(const VKTab::TableData &table, const std::vector<int> &rows, size_t at)
{
    if (at + RowsAhead < rows.size())
        table.prefetchRow(rows[at + RowsAhead]);
}

static_assert(MaxSampled <= Plan::ColumnChance::MaxLines);

LineInput planInput(const SourceTable &source, const VKTab::LineView &view)
{
    LineInput input;
    input.lineId = source.data()->lineId(view.row()).value(0);
    input.row = view.row();
    input.view = &view;
    input.stored = true;
    return input;
}

/// Of the target's variables, as rules of proposals know them.
std::vector<std::string> namesOf(const BoundTarget &target)
{
    std::vector<std::string> names;
    names.reserve(target.variables().size());
    for (const int variable : target.variables())
        names.push_back(target.table()->variables()[size_t(variable)].name.toStdString());
    return names;
}

} // namespace

bool LinePlan::takes(const BoundTarget &target, int sourceRow) const
{
    if (m_walksRanges)
        return target.join() && target.join()->takesSome(sourceRow);
    const VKTab::LineView view(*source().data(), sourceRow);
    return target.conditionsHold(planInput(source(), view));
}

/// What other projects show says how values change, not to which table the lines went: where
/// several compete, the one that happens to have the new values must not win by it.
void LinePlan::takeLearned(const LearnedValues &learned, const QString &name, int number)
{
    if (learned.isEmpty() || m_tables.openLines.empty() || m_claimed.size() != 1)
        return;
    learned.addTo(m_known, name, number, m_tables.values[size_t(number)]);
}

/// Numbering the values of a variable takes several times the room that these take once they are
/// numbered, so that it is not done for all variables at once where most of a large table is open.
int LinePlan::variablesAtOnce() const
{
    size_t lines = m_tables.openLines.size();
    auto all = size_t(m_tables.sourceRows);
    for (const Plan::PlanTarget &target : m_tables.targets) {
        lines += target.openRows.size();
        all += size_t(target.rowCount);
    }
    const int variables = m_tables.variableCount;
    const bool isMuch = lines >= ManyLines && lines > all / 4;
    return std::max(1, isMuch ? (variables + Passes - 1) / Passes : variables);
}

void LinePlan::fillTargets(const LearnedValues &learned)
{
    if (m_tables.openLines.empty())
        return;
    size_t values = 1; // at most, with that of no value
    for (const Plan::PlanTarget &target : m_tables.targets)
        values += m_tables.openLines.size() + target.openRows.size() + size_t(MaxSampled);
    for (Plan::PlanTarget &target : m_tables.targets) {
        const size_t count = target.variables.size();
        target.lines = Plan::CellMatrix(m_tables.openLines.size(), count, values);
        target.rows = Plan::CellMatrix(target.openRows.size(), count, values);
        target.takes.assign(m_tables.openLines.size(), 0);
        target.chances.resize(count);
    }
    std::vector<QString> names(m_variableNumbers.size());
    for (const auto &[name, number] : m_variableNumbers)
        names[size_t(number)] = name;
    const int step = variablesAtOnce();
    for (int first = 0; first < m_tables.variableCount; first += step) {
        const Variables variables{first, std::min(first + step, m_tables.variableCount)};
        for (size_t i = 0; i < m_bound.size(); ++i) {
            fillLines(*m_bound[i], m_tables.targets[i], variables);
            fillRows(*m_bound[i], m_tables.targets[i], variables);
        }
        for (int variable = first; variable < variables.last; ++variable) {
            takeLearned(learned, names[size_t(variable)], variable);
            m_tables.values[size_t(variable)].finish();
        }
    }
}

LinePlan::Places::Places(const Plan::PlanTarget &target, Variables meant)
{
    for (size_t place = 0; place < target.variables.size(); ++place) {
        const int variable = target.variables[place];
        if (variable < meant.first || variable >= meant.last)
            continue;
        places.push_back(place);
        variables.push_back(variable);
    }
}

void LinePlan::fillLines(const BoundTarget &target, Plan::PlanTarget &filled, Variables meant)
{
    const std::vector<int> &open = m_tables.openLines;
    const size_t count = target.variables().size();
    const std::vector<std::string> names = namesOf(target);
    TargetValues values;
    std::string meaning;
    std::string agreed;
    const Places chosen(filled, meant);
    const auto add = [&](size_t line, CellTexts &texts) {
        fetchAhead(*source().data(), open, line);
        if (!takes(target, open[line]))
            return;
        const VKTab::LineView view(*source().data(), open[line]);
        target.takeValues(planInput(source(), view), values);
        // A line without a value there is like no line.
        for (size_t place = 0; place < count; ++place)
            filled.takes[line] |= values.texts.values[place].text.empty() ? 0 : 1;
        for (const size_t place : chosen.places) {
            if (place == count) {
                texts.add(source().designation(view), '.');
                continue;
            }
            const LineTexts::Value &value = values.texts.values[place];
            const std::string_view stated =
                m_agreed.isEmpty()
                    ? value.text
                    : m_agreed.meaningOf(names[place], value.text, value.decimalChar, agreed);
            texts.add(Plan::ValueRule::meaningOf(names[place], stated, meaning), value.decimalChar);
        }
    };
    CellNumbering(m_tables.values, chosen.variables)
        .runInOrder(open.size(), add, [&](size_t line, size_t place, int number) {
            filled.lines.set(line, chosen.places[place], number);
        });
}

void LinePlan::fillRows(const BoundTarget &target, Plan::PlanTarget &filled, Variables meant)
{
    const TargetTable &table = *target.table();
    const std::vector<std::string> names = namesOf(target);
    const Places chosen(filled, meant);
    const auto add = [&](int row, CellTexts &texts) {
        thread_local TargetTable::Row split;
        thread_local std::string scratch;
        thread_local std::string meaning;
        table.split(row, split);
        for (const size_t place : chosen.places) {
            if (place == target.variables().size()) {
                texts.add(target.identity().designations()->textOf(row), '.');
                continue;
            }
            const auto variable = size_t(target.variables()[place]);
            texts.add(Plan::ValueRule::meaningOf(
                          names[place], table.text(split, int(variable), scratch), meaning),
                      table.variables()[variable].decimalChar);
        }
    };
    CellNumbering numbering(m_tables.values, chosen.variables);
    numbering.run(
        filled.openRows.size(),
        [&](size_t row, CellTexts &texts) {
            fetchAhead(table.data(), filled.openRows, row);
            add(filled.openRows[row], texts);
        },
        [&](size_t row, size_t place, int number) {
            filled.rows.set(row, chosen.places[place], number);
        });
    const size_t step = size_t(filled.rowCount) / MaxSampled + 1;
    numbering.run((size_t(filled.rowCount) + step - 1) / step,
                  [&](size_t i, CellTexts &texts) { add(int(i * step), texts); },
                  [&](size_t, size_t place, int number) {
                      filled.chances[chosen.places[place]].add(number);
                  });
}

} // namespace Mapper
