#pragma once

#include "LineLists.h"

#include <geomcore/VelkGeomCoreGlobal.h>

#include <functional>
#include <span>
#include <vector>

namespace Plan {

/// A possible pair of an open line and an open row.
struct PlanEdge
{
    int target = 0;    ///< Index in the plan's targets.
    int row = 0;       ///< Index in the target's open rows.
    int node = 0;      ///< Number of the row among all of the plan.
    double weight = 0; ///< Logarithm of the odds against both being without a partner.
    double probability = 0;
};

/// The possible pairs of all open lines, by line. Those of a few neighbouring lines lie together in
/// a block of memory of their own, so that threads can give blocks other pairs at the same time.
class VELKGEOMCORE_EXPORT EdgeLists
{
public:
    using Block = LineLists<PlanEdge>;
    static constexpr size_t LinesOfBlock = 64;

    /// None for so many lines.
    explicit EdgeLists(size_t lines);

    [[nodiscard]] size_t size() const { return m_lines; }
    [[nodiscard]] std::span<const PlanEdge> operator[](size_t line) const
    {
        return m_blocks[line / LinesOfBlock].of(line % LinesOfBlock);
    }
    [[nodiscard]] std::span<PlanEdge> operator[](size_t line)
    {
        return m_blocks[line / LinesOfBlock].of(line % LinesOfBlock);
    }
    /// Gives all lines of a block other pairs: \a make adds those of a line.
    void refill(size_t block, const std::function<void(size_t line, Block &out)> &make);
    [[nodiscard]] size_t blockCount() const { return m_blocks.size(); }

private:
    size_t m_lines;
    std::vector<Block> m_blocks;
};

} // namespace Plan
