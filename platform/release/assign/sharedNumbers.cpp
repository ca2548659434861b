#include "sharedNumbers.h"

#include "LineCells.h"
#include "RowValues.h"
#include "VariableNames.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/expression/Operand.h>
#include <geomcore/plan/CellChange.h>
#include <geomcore/plan/CellValues.h>
#include <geomcore/table/TableData.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace VelkRelease {

namespace {

using Plan::CellChange;
using Plan::CellValues;

struct NumberChange
{
    int variable = 0;
    bool isFactor = false; ///< Else it is a difference.
    double number = 0;     ///< Rounded as plans round it.

    friend bool operator<(const NumberChange &a, const NumberChange &b)
    {
        return std::tie(a.variable, a.isFactor, a.number) <
               std::tie(b.variable, b.isFactor, b.number);
    }
};
/// Lines by what they show.
using ChangeCounts = std::map<NumberChange, int>;
/// Lines by variable.
using Cases = std::map<int, int>;

LearnedReplacement learnedFrom(const NumberChange &change, const VariableNames &names,
                               const SharedCount &count)
{
    const QString number = QString::fromStdString(VKTab::decimalText(change.number));
    LearnedReplacement learned;
    learned.variable = names.nameOf(change.variable);
    learned.factor = change.isFactor ? number : QStringLiteral("1");
    learned.offset = change.isFactor ? QStringLiteral("0") : number;
    learned.supports = count.supports();
    learned.cases = count.cases();
    return learned;
}

/// Those that pairs of enough projects differ in; others cannot be shared.
std::set<int> changedVariables(const std::vector<KnownLines> &projects)
{
    std::map<int, int> counts;
    for (const KnownLines &lines : projects) {
        std::set<int> its;
        for (const KnownLines::Pair &pair : lines.pairs) {
            for (const size_t place : pair.differing)
                its.insert(lines.variable(place));
        }
        for (const int variable : its)
            ++counts[variable];
    }
    std::set<int> changed;
    for (const auto &[variable, count] : counts) {
        if (count >= SharedCount::LeastProjects)
            changed.insert(variable);
    }
    return changed;
}

/// What the pairs of one project show of these variables.
ChangeCounts shownBy(const KnownLines &lines, const std::set<int> &variables,
                     const VariableNames &names, const VKTab::TableData &source,
                     const VKTab::TableData &target)
{
    RowValues before(source);
    RowValues after(target);
    std::map<int, CellValues> values;
    ChangeCounts shown;
    const auto add = [&](const NumberChange &change, double same) {
        if (std::isfinite(change.number) && change.number != same)
            ++shown[change];
    };
    for (const KnownLines::Pair &pair : lines.pairs) {
        before.setRow(pair.sourceRow);
        after.setRow(pair.targetRow);
        for (const size_t place : pair.differing) {
            const int variable = lines.variable(place);
            if (!variables.contains(variable))
                continue;
            const QString name = names.nameOf(variable);
            CellValues &its = values[variable];
            const int oldValue = before.number(name, its);
            const int newValue = after.number(name, its);
            if (oldValue == CellValues::NoValue || newValue == CellValues::NoValue)
                continue;
            const CellChange change = Plan::changeBetween(its, variable, oldValue, newValue);
            if (change.keys[CellChange::Factor] != 0)
                add({variable, true, Plan::roundedChange(change.factor)}, 1);
            if (change.keys[CellChange::Offset] != 0)
                add({variable, false, Plan::roundedChange(change.offset)}, 0);
        }
    }
    return shown;
}

/// Those that enough projects show.
std::set<NumberChange> sharedOf(const std::vector<ChangeCounts> &projects)
{
    std::map<NumberChange, int> counts;
    for (const ChangeCounts &project : projects) {
        for (const auto &[change, lines] : project)
            ++counts[change];
    }
    std::set<NumberChange> shared;
    for (const auto &[change, count] : counts) {
        if (count >= SharedCount::LeastProjects)
            shared.insert(change);
    }
    return shared;
}

/// Known lines of one project with a number in these variables. A factor leaves 0 as it is, which
/// says nothing.
Cases casesOf(const KnownLines &lines, const std::map<int, QString> &variables,
              const VKTab::TableData &source)
{
    RowValues row(source);
    std::map<int, CellValues> values;
    Cases cases;
    const auto add = [&](int line) {
        row.setRow(line);
        for (const auto &[variable, name] : variables) {
            CellValues &its = values[variable];
            const auto tokens = its.value(row.number(name, its)).tokens;
            const bool hasNumber = std::ranges::any_of(tokens, [&](int token) {
                return its.isNumberToken(token) && its.tokenNumber(token) != 0;
            });
            cases[variable] += hasNumber ? 1 : 0;
        }
    };
    for (int line = 0; line < lines.tables.source->rowCount(); ++line) {
        if (lines.match->isEqual(line))
            add(line);
    }
    for (const KnownLines::Pair &pair : lines.pairs)
        add(pair.sourceRow);
    return cases;
}

/// Of the shared changes those of variables that the project's tables have in common.
std::map<int, QString> variablesOf(const KnownLines &lines, const std::set<NumberChange> &shared,
                                   const VariableNames &names)
{
    std::map<int, QString> variables;
    for (const NumberChange &change : shared) {
        for (size_t place = 0; lines.match && place < lines.match->sourceColumns().size();
             ++place) {
            if (lines.variable(place) == change.variable)
                variables[change.variable] = names.nameOf(change.variable);
        }
    }
    return variables;
}

} // namespace

QList<LearnedReplacement> sharedNumbers(const std::vector<KnownLines> &projects,
                                        const VariableNames &names, const ReadTable &source,
                                        const ReadTable &target)
{
    const std::set<int> variables = changedVariables(projects);
    if (variables.empty())
        return {};
    const int count = int(projects.size());
    std::vector<ChangeCounts> shown(projects.size());
    WorkerPool::instance().run(count, [&](int i) {
        const KnownLines &lines = projects[size_t(i)];
        const auto before = lines.pairs.empty() ? nullptr : source(i);
        const auto after = lines.pairs.empty() ? nullptr : target(i);
        if (before && after)
            shown[size_t(i)] = shownBy(lines, variables, names, *before, *after);
    });
    const std::set<NumberChange> shared = sharedOf(shown);
    std::vector<Cases> cases(projects.size());
    WorkerPool::instance().run(count, [&](int i) {
        const KnownLines &lines = projects[size_t(i)];
        const std::map<int, QString> its = variablesOf(lines, shared, names);
        const auto before = its.empty() ? nullptr : source(i);
        if (before)
            cases[size_t(i)] = casesOf(lines, its, *before);
    });
    QList<LearnedReplacement> learned;
    for (const NumberChange &change : shared) {
        SharedCount all;
        for (size_t i = 0; i < projects.size(); ++i) {
            const auto supports = shown[i].find(change);
            const auto lines = cases[i].find(change.variable);
            if (lines != cases[i].end())
                all.add(supports == shown[i].end() ? 0 : supports->second, lines->second);
        }
        if (all.isMost())
            learned.append(learnedFrom(change, names, all));
    }
    return learned;
}

} // namespace VelkRelease
