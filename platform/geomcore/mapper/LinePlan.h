#pragma once

#include "AgreedValues.h"
#include "LearnedValues.h"
#include "TargetSet.h"

#include <geomcore/plan/LinePlanner.h>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace Mapper {

/// The plan of a source table over the targets of a mapping: for each line that no equal line
/// settles, the rows that it may have become. Immutable once made; any thread.
class LinePlan
{
public:
    /// Looks at the targets and at the confirmed lines of \a mapping. The result refers to neither.
    LinePlan(TargetSet &targets, const PrjMappingC &mapping, const AgreedValues &agreed,
             const LearnedValues &learned);
    ~LinePlan();

    /// None for a line that is settled or not in the table.
    [[nodiscard]] std::optional<Plan::LinePlanner::Line> line(int sourceRow) const;
    /// Index of the target in the mapping.
    [[nodiscard]] int targetOf(const Plan::PlanEdge &edge) const
    {
        return m_targetIndexes[size_t(edge.target)];
    }
    /// Row of the target's table.
    [[nodiscard]] int rowOf(const Plan::PlanEdge &edge) const
    {
        return m_tables.targets[size_t(edge.target)].openRows[size_t(edge.row)];
    }
    /// The pair of an open line and an open row of a target of the mapping; none if one is settled.
    [[nodiscard]] std::optional<Plan::PlanEdge> edgeFor(int sourceRow, int targetIndex,
                                                        int row) const;
    /// How one of the target's variables() compares.
    [[nodiscard]] Plan::CellEvidence cell(const Plan::PlanEdge &edge, int sourceRow,
                                          size_t place) const;
    [[nodiscard]] bool isCanceled() const { return m_isCanceled; }

private:
    /// What other projects show of this variable.
    void takeLearned(const LearnedValues &learned, const QString &name, int number);
    void findSettled(TargetSet &targets, const PrjMappingC &mapping);
    void takeConfirmed(TargetSet &targets, const PrjMappingC &mapping);
    void takeEqual(const BoundTarget &target, size_t place);
    void findOpen(const BoundTarget &target, Plan::PlanTarget &filled);
    /// The cells of all targets, some variables at a time.
    void fillTargets(const LearnedValues &learned);
    /// Of as many variables the values are in hand at once.
    [[nodiscard]] int variablesAtOnce() const;
    /// Those from \a first to before \a last.
    struct Variables
    {
        int first = 0;
        int last = 0;
    };
    /// Of a target's variables those that are meant: where they stand, and their numbers.
    struct Places
    {
        Places(const Plan::PlanTarget &target, Variables meant);
        std::vector<size_t> places;
        std::vector<int> variables;
    };
    void fillLines(const BoundTarget &target, Plan::PlanTarget &filled, Variables meant);
    void fillRows(const BoundTarget &target, Plan::PlanTarget &filled, Variables meant);
    /// When the values of all targets are numbered.
    void finish(Plan::PlanTarget &filled);
    [[nodiscard]] Plan::CellValues &valuesOf(const Plan::PlanTarget &filled, size_t place)
    {
        return m_tables.values[size_t(filled.variables[place])];
    }
    /// Whether the variable, or what follows the target's variables, tells lines apart.
    [[nodiscard]] static bool isKey(const BoundTarget &target, bool hasSourceName, size_t place);
    [[nodiscard]] bool takes(const BoundTarget &target, int sourceRow) const;

    const SourceTable &source() const { return *m_source; }

    const SourceTable *m_source = nullptr; ///< Only while it is made.
    bool m_walksRanges = false;
    Plan::PlanTables m_tables;
    std::vector<int> m_targetIndexes;
    std::vector<const BoundTarget *> m_bound; ///< Only while it is made.
    std::vector<int> m_settledTarget;         ///< By source row: place in m_bound, or -1.
    std::vector<int> m_settledRow;
    std::vector<int> m_openOf;                ///< By source row: number of the open line, or -1.
    std::vector<std::vector<char>> m_claimed; ///< By number of the table and row.
    std::map<QString, int> m_variableNumbers;
    AgreedValues m_agreed;
    /// By number of the variable, if anything was agreed to: whether it was about this one.
    std::vector<char> m_isAgreed;
    Plan::KnownChanges m_known;
    std::unique_ptr<Plan::LinePlanner> m_planner;
    bool m_isCanceled = false;
};

} // namespace Mapper
