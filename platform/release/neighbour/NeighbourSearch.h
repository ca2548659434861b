#pragma once

#include "NeighbourCheck.h"
#include "PairLikeness.h"
#include "TargetOrder.h"

#include <set>
#include <vector>

namespace VelkRelease {

/// Seeks the changes of one target's assignments that make them more probable.
class NeighbourSearch
{
public:
    struct Change
    {
        NeighbourFinding::Kind kind;
        std::vector<TargetOrder::Move> moves; ///< ascending
        double gain;
        int steps; ///< by how many rows most of the lines are too far on; 0: says nothing
    };

    /// Both must live as long.
    NeighbourSearch(TargetOrder &order, PairLikeness &likeness);

    /// Finds changes and makes them, until there are no more; each position is in one at most.
    [[nodiscard]] std::vector<Change> run();
    /// A line without target before a position: the free row that it fits, or that of a line beside
    /// it if that and others are shifted then.
    struct Skipped
    {
        int row = -1; ///< -1: none
        std::vector<TargetOrder::Move> moves;
        int steps = 0; ///< as of a change
    };
    /// Makes the moves. No other line gets the row.
    [[nodiscard]] Skipped skipped(int index, int position);

private:
    /// Natural logarithm of 1000.
    static constexpr double LeastGain = 6.9;
    /// Rows beside a line's own that are looked at, and lines beside it whose rows are.
    static constexpr int Reach = 4;
    /// A run of lines ends where it has lost so much of its gain again.
    static constexpr double MostLoss = 8;
    /// A line that cannot gain more stays where it is.
    static constexpr double LeastRoom = 2;

    [[nodiscard]] std::vector<Change> changes();
    void addShifts(std::vector<Change> &changes);
    void addChain(std::vector<Change> &changes, int step);
    void addMoves(std::vector<Change> &changes, int position);
    void addShared(std::vector<Change> &changes);
    void addRuns(std::vector<Change> &changes, const std::vector<int> &rows);
    void add(std::vector<Change> &changes, NeighbourFinding::Kind kind,
             std::vector<TargetOrder::Move> moves);
    void apply(const std::vector<TargetOrder::Move> &moves);
    void learnAnew();
    [[nodiscard]] int stepsOf(const std::vector<TargetOrder::Move> &moves) const;
    [[nodiscard]] static std::vector<Change> joined(std::vector<Change> made);
    /// The row at which the line is best placed of those that are free between two rows; -1: none.
    [[nodiscard]] int bestFree(int index, int after, int before);
    [[nodiscard]] int leftRow(int index, int after, int before);
    [[nodiscard]] int skippedRow(int index, int position);
    [[nodiscard]] Skipped skippedChain(int index, int position, int step);
    [[nodiscard]] double total(const std::vector<TargetOrder::Move> &moves);
    void extend(std::vector<TargetOrder::Move> &moves, const std::vector<int> &rows, int step);
    [[nodiscard]] double gain(int position, int row);
    [[nodiscard]] double likenessAt(int position);
    /// Its own row is about as good as any can be.
    [[nodiscard]] bool isContent(int position);
    [[nodiscard]] std::vector<int> rowsNear(int position) const;

    TargetOrder &m_order;
    PairLikeness &m_likeness;
    std::vector<double> m_room; ///< by position; NaN: not known yet, as below
    std::vector<double> m_own;
    std::vector<bool> m_moved;
    std::set<int> m_left;   ///< rows of lines that were moved
    std::set<int> m_filled; ///< rows for skipped lines
};

} // namespace VelkRelease
