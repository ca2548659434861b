#pragma once

#include "EdgeSearch.h"
#include "LineChoice.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <atomic>
#include <functional>
#include <memory>
#include <mutex>
#include <span>
#include <vector>

namespace Plan {

/// Works out for all open lines of a source table at once which open rows of its targets they may
/// have become. What changed in the table as a whole is learned from the pairs that it makes
/// likely, in a few rounds: a column that was reworded everywhere then says little, the same
/// replacement in many lines counts nearly as equality, neighbours show the place.
class VELKGEOMCORE_EXPORT LinePlanner
{
public:
    /// The tables stay where they are.
    explicit LinePlanner(const PlanTables &tables);
    LinePlanner(const LinePlanner &) = delete;
    LinePlanner &operator=(const LinePlanner &) = delete;

    /// What pairs of other tables showed, by variable; as many as there are variables. Counts as
    /// little evidence beside that of this table.
    void setPrior(std::vector<VariableRates> rates) { m_prior = std::move(rates); }
    /// What other tables showed of how values are replaced; stays where it is.
    void setKnown(const KnownChanges *known) { m_known = known; }
    /// Asked between some lines; after it answered true the result is of no use.
    void setCancellation(std::function<bool()> isCanceled) { m_isCanceled = std::move(isCanceled); }
    void run();

    /// What was found for an open line.
    struct Line
    {
        /// Most probable first; the one that the assignment gives stands before the others.
        std::span<const PlanEdge> candidates;
        double noSuccessor = 1;
        /// The first candidate is the line's own in the assignment, and not just left over.
        bool isAssigned = false;
    };
    [[nodiscard]] Line line(size_t line) const;
    /// Number of an open row among those of all tables.
    [[nodiscard]] int nodeOf(int target, int row) const
    {
        return m_nodeOffsets[size_t(target)] + row;
    }
    /// How one variable of a candidate compares, with what was learned.
    [[nodiscard]] CellEvidence cell(const PlanEdge &edge, size_t line, size_t place) const;
    /// What was seen, by variable.
    [[nodiscard]] const std::vector<RateCounts> &counts() const { return best().m_counts; }

private:
    /// What is learned depends on where it begins: if a key was renumbered, its values meet by
    /// chance, and nothing else does. Then what is learned without the keys at first may explain
    /// the tables better.
    [[nodiscard]] const LinePlanner &best() const { return m_other ? *m_other : *this; }
    void learnInRounds();
    [[nodiscard]] bool onlyKeysAgree() const;
    [[nodiscard]] bool mostAreOpen() const;
    /// From another beginning; keeps the result if it explains the tables better.
    void learnAgain(bool beginsByKeys, double gone);
    void findPlaces(bool first);
    static void uncross(const PlanTarget &target, std::vector<std::pair<size_t, int>> &pairs);
    /// Of all lines or of those that stand for them.
    void makeEdges(bool ofAll);
    /// Of very many lines a part is enough to learn from.
    void takeSample();
    [[nodiscard]] bool areAlike(size_t line, size_t otherLine, const PlanEdge &row,
                                const PlanEdge &otherRow) const;
    /// Once all edges are made, nothing is looked up any more.
    void freeSearch();
    [[nodiscard]] double prior(size_t target) const;
    /// The last time no changes: nothing is weighed by them any more.
    void learn(bool isLast);
    void learnTargets(const std::vector<double> &lines);
    /// A pair that is probable enough to learn from.
    struct Shown
    {
        std::uint32_t line = 0;
        std::uint16_t edge = 0; ///< Index among those of the line.
        bool isModel = false;   ///< Changes are learned from it as well.
    };
    /// Of all lines or of those that stand for them.
    [[nodiscard]] std::vector<Shown> shownPairs(bool ofAll) const;
    /// Calls \a take with each of them, its edge and its target.
    template<class Take>
    void forEachShown(const std::vector<Shown> &pairs, Take take) const;
    /// By target: where it has the variable.
    [[nodiscard]] std::vector<std::vector<size_t>> placesOf(int variable) const;
    void learnRates(const std::vector<Shown> &pairs);
    /// Of very many pairs it is much.
    void forgetChanges();
    void learnChanges(const std::vector<Shown> &pairs);
    [[nodiscard]] ChangeMemory changesOf(const std::vector<Shown> &pairs, bool ofAll) const;
    [[nodiscard]] ChangeMemory::Pairs valuesOf(const std::vector<Shown> &pairs, int variable,
                                               bool ofAll) const;
    /// What candidates are explained by, all changes as they are. Most plans are asked for
    /// proposals alone, so it is learned when it is first asked for.
    void learnToTell() const;
    /// Once true, it is not asked again.
    [[nodiscard]] bool isCanceled() const;

    /// Share of the lines that have no successor, before anything is known; it counts like
    /// VariableRates::Strength lines.
    static constexpr double AssumedGone = 0.1;

    const PlanTables &m_tables;
    std::vector<int> m_nodeOffsets; ///< By target.
    int m_nodeCount = 0;
    std::vector<double> m_settled; ///< By target: how many lines.
    EdgeSearch::Rows m_rows;
    std::vector<float> m_standsFor; ///< By open line: so many, itself included; 0: not looked at.
    std::vector<VariableRates> m_prior;
    std::vector<VariableRates> m_rates;
    std::vector<RateCounts> m_counts;
    const KnownChanges *m_known = nullptr;
    mutable ChangeMemory m_changes;
    /// By m_rates and m_changes as they are.
    mutable std::unique_ptr<PairEvidence> m_evidence;
    mutable std::once_flag m_toldOnce;
    std::vector<PlaceEvidence> m_places; ///< By target.
    std::vector<char> m_keepsOrder;      ///< By target, as they said last.
    double m_gone;
    double m_doubt = 0;           ///< See nextBestDoubt().
    std::vector<double> m_shares; ///< By target: how many of the lines that have a successor.
    EdgeLists m_edges;
    /// What the edges have added to m_changes; after the last round the candidates say it.
    LineLists<EdgeSearch::Learned> m_learned;
    LineChoice m_choice;
    bool m_beginsByKeys = true;
    bool m_withKeys = true; ///< In this round.
    std::unique_ptr<LinePlanner> m_other;
    std::function<bool()> m_isCanceled;
    mutable std::atomic<bool> m_wasCanceled = false;
};

} // namespace Plan
