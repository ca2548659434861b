#include "EdgeLists.h"

#include <algorithm>

namespace Plan {

EdgeLists::EdgeLists(size_t lines)
    : m_lines(lines)
    , m_blocks((lines + LinesOfBlock - 1) / LinesOfBlock)
{
}

void EdgeLists::refill(size_t block, const std::function<void(size_t, Block &)> &make)
{
    const size_t first = block * LinesOfBlock;
    Block made;
    made.reserve(std::min(LinesOfBlock, m_lines - first));
    for (size_t line = first; line < std::min(m_lines, first + LinesOfBlock); ++line) {
        make(line, made);
        made.endLine();
    }
    made.finish();
    m_blocks[block] = std::move(made);
}

} // namespace Plan
