#pragma once

#include "ChangeMemory.h"
#include "EdgeLists.h"
#include "PlanTables.h"
#include "VariableRates.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <cstdint>
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
class VELKGEOMCORE_EXPORT PairEvidence
{
public:
    /// All three stay where they are, and as they are.
    PairEvidence(const PlanTables &tables, const std::vector<VariableRates> &rates,
                 const ChangeMemory &changes);

    /// \a own is what the pair itself has added to the changes.
    [[nodiscard]] CellEvidence cell(const PlanTarget &target, size_t line, size_t row, size_t place,
                                    double own) const;
    /// Sum of the weights over all variables, or over those that are no keys. If it is sure to be
    /// less than \a least, something less than that is the answer: most rows differ in so much that
    /// a few variables are enough to tell.
    [[nodiscard]] double weight(const PlanTarget &target, size_t line, size_t row, double own,
                                bool withKeys, double least) const;
    /// At least what weight() gives, from what is the same alone.
    [[nodiscard]] double atMost(const PlanTarget &target, size_t line, size_t row,
                                bool withKeys) const;
    /// Adds what the pair shows of the rates of the variable in this place, with its probability.
    void count(const PlanTarget &target, size_t place, const PlanEdge &edge, size_t line,
               double own, RateCounts &seen) const;
    /// Whether some variable has the same value in both, one that less than half of the rows have.
    /// A change that nothing else speaks for is no model for others: in a series of numbers every
    /// shift looks like a rule.
    [[nodiscard]] static bool hasCommonValue(const PlanTarget &target, size_t line, size_t row);

private:
    /// What cell() gives where no two values are to be compared, and the most that two different
    /// ones give as a change and as numbers.
    struct PlaceWeights
    {
        double gained = 0;
        double lost = 0;
        double without = 0;
        double bothThere = 0;
        double change = 0; ///< To be divided by the share of the new value.
        double near = 0;
        std::vector<double>
            same; ///< For the same value, by how many lines have it, if they are few.
    };
    [[nodiscard]] PlaceWeights weightsOf(const PlanTarget &target, size_t place) const;
    [[nodiscard]] const PlaceWeights &weights(const PlanTarget &target, size_t place) const
    {
        return m_weights[size_t(&target - m_tables.targets.data())][place];
    }
    [[nodiscard]] double sameWeight(const PlanTarget &target, size_t place, int value) const;
    /// How much more often two values that differ meet in each way between lines that belong
    /// together than by chance; the sum.
    double compare(const PlanTarget &target, size_t place, int oldValue, int newValue, double own,
                   CellEvidence &evidence) const;
    struct Part
    {
        enum Kind { Known, Same, Differs }; ///< The weight is at least what it is but for Known.
        double weight = 0;
        Kind kind = Known;
        bool isCommon = false; ///< It is the same, and that hardly happens by chance.
    };
    /// How close to what cell() gives.
    enum class Bound : std::uint8_t { Rough, Close };
    /// What cell() gives, or gives at most, without comparing.
    [[nodiscard]] Part atMost(const PlanTarget &target, size_t place, int oldValue, int newValue,
                              Bound bound) const;
    [[nodiscard]] double alikeRatio(const CellValues &values, const ColumnChance &chance,
                                    const VariableRates &rates, int oldValue, int newValue) const;
    void countTokens(const CellValues &values, const ColumnChance &chance, int oldValue,
                     int newValue, double weight, RateCounts &seen) const;
    [[nodiscard]] double nearRatio(const CellValues &values, const ColumnChance &chance,
                                   int oldValue, int newValue) const;
    [[nodiscard]] double nearRatioAtMost(const CellValues &values, const ColumnChance &chance,
                                         int oldValue, int newValue) const;

    const PlanTables &m_tables;
    const std::vector<VariableRates> &m_rates;
    const ChangeMemory &m_changes;
    std::vector<std::vector<PlaceWeights>> m_weights; ///< By target and place.
};

} // namespace Plan
