#include "LinePlan.h"

#include "PairJoin.h"
#include "TargetTable.h"

#include <core/parallel/WorkerPool.h>
#include <geomcore/plan/giveBack.h>
#include <geomcore/table/TableData.h>

#include <algorithm>
#include <utility>

namespace Mapper {

namespace {

/// Lines with several equal ones that are told apart by their place.
constexpr int MaxTied = 20'000;

} // namespace

LinePlan::LinePlan(TargetSet &targets, const PrjMappingC &mapping, const AgreedValues &agreed,
                   const LearnedValues &learned)
    : m_source(&targets.source())
    , m_walksRanges(!targets.ranges().isEmpty())
    , m_agreed(agreed)
{
    const int rows = source().data()->rowCount();
    m_tables.sourceRows = rows;
    m_settledTarget.assign(size_t(rows), -1);
    m_settledRow.assign(size_t(rows), -1);
    m_openOf.assign(size_t(rows), -1);
    findSettled(targets, mapping);
    for (int row = 0; row < rows; ++row) {
        if (m_settledTarget[size_t(row)] >= 0)
            continue;
        m_openOf[size_t(row)] = int(m_tables.openLines.size());
        m_tables.openLines.push_back(row);
    }
    m_tables.openLines.shrink_to_fit();
    Plan::giveBack(m_settledTarget);
    Plan::giveBack(m_settledRow);
    for (size_t i = 0; i < m_bound.size() && !m_tables.openLines.empty(); ++i)
        findOpen(*m_bound[i], m_tables.targets[i]);
    m_tables.variableCount = int(m_variableNumbers.size());
    m_tables.values.resize(m_variableNumbers.size());
    fillTargets(learned);
    for (Plan::PlanTarget &target : m_tables.targets)
        finish(target);
    if (!m_agreed.isEmpty()) {
        m_isAgreed.resize(m_variableNumbers.size());
        for (const auto &[name, number] : m_variableNumbers)
            m_isAgreed[size_t(number)] = m_agreed.concern(name.toStdString()) ? 1 : 0;
    }
    m_planner = std::make_unique<Plan::LinePlanner>(m_tables);
    m_planner->setKnown(&m_known);
    m_planner->setCancellation([this] { return source().isCanceled(); });
    if (!m_tables.openLines.empty())
        m_planner->run();
    m_isCanceled = source().isCanceled();
    m_planner->setCancellation({});
    m_bound.clear();
    m_claimed.clear();
    for (Plan::PlanTarget &target : m_tables.targets)
        Plan::giveBack(target.settled);
    m_source = nullptr;
}

LinePlan::~LinePlan() = default;

void LinePlan::findSettled(TargetSet &targets, const PrjMappingC &mapping)
{
    for (int i = 0; i < targets.count(); ++i) {
        const BoundTarget *target = targets.at(i, mapping);
        if (!target || !target->isOpen() || target->variables().empty())
            continue;
        Plan::PlanTarget filled;
        filled.rowCount = target->table()->data().rowCount();
        filled.hasSourceName = targets.rank(*target) != NameRank::Other;
        const auto same = std::find_if(m_bound.begin(), m_bound.end(), [&](const auto *other) {
            return other->table() == target->table();
        });
        filled.table = same == m_bound.end()
                           ? int(m_claimed.size())
                           : m_tables.targets[size_t(same - m_bound.begin())].table;
        if (same == m_bound.end())
            m_claimed.emplace_back(size_t(filled.rowCount), 0);
        filled.settled.assign(m_settledRow.size(), -1);
        m_bound.push_back(target);
        m_targetIndexes.push_back(i);
        m_tables.targets.push_back(std::move(filled));
    }
    takeConfirmed(targets, mapping);
    for (size_t place = 0; place < m_bound.size(); ++place)
        takeEqual(*m_bound[place], place);
}

void LinePlan::takeConfirmed(TargetSet &targets, const PrjMappingC &mapping)
{
    for (int i = 0; i < targets.count(); ++i) {
        const PrjMappingTargetC &entries = mapping.targetAt(i);
        if (entries.lineCounts().verified() == 0)
            continue;
        const auto known = std::find(m_targetIndexes.begin(), m_targetIndexes.end(), i);
        const auto place = size_t(known - m_targetIndexes.begin());
        for (const LineTable::Iterator &entry : entries.lines()) {
            if (entry.state() != PRJMAPPING::Verified || known == m_targetIndexes.end())
                continue;
            const int line = source().rowOf(entry.sourceLine());
            const int row = m_bound[place]->table()->data().rowOf(entry.targetLine());
            if (line < 0 || row < 0)
                continue;
            m_settledTarget[size_t(line)] = int(place);
            m_settledRow[size_t(line)] = row;
            m_tables.targets[place].settled[size_t(line)] = row;
            m_claimed[size_t(m_tables.targets[place].table)][size_t(row)] = 1;
        }
    }
}

/// Lines with one equal line that no other line equals. If very many have several, these stay as
/// they were paired off in order: their values tell nothing more.
void LinePlan::takeEqual(const BoundTarget &target, size_t place)
{
    const PairJoin *join = target.join();
    if (!join)
        return;
    std::vector<char> &claimed = m_claimed[size_t(m_tables.targets[place].table)];
    const auto isTied = [&](int line, int row) {
        return join->isSeveral(line) || join->claims(row) != 1;
    };
    int tied = 0;
    for (int line = 0; line < join->sourceRows(); ++line)
        tied += join->hit(line) >= 0 && isTied(line, join->hit(line)) ? 1 : 0;
    for (int line = 0; line < join->sourceRows(); ++line) {
        const int row = join->hit(line);
        if (row < 0 || m_settledTarget[size_t(line)] >= 0 || claimed[size_t(row)] ||
            (tied <= MaxTied && isTied(line, row)))
            continue;
        m_settledTarget[size_t(line)] = int(place);
        m_settledRow[size_t(line)] = row;
        m_tables.targets[place].settled[size_t(line)] = row;
        claimed[size_t(row)] = 1;
    }
}

void LinePlan::findOpen(const BoundTarget &target, Plan::PlanTarget &filled)
{
    const std::vector<char> &claimed = m_claimed[size_t(filled.table)];
    for (int row = 0; row < filled.rowCount; ++row) {
        const bool shown = !target.shownOnly() || target.table()->isShown(row);
        if (!claimed[size_t(row)] && shown)
            filled.openRows.push_back(row);
    }
    filled.openRows.shrink_to_fit();
    for (const int variable : target.variables()) {
        const QString &name = target.table()->variables()[size_t(variable)].name;
        filled.variables.push_back(
            m_variableNumbers.emplace(name, int(m_variableNumbers.size())).first->second);
    }
    if (target.identity().designations()) // what tells the lines apart is one more variable
        filled.variables.push_back(
            m_variableNumbers.emplace(QString(), int(m_variableNumbers.size())).first->second);
    for (size_t place = 0; place < filled.variables.size(); ++place)
        filled.keys.push_back(isKey(target, filled.hasSourceName, place) ? 1 : 0);
}

bool LinePlan::isKey(const BoundTarget &target, bool hasSourceName, size_t place)
{
    if (place == target.variables().size())
        return true;
    const auto variable = size_t(target.variables()[place]);
    const TargetTable &table = *target.table();
    if (table.data().descriptor().primaryKey.contains(table.variables()[variable].name))
        return true;
    // A first column that looks like a key may be a measure as well, or that of another thing.
    return hasSourceName && target.identity().byKeyVariables() &&
           table.keyVariables()->front() == int(variable) && target.isText(int(variable));
}

void LinePlan::finish(Plan::PlanTarget &filled)
{
    std::vector<int> counts;
    for (size_t place = 0; place < filled.variables.size(); ++place)
        counts.push_back(valuesOf(filled, place).count());
    filled.lines.pack(counts);
    filled.rows.pack(counts);
    WorkerPool::instance().run(int(filled.chances.size()), [&](int place) {
        filled.chances[size_t(place)].finish(valuesOf(filled, size_t(place)),
                                             filled.keys[size_t(place)] != 0);
    });
}

std::optional<Plan::LinePlanner::Line> LinePlan::line(int sourceRow) const
{
    const int open = sourceRow < 0 ? -1 : m_openOf[size_t(sourceRow)];
    if (open < 0)
        return std::nullopt;
    return m_planner->line(size_t(open));
}

std::optional<Plan::PlanEdge> LinePlan::edgeFor(int sourceRow, int targetIndex, int row) const
{
    const auto known = std::find(m_targetIndexes.begin(), m_targetIndexes.end(), targetIndex);
    if (known == m_targetIndexes.end() || !line(sourceRow))
        return std::nullopt;
    const auto place = size_t(known - m_targetIndexes.begin());
    const std::vector<int> &open = m_tables.targets[place].openRows;
    const auto at = std::lower_bound(open.begin(), open.end(), row);
    if (at == open.end() || *at != row ||
        !m_tables.targets[place].takes[size_t(m_openOf[size_t(sourceRow)])])
        return std::nullopt;
    Plan::PlanEdge edge;
    edge.target = int(place);
    edge.row = int(at - open.begin());
    edge.node = m_planner->nodeOf(edge.target, edge.row);
    return edge;
}

Plan::CellEvidence LinePlan::cell(const Plan::PlanEdge &edge, int sourceRow, size_t place) const
{
    Plan::CellEvidence evidence = m_planner->cell(edge, size_t(m_openOf[size_t(sourceRow)]), place);
    const std::vector<int> &variables = m_tables.targets[size_t(edge.target)].variables;
    if (!m_isAgreed.empty() && m_isAgreed[size_t(variables[place])]) // values that differ are asked
        evidence.ways[int(Plan::Way::Change)] +=
            std::exchange(evidence.ways[int(Plan::Way::Same)], 0);
    return evidence;
}

} // namespace Mapper
