#pragma once

#include "ChangeMemory.h"
#include "EdgeLists.h"
#include "PlanTables.h"
#include "VariableRates.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <span>
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
    /// What a variable gives in a pair, as far as it is known.
    struct Part
    {
        double weight = 0;
        bool isKnown = true;   ///< Else two values differ, and this is the most that they give.
        bool isCommon = false; ///< They are the same, and that hardly happens by chance.
    };
    /// Tells the processor what bound() will ask for, the values of line and rows first, then their
    /// tokens: values of many lines are far from each other.
    void fetchValues(const PlanTarget &target, size_t line, std::span<const int> rows) const;
    void fetchTokens(const PlanTarget &target, size_t line, std::span<const int> rows) const;
    /// Appends those of a line and some rows, row by row in the order of the target's variables,
    /// and to \a sums what each row gives at most. What is left out, as keys are without \a
    /// withKeys, gives nothing. Looks at the rows variable by variable: values are far from each
    /// other.
    void bound(const PlanTarget &target, size_t line, std::span<const int> rows, bool withKeys,
               std::vector<Part> &parts, std::vector<double> &sums) const;
    /// Sum of the weights of all \a parts, which were bounded. If it is sure to be less than \a
    /// least, something less than that is the answer: most rows differ in so much that a few
    /// variables are enough to tell.
    [[nodiscard]] double weight(const PlanTarget &target, size_t line, size_t row, double own,
                                std::span<Part> parts, double least) const;
    /// Adds what the pair shows of the rates of the variable in this place, with its probability.
    void count(const PlanTarget &target, size_t place, const PlanEdge &edge, size_t line,
               double own, RateCounts &seen) const;
    /// Whether some variable has the same value in both, one that less than half of the rows have.
    /// A change that nothing else speaks for is no model for others: in a series of numbers every
    /// shift looks like a rule.
    [[nodiscard]] static bool hasCommonValue(const PlanTarget &target, size_t line, size_t row);

private:
    /// What cell() gives where no two values are to be compared, and the most that two different
    /// ones give as a change.
    struct PlaceWeights
    {
        double gained = 0;
        double lost = 0;
        double without = 0;
        double bothThere = 0;
        double change = 0; ///< To be divided by the share of the new value.
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
    /// Of the rows in one variable, which has a value in the line.
    void boundPlace(const PlanTarget &target, size_t place, int oldValue, std::span<const int> rows,
                    std::span<Part> parts) const;
    [[nodiscard]] Part same(const PlanTarget &target, size_t place, int value) const;
    [[nodiscard]] double alikeRatio(const CellValues &values, const ColumnChance &chance,
                                    const VariableRates &rates, int oldValue, int newValue) const;
    void countTokens(const CellValues &values, const ColumnChance &chance, int oldValue,
                     int newValue, double weight, RateCounts &seen) const;
    [[nodiscard]] double nearRatio(const CellValues &values, const ColumnChance &chance,
                                   int oldValue, int newValue) const;

    const PlanTables &m_tables;
    const std::vector<VariableRates> &m_rates;
    const ChangeMemory &m_changes;
    std::vector<std::vector<PlaceWeights>> m_weights; ///< By target and place.
};

} // namespace Plan
