#pragma once

#include "PairJoin.h"
#include "TargetValues.h"

#include <QStringList>

#include <memory>
#include <unordered_map>

namespace VKTab {
class LineIndex;
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

    [[nodiscard]] std::shared_ptr<const PairJoin> build();

private:
    void joinInPlace(const VKTab::LineIndex &index);
    void joinLineByLine();
    void joinLine(int row);
    void joinView(int row, const VKTab::LineView &view, std::vector<int> &claimed);
    void claim(int targetRow);
    void pairOff();
    [[nodiscard]] int nextEqual(int first, int after);
    void computeAgreement();
    [[nodiscard]] int countKnownKeys() const;

    const SourceTable &m_source;
    const BoundTarget &m_target;
    const QStringList m_ranges;
    std::shared_ptr<PairJoin> m_join;
    TargetValues m_values;
    int m_lines = 0; ///< For which the conditions hold.
    int m_hits = 0;
    std::unordered_map<int, int> m_lastOfRing; ///< Last paired row by the first equal row.
};

} // namespace Mapper
