#pragma once

#include "PairJoin.h"
#include "TargetValues.h"

#include <geomcore/table/LineIndex.h>

#include <QStringList>

#include <memory>
#include <unordered_map>

namespace VKTab {
class LineView;
} // namespace VKTab

namespace Mapper {

class BoundTarget;
class SourceTable;

/// Builds the join of a source table with one target. A line takes part as stored and with each
/// combination of the ranges that conditions read, as far as the target's conditions hold.
class PairJoinBuilder
{
public:
    /// \a ranges names the ranges that conditions read.
    PairJoinBuilder(const SourceTable &source, const BoundTarget &target,
                    const QStringList &ranges);

    /// Null if that was cancelled, see SourceTable::setCancellation().
    [[nodiscard]] std::shared_ptr<const PairJoin> build();

private:
    /// What one thread is at.
    struct PartOfJoin
    {
        VKTab::LineIndex::Probe &probe;
        const VKTab::LineIndex &index;
        const int blank; ///< The row without values; -1 if there is none.
        int lines = 0;
        int hits = 0;
    };

    /// False if cancelled.
    [[nodiscard]] bool joinInPlace(const VKTab::LineIndex &index);
    void joinRows(int first, int count, PartOfJoin &part);
    [[nodiscard]] bool joinLineByLine();
    void joinLine(int row);
    /// How many there are; 0 if the line has no range to walk.
    int joinCombinations(int row);
    /// The row proposed for the values; -1 if there is none, or the conditions do not hold.
    int joinView(int row, const VKTab::LineView &view, bool &taken);
    void claimRows(int row, const std::vector<int> &rows);
    void claim(int targetRow);
    void claimBesideOthers(int targetRow);
    void pairOff();
    void findOutnumbered();
    [[nodiscard]] bool isProposable(int row) const;
    [[nodiscard]] int nextEqual(int first, int after);
    void computeAgreement();
    /// Of the lines whose identity the target knows: how many there are, and how many have an equal
    /// line. Nothing changes if it knows none.
    void countKnown(int &lines, int &hits) const;

    const SourceTable &m_source;
    const BoundTarget &m_target;
    const QStringList m_ranges;
    std::shared_ptr<PairJoin> m_join;
    TargetValues m_values;
    std::vector<int> m_claimedBy; ///< The source row that claimed a row last, from 1.
    int m_lines = 0;              ///< For which the conditions hold.
    int m_hits = 0;
    std::unordered_map<int, int> m_lastOfRing; ///< Last paired row by the first equal row.
};

} // namespace Mapper
