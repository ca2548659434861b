#pragma once

#include "ChangeMemory.h"
#include "PlanTables.h"
#include "SoftAssignment.h"
#include "VariableRates.h"

#include <vector>

namespace Plan {

/// What a comparison of one variable says: the logarithm of how much more often it happens between
/// lines that belong together than by chance, and by which way.
struct CellEvidence
{
    double weight = 0;
    std::array<double, WayCount> ways{}; ///< Probability of each way; all 0 if a value is missing.
    double supports = 0;                 ///< Other pairs with the same change.
};

/// Compares an open line with an open row, with what was learned so far.
class PairEvidence
{
public:
    PairEvidence(const PlanTables &tables, const std::vector<VariableRates> &rates,
                 const ChangeMemory &changes)
        : m_tables(tables)
        , m_rates(rates)
        , m_changes(changes)
    {
    }

    /// \a own is what the pair itself has added to the changes.
    [[nodiscard]] CellEvidence cell(const PlanTarget &target, size_t line, size_t row, size_t place,
                                    double own) const;
    /// Sum of the weights over all variables, or over those that are no keys.
    [[nodiscard]] double weight(const PlanTarget &target, size_t line, size_t row, double own,
                                bool withKeys = true) const;
    /// Adds what the pair shows, with its probability. False if it is no model for others, so that
    /// it has added nothing to the changes.
    bool count(const PlanTarget &target, const PlanEdge &edge, size_t line, double own,
               std::vector<RateCounts> &counts, ChangeMemory &changes) const;

private:
    /// Whether some variable has the same value in both, one that less than half of the rows have.
    [[nodiscard]] bool hasCommonValue(const PlanTarget &target, size_t line, size_t row) const;
    [[nodiscard]] double alikeRatio(const ColumnChance &chance, const VariableRates &rates,
                                    int oldValue, int newValue) const;
    void countTokens(const ColumnChance &chance, int oldValue, int newValue, double weight,
                     RateCounts &seen) const;
    [[nodiscard]] double nearRatio(const ColumnChance &chance, int oldValue, int newValue) const;

    const PlanTables &m_tables;
    const std::vector<VariableRates> &m_rates;
    const ChangeMemory &m_changes;
};

} // namespace Plan
